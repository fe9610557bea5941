#include "instruments/edid/Checksum.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/DisplayIdLayout.h"
#include "instruments/edid/FieldList.h"
#include "instruments/edid/SectionBlocks.h"

#include <algorithm>

namespace Edid {

namespace {

constexpr SFieldType c_fieldBlock = Title("data_block", "Data block", enKind::enSectionBlock);
constexpr SFieldType c_fieldTypeI = Title("timing", "Type I timing", enKind::enTypeIMode);
constexpr SFieldType c_fieldTypeVII = Title("timing", "Type VII timing", enKind::enTypeVIIMode);
constexpr SFieldType c_fieldName = Title("name", "Name", enKind::enText);
constexpr SFieldType c_fieldDisplayMode = Whole("dmt", "Display timing", enKind::enDisplayMode, 0);
constexpr SFieldType c_fieldText = Title("text", "Text", enKind::enText);
constexpr SFieldType c_fieldSectionChecksum =
    Whole("section_checksum", "Checksum of the section", enKind::enHex, 0);

/// A data block, from its first byte to behind its last.
struct SBlockPlace
{
    int nBegin;
    int nEnd;

    int Content() const { return nBegin + c_nDataBlockHeadSize; }
};

/// What was explained ends here; the rest is shown as bytes.
using Explained = int;

template <const SFieldType& c_field, int c_nSize, void (*pExplain)(CFieldList& list, int nRecord)>
Explained ExplainTimings(CFieldList& list, const SBlockPlace& block)
{
    int nNext = block.Content();
    for (int nIndex = 1; nNext + c_nSize <= block.nEnd; nNext += c_nSize, ++nIndex) {
        list.Open(c_field, nNext, c_nSize, nIndex);
        pExplain(list, nNext);
        list.Close();
    }
    return nNext;
}

Explained ExplainDisplayModes(CFieldList& list, const SBlockPlace& block)
{
    for (int nNext = block.Content(); nNext < block.nEnd; ++nNext)
        list.Row(c_fieldDisplayMode, nNext, nNext - block.Content() + 1);
    return block.nEnd;
}

Explained ExplainText(CFieldList& list, const SBlockPlace& block)
{
    list.Bytes(c_fieldText, block.Content(), block.nEnd - block.Content());
    return block.nEnd;
}

template <const SLayout& c_layout>
Explained ExplainByLayout(CFieldList& list, const SBlockPlace& block)
{
    return std::max(list.RecordTo(c_layout, block.nBegin, block.nEnd), block.Content());
}

/// Numbers, then a name of its own length.
template <const SLayout& c_layout>
Explained ExplainProduct(CFieldList& list, const SBlockPlace& block)
{
    const SFieldType& length = c_layout[c_layout.nCount - 1];
    const int nName = ExplainByLayout<c_layout>(list, block);
    if (nName <= block.nBegin + length.nOffset)
        return nName;
    const int nSize = std::min(int(Get(list.At(block.nBegin), length)), block.nEnd - nName);
    list.Bytes(c_fieldName, nName, nSize);
    return nName + nSize;
}

struct SDataBlockKind
{
    quint8 byTag;
    Explained (*pExplain)(CFieldList& list, const SBlockPlace& block);
};

constexpr SDataBlockKind c_arrKinds[] = {
    {0x00, &ExplainProduct<c_layoutProductId>},
    {0x01, &ExplainByLayout<c_layoutParameters>},
    {c_byTypeITag, &ExplainTimings<c_fieldTypeI, c_nTypeISize, &ExplainTypeI>},
    {0x06, &ExplainDisplayModes},
    {0x0A, &ExplainText},
    {0x0B, &ExplainText},
    {0x12, &ExplainByLayout<c_layoutTiledDisplay>},
    {0x20, &ExplainProduct<c_layoutProductId2>},
    {0x22, &ExplainTimings<c_fieldTypeVII, c_nTypeVIISize, &ExplainTypeVII>},
};

/// The content of a data block; what nobody explains is all bytes.
void ExplainContent(CFieldList& list, quint8 byTag, const SBlockPlace& block)
{
    int nNext = block.Content();
    for (const SDataBlockKind& kind : c_arrKinds)
        if (kind.byTag == byTag)
            nNext = kind.pExplain(list, block);
    list.Bytes(c_fieldUnexplained, nNext, block.nEnd - nNext);
}

/// Data blocks up to the first that does not fit; zeros fill the section to its end.
int ExplainDataBlocks(CFieldList& list, int nNext, int nEnd)
{
    int nIndex = 0;
    while (const std::optional<SSectionBlock> block = SectionBlockAt(list.At(0), nNext, nEnd)) {
        list.Open(c_fieldBlock, nNext, block->End() - nNext, ++nIndex, block->byTag);
        list.Record(c_layoutDataBlock, nNext, c_nDataBlockHeadSize);
        ExplainContent(list, block->byTag, {nNext, block->End()});
        list.Close();
        nNext = block->End();
    }
    return nNext;
}

} // namespace

void ExplainTypeI(CFieldList& list, int nRecord)
{
    list.Record(c_layoutTypeI, nRecord, c_nTypeISize);
    list.Rates(ReadTypeI(list.At(nRecord)), nRecord, c_nTypeISize);
}

void ExplainTypeVII(CFieldList& list, int nRecord)
{
    list.Record(c_layoutTypeVII, nRecord, c_nTypeVIISize);
    list.Rates(ReadTypeVII(list.At(nRecord)), nRecord, c_nTypeVIISize, enKind::enTypeVIIModeline);
}

void ExplainDisplayId(CFieldList& list, int nBlock)
{
    const int nSection = nBlock + c_nSectionOffset;
    list.Row(c_fieldTag, nBlock);
    list.Record(c_layoutSection, nSection, c_nSectionHeadSize);
    const int nEnd = SectionEnd(list.At(0), nSection);
    const int nNext = ExplainDataBlocks(list, SectionBegin(nSection), nEnd);
    list.Bytes(c_fieldPadding, nNext, nEnd - nNext);
    list.Row(c_fieldSectionChecksum, nEnd);
    list.Bytes(c_fieldPadding, nEnd + 1, nBlock + c_nChecksumOffset - nEnd - 1);
    list.Row(c_fieldChecksum, nBlock);
}

} // namespace Edid
