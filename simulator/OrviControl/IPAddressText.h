#ifndef SIMULATOR_ORVICONTROL_IPADDRESSTEXT_H
#define SIMULATOR_ORVICONTROL_IPADDRESSTEXT_H

#include <QString>

#include <array>
#include <optional>

/// The text rules of the address editor. An octet is its decimal text without leading zeros, or empty while
/// nothing has been entered.
namespace IPAddressText {

/// Octets of an address.
constexpr int c_nOctets = 4;

/// Digits of the longest octet.
constexpr int c_nMaxDigits = 3;

/// Largest octet.
constexpr int c_nMaxOctet = 255;

using Octets = std::array<QString, c_nOctets>;

/// The octet for a text of digits, without leading zeros.
/// @return nothing when the text is not a number from 0 to 255; an empty text stays empty
std::optional<QString> Canonical(const QString& strDigits);

/// True while another digit can still follow: the octet is shorter than three digits, and ten times its value
/// is in range.
bool CanGrow(const QString& strOctet);

/// True for the characters that an operator types between octets: dot, comma, blank, and the full stops of
/// Chinese input methods.
bool IsSeparator(QChar ch);

/// The octets of a dotted text as a program sets it: missing or unusable octets are empty, octets above 255
/// become 255, and what follows the fourth is dropped.
Octets Split(const QString& strAddress);

/// The octets of a dotted text as an operator pastes it.
/// @return nothing unless it is one to four octets from 0 to 255 with separators between them
std::optional<Octets> Parse(const QString& strPasted);

/// Number of octets up to the last one that is present.
int CountGiven(const Octets& arrOctets);

/// Dotted text, with missing octets left out between the dots; empty when all are missing.
QString Join(const Octets& arrOctets);

} // namespace IPAddressText

#endif // SIMULATOR_ORVICONTROL_IPADDRESSTEXT_H
