#ifndef ORACLES_EDID_TIMINGORACLE_H
#define ORACLES_EDID_TIMINGORACLE_H

#include "SenderModuleDialog/edid/VideoTiming.h"

/// @file
/// A second evaluation of the blanking formulas, written another way: whole numbers where the formula is
/// about whole numbers, and elsewhere double precision with each step rounded to 24 bits by hand. It shares
/// no code and no constant with the library.

namespace TimingOracle {

/// The blanking of a mode of ordinary size: width and height from 1 to 16384, a line period above zero.
tagSBlankTiming Blanking(const tagSCalTimingIn& in);

/// The pixel frequency of a total, in Hz: two products, each rounded to 24 bits.
double PixelFrequency(long long nHTotal, long long nVTotal, double dRate);

} // namespace TimingOracle

#endif // ORACLES_EDID_TIMINGORACLE_H
