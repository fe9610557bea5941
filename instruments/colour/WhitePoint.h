#ifndef INSTRUMENTS_COLOUR_WHITEPOINT_H
#define INSTRUMENTS_COLOUR_WHITEPOINT_H

#include "instruments/colour/Chromaticity.h"

/// A white by its name.
struct SWhitePoint
{
    const char* szName; ///< Latin, as people write it
    SChromaticity xy;   ///< CIE 1931 xy
};

// clang-format off
/// Whites that walls are set to: CIE 15:2018, table T.3 (2 degree observer), D65 in the four decimals of ITU-R BT.709,
/// and the white of SMPTE RP 431-2.
inline constexpr SWhitePoint c_arrWhitePoints[] = {
    {"D65", {0.3127,  0.3290}},
    {"D50", {0.34567, 0.35851}},
    {"D55", {0.33243, 0.34744}},
    {"D75", {0.29903, 0.31488}},
    {"A",   {0.44758, 0.40745}},
    {"E",   {1.0 / 3.0, 1.0 / 3.0}},
    {"DCI", {0.314,   0.351}},
};
// clang-format on

#endif // INSTRUMENTS_COLOUR_WHITEPOINT_H
