#ifndef WORKBENCH_ADDRESSES_VERDICTTEXT_H
#define WORKBENCH_ADDRESSES_VERDICTTEXT_H

#include "simulator/CommonClass/AddressVerdict.h"

#include <QString>

/// Why an address is refused, in words.
namespace VerdictText {

/// What speaks against an address, in the current language.
QString Of(enAddressVerdict verdict);

/// The same for a text as it stands in an address field; a text that is no address says so.
QString OfText(const QString& strAddress);

} // namespace VerdictText

#endif // WORKBENCH_ADDRESSES_VERDICTTEXT_H
