// Any values into any blocks: a refused value changes nothing, and a fixed EDID has right checksums.

#include "SenderModuleDialog/Fault.h"
#include "instruments/edid/Checksum.h"
#include "instruments/edid/Editing.h"

#include <QVector>

#include <cstddef>
#include <cstdint>

namespace {

/// The first byte chooses the field, the next ones are its value; the blocks follow.
constexpr int c_nValueSize = 24;

void CheckFixed(QByteArray edid)
{
    Edid::Fix(edid);
    for (int nBlock = 0; nBlock < edid.size(); nBlock += c_nEdidBlockSize) {
        const auto* pBlock = reinterpret_cast<const quint8*>(edid.constData()) + nBlock;
        Require(pBlock[Edid::c_nChecksumOffset] == Edid::Checksum(pBlock),
                "a fixed block has a right checksum");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    constexpr int c_nHead = 1 + c_nValueSize;
    if (nSize < std::size_t(c_nHead) + std::size_t(c_nEdidBlockSize))
        return 0;
    const int nBlocks = qMin((int(nSize) - c_nHead) / c_nEdidBlockSize, 3);
    const QByteArray before(reinterpret_cast<const char*>(pData) + c_nHead, nBlocks * c_nEdidBlockSize);
    const auto& vecKeys = Edid::Editables();
    const QString strKey = QString::fromLatin1(vecKeys.at(pData[0] % vecKeys.size()).szKey);
    const QByteArray value = QByteArray(reinterpret_cast<const char*>(pData) + 1, c_nValueSize);
    QByteArray after = before;
    const QString strError =
        Edid::SetValue(after, strKey, QString::fromUtf8(value.left(value.indexOf('\0'))));
    Require(strError.isEmpty() || after == before, "a refused value changes nothing");
    Require(after.mid(c_nEdidBlockSize) == before.mid(c_nEdidBlockSize), "extension blocks stay");
    CheckFixed(after);
    Edid::DropExtensions(after);
    return 0;
}
