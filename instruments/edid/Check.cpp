#include "instruments/edid/CheckContext.h"
#include "instruments/edid/Checksum.h"
#include "instruments/edid/CtaLayout.h"
#include "instruments/edid/DisplayIdLayout.h"

#include <algorithm>

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

/// What extensions of one kind tell each other.
struct SExtensions
{
    SCtaSeen cta;
    SSectionsSeen sections;
};

void CheckExtension(CCheckContext& context, SExtensions& seen, int nBlock)
{
    const quint8 byTag = *context.At(nBlock);
    if (byTag == c_byCtaTag)
        CheckCta(context, seen.cta, nBlock);
    else if (byTag == c_byDisplayIdTag)
        CheckDisplayId(context, seen.sections, nBlock);
    else if (std::find(std::begin(c_arrOtherTags), std::end(c_arrOtherTags), byTag) ==
             std::end(c_arrOtherTags))
        context.AddBytes(enRule::enExtensionTag, nBlock, 1, byTag);
}

} // namespace

void Check(const quint8* pBytes, int nSize, const SCheckOptions& options, std::vector<SFinding>& vecFindings)
{
    vecFindings.clear();
    if (nSize < c_nEdidBlockSize)
        return;
    CCheckContext context(pBytes, nSize, options, vecFindings);
    CheckBase(context);
    CheckChecksum(context, 0);
    SExtensions seen;
    for (int nBlock = c_nEdidBlockSize; nBlock + c_nEdidBlockSize <= nSize; nBlock += c_nEdidBlockSize) {
        CheckExtension(context, seen, nBlock);
        CheckChecksum(context, nBlock);
    }
}

} // namespace Edid
