#ifndef WORKBENCH_ADDRESSES_VERDICTTEXT_H
#define WORKBENCH_ADDRESSES_VERDICTTEXT_H

#include "simulator/CommonClass/AddressVerdict.h"

#include <QString>

/// Why an address is refused, in words.
namespace VerdictText {

/// Why an address is refused, in the current language.
QString Of(enAddressVerdict verdict);

/// The same for the text of an address field; reports a text that is not an address.
QString OfText(const QString& strAddress);

} // namespace VerdictText

#endif // WORKBENCH_ADDRESSES_VERDICTTEXT_H
