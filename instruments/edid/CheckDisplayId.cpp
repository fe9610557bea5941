#include "instruments/edid/CheckContext.h"
#include "instruments/edid/Checksum.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/SectionBlocks.h"

#include <algorithm>
#include <numeric>

namespace Edid {

namespace {

/// Tags up to here, and that of a maker's own data, are those of version 1; `c_byAnyTag` and above are of
/// both.
constexpr quint8 c_byFirstTag2 = 0x20;
constexpr quint8 c_byVendorTag1 = 0x7F;
constexpr quint8 c_byAnyTag = 0x80;

/// Tags of data blocks that rules ask for: the same block of either version.
struct STagPair
{
    quint8 byFirst;  ///< of version 1
    quint8 bySecond; ///< of version 2

    bool Has(quint8 byTag) const { return byTag == byFirst || byTag == bySecond; }
    quint8 Of(bool bVersion2) const { return bVersion2 ? bySecond : byFirst; }
};

constexpr STagPair c_product = {0x00, 0x20};
constexpr STagPair c_parameters = {0x01, 0x21};
constexpr STagPair c_timings = {c_byTypeITag, 0x22};
constexpr STagPair c_interface = {0x0F, 0x26};

/// Timings other than those of type I and VII, that may be the preferred ones too.
constexpr quint8 c_arrOtherTimings[] = {0x04, 0x05, 0x11, 0x13, 0x23, 0x24, 0x2A};

/// What the rules about one section need.
struct SSection
{
    CCheckContext& context;
    SSectionsSeen& seen;
    int nOffset; ///< of its first byte

    int Raw(const char* szKey) const { return context.Raw(*c_layoutSection.Find(szKey), nOffset); }
    void Add(enRule rule, const char* szKey, int nFirst = 0, int nSecond = 0) const
    {
        context.Add(rule, *c_layoutSection.Find(szKey), nOffset, nFirst, nSecond);
    }
    bool IsVersion2() const { return Raw("version") >= 2; }
    bool IsFirst() const { return seen.nFirstBlock == 0; }
};

/// What all sections hold together.
struct SContents
{
    int nSections = 0;
    std::bitset<256> setTags;
    bool bPreferred = false;

    bool Has(STagPair tags) const { return setTags.test(tags.byFirst) || setTags.test(tags.bySecond); }
    bool HasOtherTimings() const
    {
        return std::any_of(std::begin(c_arrOtherTimings), std::end(c_arrOtherTimings),
                           [this](quint8 byTag) { return setTags.test(byTag); });
    }
};

bool HasPreferred(const quint8* pBytes, const SSectionBlock& block)
{
    for (int nTiming = block.Content(); nTiming + c_nTypeISize <= block.End(); nTiming += c_nTypeISize)
        if (Get(pBytes + nTiming, c_layoutTypeI[enTypeIPreferred]) != 0)
            return true;
    return false;
}

void AddSection(SContents& contents, const quint8* pBytes, int nSection)
{
    ++contents.nSections;
    int nOffset = SectionBegin(nSection);
    const int nEnd = SectionEnd(pBytes, nSection);
    while (const std::optional<SSectionBlock> block = SectionBlockAt(pBytes, nOffset, nEnd)) {
        const bool bTimings = c_timings.Has(block->byTag);
        // A block without room for a single timing offers none.
        if (!bTimings || block->nLength >= c_nTypeISize)
            contents.setTags.set(block->byTag);
        contents.bPreferred = contents.bPreferred || (bTimings && HasPreferred(pBytes, *block));
        nOffset = block->End();
    }
}

SContents ContentsOfAll(const CCheckContext& context)
{
    SContents contents;
    for (int nBlock = c_nEdidBlockSize; nBlock + c_nEdidBlockSize <= context.Size();
         nBlock += c_nEdidBlockSize)
        if (*context.At(nBlock) == c_byDisplayIdTag)
            AddSection(contents, context.At(0), nBlock + c_nSectionOffset);
    return contents;
}

int LastProduct(bool bVersion2)
{
    constexpr int c_nLast1 = 6;
    constexpr int c_nLast2 = 8;
    return bVersion2 ? c_nLast2 : c_nLast1;
}

/// The first section tells what the product is; those that follow have 0 there.
void CheckProduct(const SSection& section)
{
    const int nProduct = section.Raw("product_type");
    const bool bRight =
        section.IsFirst() ? nProduct >= 1 && nProduct <= LastProduct(section.IsVersion2()) : nProduct == 0;
    if (!bRight)
        section.Add(enRule::enSectionProduct, "product_type", nProduct);
}

/// Whether the product is a display, of which the standard wants to know more than its name.
bool IsDisplay(const SSection& section)
{
    constexpr int c_nFirst = 2;
    constexpr int c_nRepeater1 = 5;
    const int nProduct = section.Raw("product_type");
    const bool bRepeater = !section.IsVersion2() && nProduct == c_nRepeater1;
    return nProduct >= c_nFirst && nProduct <= LastProduct(section.IsVersion2()) && !bRepeater;
}

void CheckMissing(const SSection& section, const SContents& contents)
{
    constexpr STagPair c_arrWanted[] = {c_product, c_parameters, c_interface, c_timings};
    const int nWanted = IsDisplay(section) ? int(std::size(c_arrWanted)) : 1;
    const auto Add = [&](enRule rule, int nTag) {
        section.context.AddBytes(rule, section.nOffset, c_nSectionHeadSize, nTag);
    };
    for (int i = 0; i < nWanted; ++i)
        if (!contents.Has(c_arrWanted[i]))
            Add(enRule::enSectionMissing, c_arrWanted[i].Of(section.IsVersion2()));
    if (!contents.bPreferred && !contents.HasOtherTimings())
        Add(enRule::enSectionPreferred, 0);
}

/// What the first section says about all.
void CheckFirst(const SSection& section)
{
    const SContents contents = ContentsOfAll(section.context);
    const int nFollowing = section.Raw("section_extensions");
    if (nFollowing != contents.nSections - 1)
        section.Add(enRule::enSectionCount, "section_extensions", nFollowing, contents.nSections - 1);
    CheckMissing(section, contents);
}

void CheckAge(const SSection& section, const SSectionBlock& block)
{
    const bool bTag2 = block.byTag >= c_byFirstTag2 && block.byTag != c_byVendorTag1;
    if (block.byTag < c_byAnyTag && bTag2 != section.IsVersion2())
        section.context.AddBytes(enRule::enSectionAge, block.nOffset, 1, block.byTag);
}

struct SBlockLength
{
    quint8 byTag;
    int nLength;
};

constexpr SBlockLength c_arrLengths[] = {
    {0x01, 12}, {0x09, 15}, {0x0C, 13}, {0x0D, 6},  {0x0F, 10},
    {0x12, 22}, {0x21, 29}, {0x25, 9},  {0x28, 22}, {0x29, 16},
};

void CheckLength(const SSection& section, const SSectionBlock& block)
{
    constexpr int c_nLengthOffset = 2;
    for (const SBlockLength& length : c_arrLengths)
        if (length.byTag == block.byTag && length.nLength != block.nLength)
            section.context.AddBytes(enRule::enSectionBlockLength, block.nOffset + c_nLengthOffset, 1,
                                     block.nLength, length.nLength);
}

/// The product comes first of all, and one block tells the parameters.
void CheckOrder(const SSection& section, const SSectionBlock& block)
{
    const bool bFirst = section.IsFirst() && block.nOffset == SectionBegin(section.nOffset);
    if (c_product.Has(block.byTag) && !bFirst)
        section.context.AddBytes(enRule::enSectionOrder, block.nOffset, c_nDataBlockHeadSize);
    if (c_parameters.Has(block.byTag) && section.seen.setTags.test(block.byTag))
        section.context.AddBytes(enRule::enSectionTwice, block.nOffset, c_nDataBlockHeadSize);
    section.seen.setTags.set(block.byTag);
}

void CheckTiming(CCheckContext& context, int nTiming)
{
    constexpr int c_nLastStereo = 2;
    constexpr int c_nLastAspect = 8;
    const quint8* pTiming = context.At(nTiming);
    const SModeTiming timing = ReadTypeI(pTiming);
    if (Get(pTiming, c_layoutTypeI[enTypeIStereo]) > c_nLastStereo)
        context.Add(enRule::enSectionReserved, c_layoutTypeI[enTypeIStereo], nTiming);
    if (Get(pTiming, c_layoutTypeI[enTypeIAspect]) > c_nLastAspect)
        context.Add(enRule::enSectionReserved, c_layoutTypeI[enTypeIAspect], nTiming);
    if (timing.horizontal.nBack <= 0)
        context.Add(enRule::enHorizontalPorch, c_layoutTypeI[enTypeIHBlank], nTiming);
    if (timing.vertical.nBack <= 0)
        context.Add(enRule::enVerticalPorch, c_layoutTypeI[enTypeIVBlank], nTiming);
}

void CheckTimings(const SSection& section, const SSectionBlock& block)
{
    if (!c_timings.Has(block.byTag))
        return;
    for (int nTiming = block.Content(); nTiming + c_nTypeISize <= block.End(); nTiming += c_nTypeISize)
        CheckTiming(section.context, nTiming);
}

bool AreZeros(const quint8* pBegin, const quint8* pEnd)
{
    return std::all_of(pBegin, pEnd, [](quint8 by) { return by == 0; });
}

/// What follows the data blocks is filler of zeros, or a data block that does not fit.
void CheckFiller(const SSection& section, int nOffset, int nEnd)
{
    const quint8* pFiller = section.context.At(nOffset);
    if (AreZeros(pFiller, section.context.At(nEnd)))
        return;
    const bool bBlock =
        nOffset + c_nDataBlockHeadSize <= nEnd && !AreZeros(pFiller, pFiller + c_nDataBlockHeadSize);
    section.context.AddBytes(bBlock ? enRule::enSectionBlock : enRule::enSectionFiller, nOffset,
                             nEnd - nOffset);
}

void CheckDataBlocks(const SSection& section)
{
    int nOffset = SectionBegin(section.nOffset);
    const int nEnd = SectionEnd(section.context.At(0), section.nOffset);
    while (const std::optional<SSectionBlock> block = SectionBlockAt(section.context.At(0), nOffset, nEnd)) {
        CheckAge(section, *block);
        CheckLength(section, *block);
        CheckOrder(section, *block);
        CheckTimings(section, *block);
        nOffset = block->End();
    }
    CheckFiller(section, nOffset, nEnd);
}

void CheckSectionChecksum(const SSection& section)
{
    const int nChecksum = SectionEnd(section.context.At(0), section.nOffset);
    const quint8 byChecksum = *section.context.At(nChecksum);
    const unsigned nSum =
        std::accumulate(section.context.At(section.nOffset), section.context.At(nChecksum), 0U);
    const quint8 byRight = static_cast<quint8>(0U - nSum);
    if (byChecksum != byRight)
        section.context.AddBytes(enRule::enSectionChecksum, nChecksum, 1, byChecksum, byRight);
}

/// Zeros fill the extension behind its section.
void CheckPadding(const SSection& section)
{
    const int nPadding = SectionEnd(section.context.At(0), section.nOffset) + 1;
    const int nEnd = section.nOffset - c_nSectionOffset + c_nChecksumOffset;
    if (!AreZeros(section.context.At(nPadding), section.context.At(nEnd)))
        section.context.AddBytes(enRule::enSectionPadding, nPadding, nEnd - nPadding);
}

void CheckSection(const SSection& section)
{
    CheckProduct(section);
    if (section.IsFirst())
        CheckFirst(section);
    CheckDataBlocks(section);
    CheckSectionChecksum(section);
    CheckPadding(section);
}

} // namespace

void CheckDisplayId(CCheckContext& context, SSectionsSeen& seen, int nBlock)
{
    const SSection section = {context, seen, nBlock + c_nSectionOffset};
    const int nLength = section.Raw("length");
    if (nLength > c_nMaxSectionBytes)
        section.Add(enRule::enSectionLength, "length", nLength);
    else
        CheckSection(section);
    if (section.IsFirst())
        seen.nFirstBlock = nBlock;
}

} // namespace Edid
