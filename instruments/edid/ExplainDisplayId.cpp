#include "instruments/edid/Checksum.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/DisplayIdLayout.h"
#include "instruments/edid/FieldList.h"

#include <algorithm>

namespace Edid {

namespace {

constexpr SFieldType c_fieldBlock = Title("data_block", "Data block", enKind::enSectionBlock);
constexpr SFieldType c_fieldTiming = Title("timing", "Type I timing", enKind::enTypeIMode);
constexpr SFieldType c_fieldDisplayMode = Whole("dmt", "Display timing", enKind::enDisplayMode, 0);
constexpr SFieldType c_fieldText = Title("text", "Text", enKind::enText);
constexpr SFieldType c_fieldSectionChecksum =
    Whole("section_checksum", "Checksum of the section", enKind::enHex, 0);

constexpr quint8 c_bySerialTag = 0x0A;
constexpr quint8 c_byTextTag = 0x0B;
constexpr quint8 c_byTypeIVTag = 0x06;

/// The content of a data block: from after its head to its end.
void ExplainContent(CFieldList& list, quint8 byTag, int nFirst, int nEnd)
{
    int nNext = nFirst;
    if (byTag == c_byTypeITag) {
        for (int nIndex = 1; nNext + c_nTypeISize <= nEnd; nNext += c_nTypeISize, ++nIndex) {
            list.Open(c_fieldTiming, nNext, c_nTypeISize, nIndex);
            ExplainTypeI(list, nNext);
            list.Close();
        }
    } else if (byTag == c_byTypeIVTag) {
        for (int nIndex = 1; nNext < nEnd; ++nNext, ++nIndex)
            list.Row(c_fieldDisplayMode, nNext, nIndex);
    } else if (byTag == c_byTextTag || byTag == c_bySerialTag) {
        list.Bytes(c_fieldText, nNext, nEnd - nNext);
        nNext = nEnd;
    }
    list.Bytes(c_fieldUnexplained, nNext, nEnd - nNext);
}

/// Data blocks up to the first that does not fit; zeros fill the section to its end.
int ExplainDataBlocks(CFieldList& list, int nNext, int nEnd)
{
    for (int nIndex = 1; nNext + c_nDataBlockHeadSize <= nEnd; ++nIndex) {
        const quint8* pBlock = list.At(nNext);
        const int nBlockEnd = nNext + c_nDataBlockHeadSize + pBlock[2];
        const bool bFiller = pBlock[0] == 0 && pBlock[1] == 0 && pBlock[2] == 0;
        if (bFiller || nBlockEnd > nEnd)
            break;
        list.Open(c_fieldBlock, nNext, nBlockEnd - nNext, nIndex, pBlock[0]);
        list.Record(c_layoutDataBlock, nNext, c_nDataBlockHeadSize);
        ExplainContent(list, pBlock[0], nNext + c_nDataBlockHeadSize, nBlockEnd);
        list.Close();
        nNext = nBlockEnd;
    }
    return nNext;
}

} // namespace

void ExplainTypeI(CFieldList& list, int nRecord)
{
    list.Record(c_layoutTypeI, nRecord, c_nTypeISize);
    list.Rates(ReadTypeI(list.At(nRecord)), nRecord, c_nTypeISize);
}

void ExplainDisplayId(CFieldList& list, int nBlock)
{
    const int nSection = nBlock + c_nSectionOffset;
    list.Row(c_fieldTag, nBlock);
    list.Record(c_layoutSection, nSection, c_nSectionHeadSize);
    const int nLength = std::min(int(*list.At(nSection + 1)), c_nMaxSectionBytes);
    const int nEnd = nSection + c_nSectionHeadSize + nLength;
    const int nNext = ExplainDataBlocks(list, nSection + c_nSectionHeadSize, nEnd);
    list.Bytes(c_fieldPadding, nNext, nEnd - nNext);
    list.Row(c_fieldSectionChecksum, nEnd);
    list.Bytes(c_fieldPadding, nEnd + 1, nBlock + c_nChecksumOffset - nEnd - 1);
    list.Row(c_fieldChecksum, nBlock);
}

} // namespace Edid
