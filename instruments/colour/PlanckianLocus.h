#ifndef INSTRUMENTS_COLOUR_PLANCKIANLOCUS_H
#define INSTRUMENTS_COLOUR_PLANCKIANLOCUS_H

#include "instruments/colour/Chromaticity.h"

/// @file
/// The Planckian locus and the correlated colour temperature on it (CIE 15:2018, section 9.5): the
/// temperature of the Planckian radiator nearest to a chromaticity in the CIE 1960 UCS diagram. It is another
/// quantity than the temperature that `CCCT2ColorCoord` gives, which walks the locus of daylight.

namespace PlanckianLocus {

/// The lowest temperature that is found, kelvin.
inline constexpr double c_dLowestTemperature = 1000.0;
/// The highest temperature that is found, kelvin.
inline constexpr double c_dHighestTemperature = 20000.0;

/// Farther from the locus a correlated colour temperature describes no colour (CIE 15:2018, section 9.5).
inline constexpr double c_dLargestDuv = 0.05;

/// A correlated colour temperature.
struct STemperature
{
    double dKelvin = 0.0; ///< kelvin, from `c_dLowestTemperature` to `c_dHighestTemperature`
    /// Distance from the locus in CIE 1960 (u, v), positive above it, toward green (Ohno, LEUKOS 10, 2014).
    double dDuv = 0.0;

    /// Whether the chromaticity is near enough to the locus for the temperature to describe it.
    bool IsMeaningful() const;
};

/// The chromaticity of a Planckian radiator: Planck's law with c2 = 0.014388 m K (CIE 15:2018), summed over
/// the CIE 1931 observer from 360 to 830 nm in steps of 1 nm.
/// @param dKelvin above 0
SUcs1960 PointOfTemperature(double dKelvin);

/// The correlated colour temperature of a chromaticity and its distance from the locus. The nearest point is
/// found on a curve through the exact points and tangents of 400 temperatures; it is within 0.001 K and 1e-9
/// of the one on the locus itself.
CColourResult<STemperature> TemperatureOf(SChromaticity xy);

} // namespace PlanckianLocus

#endif // INSTRUMENTS_COLOUR_PLANCKIANLOCUS_H
