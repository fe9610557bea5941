#ifndef SIMULATOR_COMMONCLASS_NETWORKFACTS_H
#define SIMULATOR_COMMONCLASS_NETWORKFACTS_H

#include "host/HostExport.h"

#include <QByteArray>
#include <QList>

#include <functional>

/// One IPv4 address of this computer. Addresses have the first octet in the most significant byte.
struct SLocalAddress
{
    unsigned int nAddress = 0;   ///< the address
    unsigned int nNetmask = 0;   ///< mask of its network
    unsigned int nBroadcast = 0; ///< as the interface reports it; 0: none
};

/// The facts about this computer's network that the rules for processor addresses need.
struct SNetworkFacts
{
    QList<SLocalAddress> listLocal;   ///< addresses of this computer's interfaces
    QList<unsigned int> listGateways; ///< default gateways
};

/// Returns the network facts; called on each `CConfigData::UpdateErrorIPList`.
using FuncNetworkFacts = std::function<SNetworkFacts()>;

/// The facts of the machine: its interfaces, and the default routes of the kernel's routing table.
COMMONCLASS_EXPORT SNetworkFacts MachineNetworkFacts();

/// The gateways of the default routes in a routing table in the form of /proc/net/route. Lines that are not
/// in that form are skipped.
COMMONCLASS_EXPORT QList<unsigned int> DefaultGateways(const QByteArray& baRoutingTable);

#endif // SIMULATOR_COMMONCLASS_NETWORKFACTS_H
