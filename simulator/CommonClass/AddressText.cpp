#include "simulator/CommonClass/AddressText.h"

#include <QStringList>

QString AddressText(unsigned int nAddress)
{
    constexpr unsigned int c_nOctetMask = 255U;
    return QStringLiteral("%1.%2.%3.%4")
        .arg(nAddress >> 24)
        .arg(nAddress >> 16 & c_nOctetMask)
        .arg(nAddress >> 8 & c_nOctetMask)
        .arg(nAddress & c_nOctetMask);
}

std::optional<unsigned int> AddressValue(const QString& strAddress)
{
    constexpr unsigned int c_nLargestOctet = 255;
    const QStringList listOctets = strAddress.split(QLatin1Char('.'));
    if (listOctets.size() != 4)
        return std::nullopt;
    unsigned int nAddress = 0;
    for (const QString& strOctet : listOctets) {
        bool bNumber = false;
        const unsigned int nOctet = strOctet.toUInt(&bNumber);
        // The conversion would also accept signs and blanks.
        if (!bNumber || nOctet > c_nLargestOctet || !strOctet.at(0).isDigit())
            return std::nullopt;
        nAddress = nAddress << 8 | nOctet;
    }
    return nAddress;
}

QString AddressEntry(const QString& strAddress, const QString& strName)
{
    return QStringLiteral("%1(%2)").arg(strAddress, strName);
}

QString EntryAddress(const QString& strEntry)
{
    return strEntry.left(strEntry.indexOf(QLatin1Char('(')));
}

QString EntryName(const QString& strEntry)
{
    const int nOpen = int(strEntry.indexOf(QLatin1Char('(')));
    const int nClose = int(strEntry.lastIndexOf(QLatin1Char(')')));
    return nOpen < 0 || nClose < nOpen ? QString() : strEntry.mid(nOpen + 1, nClose - nOpen - 1);
}

QString EntryWithName(const QString& strEntry)
{
    const QString strAddress = EntryAddress(strEntry);
    if (strAddress.isEmpty() || !EntryName(strEntry).isEmpty())
        return strEntry;
    return AddressEntry(
        strAddress, QStringLiteral("IP%1").arg(strAddress.mid(strAddress.lastIndexOf(QLatin1Char('.')) + 1)));
}
