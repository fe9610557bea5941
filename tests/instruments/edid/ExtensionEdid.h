#ifndef TESTS_INSTRUMENTS_EDID_EXTENSIONEDID_H
#define TESTS_INSTRUMENTS_EDID_EXTENSIONEDID_H

#include <QByteArray>

/// @file
/// EDIDs of a base block without any finding and of extensions that a test describes.

namespace ExtensionEdid {

/// A CTA extension from the bytes of its parts.
struct SCta
{
    QByteArray dataBlocks;
    QByteArray timings; ///< detailed timings
    int nRevision = 3;
    int nFlags = 0xF0; ///< underscan, basic audio, YCbCr, number of native timings
    int nTimings = -1; ///< where the detailed timings begin; -1 is behind the data blocks
};

/// A DisplayID section from the bytes of its data blocks.
struct SSection
{
    QByteArray dataBlocks;
    int nVersion = 0x13;
    int nProduct = 3;
    int nFollowing = 0;
    int nLength = 121; ///< of the data blocks with their filler
};

QByteArray Cta(const SCta& cta);
QByteArray Section(const SSection& section);

/// The base block with extensions, count and checksums made right.
QByteArray With(const QByteArray& extensions);

/// An EDID with some bytes replaced, and checksums made right.
QByteArray Changed(QByteArray edid, int nOffset, const char* szHex);

} // namespace ExtensionEdid

#endif // TESTS_INSTRUMENTS_EDID_EXTENSIONEDID_H
