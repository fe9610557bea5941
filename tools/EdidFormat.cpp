#include "tools/EdidFormat.h"

#include "instruments/edid/Writing.h"
#include "tools/Report.h"

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

struct SFormat
{
    const char* szName;
    QByteArray (*pFormat)(const QByteArray& block, const SVideoMode& mode);
};

constexpr SFormat c_arrFormats[] = {
    {"hex", &Hex},
    {"bin", &Binary},
    {"c", &CSource},
    {"json", &Json},
};

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
    const auto HasName = [&](const SFormat& format) { return strName == QLatin1String(format.szName); };
    const auto it = std::find_if(std::begin(c_arrFormats), std::end(c_arrFormats), HasName);
    if (it == std::end(c_arrFormats))
        throw CToolError(QStringLiteral("unknown format '%1'; give one of: %2")
                             .arg(strName, Names().join(QStringLiteral(", "))));
    return it->pFormat(block, mode);
}

} // namespace EdidFormat
