#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/CheckContext.h"
#include "instruments/edid/Checksum.h"
#include "instruments/edid/CtaDataBlocks.h"
#include "instruments/edid/CtaLayout.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/DisplayIdLayout.h"

#include <algorithm>
#include <numeric>

namespace Edid {

namespace {

/// Block tags (VESA E-EDID, section 2.2.2) that are not judged any further.
constexpr quint8 c_arrOtherTags[] = {0x10, 0x40, 0x50, 0x60, 0xF0, 0xFF};

void CheckChecksum(CCheckContext& context, int nBlock)
{
    const quint8* pBlock = context.At(nBlock);
    const quint8 byRight = Checksum(pBlock);
    if (pBlock[c_nChecksumOffset] != byRight)
        context.AddBytes(enRule::enChecksum, nBlock + c_nChecksumOffset, 1, pBlock[c_nChecksumOffset],
                         byRight);
}

void CheckExtension(CCheckContext& context, int nBlock)
{
    const quint8 byTag = *context.At(nBlock);
    if (byTag == c_byCtaTag)
        CheckCta(context, nBlock);
    else if (byTag == c_byDisplayIdTag)
        CheckDisplayId(context, nBlock);
    else if (std::find(std::begin(c_arrOtherTags), std::end(c_arrOtherTags), byTag) ==
             std::end(c_arrOtherTags))
        context.AddBytes(enRule::enExtensionTag, nBlock, 1, byTag);
}

void CheckDataBlocks(CCheckContext& context, int nBlock)
{
    int nOffset = nBlock + c_nCtaFirstDataBlock;
    const quint8* pBlock = context.At(nBlock);
    // Without detailed timings the data blocks end wherever they do.
    if (DetailedTimingsBegin(pBlock) == c_nChecksumOffset)
        return;
    const int nEnd = nBlock + DataBlocksEnd(pBlock);
    while (const std::optional<SDataBlock> block = DataBlockAt(context.At(0), nOffset, nEnd))
        nOffset = block->End();
    if (nOffset < nEnd)
        context.AddBytes(enRule::enCtaBlock, nOffset, nEnd - nOffset);
}

} // namespace

void CheckCta(CCheckContext& context, int nBlock)
{
    const quint8* pBlock = context.At(nBlock);
    const int nTimings = pBlock[c_nCtaDetailedOffset];
    if (nTimings != 0 && (nTimings < c_nCtaFirstDataBlock || nTimings > c_nChecksumOffset))
        context.AddBytes(enRule::enCtaOffset, nBlock + c_nCtaDetailedOffset, 1, nTimings);
    CheckDataBlocks(context, nBlock);
    int nOffset = DetailedTimingsBegin(pBlock);
    for (; nOffset + c_nDescriptorSize <= c_nChecksumOffset && IsDetailed(pBlock + nOffset);
         nOffset += c_nDescriptorSize)
        CheckDetailed(context, nBlock + nOffset);
}

void CheckDisplayId(CCheckContext& context, int nBlock)
{
    const quint8* pSection = context.At(nBlock + c_nSectionOffset);
    const int nLength = pSection[1];
    if (nLength > c_nMaxSectionBytes) {
        context.AddBytes(enRule::enSectionLength, nBlock + c_nSectionOffset + 1, 1, nLength);
        return;
    }
    const int nBytes = c_nSectionHeadSize + nLength;
    const unsigned nSum = std::accumulate(pSection, pSection + nBytes, 0U);
    const quint8 byRight = static_cast<quint8>(0U - nSum);
    if (pSection[nBytes] != byRight)
        context.AddBytes(enRule::enSectionChecksum, nBlock + c_nSectionOffset + nBytes, 1, pSection[nBytes],
                         byRight);
}

void Check(const quint8* pBytes, int nSize, const SCheckOptions& options, std::vector<SFinding>& vecFindings)
{
    vecFindings.clear();
    if (nSize < c_nEdidBlockSize)
        return;
    CCheckContext context(pBytes, nSize, options, vecFindings);
    CheckBase(context);
    CheckChecksum(context, 0);
    for (int nBlock = c_nEdidBlockSize; nBlock + c_nEdidBlockSize <= nSize; nBlock += c_nEdidBlockSize) {
        CheckExtension(context, nBlock);
        CheckChecksum(context, nBlock);
    }
}

} // namespace Edid
