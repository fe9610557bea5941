#include "simulator/CommonClass/NetworkFacts.h"

#include <QFile>
#include <QNetworkInterface>
#include <QtEndian>

#include <optional>

namespace {

/// Columns of /proc/net/route: Iface, Destination, Gateway, Flags, RefCnt, Use, Metric, Mask, ...
constexpr int c_nColumnDestination = 1;
constexpr int c_nColumnGateway = 2;
constexpr int c_nColumnFlags = 3;
constexpr int c_nColumnMask = 7;

/// Flag of a route that leads through a gateway, RTF_GATEWAY of the kernel.
constexpr unsigned int c_nFlagGateway = 2;

unsigned int Hexadecimal(const QByteArray& baText, bool& bGood)
{
    bool bNumber = false;
    const unsigned int nValue = baText.toUInt(&bNumber, 16);
    bGood = bGood && bNumber;
    return nValue;
}

/// The gateway of a line, if the line is a default route through one.
std::optional<unsigned int> DefaultGateway(const QByteArray& baLine)
{
    const QList<QByteArray> listColumns = baLine.simplified().split(' ');
    if (listColumns.size() <= c_nColumnMask)
        return std::nullopt;
    bool bGood = true;
    const unsigned int nDestination = Hexadecimal(listColumns.at(c_nColumnDestination), bGood);
    const unsigned int nGateway = Hexadecimal(listColumns.at(c_nColumnGateway), bGood);
    const unsigned int nFlags = Hexadecimal(listColumns.at(c_nColumnFlags), bGood);
    const unsigned int nMask = Hexadecimal(listColumns.at(c_nColumnMask), bGood);
    if (!bGood || nDestination != 0 || nMask != 0 || (nFlags & c_nFlagGateway) == 0)
        return std::nullopt;
    // The kernel prints the four bytes of the address as an integer in the byte order of this machine.
    return qFromBigEndian(nGateway);
}

void AppendAddresses(const QNetworkInterface& interface, SNetworkFacts& facts)
{
    const QList<QNetworkAddressEntry> listEntries = interface.addressEntries();
    for (const QNetworkAddressEntry& entry : listEntries) {
        if (entry.ip().protocol() != QAbstractSocket::IPv4Protocol)
            continue;
        facts.listLocal.append(
            {entry.ip().toIPv4Address(), entry.netmask().toIPv4Address(), entry.broadcast().toIPv4Address()});
    }
}

} // namespace

QList<unsigned int> DefaultGateways(const QByteArray& baRoutingTable)
{
    QList<unsigned int> listGateways;
    const QList<QByteArray> listLines = baRoutingTable.split('\n');
    for (const QByteArray& baLine : listLines) {
        const std::optional<unsigned int> gateway = DefaultGateway(baLine);
        if (gateway)
            listGateways.append(*gateway);
    }
    return listGateways;
}

SNetworkFacts MachineNetworkFacts()
{
    SNetworkFacts facts;
    const QList<QNetworkInterface> listInterfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& interface : listInterfaces)
        AppendAddresses(interface, facts);
    QFile fileRoutes(QStringLiteral("/proc/net/route"));
    if (fileRoutes.open(QIODevice::ReadOnly))
        facts.listGateways = DefaultGateways(fileRoutes.readAll());
    return facts;
}
