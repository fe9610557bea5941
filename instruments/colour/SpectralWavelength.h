#ifndef INSTRUMENTS_COLOUR_SPECTRALWAVELENGTH_H
#define INSTRUMENTS_COLOUR_SPECTRALWAVELENGTH_H

#include "instruments/colour/Chromaticity.h"

#include <optional>
#include <vector>

/// @file
/// Dominant and complementary wavelength and excitation purity (CIE 15:2018, section 7.4; CIE S 017, terms
/// 17-23-072 and 17-23-065), by the outline of the chart: the convex hull of the spectral locus of the CIE
/// 1931 observer, closed by the purple line.

namespace SpectralWavelength {

/// What a line from the white through a chromaticity meets on the outline.
struct SDominant
{
    /// Where the line meets the spectral locus beyond the point, nm; none where it meets the purple line.
    std::optional<double> dominant;
    /// Where the line meets the spectral locus on the other side of the white, nm; none where it meets the
    /// purple line there.
    std::optional<double> complementary;
    /// Excitation purity: the distance of the point from the white as a part of the outline's distance from
    /// it. 1 on the outline, more outside.
    double dPurity = 0.0;
    /// Where the line meets the outline beyond the point.
    SChromaticity boundary;
};

/// @param white inside the outline
CColourResult<SDominant> DominantOf(SChromaticity xy, SChromaticity white);

/// A monochromatic stimulus on the outline.
struct SMark
{
    double dWavelength = 0.0; ///< nm
    SChromaticity xy;         ///< where it lies
};

/// The points of the spectral locus at whole multiples of a step, for marks along the outline.
/// @param nStep nm, 1 or more
std::vector<SMark> Marks(int nFirst, int nLast, int nStep);

/// The wavelength of the spectral locus nearest to a point in (x, y), and how far it is.
struct SNearest
{
    double dWavelength = 0.0; ///< nm
    double dDistance = 0.0;   ///< in (x, y)
};
/// The nearest point of the spectral locus; any finite point has one.
SNearest NearestTo(SChromaticity xy);

} // namespace SpectralWavelength

#endif // INSTRUMENTS_COLOUR_SPECTRALWAVELENGTH_H
