#include "simulator/OrviControl/IPAddressText.h"

#include <QStringList>

#include <algorithm>

namespace IPAddressText {

namespace {

/// Maximum digits of a pasted octet: enough for leading zeros, short enough for an int.
constexpr int c_nMaxParsedDigits = 9;

bool IsAsciiDigit(QChar ch)
{
    return ch >= QLatin1Char('0') && ch <= QLatin1Char('9');
}

/// The value of a text of digits, -1 for anything else.
int DigitsValue(const QString& strDigits)
{
    const bool bDigits = std::all_of(strDigits.cbegin(), strDigits.cend(), IsAsciiDigit);
    if (!bDigits || strDigits.isEmpty() || strDigits.size() > c_nMaxParsedDigits)
        return -1;
    return strDigits.toInt();
}

/// An octet set by a program.
QString Clamped(const QString& strPart)
{
    const int nValue = DigitsValue(strPart.trimmed());
    return nValue < 0 ? QString() : QString::number(std::min(nValue, c_nMaxOctet));
}

} // namespace

std::optional<QString> Canonical(const QString& strDigits)
{
    if (strDigits.isEmpty())
        return QString();
    const int nValue = DigitsValue(strDigits);
    if (nValue < 0 || nValue > c_nMaxOctet)
        return std::nullopt;
    return QString::number(nValue);
}

bool CanGrow(const QString& strOctet)
{
    const int nValue = DigitsValue(strOctet);
    if (nValue < 0)
        return strOctet.isEmpty();
    return nValue > 0 && strOctet.size() < c_nMaxDigits && nValue * 10 <= c_nMaxOctet;
}

bool IsSeparator(QChar ch)
{
    static const QString s_strSeparators = QStringLiteral(".,\u3002\uff0e\uff61");
    return ch.isSpace() || s_strSeparators.contains(ch);
}

Octets Split(const QString& strAddress)
{
    Octets arrOctets;
    const QStringList listParts = strAddress.split(QLatin1Char('.'));
    for (int i = 0; i < c_nOctets && i < listParts.size(); ++i)
        arrOctets.at(std::size_t(i)) = Clamped(listParts.at(i));
    return arrOctets;
}

std::optional<Octets> Parse(const QString& strPasted)
{
    QString strDotted = strPasted.trimmed();
    std::replace_if(strDotted.begin(), strDotted.end(), IsSeparator, QChar(QLatin1Char('.')));
    const QStringList listParts = strDotted.split(QLatin1Char('.'));
    if (listParts.size() > c_nOctets)
        return std::nullopt;
    Octets arrOctets;
    for (int i = 0; i < listParts.size(); ++i) {
        const std::optional<QString> strOctet = Canonical(listParts.at(i));
        if (!strOctet || strOctet->isEmpty())
            return std::nullopt;
        arrOctets.at(std::size_t(i)) = *strOctet;
    }
    return arrOctets;
}

int CountGiven(const Octets& arrOctets)
{
    int nCount = c_nOctets;
    while (nCount > 0 && arrOctets.at(std::size_t(nCount - 1)).isEmpty())
        --nCount;
    return nCount;
}

QString Join(const Octets& arrOctets)
{
    if (CountGiven(arrOctets) == 0)
        return {};
    return QStringList(arrOctets.cbegin(), arrOctets.cend()).join(QLatin1Char('.'));
}

} // namespace IPAddressText
