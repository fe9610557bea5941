#ifndef INSTRUMENTS_EDID_CTADATABLOCKS_H
#define INSTRUMENTS_EDID_CTADATABLOCKS_H

#include <QtGlobal>

#include <optional>

/// @file
/// Walking through the data blocks of a CTA extension (CTA-861-H, section 7.4).

namespace Edid {

/// One data block.
struct SDataBlock
{
    int nOffset; ///< of the byte with tag and length, from where the walk counts
    int nSize;   ///< bytes, with that byte
    int nTag;
    int nExtendedTag; ///< -1 for a block without one

    int End() const { return nOffset + nSize; }
    /// Both tags in one number: the name of the block.
    int NameCode() const { return nTag << 8 | (nExtendedTag & 0xFF); }
};

/// The name that `SDataBlock::NameCode` stands for.
const char* CtaBlockName(qint64 nNameCode);

/// Where the data blocks end: at the detailed timings, or at the checksum. Never before the fourth byte.
/// @param pBlock  the extension block
int DataBlocksEnd(const quint8* pBlock);

/// Where the detailed timings begin; at the checksum when there are none.
int DetailedTimingsBegin(const quint8* pBlock);

/// The data block at an offset; empty at the end, and for one that would go beyond it.
std::optional<SDataBlock> DataBlockAt(const quint8* pBytes, int nOffset, int nEnd);

} // namespace Edid

#endif // INSTRUMENTS_EDID_CTADATABLOCKS_H
