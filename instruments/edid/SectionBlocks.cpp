#include "instruments/edid/SectionBlocks.h"

#include <algorithm>

namespace Edid {

int SectionBegin(int nSection)
{
    return nSection + c_nSectionHeadSize;
}

int SectionEnd(const quint8* pBytes, int nSection)
{
    return SectionBegin(nSection) + std::min(int(pBytes[nSection + 1]), c_nMaxSectionBytes);
}

std::optional<SSectionBlock> SectionBlockAt(const quint8* pBytes, int nOffset, int nEnd)
{
    if (nOffset + c_nDataBlockHeadSize > nEnd)
        return std::nullopt;
    const quint8* pBlock = pBytes + nOffset;
    const bool bFiller = pBlock[0] == 0 && pBlock[1] == 0 && pBlock[2] == 0;
    const SSectionBlock block = {nOffset, pBlock[0], pBlock[2]};
    if (bFiller || block.End() > nEnd)
        return std::nullopt;
    return block;
}

} // namespace Edid
