#include "tools/EdidFormat.h"

#include "tools/Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace EdidFormat {

namespace {

constexpr int c_nHexColumns = 16;
constexpr int c_nSourceColumns = 8;

/// The bytes as two upper-case digits each, in rows.
QStringList Rows(const QByteArray& block, int nColumns, const QString& strPrefix, const QString& strSeparator)
{
    QStringList listRows;
    for (int nStart = 0; nStart < block.size(); nStart += nColumns) {
        QStringList listBytes;
        for (const char ch : block.mid(nStart, nColumns))
            listBytes += strPrefix + QString::asprintf("%02X", static_cast<unsigned char>(ch));
        listRows += listBytes.join(strSeparator);
    }
    return listRows;
}

QByteArray Binary(const QByteArray& block, const SVideoMode&)
{
    return block;
}

QByteArray Hex(const QByteArray& block, const SVideoMode&)
{
    const QStringList listRows = Rows(block, c_nHexColumns, QString(), QStringLiteral(" "));
    return (listRows.join(QLatin1Char('\n')) + QLatin1Char('\n')).toLatin1();
}

QByteArray CSource(const QByteArray& block, const SVideoMode& mode)
{
    const QStringList listRows = Rows(block, c_nSourceColumns, QStringLiteral("0x"), QStringLiteral(", "));
    return QStringLiteral(
               "/* EDID 1.3 base block of %1 */\nstatic const unsigned char edid[%2] = {\n    %3\n};\n")
        .arg(DescribeVideoMode(mode))
        .arg(block.size())
        .arg(listRows.join(QStringLiteral(",\n    ")))
        .toLatin1();
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

constexpr SFormat c_formats[] = {
    {"hex", &Hex},
    {"bin", &Binary},
    {"c", &CSource},
    {"json", &Json},
};

} // namespace

QStringList Names()
{
    QStringList listNames;
    for (const SFormat& format : c_formats)
        listNames += QString::fromLatin1(format.szName);
    return listNames;
}

QByteArray Format(const QString& strName, const QByteArray& block, const SVideoMode& mode)
{
    const auto HasName = [&](const SFormat& format) { return strName == QLatin1String(format.szName); };
    const auto it = std::find_if(std::begin(c_formats), std::end(c_formats), HasName);
    if (it == std::end(c_formats))
        throw CToolError(QStringLiteral("unknown format '%1'; give one of: %2")
                             .arg(strName, Names().join(QStringLiteral(", "))));
    return it->pFormat(block, mode);
}

} // namespace EdidFormat
