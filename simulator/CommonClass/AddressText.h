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

/// The address of a list entry: the text before the first "(".
COMMONCLASS_EXPORT QString EntryAddress(const QString& strEntry);

/// The name of a list entry: the text between the first "(" and the closing ")".
COMMONCLASS_EXPORT QString EntryName(const QString& strEntry);

/// The entry as displayed: an empty name becomes "IP" and the last octet, so
/// 192.168.1.17() becomes 192.168.1.17(IP17).
COMMONCLASS_EXPORT QString EntryWithName(const QString& strEntry);

#endif // SIMULATOR_COMMONCLASS_ADDRESSTEXT_H
