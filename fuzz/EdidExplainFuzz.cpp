// Any bytes as an EDID: explaining and judging stay inside them, and texts can be made. Texts take a hundred
// times as long as explaining: the last byte of the input chooses the field and the finding whose texts are
// made.

#include "SenderModuleDialog/Fault.h"
#include "host/CommonClass/EdidBlockSize.h"
#include "instruments/edid/FieldText.h"
#include "instruments/edid/Rules.h"

#include <cstddef>
#include <cstdint>

namespace {

constexpr int c_nMaxBytes = 3 * c_nEdidBlockSize;

std::vector<Edid::SField> FieldsOf(const QByteArray& edid)
{
    std::vector<Edid::SField> vecFields;
    Edid::Explain(reinterpret_cast<const quint8*>(edid.constData()), int(edid.size()), vecFields);
    return vecFields;
}

void CheckFields(const QByteArray& edid, unsigned nChoice)
{
    const std::vector<Edid::SField> vecFields = FieldsOf(edid);
    for (const Edid::SField& field : vecFields) {
        Require(field.nOffset >= 0 && field.nOffset + field.nSize <= edid.size(),
                "a field lies in the bytes");
    }
    Require(vecFields.empty() == edid.isEmpty(), "bytes are told");
    if (vecFields.empty())
        return;
    const Edid::SField& field = vecFields[nChoice % vecFields.size()];
    const auto* pBytes = reinterpret_cast<const quint8*>(edid.constData());
    Require(!Edid::LabelText(field).isEmpty(), "a field has a label");
    Edid::ValueText(field, pBytes, {});
    Edid::ValueJson(field, pBytes, {});
    Edid::FieldHex(field, pBytes);
}

void CheckFindings(const QByteArray& edid, unsigned nChoice)
{
    std::vector<Edid::SFinding> vecFindings;
    Edid::Check(reinterpret_cast<const quint8*>(edid.constData()), int(edid.size()), {2026}, vecFindings);
    for (const Edid::SFinding& finding : vecFindings) {
        Require(finding.nOffset >= 0 && finding.nSize > 0 && finding.nOffset + finding.nSize <= edid.size(),
                "a finding lies in the bytes");
    }
    if (vecFindings.empty())
        return;
    const Edid::SFinding& finding = vecFindings[nChoice % vecFindings.size()];
    Require(!Edid::WrongText(finding).contains(QLatin1Char('%')), "every number of a finding is told");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const int nBytes = int(nSize < std::size_t(c_nMaxBytes) ? nSize : std::size_t(c_nMaxBytes));
    const QByteArray edid(reinterpret_cast<const char*>(pData), nBytes);
    const unsigned nChoice = nSize == 0 ? 0 : pData[nSize - 1];
    CheckFields(edid, nChoice);
    CheckFindings(edid, nChoice);
    return 0;
}
