#include "SenderModuleDialog/addressing/IPAddressRules.h"

#include "SenderModuleDialog/Constants.h"
#include "host/TevraData/AddressVerdict.h"

#include <QtGlobal>

#include <algorithm>

namespace IPAddressRules {

namespace {

/// What a code means to the operator.
struct SCodeText
{
    unsigned int nCode;
    const char* szText;
};

constexpr const char* c_szOwnAddress = QT_TRANSLATE_NOOP(
    "CCustomDialog", "输入的IP地址和本机电脑的IP地址相同，会导致网络连接探测失败，是否继续？");
constexpr const char* c_szUnreasonable = QT_TRANSLATE_NOOP("CCustomDialog", "IP地址不合理。");
constexpr const char* c_szDuplicates = QT_TRANSLATE_NOOP("CCustomDialog", "存在重复的IP地址。");

/// Refusals by priority: of several rows with errors, the first code in this order is shown.
constexpr SCodeText c_arrRefusals[] = {
    {enAddressInUse, QT_TRANSLATE_NOOP("CCustomDialog", "IP地址已被使用。")},
    {enAddressStartsWithZero, QT_TRANSLATE_NOOP("CCustomDialog", "IP地址不能以0开头。")},
    {enAddressOfGateway, QT_TRANSLATE_NOOP("CCustomDialog", "IP地址与默认网关相同。")},
    {enAddressBroadcast, QT_TRANSLATE_NOOP("CCustomDialog", "IP地址是广播地址。")},
    {enAddressUnreasonable, c_szUnreasonable},
};

constexpr unsigned int c_nNetworkMask = 0xFFFFFF00;

/// Whether any two texts are equal.
bool HasDuplicates(const QStringList& listTexts)
{
    return QStringList(listTexts).removeDuplicates() > 0;
}

/// The code of one address on this path; `enAddressGood` when it is free of error.
unsigned int CodeOf(const SPath& path, const QString& strText, const QString& strOldAddress,
                    const FuncVerdict& funcVerdict)
{
    unsigned int nCode = enAddressGood;
    const bool bError = funcVerdict(AddressValue(strText), &nCode);
    if (path.bHeedsResult && !bError)
        return enAddressGood;
    if (path.bKeepsOldAddress && nCode == enAddressInUse && strText == strOldAddress)
        return enAddressGood;
    const bool bKnown = nCode == enAddressOfThisComputer ||
                        std::any_of(std::begin(c_arrRefusals), std::end(c_arrRefusals),
                                    [nCode](const SCodeText& row) { return row.nCode == nCode; });
    if (bKnown)
        return nCode;
    return path.bRefusesUnknownCode ? enAddressUnreasonable : enAddressGood;
}

const char* FirstRefusal(const QList<unsigned int>& listCodes)
{
    for (const SCodeText& row : c_arrRefusals)
        if (listCodes.contains(row.nCode))
            return row.szText;
    return nullptr;
}

unsigned int Reversed(unsigned int nIP)
{
    return nIP << 24 | (nIP & 0xFF00U) << 8 | (nIP >> 8 & 0xFF00U) | nIP >> 24;
}

/// No processor shares a network with a loopback or IPv6 address.
bool IsCandidate(const QHostAddress& address)
{
    return !(address == QHostAddress(QHostAddress::LocalHost)) && address.toIPv4Address() != 0;
}

unsigned int LoopbackValue()
{
    return QHostAddress(QHostAddress::LocalHost).toIPv4Address();
}

} // namespace

SJudgement Judge(const SPath& path, const QStringList& listTexts, const QString& strOldAddress,
                 const FuncVerdict& funcVerdict)
{
    if (path.bRefusesEmptyText && listTexts.contains(QString()))
        return {nullptr, c_szUnreasonable};
    if (path.bRefusesDuplicates && HasDuplicates(listTexts))
        return {nullptr, c_szDuplicates};
    QList<unsigned int> listCodes;
    for (const QString& strText : listTexts)
        listCodes.append(CodeOf(path, strText, strOldAddress, funcVerdict));
    return {listCodes.contains(enAddressOfThisComputer) ? c_szOwnAddress : nullptr, FirstRefusal(listCodes)};
}

unsigned int AddressValue(const QString& strText)
{
    return QHostAddress(strText).toIPv4Address();
}

QString AddressText(unsigned int nIP)
{
    return QHostAddress(nIP).toString();
}

Networks NetworksOf(const QList<unsigned int>& listDetected)
{
    Networks networks;
    for (const unsigned int nDetected : listDetected)
        networks.insert(Reversed(nDetected) & c_nNetworkMask);
    return networks;
}

unsigned int FirstLocalAddress(const QList<QHostAddress>& listLocal)
{
    const auto itFirst = std::find_if(listLocal.cbegin(), listLocal.cend(), IsCandidate);
    return itFirst == listLocal.cend() ? LoopbackValue() : itFirst->toIPv4Address();
}

unsigned int LastLocalAddressIn(const Networks& networks, const QList<QHostAddress>& listLocal)
{
    unsigned int nBase = LoopbackValue();
    for (const QHostAddress& address : listLocal)
        if (IsCandidate(address) && networks.count(address.toIPv4Address() & c_nNetworkMask) > 0)
            nBase = address.toIPv4Address();
    return nBase;
}

SEntry SplitEntry(const QString& strEntry)
{
    // A missing parenthesis is found at -1, and Qt takes a negative length for all that follows.
    const int nOpen = int(strEntry.indexOf(QLatin1Char('(')));
    const int nClose = int(strEntry.indexOf(QLatin1Char(')')));
    return {strEntry.left(nOpen), strEntry.mid(nOpen + 1, nClose - nOpen - 1)};
}

QString EntryWithDefaultName(const QString& strEntry)
{
    const int nOpen = int(strEntry.indexOf(QLatin1Char('(')));
    const int nClose = int(strEntry.indexOf(QLatin1Char(')')));
    if (nOpen < 0 || nClose != nOpen + 1)
        return strEntry;
    const QString strAddress = strEntry.left(nOpen);
    const QString strLastOctet = strAddress.mid(strAddress.lastIndexOf(QLatin1Char('.')) + 1);
    return QStringLiteral("%1(IP%2)").arg(strAddress, strLastOctet);
}

} // namespace IPAddressRules
