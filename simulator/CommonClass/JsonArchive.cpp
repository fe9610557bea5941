#include "simulator/CommonClass/JsonArchive.h"

#include "simulator/CommonClass/SimulatorText.h"

#include <QJsonDocument>

#include <cmath>

namespace {

/// Longest value quoted in a message.
constexpr int c_nQuotedLength = 60;

QString Quoted(const QJsonValue& value)
{
    // A document holds only arrays and objects, so the value is wrapped in an array and
    // the brackets removed.
    const QByteArray baArray = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    const QString strValue = QString::fromUtf8(baArray.mid(1, baArray.size() - 2));
    return strValue.size() <= c_nQuotedLength ? strValue
                                              : strValue.left(c_nQuotedLength) + QStringLiteral("...");
}

QString RangeText(SRange range)
{
    return CSimulatorText::tr("a whole number from %1 to %2").arg(range.nMin).arg(range.nMax);
}

bool IsHexadecimal(const QString& strText)
{
    return QString::fromLatin1(QByteArray::fromHex(strText.toLatin1()).toHex()) == strText.toLower();
}

} // namespace

void SJsonPlace::Refuse(const QString& strWhat) const
{
    if (problem.IsSet())
        return;
    problem.strPlace = strPath;
    problem.strWhat = strWhat;
}

void SJsonPlace::RefuseValue(const QJsonValue& value, const QString& strExpected) const
{
    Refuse(CSimulatorText::tr("the value is %1, but must be %2.").arg(Quoted(value), strExpected));
}

SJsonPlace SJsonPlace::Element(int nIndex) const
{
    return {QStringLiteral("%1[%2]").arg(strPath).arg(nIndex), problem};
}

SJsonPlace SJsonPlace::Key(const QString& strKey) const
{
    return {strPath.isEmpty() ? strKey : QStringLiteral("%1.%2").arg(strPath, strKey), problem};
}

qint64 ReadJsonInteger(const SJsonPlace& place, const QJsonValue& value, SRange range)
{
    const double dValue = value.toDouble(std::nan(""));
    if (dValue >= double(range.nMin) && dValue <= double(range.nMax) && std::trunc(dValue) == dValue)
        return qint64(dValue);
    place.RefuseValue(value, RangeText(range));
    return 0;
}

void ReadJson(const SJsonPlace& place, const QJsonValue& value, bool& bOut)
{
    if (!value.isBool())
        return place.RefuseValue(value, CSimulatorText::tr("true or false"));
    bOut = value.toBool();
}

void ReadJson(const SJsonPlace& place, const QJsonValue& value, float& fOut, SRange range)
{
    const double dValue = value.toDouble(std::nan(""));
    if (dValue >= double(range.nMin) && dValue <= double(range.nMax))
        fOut = float(dValue);
    else
        place.RefuseValue(value,
                          CSimulatorText::tr("a number from %1 to %2").arg(range.nMin).arg(range.nMax));
}

void ReadJson(const SJsonPlace& place, const QJsonValue& value, QString& strOut, SLength length)
{
    if (!value.isString() || value.toString().size() > length.nMax)
        return place.RefuseValue(value,
                                 CSimulatorText::tr("a text of at most %1 characters").arg(length.nMax));
    strOut = value.toString();
}

void ReadJson(const SJsonPlace& place, const QJsonValue& value, QSize& sizeOut, SRange range)
{
    const QStringList listSides = value.toString().split(QLatin1Char('x'));
    bool bWidth = false;
    bool bHeight = false;
    const QSize size(listSides.value(0).toInt(&bWidth), listSides.value(1).toInt(&bHeight));
    const auto IsInRange = [&range](int nSide) { return nSide >= range.nMin && nSide <= range.nMax; };
    if (listSides.size() != 2 || !bWidth || !bHeight || !IsInRange(size.width()) || !IsInRange(size.height()))
        return place.RefuseValue(value,
                                 CSimulatorText::tr("a size such as \"1920x1080\" with sides from %1 to %2")
                                     .arg(range.nMin)
                                     .arg(range.nMax));
    sizeOut = size;
}

void ReadJson(const SJsonPlace& place, const QJsonValue& value, QByteArray& baOut, SLength length)
{
    const QString strHex = value.toString();
    const bool bLength = strHex.isEmpty() || strHex.size() == 2 * length.nMax;
    if (!value.isString() || !bLength || !IsHexadecimal(strHex))
        return place.RefuseValue(
            value, CSimulatorText::tr("empty or %1 bytes in hexadecimal digits").arg(length.nMax));
    baOut = QByteArray::fromHex(strHex.toLatin1());
}

QJsonValue WriteJson(float fValue)
{
    return double(fValue);
}

QJsonValue WriteJson(const QString& strValue)
{
    return strValue;
}

QJsonValue WriteJson(const QSize& size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QJsonValue WriteJson(const QByteArray& baValue)
{
    return QString::fromLatin1(baValue.toHex());
}

bool CJsonReader::RequireKey(const QString& strKey) const
{
    if (m_object.contains(strKey))
        return true;
    m_place.Refuse(CSimulatorText::tr("the key \"%1\" is missing.").arg(strKey));
    return false;
}

void CJsonReader::RefuseUnknownKeys() const
{
    for (auto itKey = m_object.begin(); itKey != m_object.end(); ++itKey) {
        if (!m_listKnown.contains(itKey.key()))
            return m_place.Refuse(CSimulatorText::tr("the key \"%1\" is not known here.").arg(itKey.key()));
    }
}
