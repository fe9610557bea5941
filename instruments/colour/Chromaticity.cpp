#include "instruments/colour/Chromaticity.h"

#include <cmath>

namespace {

/// Readings are rounded to four decimals or so, so those of pure reds may add up to a little more than 1.
constexpr double c_dLargestSum = 1.0 + 1e-4;

} // namespace

namespace Chromaticity {

enColourFault Check(SChromaticity xy)
{
    if (!std::isfinite(xy.dX) || !std::isfinite(xy.dY))
        return enColourFault::enNotFinite;
    const bool bReal = xy.dX > 0.0 && xy.dY > 0.0 && xy.dX + xy.dY <= c_dLargestSum;
    return bReal ? enColourFault::enNone : enColourFault::enNotChromaticity;
}

SUcs ToUcs(SChromaticity xy)
{
    const double dDivisor = -2.0 * xy.dX + 12.0 * xy.dY + 3.0;
    return {4.0 * xy.dX / dDivisor, 9.0 * xy.dY / dDivisor};
}

SChromaticity FromUcs(SUcs uv)
{
    const double dDivisor = 6.0 * uv.dU - 16.0 * uv.dV + 12.0;
    return {9.0 * uv.dU / dDivisor, 4.0 * uv.dV / dDivisor};
}

SUcs1960 ToUcs1960(SUcs uv)
{
    return {uv.dU, 2.0 * uv.dV / 3.0};
}

double Distance(SUcs first, SUcs second)
{
    return std::hypot(second.dU - first.dU, second.dV - first.dV);
}

STristimulus ToTristimulus(SChromaticity xy, double dLuminance)
{
    const double dScale = dLuminance / xy.dY;
    return {xy.dX * dScale, dLuminance, (1.0 - xy.dX - xy.dY) * dScale};
}

SChromaticity FromTristimulus(const STristimulus& xyz)
{
    const double dSum = xyz.dX + xyz.dY + xyz.dZ;
    return {xyz.dX / dSum, xyz.dY / dSum};
}

} // namespace Chromaticity
