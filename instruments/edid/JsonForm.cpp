#include "instruments/edid/EdidText.h"
#include "instruments/edid/TextForms.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

/// @file
/// Our own JSON: an object with `bytes`, or one with `edids`, a list of such objects. The bytes are a list of
/// numbers from 0 to 255, or one or several texts of hexadecimal digits.

namespace Edid {

namespace {

const QString c_strBytes = QStringLiteral("bytes");
const QString c_strEdids = QStringLiteral("edids");
const QString c_strName = QStringLiteral("name");

SReading ErrorAtOffset(const QByteArray& text, int nOffset, const QString& strError)
{
    const QByteArray before = text.left(std::max(nOffset, 0));
    const int nLineStart = int(before.lastIndexOf('\n')) + 1;
    SReading reading;
    reading.strError = strError;
    reading.nLine = int(before.count('\n')) + 1;
    reading.nColumn = int(before.size()) - nLineStart + 1;
    return reading;
}

/// Values know no place of their own: the key that they belong to tells it.
SReading ErrorAtKey(const QByteArray& text, const QString& strKey, const QString& strError)
{
    return ErrorAtOffset(text, int(text.indexOf('"' + strKey.toLatin1() + '"')), strError);
}

/// The bytes of a text of digits; empty when it is none.
QByteArray FromHex(const QString& strHex)
{
    const QByteArray hex = strHex.toLatin1().simplified().replace(' ', QByteArray());
    const QByteArray bytes = QByteArray::fromHex(hex);
    return bytes.size() * 2 == hex.size() ? bytes : QByteArray();
}

QByteArray BytesOf(const QJsonArray& values, QString& strError)
{
    constexpr int c_nLargest = 255;
    QByteArray bytes;
    for (int i = 0; i < values.size() && strError.isEmpty(); ++i) {
        const QJsonValue value = values.at(i);
        const double dByte = value.toDouble(-1.0);
        const QByteArray row = value.isString() ? FromHex(value.toString()) : QByteArray();
        if (!row.isEmpty())
            bytes += row;
        else if (value.isDouble() && dByte >= 0 && dByte <= c_nLargest && dByte == int(dByte))
            bytes += char(int(dByte));
        else
            strError =
                CEdidText::tr("entry %1 of \"bytes\" is no byte; give numbers from 0 to 255, or texts of "
                              "two digits for each byte")
                    .arg(i + 1);
    }
    return bytes;
}

SReading ReadObject(const QByteArray& text, const QJsonObject& object)
{
    const QJsonValue value = object.value(c_strBytes);
    QString strError;
    QByteArray bytes;
    if (value.isString())
        bytes = BytesOf({value}, strError);
    else if (value.isArray())
        bytes = BytesOf(value.toArray(), strError);
    else
        strError = CEdidText::tr("there is no list \"bytes\"; give the JSON that this program writes");
    if (strError.isEmpty())
        strError = SizeError(int(bytes.size()));
    if (!strError.isEmpty())
        return ErrorAtKey(text, c_strBytes, strError);
    SReading reading;
    reading.vecEdids.append({object.value(c_strName).toString(), bytes});
    return reading;
}

SReading ReadList(const QByteArray& text, const QJsonArray& edids)
{
    SReading reading;
    for (const QJsonValue value : edids) {
        SReading one = ReadObject(text, value.toObject());
        if (!one.IsRead())
            return one;
        reading.vecEdids += one.vecEdids;
    }
    return reading.vecEdids.isEmpty()
               ? ErrorAtKey(text, c_strEdids, CEdidText::tr("the list \"edids\" is empty"))
               : reading;
}

} // namespace

/// An array of C begins with a brace too, but no text follows it.
bool IsJson(const QByteArray& text)
{
    const auto IsBlank = [](char ch) { return ch == ' ' || ch == '\n' || ch == '\r' || ch == '\t'; };
    const char* pBrace = std::find_if_not(text.begin(), text.end(), IsBlank);
    if (pBrace == text.end() || (*pBrace != '{' && *pBrace != '['))
        return false;
    const char* pNext = std::find_if_not(pBrace + 1, text.end(), IsBlank);
    return pNext == text.end() || *pNext == '"' || *pNext == '{' || *pNext == '}' || *pBrace == '[';
}

SReading ReadJson(const QByteArray& text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        return ErrorAtOffset(text, error.offset, error.errorString());
    if (!document.isObject())
        return ErrorAtOffset(text, 0,
                             CEdidText::tr("an object with \"bytes\" is needed; give the JSON that "
                                           "this program writes"));
    const QJsonObject object = document.object();
    return object.contains(c_strEdids) ? ReadList(text, object.value(c_strEdids).toArray())
                                       : ReadObject(text, object);
}

} // namespace Edid
