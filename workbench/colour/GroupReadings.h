#ifndef WORKBENCH_COLOUR_GROUPREADINGS_H
#define WORKBENCH_COLOUR_GROUPREADINGS_H

#include "SenderModuleDialog/chart/ChromaGroupInfo.h"
#include "instruments/colour/PlanckianLocus.h"
#include "instruments/colour/Primaries.h"
#include "instruments/colour/SpectralWavelength.h"

#include <array>
#include <optional>

/// The readings of a colour group, recalculated with each step of a drag.
struct SGroupReadings
{
    static constexpr std::size_t c_nPrimaries = 3;
    static constexpr std::size_t c_nPoints = 4;

    std::array<SChromaticity, c_nPoints> arrPoints; ///< red, green, blue, white; the vertices in CMY mode too
    std::array<SUcs, c_nPoints> arrUcs;
    /// Relative to the group's own white.
    std::array<CColourResult<SpectralWavelength::SDominant>, c_nPrimaries> arrDominant = {
        enColourFault::enNoModules, enColourFault::enNoModules, enColourFault::enNoModules};
    /// The shares of the primaries in the luminance of the white.
    CColourResult<Primaries::SLuminances> shares = enColourFault::enNoModules;
    CColourResult<PlanckianLocus::STemperature> correlated = enColourFault::enNoModules;
    std::optional<double> daylight; ///< K, as the chart shows it; none outside 4000 K to 25000 K
    CColourResult<std::array<Gamut::SStandardCoverage, Gamut::c_nStandards>> coverage =
        enColourFault::enNoModules;
};

namespace GroupReadings {

SGroupReadings Of(const SChromaGroupInfo& group);

} // namespace GroupReadings

#endif // WORKBENCH_COLOUR_GROUPREADINGS_H
