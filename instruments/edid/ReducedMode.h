#ifndef INSTRUMENTS_EDID_REDUCEDMODE_H
#define INSTRUMENTS_EDID_REDUCEDMODE_H

#include "instruments/edid/ModeTiming.h"

namespace Edid {

/// The timing that the library gives a mode: progressive, reduced blanking, no margins, the clock in whole
/// steps of 10 kHz.
/// @param nWidth, nHeight  pixels
/// @param fRate            Hz
SModeTiming ReducedMode(int nWidth, int nHeight, float fRate);

} // namespace Edid

#endif // INSTRUMENTS_EDID_REDUCEDMODE_H
