#include "instruments/edid/Explanation.h"

#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/Checksum.h"
#include "instruments/edid/CtaLayout.h"
#include "instruments/edid/DisplayIdLayout.h"
#include "instruments/edid/FieldList.h"

namespace Edid {

namespace {

constexpr SFieldType c_fieldBase = Title("base", "Base block");
constexpr SFieldType c_fieldCta = Title("cta", "CTA-861 extension");
constexpr SFieldType c_fieldDisplayId = Title("displayid", "DisplayID extension");
constexpr SFieldType c_fieldMap = Title("map", "Block map");
constexpr SFieldType c_fieldVideoTiming = Title("vtb", "Video timing extension");
constexpr SFieldType c_fieldLocalized = Title("ls", "Localised text extension");
constexpr SFieldType c_fieldInformation = Title("di", "Display information extension");
constexpr SFieldType c_fieldVendor = Title("vendor", "Maker's own extension");
constexpr SFieldType c_fieldOther = Title("extension", "Unknown extension");
constexpr SFieldType c_fieldRest = Title("rest", "Bytes after the last whole block", enKind::enBytes);

/// Block tags (VESA E-EDID, section 2.2.2) and how their blocks are explained.
struct SBlockKind
{
    int nTag;
    const SFieldType* pType;
    void (*pExplain)(CFieldList& list, int nBlock);
};

/// What nobody explains yet is shown as bytes between tag and checksum.
void ExplainUnknown(CFieldList& list, int nBlock)
{
    list.Row(c_fieldTag, nBlock);
    list.Bytes(c_fieldUnexplained, nBlock + 1, c_nEdidBlockSize - 2);
    list.Row(c_fieldChecksum, nBlock);
}

constexpr SBlockKind c_arrKinds[] = {
    {c_byCtaTag, &c_fieldCta, &ExplainCta},
    {0x10, &c_fieldVideoTiming, &ExplainUnknown},
    {0x40, &c_fieldInformation, &ExplainUnknown},
    {0x50, &c_fieldLocalized, &ExplainUnknown},
    {c_byDisplayIdTag, &c_fieldDisplayId, &ExplainDisplayId},
    {0xF0, &c_fieldMap, &ExplainUnknown},
    {0xFF, &c_fieldVendor, &ExplainUnknown},
};

constexpr SBlockKind c_baseKind = {0, &c_fieldBase, &ExplainBase};
constexpr SBlockKind c_otherKind = {0, &c_fieldOther, &ExplainUnknown};

const SBlockKind& KindOf(int nBlock, quint8 byTag)
{
    if (nBlock == 0)
        return c_baseKind;
    for (const SBlockKind& kind : c_arrKinds)
        if (kind.nTag == byTag)
            return kind;
    return c_otherKind;
}

} // namespace

void Explain(const quint8* pBytes, int nSize, std::vector<SField>& vecFields)
{
    vecFields.clear();
    CFieldList list(pBytes, vecFields);
    const int nBlocks = nSize / c_nEdidBlockSize;
    for (int i = 0; i < nBlocks; ++i) {
        const int nBlock = i * c_nEdidBlockSize;
        const SBlockKind& kind = KindOf(i, pBytes[nBlock]);
        list.Open(*kind.pType, nBlock, c_nEdidBlockSize, i);
        kind.pExplain(list, nBlock);
        list.Close();
    }
    list.Bytes(c_fieldRest, nBlocks * c_nEdidBlockSize, nSize - nBlocks * c_nEdidBlockSize);
}

} // namespace Edid
