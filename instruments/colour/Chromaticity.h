#ifndef INSTRUMENTS_COLOUR_CHROMATICITY_H
#define INSTRUMENTS_COLOUR_CHROMATICITY_H

#include "instruments/colour/ColourResult.h"

/// @file
/// Chromaticities in double precision: CIE 1931 (x, y), CIE 1976 UCS (u', v') and CIE 1960 UCS (u, v).
/// Formulas: CIE 15:2018, Colorimetry, 4th edition, sections 7.2 (x, y), 8.1 (u', v') and 9.5 (u, v).

/// CIE 1931 chromaticity.
struct SChromaticity
{
    double dX = 0.0; ///< x
    double dY = 0.0; ///< y
};

/// CIE 1976 UCS chromaticity.
struct SUcs
{
    double dU = 0.0; ///< u'
    double dV = 0.0; ///< v'
};

/// CIE 1960 UCS chromaticity, in which correlated colour temperatures are defined.
struct SUcs1960
{
    double dU = 0.0; ///< u
    double dV = 0.0; ///< v
};

/// CIE 1931 tristimulus values; `dY` is the luminance where they are absolute, in cd/m2.
struct STristimulus
{
    double dX = 0.0; ///< X
    double dY = 0.0; ///< Y
    double dZ = 0.0; ///< Z
};

namespace Chromaticity {

/// Why a point is no chromaticity that a calculation can use: not finite, x or y not above 0, x + y above 1
/// by more than four decimals round.
enColourFault Check(SChromaticity xy);

/// u' = 4x / (-2x + 12y + 3), v' = 9y / (-2x + 12y + 3). Finite for every chromaticity.
SUcs ToUcs(SChromaticity xy);
/// x = 9u' / (6u' - 16v' + 12), y = 4v' / (6u' - 16v' + 12): the inverse of `ToUcs`.
SChromaticity FromUcs(SUcs uv);
/// u = u', v = 2v' / 3.
SUcs1960 ToUcs1960(SUcs uv);

/// Euclidean distance in the CIE 1976 UCS diagram.
double Distance(SUcs first, SUcs second);

/// X = xY / y, Z = (1 - x - y) Y / y.
/// @param dLuminance Y
STristimulus ToTristimulus(SChromaticity xy, double dLuminance);
/// x = X / (X + Y + Z), y = Y / (X + Y + Z); not finite where the sum is 0.
SChromaticity FromTristimulus(const STristimulus& xyz);

} // namespace Chromaticity

#endif // INSTRUMENTS_COLOUR_CHROMATICITY_H
