// Any blocks as JSON: every bit comes back, also of broken ones. The explanation, which stands beside the
// bytes and which reading passes over, is left to the target `edid_explain`.

#include "SenderModuleDialog/Fault.h"
#include "host/CommonClass/EdidBlockSize.h"
#include "instruments/edid/Reading.h"
#include "instruments/edid/Writing.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cstddef>
#include <cstdint>

namespace {

QByteArray BytesAlone(const QByteArray& edid)
{
    const QJsonObject object = {{QStringLiteral("bytes"), Edid::BytesJson(edid)}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    constexpr int c_nMaxBlocks = 4;
    const int nBlocks = qMin(int(nSize / c_nEdidBlockSize), c_nMaxBlocks);
    if (nBlocks == 0)
        return 0;
    const QByteArray edid(reinterpret_cast<const char*>(pData), nBlocks * c_nEdidBlockSize);
    const Edid::SReading reading = Edid::Read(BytesAlone(edid));
    Require(reading.IsRead() && reading.vecEdids.constFirst().bytes == edid, "JSON loses nothing");
    return 0;
}
