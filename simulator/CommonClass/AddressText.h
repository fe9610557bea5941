#ifndef SIMULATOR_COMMONCLASS_ADDRESSTEXT_H
#define SIMULATOR_COMMONCLASS_ADDRESSTEXT_H

#include "host/HostExport.h"

#include <QString>

#include <optional>

/// @file
/// The forms of an address: a value with the first octet in the most significant byte, dotted decimal text,
/// and the list entry `address(name)`.

/// Dotted decimal.
COMMONCLASS_EXPORT QString AddressText(unsigned int nAddress);

/// The value of four decimal octets; empty for any other text.
COMMONCLASS_EXPORT std::optional<unsigned int> AddressValue(const QString& strAddress);

/// A list entry.
COMMONCLASS_EXPORT QString AddressEntry(const QString& strAddress, const QString& strName);

/// The address of a list entry: what stands before the first "(".
COMMONCLASS_EXPORT QString EntryAddress(const QString& strEntry);

/// The name of a list entry: what stands between the first "(" and the closing ")".
COMMONCLASS_EXPORT QString EntryName(const QString& strEntry);

/// The entry as it is shown: an empty name becomes "IP" and the last octet, 192.168.1.17() is
/// 192.168.1.17(IP17).
COMMONCLASS_EXPORT QString EntryWithName(const QString& strEntry);

#endif // SIMULATOR_COMMONCLASS_ADDRESSTEXT_H
