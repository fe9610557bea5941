#include "host/CommonClass/EdidBlockSize.h"
#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/BlockTimings.h"
#include "instruments/edid/CheckContext.h"
#include "instruments/edid/CvtCode.h"
#include "instruments/edid/DetailedTiming.h"

#include <algorithm>
#include <iterator>

namespace Edid {

namespace {

constexpr quint8 c_arrHeader[] = {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00};

/// The chromaticities of sRGB as the ten bytes hold them (VESA E-EDID, appendix).
constexpr quint8 c_arrSrgb[] = {0xEE, 0x91, 0xA3, 0x54, 0x4C, 0x99, 0x26, 0x0F, 0x50, 0x54};

/// What the rules about the whole block need to know of it.
struct SBase
{
    CCheckContext& context;
    int nRevision; ///< of EDID 1.x; 0 for a block of another version

    int Raw(int nRow) const { return context.Raw(c_layoutBase[nRow], 0); }
    void Add(enRule rule, int nRow, int nFirst = 0, int nSecond = 0) const
    {
        context.Add(rule, c_layoutBase[nRow], 0, nFirst, nSecond);
    }
    bool IsFrom14() const { return nRevision >= 4; }
};

int DescriptorOffset(int nIndex)
{
    return c_nDescriptorOffset + nIndex * c_nDescriptorSize;
}

void CheckHeader(const SBase& base)
{
    if (!std::equal(std::begin(c_arrHeader), std::end(c_arrHeader), base.context.At(0)))
        base.Add(enRule::enHeader, enHeader);
    if (base.Raw(enVersion) != 1)
        base.Add(enRule::enVersion, enVersion, base.Raw(enVersion));
}

void CheckMaker(const SBase& base)
{
    constexpr int c_nBits = 5;
    constexpr int c_nMask = 0x1F;
    constexpr int c_nAlphabet = 26;
    const int nMaker = base.Raw(enMakerId);
    for (int i = 0; i < 3; ++i) {
        const int nLetter = (nMaker >> (i * c_nBits)) & c_nMask;
        if (nLetter < 1 || nLetter > c_nAlphabet)
            return base.Add(enRule::enMaker, enMakerId);
    }
}

void CheckWeek(const SBase& base)
{
    constexpr int c_nModelYear = 0xFF;
    constexpr int c_nLastWeek = 54;
    const int nWeek = base.Raw(enWeek);
    if (nWeek == c_nModelYear && !base.IsFrom14())
        base.Add(enRule::enWeekModelYear, enWeek);
    else if (nWeek == c_nLastWeek && !base.IsFrom14())
        base.Add(enRule::enWeek54, enWeek);
    else if (nWeek > c_nLastWeek && nWeek != c_nModelYear)
        base.Add(enRule::enWeek, enWeek, nWeek);
}

void CheckYear(const SBase& base)
{
    constexpr int c_nFirstYear = 1990;
    const int nYear = base.Raw(enYear) + c_nFirstYear;
    const int nNow = base.context.Options().nYear;
    if (nNow != 0 && nYear > nNow + 1)
        base.Add(enRule::enYear, enYear, nYear);
}

/// Bits of a digital input that have no meaning yet.
int ReservedInterface(const SBase& base)
{
    constexpr int c_nAll = 0x7F;
    constexpr int c_nAllButDfp = 0x7E;
    constexpr int c_nFirstWithDfp = 2;
    constexpr int c_nLastInterface = 5;
    if (base.IsFrom14())
        return base.Raw(enInterface) > c_nLastInterface ? base.Raw(enInterface) : 0;
    return *base.context.At(c_nInputOffset) & (base.nRevision >= c_nFirstWithDfp ? c_nAllButDfp : c_nAll);
}

void CheckInput(const SBase& base)
{
    constexpr int c_nReservedDepth = 7;
    if (base.Raw(enDigitalInput) == 0)
        return;
    if (base.IsFrom14() && base.Raw(enBitDepth) == c_nReservedDepth)
        base.Add(enRule::enBitDepth, enBitDepth);
    if (const int nReserved = ReservedInterface(base))
        base.Add(enRule::enInterface, enInterface, nReserved);
}

void CheckFeatures(const SBase& base)
{
    constexpr int c_nRequiresPreferred = 3;
    if (base.nRevision == c_nRequiresPreferred && base.Raw(enPreferredIsFirst) == 0)
        base.Add(enRule::enPreferredFlag, enPreferredIsFirst);
    const bool bSrgb =
        std::equal(std::begin(c_arrSrgb), std::end(c_arrSrgb), base.context.At(c_nChromaticityOffset));
    if (base.Raw(enSrgbDefault) != 0 && !bSrgb)
        base.Add(enRule::enSrgb, enSrgbDefault);
}

quint16 StandardAt(const CCheckContext& context, int nOffset)
{
    return static_cast<quint16>(*context.At(nOffset) << 8 | *context.At(nOffset + 1));
}

/// Widths begin at 256, which is byte 1; with another second byte than 1 that mode does not exist either.
void CheckStandards(CCheckContext& context, int nFirst, int nCount)
{
    constexpr int c_nLastUnused = 1;
    for (int i = 0; i < nCount; ++i) {
        const int nOffset = nFirst + i * c_nStandardSize;
        const quint16 wStandard = StandardAt(context, nOffset);
        if (*context.At(nOffset) <= c_nLastUnused && wStandard != c_wUnusedStandard)
            context.AddBytes(enRule::enStandardUnused, nOffset, c_nStandardSize, wStandard);
    }
}

/// The first descriptor has to be a timing, unless an old block says that none is preferred.
void CheckPreferred(const SBase& base)
{
    const bool bWanted = base.IsFrom14() || base.Raw(enPreferredIsFirst) != 0;
    if (bWanted && !IsDetailed(base.context.At(c_nDescriptorOffset)))
        base.context.AddBytes(enRule::enPreferred, c_nDescriptorOffset, c_nDescriptorSize);
}

/// The display's size in whole centimetres; without one both are 0.
struct SSize
{
    int nWidth;
    int nHeight;

    bool IsKnown() const { return nWidth != 0 && nHeight != 0; }
    bool IsPartlyKnown() const { return nWidth != 0 || nHeight != 0; }
};

SSize DisplaySize(const CCheckContext& context)
{
    return {context.Raw(c_layoutBase[enWidthCm], 0), context.Raw(c_layoutBase[enHeightCm], 0)};
}

/// A centimetre either way is what rounding leaves; a smaller image may keep one edge.
bool IsMismatch(const SSize& display, const SSize& imageMm)
{
    constexpr int c_nMm = 10;
    const SSize displayMm = {display.nWidth * c_nMm, display.nHeight * c_nMm};
    const bool bLarger =
        imageMm.nWidth >= displayMm.nWidth + c_nMm || imageMm.nHeight >= displayMm.nHeight + c_nMm;
    const bool bSmaller =
        imageMm.nWidth <= displayMm.nWidth - c_nMm && imageMm.nHeight <= displayMm.nHeight - c_nMm;
    return bLarger || bSmaller;
}

bool IsPrintable(quint8 by)
{
    constexpr quint8 c_byLast = 0x7E;
    return by >= ' ' && by <= c_byLast;
}

/// The text ends at the line feed; behind it there are only blanks.
void CheckText(CCheckContext& context, int nRecord)
{
    const quint8* pText = context.At(nRecord + c_nContentOffset);
    const quint8* pEnd = std::find(pText, pText + c_nContentSize, quint8('\n'));
    const int nText = nRecord + c_nContentOffset;
    const int nLength = int(pEnd - pText);
    const quint8* pWrong = std::find_if_not(pText, pEnd, &IsPrintable);
    if (pWrong != pEnd)
        context.AddBytes(enRule::enTextCharacter, nText + int(pWrong - pText), 1, *pWrong);
    if (nLength == 0)
        context.AddBytes(enRule::enTextEmpty, nText, c_nContentSize);
    else if (pWrong == pEnd && pEnd[-1] == ' ')
        context.AddBytes(enRule::enTextSpaces, nText, nLength);
    const auto IsBlank = [](quint8 by) { return by == ' '; };
    if (nLength < c_nContentSize && !std::all_of(pEnd + 1, pText + c_nContentSize, IsBlank))
        context.AddBytes(enRule::enTextPadding, nText + nLength + 1, c_nContentSize - nLength - 1);
}

void CheckTextDescriptor(const SBase& base, int nRecord)
{
    CheckText(base.context, nRecord);
}

void CheckDummy(const SBase& base, int nRecord)
{
    const quint8* pContent = base.context.At(nRecord + c_nContentOffset);
    if (std::any_of(pContent, pContent + c_nContentSize, [](quint8 by) { return by != 0; }))
        base.context.AddBytes(enRule::enDummy, nRecord + c_nContentOffset, c_nContentSize);
}

void CheckMoreStandards(const SBase& base, int nRecord)
{
    constexpr int c_nMoreStandards = 6;
    CheckStandards(base.context, nRecord + c_nContentOffset, c_nMoreStandards);
}

void CheckEstablishedIII(const SBase& base, int nRecord)
{
    if (!base.IsFrom14())
        base.context.AddBytes(enRule::enEstablishedAge, nRecord, c_nDescriptorSize);
}

/// One code of three bytes (VESA E-EDID 1.4, section 3.10.3.8).
void CheckCvtCode(CCheckContext& context, int nOffset)
{
    const quint8* pCode = context.At(nOffset);
    const quint32 nCode = quint32(pCode[0]) << 16U | quint32(pCode[1]) << 8U | pCode[2];
    constexpr unsigned c_nReservedSecond = 0x03;
    constexpr unsigned c_nReservedThird = 0x80;
    if (pCode[0] == 0 || (pCode[1] & c_nReservedSecond) != 0 || (pCode[2] & c_nReservedThird) != 0)
        context.AddBytes(enRule::enCvtReserved, nOffset, 3);
    const SCvtCode code = ReadCvtCode(nCode);
    if (code.nRates == 0)
        context.AddBytes(enRule::enCvtRate, nOffset + 2, 1);
    if (!code.IsPreferredSupported())
        context.AddBytes(enRule::enCvtPreferred, nOffset + 2, 1);
}

void CheckCvtCodes(const SBase& base, int nRecord)
{
    constexpr int c_nCodes = 4;
    constexpr int c_nCodeSize = 3;
    CCheckContext& context = base.context;
    const int nVersion = *context.At(nRecord + c_nContentOffset);
    if (nVersion != 1) {
        context.AddBytes(enRule::enCvtVersion, nRecord + c_nContentOffset, 1, nVersion);
        return;
    }
    if (!base.IsFrom14())
        context.AddBytes(enRule::enCvtAge, nRecord, c_nDescriptorSize);
    for (int i = 0; i < c_nCodes; ++i) {
        const int nOffset = nRecord + c_nContentOffset + 1 + i * c_nCodeSize;
        const quint8* pCode = context.At(nOffset);
        const bool bUnused =
            i > 0 && std::all_of(pCode, pCode + c_nCodeSize, [](quint8 by) { return by == 0; });
        if (!bUnused)
            CheckCvtCode(context, nOffset);
    }
}

// The formulas of the range limits.
constexpr int c_nDefaultGtf = 0;
constexpr int c_nLimitsOnly = 1;
constexpr int c_nSecondaryGtf = 2;
constexpr int c_nCvt = 4;

void CheckFormula(const SBase& base, int nRecord)
{
    const SFieldType& type = c_layoutRange[enFormula];
    const int nFormula = base.context.Raw(type, nRecord);
    const bool bContinuous = base.Raw(enContinuous) != 0;
    if (nFormula != c_nDefaultGtf && nFormula != c_nLimitsOnly && nFormula != c_nSecondaryGtf &&
        nFormula != c_nCvt)
        base.context.Add(enRule::enRangeFormula, type, nRecord, nFormula);
    else if (!base.IsFrom14() && (nFormula == c_nLimitsOnly || nFormula == c_nCvt))
        base.context.Add(enRule::enRangeAge, type, nRecord, nFormula);
    else if (base.IsFrom14() && nFormula != c_nLimitsOnly && !bContinuous)
        base.context.Add(enRule::enRangeContinuous, type, nRecord);
}

/// A formula with numbers of its own has them where the others have padding.
void CheckRangePadding(const SBase& base, int nRecord)
{
    constexpr int c_nEnd = 11;
    constexpr int c_nBytes = 7;
    const int nFormula = base.context.Raw(c_layoutRange[enFormula], nRecord);
    const quint8* pEnd = base.context.At(nRecord + c_nEnd);
    const bool bPadded =
        pEnd[0] == '\n' && std::all_of(pEnd + 1, pEnd + c_nBytes, [](quint8 by) { return by == ' '; });
    const bool bRight = nFormula == c_nSecondaryGtf ? pEnd[0] == 0 : (nFormula == c_nCvt || bPadded);
    if (!bRight)
        base.context.AddBytes(enRule::enRangePadding, nRecord + c_nEnd, c_nBytes);
}

void CheckCvtReserved(const SBase& base, int nRecord)
{
    constexpr int c_nFirst = 14;
    constexpr quint8 c_arrReserved[] = {0x07, 0x07, 0x0F};
    const quint8* pRecord = base.context.At(nRecord);
    if (base.context.Raw(c_layoutRange[enFormula], nRecord) != c_nCvt)
        return;
    for (int i = 0; i < int(std::size(c_arrReserved)); ++i)
        if ((pRecord[c_nFirst + i] & c_arrReserved[i]) != 0)
            base.context.AddBytes(enRule::enRangeReserved, nRecord + c_nFirst + i, 1);
}

void CheckRange(const SBase& base, int nRecord)
{
    const SRangeLimits limits = ReadRange(base.context.At(nRecord), base.IsFrom14());
    if (limits.nVMin > limits.nVMax)
        base.context.Add(enRule::enRangeVertical, c_layoutRange[enVMin], nRecord);
    if (limits.nHMin > limits.nHMax)
        base.context.Add(enRule::enRangeHorizontal, c_layoutRange[enHMin], nRecord);
    if (base.IsFrom14() && limits.nMaxClock == 0)
        base.context.Add(enRule::enRangeClock, c_layoutRange[enMaxClock], nRecord);
    CheckFormula(base, nRecord);
    CheckRangePadding(base, nRecord);
    CheckCvtReserved(base, nRecord);
}

void CheckNothing(const SBase&, int) {}

struct SDescriptorCheck
{
    quint8 byTag;
    void (*pCheck)(const SBase& base, int nRecord);
};

constexpr SDescriptorCheck c_arrDescriptors[] = {
    {c_bySerialTag, &CheckTextDescriptor},
    {c_byTextTag, &CheckTextDescriptor},
    {c_byRangeTag, &CheckRange},
    {c_byNameTag, &CheckTextDescriptor},
    {c_byWhitePointTag, &CheckNothing},
    {c_byStandardTag, &CheckMoreStandards},
    {c_byColourTag, &CheckNothing},
    {c_byCvtTag, &CheckCvtCodes},
    {c_byEstablishedTag, &CheckEstablishedIII},
    {c_byDummyTag, &CheckDummy},
};

void CheckTag(const SBase& base, int nRecord)
{
    const quint8 byTag = base.context.At(nRecord)[c_nTagOffset];
    for (const SDescriptorCheck& check : c_arrDescriptors)
        if (check.byTag == byTag)
            return check.pCheck(base, nRecord);
    if (byTag > c_byLastMakerTag)
        base.context.AddBytes(enRule::enDescriptorTag, nRecord + c_nTagOffset, 1, byTag);
}

/// From 1.4 on the range limits keep their offsets in the fifth byte.
void CheckReserved(const SBase& base, int nRecord)
{
    constexpr int c_nThird = 2;
    constexpr int c_nFifth = 4;
    const quint8* pRecord = base.context.At(nRecord);
    if (pRecord[c_nThird] != 0)
        base.context.AddBytes(enRule::enDescriptorReserved, nRecord + c_nThird, 1, c_nThird,
                              pRecord[c_nThird]);
    const bool bOffsets = base.IsFrom14() && pRecord[c_nTagOffset] == c_byRangeTag;
    if (pRecord[c_nFifth] != 0 && !bOffsets)
        base.context.AddBytes(enRule::enDescriptorReserved, nRecord + c_nFifth, 1, c_nFifth,
                              pRecord[c_nFifth]);
}

void CheckDisplayDescriptor(const SBase& base, int nRecord)
{
    if (base.nRevision == 0)
        base.context.AddBytes(enRule::enDescriptorAge, nRecord, c_nDescriptorSize);
    CheckReserved(base, nRecord);
    CheckTag(base, nRecord);
}

void CheckDescriptors(const SBase& base)
{
    bool bDisplay = false;
    for (int i = 0; i < c_nDescriptorCount; ++i) {
        const int nRecord = DescriptorOffset(i);
        if (!IsDetailed(base.context.At(nRecord))) {
            CheckDisplayDescriptor(base, nRecord);
            bDisplay = true;
            continue;
        }
        if (bDisplay)
            base.context.AddBytes(enRule::enDescriptorOrder, nRecord, c_nDescriptorSize);
        CheckDetailed(base.context, nRecord);
        if (IsPlausibleClock(base.context.At(nRecord)))
            CheckImageSize(base.context, nRecord);
    }
}

bool HasDescriptor(const SBase& base, quint8 byTag)
{
    for (int i = 0; i < c_nDescriptorCount; ++i) {
        const quint8* pRecord = base.context.At(DescriptorOffset(i));
        if (!IsDetailed(pRecord) && pRecord[c_nTagOffset] == byTag)
            return true;
    }
    return false;
}

/// A name from 1.3 on; range limits in 1.3, and for a display of continuous frequency.
void CheckMissing(const SBase& base)
{
    constexpr int c_nFirst = 3;
    constexpr int c_nDescriptors = c_nDescriptorCount * c_nDescriptorSize;
    if (base.nRevision < c_nFirst)
        return;
    if (!HasDescriptor(base, c_byNameTag))
        base.context.AddBytes(enRule::enNameMissing, c_nDescriptorOffset, c_nDescriptors);
    const bool bRange = base.nRevision == c_nFirst || base.Raw(enContinuous) != 0;
    if (bRange && !HasDescriptor(base, c_byRangeTag))
        base.context.AddBytes(enRule::enRangeMissing, c_nDescriptorOffset, c_nDescriptors);
}

/// Whole hertz and kilohertz are compared, for that is what the limits hold. From 1.4 on the limits are those
/// of a continuous frequency, and listed modes may lie outside.
void CheckTimings(const SBase& base)
{
    const SBlockTimings timings = TimingsOf(base.context.At(0));
    if (timings.nRange != 0 && timings.nModes != 0 && timings.IsOutside())
        base.context.AddBytes(base.IsFrom14() ? enRule::enRangeTimings14 : enRule::enRangeTimings,
                              timings.nRange + c_layoutRange[enVMin].nOffset, 5);
}

void CheckExtensionCount(const SBase& base)
{
    const int nFound = base.context.Size() / c_nEdidBlockSize - 1;
    const int nCount = base.Raw(enExtensionCount);
    if (nCount != nFound)
        base.Add(enRule::enExtensions, enExtensionCount, nCount, nFound);
}

} // namespace

void CheckImageSize(CCheckContext& context, int nRecord)
{
    const SSize display = DisplaySize(context);
    const SSize image = {context.Raw(c_layoutDetailed[enWidthMm], nRecord),
                         context.Raw(c_layoutDetailed[enHeightMm], nRecord)};
    const int nOffset = nRecord + c_layoutDetailed[enWidthMm].nOffset;
    constexpr int c_nSizeBytes = 3;
    if (display.IsKnown() && !image.IsKnown())
        context.AddBytes(enRule::enSizeMissing, nOffset, c_nSizeBytes);
    if (display.IsKnown() && image.IsPartlyKnown() && IsMismatch(display, image))
        context.AddBytes(enRule::enSizeMismatch, nOffset, c_nSizeBytes);
    if (!display.IsKnown() && image.IsKnown())
        context.AddBytes(enRule::enSizeUndeclared, nOffset, c_nSizeBytes);
}

void CheckDetailed(CCheckContext& context, int nRecord)
{
    const quint8* pRecord = context.At(nRecord);
    if (!IsPlausibleClock(pRecord)) {
        context.Add(enRule::enClock, c_layoutDetailed[enClock], nRecord);
        return;
    }
    const auto Raw = [=](int nRow) { return int(Get(pRecord, c_layoutDetailed[nRow])); };
    constexpr int c_arrParts[] = {enHActive, enHBlank, enHFront, enHSync,
                                  enVActive, enVBlank, enVFront, enVSync};
    if (std::any_of(std::begin(c_arrParts), std::end(c_arrParts), [&](int nRow) { return Raw(nRow) == 0; }))
        context.AddBytes(enRule::enZero, nRecord + 2, 10);
    if (Raw(enHBlank) - Raw(enHFront) - Raw(enHSync) - 2 * Raw(enHBorder) <= 0)
        context.AddBytes(enRule::enHorizontalPorch, nRecord + c_layoutDetailed[enHBlank].nOffset, 2);
    if (Raw(enVBlank) - Raw(enVFront) - Raw(enVSync) - 2 * Raw(enVBorder) <= 0)
        context.AddBytes(enRule::enVerticalPorch, nRecord + c_layoutDetailed[enVBlank].nOffset, 2);
    if (Raw(enHBorder) != 0 || Raw(enVBorder) != 0)
        context.AddBytes(enRule::enBorders, nRecord + c_layoutDetailed[enHBorder].nOffset, 2);
}

void CheckBase(CCheckContext& context)
{
    const bool bVersion1 = context.Raw(c_layoutBase[enVersion], 0) == 1;
    const SBase base = {context, bVersion1 ? context.Raw(c_layoutBase[enRevision], 0) : 0};
    CheckHeader(base);
    CheckMaker(base);
    CheckWeek(base);
    CheckYear(base);
    CheckInput(base);
    CheckFeatures(base);
    CheckStandards(context, c_nStandardOffset, c_nStandardCount);
    CheckPreferred(base);
    CheckDescriptors(base);
    CheckMissing(base);
    CheckTimings(base);
    CheckExtensionCount(base);
}

} // namespace Edid
