#ifndef HOST_TEVRADATA_ADDRESSVERDICT_H
#define HOST_TEVRADATA_ADDRESSVERDICT_H

/// What speaks against an address. All but the first are the codes of `CConfigData::IsIPHasError`.
enum enAddressVerdict : unsigned int
{
    enAddressGood = 0,                    ///< nothing: a processor can have it
    enAddressOfThisComputer = 0xE0832000, ///< an interface of this computer has it
    enAddressInUse = 0xE0832001,          ///< it is in the list
    enAddressStartsWithZero = 0xE0832002, ///< its first octet is 0
    enAddressOfGateway = 0xE0832003,      ///< a default gateway of this computer
    enAddressBroadcast = 0xE0832004,      ///< of a network of this computer, or 255.255.255.255
    enAddressUnreasonable =
        0xE0832005, ///< no host can have it: multicast, reserved, or a network's own address
};

#endif // HOST_TEVRADATA_ADDRESSVERDICT_H
