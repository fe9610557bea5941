#include "instruments/colour/StandardGamut.h"

#include <cmath>

namespace {

/// The standards are given in four decimals or fewer.
constexpr double c_dDecimals = 1e4;

} // namespace

double StandardGamut::Decimal(float fCoordinate)
{
    return std::round(double(fCoordinate) * c_dDecimals) / c_dDecimals;
}

SChromaticity StandardGamut::Decimal(CPointEx<float> pt)
{
    return {Decimal(pt.x), Decimal(pt.y)};
}

SGamut StandardGamut::Primaries(const SColourStandard& standard)
{
    return {Decimal(standard.ptRed), Decimal(standard.ptGreen), Decimal(standard.ptBlue)};
}

SChromaticity StandardGamut::White(const SColourStandard& standard)
{
    return Decimal(standard.ptWhite);
}
