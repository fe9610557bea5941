#ifndef TESTS_INSTRUMENTS_EDID_SAMPLEEDID_H
#define TESTS_INSTRUMENTS_EDID_SAMPLEEDID_H

#include <QByteArray>

/// @file
/// EDIDs that the tests take apart.

namespace SampleEdid {

/// The base block that the library builds for a mode.
QByteArray Built(int nWidth, int nHeight, float fRate);

/// A display with everything: EDID 1.4, a CTA extension with audio, video codes, HDMI, HDMI Forum, HDR and
/// colorimetry blocks, and a DisplayID extension with a type I timing.
QByteArray Rich();

/// A block with its checksum made right.
QByteArray WithChecksums(QByteArray edid);

} // namespace SampleEdid

#endif // TESTS_INSTRUMENTS_EDID_SAMPLEEDID_H
