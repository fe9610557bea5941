#ifndef SENDERMODULEDIALOG_COLOUR_DAYLIGHTLOCUS_H
#define SENDERMODULEDIALOG_COLOUR_DAYLIGHTLOCUS_H

#include "SenderModuleDialog/colour/DoublePair.h"
#include "host/CommonClass/PointEx.h"

#include <QPointF>

#include <cstddef>

/// @file
/// The CIE daylight locus (CIE 15, daylight illuminants) over correlated colour temperature, and the change
/// from CIE 1931 (x, y) to CIE 1960 (u, v).

namespace DaylightLocus {

/// Ends of the locus in kelvin, both included.
constexpr int c_nLowestCCT = 4000;
constexpr int c_nHighestCCT = 25000;

/// Whether a temperature lies on the locus.
inline bool IsInRange(float fCCT)
{
    return float(c_nLowestCCT) <= fCCT && fCCT <= float(c_nHighestCCT);
}

/// x of the daylight locus as a polynomial in the powers of 1000 / T (CIE 15).
struct SDaylightPolynomial
{
    double dFirst;
    double dSecond;
    double dThird;
    double dConstant;
};

/// Below `c_fBranchCCT`, and from there on.
inline constexpr SDaylightPolynomial c_arrPolynomials[] = {
    {0.09911, 2.9678, -4.607, 0.244063},
    {0.24748, 1.9018, -2.0064, 0.23704},
};

/// Where the second polynomial begins, in kelvin.
inline constexpr float c_fBranchCCT = 7000.0F;

/// y of the daylight locus as a polynomial in x: linear, square and constant coefficient (CIE 15).
inline constexpr double c_dLinearOfX = 2.87;
inline constexpr double c_dSquareOfX = -3.0;
inline constexpr double c_dConstantOfY = -0.275;

/// Chromaticity of the daylight of a temperature from `c_nLowestCCT` to `c_nHighestCCT` kelvin.
inline CPointEx<float> PointOfTemperature(float fCCT)
{
    // The square of a widened float is exact in double, so the cube is rounded once, as a correctly rounded
    // pow(t, 3) is. On every float from 4000 to 25000 the point is the same as with pow. Two of the three
    // divisions, which are what takes time here, are one pair.
    const double dT = double(fCCT);
    const double dSquare = dT * dT;
    const CDoublePair powers = CDoublePair{1000000000.0, 1000000.0} / CDoublePair{dSquare * dT, dSquare};
    const double dFirst = 1000.0 / dT;

    const SDaylightPolynomial& polynomial = c_arrPolynomials[std::size_t(fCCT >= c_fBranchCCT)];
    const float fX = float(dFirst * polynomial.dFirst + powers[1] * polynomial.dSecond +
                           powers[0] * polynomial.dThird + polynomial.dConstant);
    const double dX = double(fX);
    const float fY = float(dX * c_dLinearOfX + dX * dX * c_dSquareOfX + c_dConstantOfY);
    return {fX, fY};
}

/// CIE 1960 (u, v) of a CIE 1931 chromaticity: u = 4x/d and v = 6y/d with d = 12y - 2x + 3.
inline QPointF ToUV(double dX, double dY)
{
    const double dDivisor = 12.0 * dY - 2.0 * dX + 3.0;
    return {4.0 * dX / dDivisor, 6.0 * dY / dDivisor};
}

} // namespace DaylightLocus

#endif // SENDERMODULEDIALOG_COLOUR_DAYLIGHTLOCUS_H
