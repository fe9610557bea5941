#include "instruments/edid/Writing.h"

#include "instruments/edid/ExplanationText.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace Edid {

namespace {

constexpr int c_nHexColumns = 16;
constexpr int c_nSourceColumns = 8;

QByteArray Lines(const QStringList& listRows)
{
    return (listRows.join(QLatin1Char('\n')) + QLatin1Char('\n')).toLatin1();
}

} // namespace

QStringList ByteRows(const QByteArray& edid, int nColumns, const QString& strPrefix,
                     const QString& strSeparator)
{
    const QString strDigits = QString::fromLatin1(edid.toHex().toUpper());
    QStringList listRows;
    for (int nStart = 0; nStart < edid.size(); nStart += nColumns) {
        QStringList listBytes;
        for (int i = nStart; i < qMin(nStart + nColumns, int(edid.size())); ++i)
            listBytes += strPrefix + strDigits.mid(2 * i, 2);
        listRows += listBytes.join(strSeparator);
    }
    return listRows;
}

QJsonArray BytesJson(const QByteArray& edid)
{
    return QJsonArray::fromStringList(ByteRows(edid, c_nHexColumns, QString(), QStringLiteral(" ")));
}

QByteArray HexForm(const QByteArray& edid)
{
    return Lines(ByteRows(edid, c_nHexColumns, QString(), QStringLiteral(" ")));
}

QByteArray CForm(const QByteArray& edid, const QString& strComment)
{
    const QStringList listRows = ByteRows(edid, c_nSourceColumns, QStringLiteral("0x"), QStringLiteral(", "));
    return QStringLiteral("/* %1 */\nstatic const unsigned char edid[%2] = {\n    %3\n};\n")
        .arg(strComment)
        .arg(edid.size())
        .arg(listRows.join(QStringLiteral(",\n    ")))
        .toUtf8();
}

QByteArray JsonForm(const QByteArray& edid)
{
    const QJsonObject object = {
        {QStringLiteral("bytes"), BytesJson(edid)},
        {QStringLiteral("blocks"), ExplanationJson(edid, {})},
    };
    return QJsonDocument(object).toJson();
}

} // namespace Edid
