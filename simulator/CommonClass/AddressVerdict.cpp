#include "simulator/CommonClass/AddressVerdict.h"

#include <algorithm>

namespace {

constexpr unsigned int c_nLimitedBroadcast = 0xFFFFFFFF;
/// First address of 224.0.0.0/4, multicast (RFC 5771); 240.0.0.0/4 above it is reserved (RFC 1112).
constexpr unsigned int c_nFirstNoHost = 0xE0000000;
/// Networks of one or two addresses have neither network nor broadcast address (RFC 3021).
constexpr unsigned int c_nSmallestHostPart = 3;

/// True when the network has a network and a broadcast address.
bool HasHosts(const SLocalAddress& local)
{
    return ~local.nNetmask >= c_nSmallestHostPart;
}

bool IsBroadcastOf(const SLocalAddress& local, unsigned int nAddress)
{
    // An interface with a single address may report that address as its own broadcast address.
    const bool bStated =
        local.nBroadcast != 0 && local.nBroadcast != local.nAddress && nAddress == local.nBroadcast;
    return bStated || (HasHosts(local) && nAddress == (local.nAddress | ~local.nNetmask));
}

bool IsNetworkOf(const SLocalAddress& local, unsigned int nAddress)
{
    return HasHosts(local) && nAddress == (local.nAddress & local.nNetmask);
}

template <class TPredicate>
bool AnyLocal(const SNetworkFacts& facts, TPredicate predicate)
{
    return std::any_of(facts.listLocal.cbegin(), facts.listLocal.cend(), predicate);
}

} // namespace

enAddressVerdict AddressVerdict(unsigned int nAddress, const QSet<unsigned int>& setUsed,
                                const SNetworkFacts& facts)
{
    if (nAddress >> 24 == 0)
        return enAddressStartsWithZero;
    if (setUsed.contains(nAddress))
        return enAddressInUse;
    if (facts.listGateways.contains(nAddress))
        return enAddressOfGateway;
    if (nAddress == c_nLimitedBroadcast ||
        AnyLocal(facts, [=](const SLocalAddress& local) { return IsBroadcastOf(local, nAddress); }))
        return enAddressBroadcast;
    if (nAddress >= c_nFirstNoHost ||
        AnyLocal(facts, [=](const SLocalAddress& local) { return IsNetworkOf(local, nAddress); }))
        return enAddressUnreasonable;
    if (AnyLocal(facts, [=](const SLocalAddress& local) { return local.nAddress == nAddress; }))
        return enAddressOfThisComputer;
    return enAddressGood;
}
