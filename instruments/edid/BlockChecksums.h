#ifndef INSTRUMENTS_EDID_BLOCKCHECKSUMS_H
#define INSTRUMENTS_EDID_BLOCKCHECKSUMS_H

#include <QByteArray>

/// @file
/// The checksums of a block: its own, and that of the section in a DisplayID block.

namespace Edid {

/// Makes the checksum of a block right.
/// @param nBlock  offset of its first byte
void PutChecksum(QByteArray& edid, int nBlock);

/// Makes the checksum of a section right; nothing in a block without one.
void PutSectionChecksum(QByteArray& edid, int nBlock);

/// Keeps the checksums of a block right over a change. One that was wrong before stays wrong.
class CKeptChecksums
{
public:
    /// @param nBlock  offset of the first byte of a whole block
    CKeptChecksums(const QByteArray& edid, int nBlock);

    /// Makes those right again that were right.
    void Restore(QByteArray& edid) const;

private:
    int m_nBlock;
    bool m_bSection;
    bool m_bBlock;
};

} // namespace Edid

#endif // INSTRUMENTS_EDID_BLOCKCHECKSUMS_H
