#ifndef SENDERMODULEDIALOG_COLOUR_DAYLIGHTLOCUS_H
#define SENDERMODULEDIALOG_COLOUR_DAYLIGHTLOCUS_H

#include "SenderModuleDialog/colour/CIE1931Row.h"
#include "host/CommonClass/PointEx.h"

#include <QPointF>

/// @file
/// The CIE daylight locus (CIE 15, daylight illuminants) over correlated colour temperature, and the change
/// from CIE 1931 (x, y) to CIE 1960 (u, v).

namespace DaylightLocus {

/// Ends of the locus in kelvin, both included.
constexpr int c_nLowestCCT = 4000;
constexpr int c_nHighestCCT = 25000;

/// Chromaticity of the daylight of a temperature from `c_nLowestCCT` to `c_nHighestCCT` kelvin.
CPointEx<float> PointOfTemperature(float fCCT);

/// CIE 1960 (u, v) of a CIE 1931 chromaticity: u = 4x/d and v = 6y/d with d = 12y - 2x + 3.
inline QPointF ToUV(double dX, double dY)
{
    const double dDivisor = 12.0 * dY - 2.0 * dX + 3.0;
    return {4.0 * dX / dDivisor, 6.0 * dY / dDivisor};
}

} // namespace DaylightLocus

#endif // SENDERMODULEDIALOG_COLOUR_DAYLIGHTLOCUS_H
