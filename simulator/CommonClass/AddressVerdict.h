#ifndef SIMULATOR_COMMONCLASS_ADDRESSVERDICT_H
#define SIMULATOR_COMMONCLASS_ADDRESSVERDICT_H

#include "host/HostExport.h"
#include "host/TevraData/AddressVerdict.h"
#include "simulator/CommonClass/NetworkFacts.h"

#include <QSet>

/// Checks an address. Where several verdicts apply, one that forbids the address takes precedence over the
/// question about this computer's own address.
/// @param setUsed addresses of the list
COMMONCLASS_EXPORT enAddressVerdict AddressVerdict(unsigned int nAddress, const QSet<unsigned int>& setUsed,
                                                   const SNetworkFacts& facts);

#endif // SIMULATOR_COMMONCLASS_ADDRESSVERDICT_H
