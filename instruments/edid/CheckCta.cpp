#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/BlockTimings.h"
#include "instruments/edid/CheckContext.h"
#include "instruments/edid/Checksum.h"
#include "instruments/edid/CtaDataBlocks.h"
#include "instruments/edid/CtaLayout.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/ListedTimings.h"

#include <algorithm>

namespace Edid {

namespace {

constexpr int c_nNone = -1;
constexpr int c_nRevisionOffset = 1;
constexpr int c_nFlagsOffset = 3;

/// What the rules about one extension need.
struct SCta
{
    CCheckContext& context;
    SCtaSeen& seen;
    int nBlock;

    const quint8* Block() const { return context.At(nBlock); }
    bool Has(const char* szFlag) const { return Get(Block(), *c_layoutCta.Find(szFlag)) != 0; }
};

int TimingsOfExtension(const quint8* pBlock)
{
    int nTimings = 0;
    int nOffset = DetailedTimingsBegin(pBlock);
    for (; nOffset + c_nDescriptorSize <= c_nChecksumOffset && IsDetailed(pBlock + nOffset);
         nOffset += c_nDescriptorSize)
        ++nTimings;
    return nTimings;
}

int TimingsOfBase(const CCheckContext& context)
{
    int nTimings = 0;
    for (int i = 0; i < c_nDescriptorCount; ++i)
        nTimings += IsDetailed(context.At(c_nDescriptorOffset + i * c_nDescriptorSize)) ? 1 : 0;
    return nTimings;
}

int TimingsOfAll(const CCheckContext& context)
{
    int nTimings = TimingsOfBase(context);
    for (int nBlock = c_nEdidBlockSize; nBlock + c_nEdidBlockSize <= context.Size();
         nBlock += c_nEdidBlockSize)
        if (*context.At(nBlock) == c_byCtaTag)
            nTimings += TimingsOfExtension(context.At(nBlock));
    return nTimings;
}

void CheckRevision(const SCta& cta)
{
    constexpr int c_nNever = 0;
    constexpr int c_nWithdrawn = 2;
    const int nRevision = cta.Block()[c_nRevisionOffset];
    if (nRevision == c_nNever || nRevision == c_nWithdrawn)
        cta.context.AddBytes(enRule::enCtaRevision, cta.nBlock + c_nRevisionOffset, 1, nRevision);
}

void CheckOffset(const SCta& cta)
{
    const int nTimings = cta.Block()[c_nCtaDetailedOffset];
    if (nTimings != 0 && (nTimings < c_nCtaFirstDataBlock || nTimings > c_nChecksumOffset))
        cta.context.AddBytes(enRule::enCtaOffset, cta.nBlock + c_nCtaDetailedOffset, 1, nTimings);
}

/// Native timings are counted over all extensions, and each of them tells the number.
void CheckNativeCount(const SCta& cta)
{
    constexpr int c_nMask = 0x0F;
    const int nNative = cta.Block()[c_nFlagsOffset] & c_nMask;
    if (nNative == 0)
        return;
    const int nTimings = TimingsOfAll(cta.context);
    if (nNative > nTimings)
        cta.context.AddBytes(enRule::enCtaNative, cta.nBlock + c_nFlagsOffset, 1, nNative, nTimings);
}

void CheckFlags(const SCta& cta)
{
    constexpr int c_nFirstWithFlags = 2;
    const quint8 byFlags = cta.Block()[c_nFlagsOffset];
    const int nOffset = cta.nBlock + c_nFlagsOffset;
    if (cta.Block()[c_nRevisionOffset] < c_nFirstWithFlags) {
        if (byFlags != 0)
            cta.context.AddBytes(enRule::enCtaFlagsAge, nOffset, 1, byFlags);
        return;
    }
    if (cta.seen.nFirstBlock == 0)
        CheckNativeCount(cta);
    else if (byFlags != cta.context.At(cta.seen.nFirstBlock)[c_nFlagsOffset])
        cta.context.AddBytes(enRule::enCtaFlags, nOffset, 1, byFlags,
                             cta.context.At(cta.seen.nFirstBlock)[c_nFlagsOffset]);
}

/// What is required of a kind of data block.
struct SDataBlockRule
{
    int nTag;
    int nExtendedTag; ///< `c_nNone` without one
    int nLeast;       ///< bytes of content behind the tags
    bool bOnce;       ///< whether there may be but one
    bool bAudio;      ///< whether it is about audio
};

constexpr SDataBlockRule c_arrRules[] = {
    {enCtaAudio, c_nNone, 0, false, true},
    {enCtaVendor, c_nNone, 3, false, false},
    {enCtaSpeakers, c_nNone, 3, true, true},
    {enCtaVesaTransfer, c_nNone, 7, true, false},
    {enCtaVideoFormat, c_nNone, 1, false, false},
    {enCtaExtended, c_nNone, 1, false, false}, // the extended tag itself is missing
    {enCtaExtended, enCtaVideoCapability, 1, true, false},
    {enCtaExtended, enCtaVendorVideo, 3, false, false},
    {enCtaExtended, enCtaVesaDevice, 30, true, false},
    {enCtaExtended, enCtaColorimetry, 2, true, false},
    {enCtaExtended, enCtaHdrStatic, 2, true, false},
    {enCtaExtended, enCtaNativeResolution, 5, false, false},
    {enCtaExtended, enCtaVideoPreference, 1, true, false},
    {enCtaExtended, enCta420Map, 0, true, false},
    {enCtaExtended, enCtaVendorAudio, 3, false, true},
    {enCtaExtended, enCtaHdmiAudio, 2, true, true},
    {enCtaExtended, enCtaRoom, 4, true, true},
    {enCtaExtended, enCtaSpeakerLocation, 2, false, true},
    {enCtaExtended, enCtaInfoFrame, 2, false, false},
    {enCtaExtended, enCtaTypeVIITiming, 21, false, false},
    {enCtaExtended, enCtaTypeXTiming, 7, false, false},
    {enCtaExtended, enCtaHdmiForumOverride, 1, true, false},
    {enCtaExtended, enCtaHdmiForumSink, 2, true, false},
};

const SDataBlockRule* RuleFor(const SDataBlock& block)
{
    const auto Is = [&](const SDataBlockRule& rule) {
        return rule.nTag == block.nTag && rule.nExtendedTag == block.nExtendedTag;
    };
    const auto* pRule = std::find_if(std::begin(c_arrRules), std::end(c_arrRules), Is);
    return pRule == std::end(c_arrRules) ? nullptr : pRule;
}

int ContentBegin(const SDataBlock& block)
{
    return block.nOffset + (block.nExtendedTag == c_nNone ? 1 : 2);
}

/// Whether the block is the first of its kind.
bool IsFirst(SCtaSeen& seen, const SDataBlock& block)
{
    std::bitset<256>& setSeen = block.nExtendedTag == c_nNone ? seen.setTags : seen.setExtendedTags;
    const auto nTag = std::size_t(block.nExtendedTag == c_nNone ? block.nTag : block.nExtendedTag);
    const bool bFirst = !setSeen.test(nTag);
    setSeen.set(nTag);
    return bFirst;
}

void CheckAgainstRule(const SCta& cta, const SDataBlock& block)
{
    const SDataBlockRule* pRule = RuleFor(block);
    if (pRule == nullptr)
        return;
    const int nContent = block.End() - ContentBegin(block);
    if (nContent < pRule->nLeast)
        cta.context.AddBytes(enRule::enCtaBlockShort, block.nOffset, block.nSize, nContent, pRule->nLeast);
    if (!IsFirst(cta.seen, block) && pRule->bOnce)
        cta.context.AddBytes(enRule::enCtaBlockTwice, block.nOffset, block.nSize);
    if (pRule->bAudio && !cta.Has("basic_audio"))
        cta.context.AddBytes(enRule::enAudioBasic, block.nOffset, block.nSize);
}

/// One short audio descriptor, three bytes (CTA-861-H, section 7.5.2).
void CheckAudioFormat(CCheckContext& context, int nEntry)
{
    constexpr unsigned c_nFormatShift = 3;
    constexpr int c_nFormatMask = 0x0F;
    constexpr int c_nPcm = 1;
    constexpr quint8 c_byReservedRate = 0x80;
    constexpr quint8 c_byReservedDepth = 0xF8;
    const quint8* pEntry = context.At(nEntry);
    const int nFormat = (pEntry[0] >> c_nFormatShift) & c_nFormatMask;
    if (nFormat == 0)
        context.AddBytes(enRule::enAudioFormat, nEntry, 1);
    if ((pEntry[1] & c_byReservedRate) != 0)
        context.AddBytes(enRule::enAudioReserved, nEntry + 1, 1);
    if (nFormat == c_nPcm && (pEntry[2] & c_byReservedDepth) != 0)
        context.AddBytes(enRule::enAudioReserved, nEntry + 2, 1);
}

void CheckAudio(const SCta& cta, const SDataBlock& block)
{
    constexpr int c_nEntrySize = 3;
    const int nContent = block.nSize - 1;
    if (nContent % c_nEntrySize != 0)
        cta.context.AddBytes(enRule::enAudioLength, block.nOffset, block.nSize, nContent);
    for (int nEntry = block.nOffset + 1; nEntry + c_nEntrySize <= block.End(); nEntry += c_nEntrySize)
        CheckAudioFormat(cta.context, nEntry);
}

/// One code of a list.
/// @param setSame   the codes of the lists of its kind
/// @param setOther  those of the other kind
void CheckCode(CCheckContext& context, int nOffset, std::bitset<256>& setSame,
               const std::bitset<256>& setOther)
{
    const int nVic = VideoCodeOf(*context.At(nOffset)).nVic;
    if (setSame.test(std::size_t(nVic)))
        context.AddBytes(enRule::enVideoTwice, nOffset, 1, nVic);
    else if (FindListed(VideoCodes(), nVic) == nullptr)
        context.AddBytes(enRule::enVideoCode, nOffset, 1, nVic);
    if (setOther.test(std::size_t(nVic)))
        context.AddBytes(enRule::enVideo420, nOffset, 1, nVic);
    setSame.set(std::size_t(nVic));
}

void CheckVideo(const SCta& cta, const SDataBlock& block)
{
    for (int nOffset = ContentBegin(block); nOffset < block.End(); ++nOffset)
        CheckCode(cta.context, nOffset, cta.seen.setCodes, cta.seen.setCodes420);
}

void Check420Video(const SCta& cta, const SDataBlock& block)
{
    for (int nOffset = ContentBegin(block); nOffset < block.End(); ++nOffset)
        CheckCode(cta.context, nOffset, cta.seen.setCodes420, cta.seen.setCodes);
}

/// How the display shows IT formats is told in the head too (CTA-861-H, section 7.5.6).
void CheckVideoCapability(const SCta& cta, const SDataBlock& block)
{
    constexpr int c_nAlwaysOver = 1;
    constexpr int c_nAlwaysUnder = 2;
    const SFieldType& scan = *c_layoutVideoCapability.Find("it_scan");
    if (block.nSize <= scan.nOffset)
        return;
    const auto nScan = int(Get(cta.context.At(block.nOffset), scan));
    const bool bUnderscan = cta.Has("underscan");
    if ((nScan == c_nAlwaysOver && bUnderscan) || (nScan == c_nAlwaysUnder && !bUnderscan))
        cta.context.Add(enRule::enCtaScan, scan, block.nOffset);
}

/// The highest clock that HDMI 1 knows, MHz; a faster sink tells it in the block of the HDMI Forum.
constexpr int c_nHdmiClock = 340;
constexpr int c_nMHzPerStep = 5;

void CheckHdmi(const SCta& cta, const SDataBlock& block)
{
    const SFieldType& clock = *c_layoutHdmi.Find("tmds_max");
    if (block.nSize <= clock.nOffset)
        return;
    const int nClock = cta.context.Raw(clock, block.nOffset) * c_nMHzPerStep;
    if (nClock > c_nHdmiClock)
        cta.context.Add(enRule::enHdmiClock, clock, block.nOffset, nClock);
}

void CheckHdmiForum(const SCta& cta, const SDataBlock& block, bool bBehindHdmi)
{
    constexpr int c_nHighest = 600;
    if (cta.seen.bHdmiForum)
        cta.context.AddBytes(enRule::enHdmiForumTwice, block.nOffset, block.nSize);
    else if (!bBehindHdmi)
        cta.context.AddBytes(enRule::enHdmiForumPlace, block.nOffset, block.nSize);
    cta.seen.bHdmiForum = true;
    const SFieldType& clock = *c_layoutHdmiForum.Find("tmds_max");
    if (block.nSize <= clock.nOffset)
        return;
    const int nClock = cta.context.Raw(clock, block.nOffset) * c_nMHzPerStep;
    if (nClock != 0 && (nClock <= c_nHdmiClock || nClock > c_nHighest))
        cta.context.Add(enRule::enHdmiForumClock, clock, block.nOffset, nClock);
}

/// Who made a vendor block; 0 for another block and for one without room for it.
quint32 OrganisationOf(const SCta& cta, const SDataBlock& block)
{
    const bool bRoom = block.nTag == enCtaVendor && block.nSize >= c_fieldOui.nOffset + c_fieldOui.nSize;
    return bRoom ? quint32(Get(cta.context.At(block.nOffset), c_fieldOui)) : 0;
}

bool IsHdmiForum(const SCta& cta, const SDataBlock& block)
{
    return block.nExtendedTag == enCtaHdmiForumSink || OrganisationOf(cta, block) == c_nHdmiForumOui;
}

struct SContentCheck
{
    int nTag;
    int nExtendedTag; ///< `c_nNone` without one
    void (*pCheck)(const SCta& cta, const SDataBlock& block);
};

constexpr SContentCheck c_arrChecks[] = {
    {enCtaAudio, c_nNone, &CheckAudio},
    {enCtaVideo, c_nNone, &CheckVideo},
    {enCtaExtended, enCta420Video, &Check420Video},
    {enCtaExtended, enCtaVideoCapability, &CheckVideoCapability},
};

void CheckContent(const SCta& cta, const SDataBlock& block)
{
    for (const SContentCheck& check : c_arrChecks)
        if (check.nTag == block.nTag && check.nExtendedTag == block.nExtendedTag)
            check.pCheck(cta, block);
}

void CheckDataBlocks(const SCta& cta)
{
    int nOffset = cta.nBlock + c_nCtaFirstDataBlock;
    const int nEnd = cta.nBlock + DataBlocksEnd(cta.Block());
    // Zeros that end a block without detailed timings are no data blocks.
    const bool bTimings = DetailedTimingsBegin(cta.Block()) != c_nChecksumOffset;
    bool bBehindHdmi = false;
    while (const std::optional<SDataBlock> block = DataBlockAt(cta.context.At(0), nOffset, nEnd)) {
        CheckAgainstRule(cta, *block);
        CheckContent(cta, *block);
        if (IsHdmiForum(cta, *block))
            CheckHdmiForum(cta, *block, bBehindHdmi);
        bBehindHdmi = OrganisationOf(cta, *block) == c_nHdmiOui;
        if (bBehindHdmi)
            CheckHdmi(cta, *block);
        nOffset = block->End();
    }
    if (bTimings && nOffset < nEnd)
        cta.context.AddBytes(enRule::enCtaBlock, nOffset, nEnd - nOffset);
}

void CheckTimings(const SCta& cta)
{
    int nOffset = cta.nBlock + DetailedTimingsBegin(cta.Block());
    const int nEnd = nOffset + TimingsOfExtension(cta.Block()) * c_nDescriptorSize;
    for (; nOffset < nEnd; nOffset += c_nDescriptorSize) {
        CheckDetailed(cta.context, nOffset);
        if (IsPlausibleClock(cta.context.At(nOffset)))
            CheckImageSize(cta.context, nOffset);
    }
}

/// Behind the detailed timings and display descriptors there are zeros.
void CheckPadding(const SCta& cta)
{
    const quint8* pBlock = cta.Block();
    int nOffset = DetailedTimingsBegin(pBlock);
    const auto IsDescriptor = [&] {
        return IsDetailed(pBlock + nOffset) || pBlock[nOffset + c_nTagOffset] != 0;
    };
    while (nOffset + c_nDescriptorSize <= c_nChecksumOffset && IsDescriptor())
        nOffset += c_nDescriptorSize;
    const quint8* pEnd = pBlock + c_nChecksumOffset;
    if (std::any_of(pBlock + nOffset, pEnd, [](quint8 by) { return by != 0; }))
        cta.context.AddBytes(enRule::enCtaPadding, cta.nBlock + nOffset, c_nChecksumOffset - nOffset);
}

} // namespace

void CheckCta(CCheckContext& context, SCtaSeen& seen, int nBlock)
{
    const SCta cta = {context, seen, nBlock};
    CheckRevision(cta);
    CheckOffset(cta);
    CheckFlags(cta);
    CheckDataBlocks(cta);
    CheckTimings(cta);
    CheckPadding(cta);
    if (seen.nFirstBlock == 0)
        seen.nFirstBlock = nBlock;
}

} // namespace Edid
