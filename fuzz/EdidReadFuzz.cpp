// Any file: it is read as whole blocks or refused with a reason, and what was read comes back
// from every form.

#include "SenderModuleDialog/Fault.h"
#include "host/CommonClass/EdidBlockSize.h"
#include "instruments/edid/Reading.h"
#include "instruments/edid/Writing.h"

#include <cstddef>
#include <cstdint>

namespace {

void CheckForm(const QByteArray& form, const QByteArray& edid)
{
    const Edid::SReading reading = Edid::Read(form);
    Require(reading.IsRead() && reading.vecEdids.constFirst().bytes == edid, "a written form is read back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const Edid::SReading reading = Edid::Read(QByteArray(reinterpret_cast<const char*>(pData), int(nSize)));
    Require(reading.IsRead() != reading.vecEdids.isEmpty(), "there are EDIDs or a reason");
    for (const Edid::SNamedEdid& edid : reading.vecEdids) {
        const int nBytes = int(edid.bytes.size());
        Require(nBytes > 0 && nBytes % c_nEdidBlockSize == 0, "an EDID has whole blocks");
        Require(nBytes <= Edid::c_nMaxBlocks * c_nEdidBlockSize, "an EDID has at most 256 blocks");
        CheckForm(Edid::HexForm(edid.bytes), edid.bytes);
        CheckForm(Edid::CForm(edid.bytes, QStringLiteral("any")), edid.bytes);
    }
    return 0;
}
