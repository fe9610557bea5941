// Any bytes as an EDID: explaining and judging stay inside them, and every text can be made.

#include "SenderModuleDialog/Fault.h"
#include "host/CommonClass/EdidBlockSize.h"
#include "instruments/edid/ExplanationText.h"
#include "instruments/edid/Rules.h"

#include <cstddef>
#include <cstdint>

namespace {

constexpr int c_nMaxBytes = 3 * c_nEdidBlockSize;

void CheckFields(const QByteArray& edid)
{
    std::vector<Edid::SField> vecFields;
    const auto* pBytes = reinterpret_cast<const quint8*>(edid.constData());
    Edid::Explain(pBytes, edid.size(), vecFields);
    for (const Edid::SField& field : vecFields) {
        Require(field.nOffset >= 0 && field.nOffset + field.nSize <= edid.size(),
                "a field lies in the bytes");
    }
    Require(Edid::ExplanationText(edid, {}).isEmpty() == edid.isEmpty(), "bytes are told");
}

void CheckFindings(const QByteArray& edid)
{
    std::vector<Edid::SFinding> vecFindings;
    Edid::Check(reinterpret_cast<const quint8*>(edid.constData()), edid.size(), {2026}, vecFindings);
    for (const Edid::SFinding& finding : vecFindings) {
        Require(finding.nOffset >= 0 && finding.nSize > 0 && finding.nOffset + finding.nSize <= edid.size(),
                "a finding lies in the bytes");
        Require(!Edid::WrongText(finding).contains(QLatin1Char('%')), "every number of a finding is told");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const int nBytes = int(nSize < std::size_t(c_nMaxBytes) ? nSize : std::size_t(c_nMaxBytes));
    const QByteArray edid(reinterpret_cast<const char*>(pData), nBytes);
    CheckFields(edid);
    CheckFindings(edid);
    return 0;
}
