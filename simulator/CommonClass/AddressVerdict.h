#ifndef SIMULATOR_COMMONCLASS_ADDRESSVERDICT_H
#define SIMULATOR_COMMONCLASS_ADDRESSVERDICT_H

#include "host/HostExport.h"
#include "simulator/CommonClass/NetworkFacts.h"

#include <QSet>

/// What speaks against an address; the values are the codes of `CConfigData::IsIPHasError`.
enum enAddressVerdict : unsigned int
{
    enAddressGood = 0,
    enAddressOfThisComputer = 0xE0832000,
    enAddressInUse = 0xE0832001, ///< it is in the list
    enAddressStartsWithZero = 0xE0832002,
    enAddressOfGateway = 0xE0832003,
    enAddressBroadcast = 0xE0832004, ///< of a network of this computer, or 255.255.255.255
    enAddressUnreasonable =
        0xE0832005 ///< no host can have it: multicast, reserved, or a network's own address
};

/// Judges an address. Where several verdicts hold, the one that forbids the address comes before the question
/// about this computer's own address.
/// @param setUsed addresses of the list
COMMONCLASS_EXPORT enAddressVerdict AddressVerdict(unsigned int nAddress, const QSet<unsigned int>& setUsed,
                                                   const SNetworkFacts& facts);

#endif // SIMULATOR_COMMONCLASS_ADDRESSVERDICT_H
