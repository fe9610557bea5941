#include "tools/EdidFormat.h"

#include "instruments/edid/Writing.h"
#include "tools/Report.h"
#include "tools/Values.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace EdidFormat {

namespace {

QByteArray Binary(const QByteArray& block, const SVideoMode&)
{
    return block;
}

QByteArray Hex(const QByteArray& block, const SVideoMode&)
{
    return Edid::HexForm(block);
}

QByteArray CSource(const QByteArray& block, const SVideoMode& mode)
{
    return Edid::CForm(block, QStringLiteral("EDID 1.3 base block of %1").arg(DescribeVideoMode(mode)));
}

QByteArray Json(const QByteArray& block, const SVideoMode& mode)
{
    QJsonArray bytes;
    std::transform(block.begin(), block.end(), std::back_inserter(bytes),
                   [](char ch) { return int(static_cast<unsigned char>(ch)); });
    const QJsonObject object = {
        {QStringLiteral("width"), mode.nWidth},
        {QStringLiteral("height"), mode.nHeight},
        {QStringLiteral("rate"), mode.strRate.toDouble()},
        {QStringLiteral("bytes"), bytes},
    };
    return QJsonDocument(object).toJson();
}

QByteArray HexLine(const QByteArray& block, const SVideoMode&)
{
    return block.toHex();
}

QByteArray JsonLine(const QByteArray& block, const SVideoMode& mode)
{
    return Values::CompactJson(Json(block, mode));
}

using FuncFormat = QByteArray (*)(const QByteArray& block, const SVideoMode& mode);

struct SFormat
{
    const char* szName;
    FuncFormat pFormat;
    FuncFormat pLine; ///< in one line; null where that is impossible
};

constexpr SFormat c_arrFormats[] = {
    {"hex", &Hex, &HexLine},
    {"bin", &Binary, nullptr},
    {"c", &CSource, nullptr},
    {"json", &Json, &JsonLine},
};

const SFormat& Find(const QString& strName)
{
    const auto HasName = [&](const SFormat& format) { return strName == QLatin1String(format.szName); };
    const auto it = std::find_if(std::begin(c_arrFormats), std::end(c_arrFormats), HasName);
    if (it == std::end(c_arrFormats))
        throw CToolError(QStringLiteral("unknown format '%1'; give one of: %2")
                             .arg(strName, Names().join(QStringLiteral(", "))));
    return *it;
}

} // namespace

QStringList Names()
{
    QStringList listNames;
    for (const SFormat& format : c_arrFormats)
        listNames += QString::fromLatin1(format.szName);
    return listNames;
}

QByteArray Format(const QString& strName, const QByteArray& block, const SVideoMode& mode)
{
    return Find(strName).pFormat(block, mode);
}

QByteArray Line(const QString& strName, const QByteArray& block, const SVideoMode& mode)
{
    const FuncFormat pLine = Find(strName).pLine;
    if (pLine == nullptr)
        throw CToolError(
            QStringLiteral("the format '%1' has several lines; give one mode, or the format hex or json")
                .arg(strName));
    return pLine(block, mode);
}

} // namespace EdidFormat
