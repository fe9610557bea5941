#ifndef INSTRUMENTS_EDID_TIMINGTEXT_H
#define INSTRUMENTS_EDID_TIMINGTEXT_H

#include "instruments/edid/ModeTiming.h"

#include <QString>

/// @file
/// Timings as people write them.

namespace Edid {

/// `1920x1080i at 59.94 Hz`: at most three decimals of the rate, and none that are zero.
QString ModeText(const SModeTiming& timing);

/// A line for the configuration of X.org. Its vertical numbers are those of a frame.
QString Modeline(const SModeTiming& timing);

/// A number with at most so many decimals, without zeros at its end.
QString ShortNumber(double dValue, int nDecimals);

} // namespace Edid

#endif // INSTRUMENTS_EDID_TIMINGTEXT_H
