#include "SenderModuleDialog/colour/DaylightLocus.h"

namespace {

/// x of the daylight locus as a polynomial in the powers of 1000 / T (CIE 15).
struct SDaylightPolynomial
{
    double dFirst;
    double dSecond;
    double dThird;
    double dConstant;
};

constexpr SDaylightPolynomial c_polynomialBelow = {0.09911, 2.9678, -4.607, 0.244063};
constexpr SDaylightPolynomial c_polynomialFrom = {0.24748, 1.9018, -2.0064, 0.23704};

/// Where the second polynomial begins, in kelvin.
constexpr float c_fBranchCCT = 7000.0F;

/// y of the daylight locus as a polynomial in x: linear, square and constant coefficient (CIE 15).
constexpr double c_dLinearOfX = 2.87;
constexpr double c_dSquareOfX = -3.0;
constexpr double c_dConstantOfY = -0.275;

} // namespace

CPointEx<float> DaylightLocus::PointOfTemperature(float fCCT)
{
    // The square of a widened float is exact in double, so the cube is rounded once, as a correctly rounded
    // pow(t, 3) is. On every float from 4000 to 25000 the point is the same as with pow.
    const double dT = double(fCCT);
    const double dSquare = dT * dT;
    const double dThird = 1000000000.0 / (dSquare * dT);
    const double dSecond = 1000000.0 / dSquare;
    const double dFirst = 1000.0 / dT;

    const SDaylightPolynomial& polynomial = fCCT >= c_fBranchCCT ? c_polynomialFrom : c_polynomialBelow;
    const float fX = float(dFirst * polynomial.dFirst + dSecond * polynomial.dSecond +
                           dThird * polynomial.dThird + polynomial.dConstant);
    const double dX = double(fX);
    const float fY = float(dX * c_dLinearOfX + dX * dX * c_dSquareOfX + c_dConstantOfY);
    return {fX, fY};
}
