#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/Checksum.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/FieldList.h"
#include "instruments/edid/ListedTimings.h"

namespace Edid {

namespace {

constexpr SFieldType c_fieldProduct = Title("product_info", "Vendor and product");
constexpr SFieldType c_fieldBasics = Title("parameters", "Basic parameters");
constexpr SFieldType c_fieldChromaticity = Title("chromaticity", "Chromaticity");
constexpr SFieldType c_fieldCoverage = Title("coverage", "Covers", enKind::enCoverage);
constexpr SFieldType c_fieldTemperature =
    Title("white_temperature", "Temperature of the white", enKind::enTemperature);
constexpr SFieldType c_fieldEstablished = Title("established", "Established timings");
constexpr SFieldType c_fieldMakerBits =
    Part("maker_timings", "Maker's own timings", enKind::enHex, 0x25, 6, 0);
constexpr SFieldType c_fieldStandards = Title("standard_timings", "Standard timings");
constexpr SFieldType c_fieldStandard =
    Split("standard", "Standard timing", enKind::enStandard, {1, 7, 0}, {0, 7, 0});
constexpr SFieldType c_fieldCvt = Triple("cvt", "CVT code", enKind::enCvtCode);
constexpr SFieldType c_fieldCvtVersion = Whole("version", "Version", enKind::enNumber, c_nContentOffset);
constexpr SFieldType c_fieldWhitePoint = Title("white_point", "White point");
constexpr SFieldType c_fieldDescriptorTag = Whole("descriptor_tag", "Tag", enKind::enHex, c_nTagOffset);

/// One row for each bit of the established timings, so that each has a place and a name of its own.
std::vector<SFieldType> EstablishedRows(const EstablishedList& vecEstablished)
{
    std::vector<SFieldType> vecRows;
    for (const SEstablished& established : vecEstablished) {
        SFieldType type = Flag("timing", "Timing", established.byByte, established.byBit);
        type.kind = enKind::enEstablished;
        vecRows.push_back(type);
    }
    return vecRows;
}

void ExplainEstablished(CFieldList& list, const std::vector<SFieldType>& vecRows, int nRecord)
{
    for (std::size_t i = 0; i < vecRows.size(); ++i)
        list.Row(vecRows[i], nRecord, int(i) + 1);
}

quint32 SizeCondition(int nWidth, int nHeight, bool bFrom14)
{
    if (!bFrom14 || (nWidth == 0) == (nHeight == 0))
        return enSizeInCm;
    return nHeight == 0 ? enLandscape : enPortrait;
}

quint32 BaseConditions(const quint8* pBlock)
{
    constexpr int c_nModelYearMark = 0xFF;
    const auto Raw = [=](int nRow) { return int(Get(pBlock, c_layoutBase[nRow])); };
    const bool bFrom14 = Raw(enVersion) == 1 && Raw(enRevision) >= 4;
    quint32 nConditions = bFrom14 ? enFrom14 : enBefore14;
    nConditions |= Raw(enDigitalInput) != 0 ? enDigital : enAnalog;
    nConditions |= bFrom14 && Raw(enWeek) == c_nModelYearMark ? enModelYear : enYearMade;
    return nConditions | SizeCondition(Raw(enWidthCm), Raw(enHeightCm), bFrom14);
}

void ExplainParameters(CFieldList& list, int nBlock, quint32 nConditions)
{
    list.Row(c_layoutBase[enHeader], nBlock);
    list.Open(c_fieldProduct, nBlock + c_layoutBase[enMakerId].nOffset, 10);
    list.Rows(c_layoutBase, enMakerId, enModelYearRow, nBlock, nConditions);
    list.Close();
    list.Rows(c_layoutBase, enVersion, enRevision, nBlock, nConditions);
    list.Open(c_fieldBasics, nBlock + c_nInputOffset, 5);
    // Displays before 1.4 tell their type for digital inputs too.
    list.Rows(c_layoutBase, enDigitalInput, enActiveOff, nBlock, nConditions);
    const bool bType = (nConditions & (enAnalog | enBefore14)) != 0;
    list.Rows(c_layoutBase, enDisplayType, enDisplayType, nBlock, bType ? enAnalog : enAlways);
    list.Rows(c_layoutBase, enColourEncoding, enContinuous, nBlock, nConditions);
    list.Close();
}

void ExplainChromaticity(CFieldList& list, int nBlock)
{
    const int nOffset = nBlock + c_nChromaticityOffset;
    list.Open(c_fieldChromaticity, nOffset, c_nChromaticitySize);
    list.Rows(c_layoutBase, enRedX, enWhiteY, nBlock, enAlways);
    list.Calculated(c_fieldCoverage, nOffset, c_nChromaticitySize, 0.0);
    list.Calculated(c_fieldTemperature, nOffset, c_nChromaticitySize, 0.0);
    list.Close();
}

void ExplainStandards(CFieldList& list, int nFirst, int nCount)
{
    for (int i = 0; i < nCount; ++i)
        list.Row(c_fieldStandard, nFirst + i * c_nStandardSize, i + 1);
}

void ExplainTimings(CFieldList& list, int nBlock)
{
    static const std::vector<SFieldType> s_vecRows = EstablishedRows(EstablishedTimings());
    list.Open(c_fieldEstablished, nBlock + c_nEstablishedOffset, c_nEstablishedSize);
    ExplainEstablished(list, s_vecRows, nBlock);
    list.Row(c_fieldMakerBits, nBlock);
    list.Close();
    list.Open(c_fieldStandards, nBlock + c_nStandardOffset, c_nStandardCount * c_nStandardSize);
    ExplainStandards(list, nBlock + c_nStandardOffset, c_nStandardCount);
    list.Close();
}

/// The rates may stand 255 above what their bytes hold, from 1.4 on.
void ExplainRange(CFieldList& list, int nRecord, quint32 nConditions)
{
    constexpr int c_nOffset = 255;
    constexpr int c_nMaximum = 2; // of the offsets: the maximum alone
    constexpr int c_nBoth = 3;
    const quint8* pRecord = list.At(nRecord);
    const bool bFrom14 = (nConditions & enFrom14) != 0;
    const auto OffsetOf = [&](int nRow, int nLowest) {
        return bFrom14 && Get(pRecord, c_layoutRange[nRow]) >= nLowest ? c_nOffset : 0;
    };
    list.Rows(c_layoutRange, enVOffsets, enHOffsets, nRecord, nConditions);
    const int arrAdd[] = {OffsetOf(enVOffsets, c_nBoth), OffsetOf(enVOffsets, c_nMaximum),
                          OffsetOf(enHOffsets, c_nBoth), OffsetOf(enHOffsets, c_nMaximum)};
    for (int nRow = enVMin; nRow <= enHMax; ++nRow) {
        list.Row(c_layoutRange[nRow], nRecord);
        list.Last().dValue += arrAdd[nRow - enVMin];
    }
    constexpr int c_nGtf = 2;
    constexpr int c_nCvt = 4;
    const qint64 nFormula = Get(pRecord, c_layoutRange[enFormula]);
    const quint32 nFormulaCondition =
        nFormula == c_nGtf ? enGtfFormula : (nFormula == c_nCvt ? enCvtFormula : enNoFormula);
    list.Rows(c_layoutRange, enMaxClock, c_layoutRange.nCount - 1, nRecord, nConditions | nFormulaCondition);
}

void ExplainWhitePoints(CFieldList& list, int nRecord, quint32)
{
    constexpr int c_nEntrySize = 5;
    constexpr int c_nEntries = 2;
    for (int i = 0; i < c_nEntries; ++i) {
        const int nEntry = nRecord + c_nContentOffset + i * c_nEntrySize;
        list.Open(c_fieldWhitePoint, nEntry, c_nEntrySize, i + 1);
        list.Record(c_layoutWhitePoint, nEntry, c_nEntrySize);
        list.Close();
    }
    const int nUsed = c_nContentOffset + c_nEntries * c_nEntrySize;
    list.Bytes(c_fieldPadding, nRecord + nUsed, c_nDescriptorSize - nUsed);
}

void ExplainMoreStandards(CFieldList& list, int nRecord, quint32)
{
    constexpr int c_nMoreStandards = 6;
    ExplainStandards(list, nRecord + c_nContentOffset, c_nMoreStandards);
    list.Bytes(c_fieldPadding, nRecord + c_nDescriptorSize - 1, 1);
}

void ExplainCvtCodes(CFieldList& list, int nRecord, quint32)
{
    constexpr int c_nCodes = 4;
    constexpr int c_nCodeSize = 3;
    list.Row(c_fieldCvtVersion, nRecord);
    for (int i = 0; i < c_nCodes; ++i)
        list.Row(c_fieldCvt, nRecord + c_nContentOffset + 1 + i * c_nCodeSize, i + 1);
}

void ExplainEstablishedIII(CFieldList& list, int nRecord, quint32)
{
    static const std::vector<SFieldType> s_vecRows = EstablishedRows(EstablishedTimingsIII());
    constexpr int c_nUsed = 12;
    list.Row(c_fieldCvtVersion, nRecord);
    ExplainEstablished(list, s_vecRows, nRecord);
    list.Bytes(c_fieldPadding, nRecord + c_nUsed, c_nDescriptorSize - c_nUsed);
}

template <const SLayout& c_layout>
void ExplainByLayout(CFieldList& list, int nRecord, quint32)
{
    list.Record(c_layout, nRecord, c_nDescriptorSize);
}

void ExplainContent(CFieldList& list, int nRecord, quint32)
{
    list.Bytes(c_fieldUnexplained, nRecord + c_nContentOffset, c_nContentSize);
}

/// How the content of a display descriptor is explained.
struct SDescriptorKind
{
    quint8 byTag;
    SFieldType type;
    void (*pExplain)(CFieldList& list, int nRecord, quint32 nConditions);
};

constexpr SFieldType Descriptor(const char* szKey, const char* szLabel)
{
    return Title(szKey, szLabel, enKind::enDescriptor);
}

constexpr SDescriptorKind c_arrDescriptors[] = {
    {c_bySerialTag, Descriptor("serial_descriptor", "Serial number"), &ExplainByLayout<c_layoutSerial>},
    {c_byTextTag, Descriptor("text_descriptor", "Text"), &ExplainByLayout<c_layoutText>},
    {c_byRangeTag, Descriptor("range", "Range limits"), &ExplainRange},
    {c_byNameTag, Descriptor("name_descriptor", "Name"), &ExplainByLayout<c_layoutName>},
    {c_byWhitePointTag, Descriptor("white_points", "White points"), &ExplainWhitePoints},
    {c_byStandardTag, Descriptor("more_standards", "More standard timings"), &ExplainMoreStandards},
    {c_byColourTag, Descriptor("colour_management", "Colour management"), &ExplainByLayout<c_layoutColour>},
    {c_byCvtTag, Descriptor("cvt_codes", "CVT codes"), &ExplainCvtCodes},
    {c_byEstablishedTag, Descriptor("established_iii", "Established timings III"), &ExplainEstablishedIII},
    {c_byDummyTag, Descriptor("unused", "Unused descriptor"), &ExplainContent},
};

constexpr SDescriptorKind c_makerDescriptor = {0, Descriptor("maker_descriptor", "Maker's own descriptor"),
                                               &ExplainContent};
constexpr SDescriptorKind c_unknownDescriptor = {0, Descriptor("unknown_descriptor", "Unknown descriptor"),
                                                 &ExplainContent};

const SDescriptorKind& DescriptorKind(quint8 byTag)
{
    for (const SDescriptorKind& kind : c_arrDescriptors)
        if (kind.byTag == byTag)
            return kind;
    return byTag <= c_byLastMakerTag ? c_makerDescriptor : c_unknownDescriptor;
}

void ExplainDescriptor(CFieldList& list, int nRecord, int nIndex, quint32 nConditions)
{
    if (IsDetailed(list.At(nRecord))) {
        list.Open(c_fieldMode, nRecord, c_nDescriptorSize, nIndex);
        ExplainDetailed(list, nRecord);
    } else {
        const SDescriptorKind& kind = DescriptorKind(list.At(nRecord)[c_nTagOffset]);
        list.Open(kind.type, nRecord, c_nDescriptorSize, nIndex);
        list.Row(c_fieldDescriptorTag, nRecord);
        kind.pExplain(list, nRecord, nConditions);
    }
    list.Close();
}

quint32 SyncCondition(const quint8* pRecord)
{
    constexpr quint32 c_arrConditions[] = {enAnalogSync, enAnalogSync, enCompositeSync, enSeparateSync};
    return c_arrConditions[Get(pRecord, c_layoutDetailed[enSyncType])];
}

} // namespace

void ExplainDetailed(CFieldList& list, int nRecord)
{
    const quint32 nConditions = SyncCondition(list.At(nRecord));
    list.Rows(c_layoutDetailed, enClock, enSerrations, nRecord, nConditions);
    const int nLastBit = nConditions == enAnalogSync ? enSyncOnAll : enHPolarity;
    list.Rows(c_layoutDetailed, nLastBit, nLastBit, nRecord, nConditions);
    list.Rates(ReadDetailed(list.At(nRecord)), nRecord, c_nDescriptorSize);
}

void ExplainBase(CFieldList& list, int nBlock)
{
    const quint32 nConditions = BaseConditions(list.At(nBlock));
    ExplainParameters(list, nBlock, nConditions);
    ExplainChromaticity(list, nBlock);
    ExplainTimings(list, nBlock);
    for (int i = 0; i < c_nDescriptorCount; ++i)
        ExplainDescriptor(list, nBlock + c_nDescriptorOffset + i * c_nDescriptorSize, i + 1, nConditions);
    list.Rows(c_layoutBase, enExtensionCount, enBaseChecksum, nBlock, nConditions);
}

} // namespace Edid
