#include "instruments/edid/CtaDataBlocks.h"

#include "instruments/edid/Checksum.h"
#include "instruments/edid/CtaLayout.h"

namespace Edid {

namespace {

constexpr unsigned c_nTagShift = 5;
constexpr unsigned c_nLengthMask = 0x1F;

/// Revision 1 of the extension has no data blocks.
constexpr int c_nRevisionOffset = 1;
constexpr int c_nFirstWithBlocks = 2;

bool IsPlace(int nOffset)
{
    return nOffset >= c_nCtaFirstDataBlock && nOffset < c_nChecksumOffset;
}

} // namespace

const char* CtaBlockName(qint64 nNameCode)
{
    return CtaBlockName(int(nNameCode >> 8), int(nNameCode & 0xFF));
}

int DetailedTimingsBegin(const quint8* pBlock)
{
    const int nOffset = pBlock[c_nCtaDetailedOffset];
    return IsPlace(nOffset) ? nOffset : c_nChecksumOffset;
}

int DataBlocksEnd(const quint8* pBlock)
{
    return pBlock[c_nRevisionOffset] < c_nFirstWithBlocks && !IsPlace(pBlock[c_nCtaDetailedOffset])
               ? c_nCtaFirstDataBlock
               : DetailedTimingsBegin(pBlock);
}

std::optional<SDataBlock> DataBlockAt(const quint8* pBytes, int nOffset, int nEnd)
{
    if (nOffset >= nEnd)
        return std::nullopt;
    const unsigned nHead = pBytes[nOffset];
    SDataBlock block = {nOffset, int(nHead & c_nLengthMask) + 1, int(nHead >> c_nTagShift), -1};
    if (block.End() > nEnd)
        return std::nullopt;
    if (block.nTag == enCtaExtended && block.nSize > 1)
        block.nExtendedTag = pBytes[nOffset + 1];
    return block;
}

} // namespace Edid
