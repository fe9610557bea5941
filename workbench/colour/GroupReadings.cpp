#include "workbench/colour/GroupReadings.h"

#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "workbench/colour/ColourGroups.h"

namespace {

SChromaticity Wide(CPointEx<float> pt)
{
    return {double(pt.x), double(pt.y)};
}

std::optional<double> DaylightOf(SChromaticity white)
{
    static const CCCT2ColorCoord s_cct;
    float fKelvin = 0.0F;
    const bool bColour = white.dX > 0.0 && white.dY > 0.0;
    if (!bColour || !s_cct.TriangAlgCalcRelativeCCT({white.dX, white.dY}, &fKelvin, false))
        return std::nullopt;
    return double(fKelvin);
}

} // namespace

SGroupReadings GroupReadings::Of(const SChromaGroupInfo& group)
{
    SChromaGroupInfo vertices = group;
    ColourGroups::SetMode(vertices, true);
    SGroupReadings readings;
    readings.arrPoints = {Wide(vertices.ptRed), Wide(vertices.ptGreen), Wide(vertices.ptBlue),
                          Wide(vertices.ptWhite)};
    for (std::size_t i = 0; i < SGroupReadings::c_nPoints; ++i)
        readings.arrUcs[i] = Chromaticity::ToUcs(readings.arrPoints[i]);
    const SChromaticity white = readings.arrPoints[enWhitePoint];
    for (std::size_t i = 0; i < SGroupReadings::c_nPrimaries; ++i)
        readings.arrDominant[i] = SpectralWavelength::DominantOf(readings.arrPoints[i], white);
    const SGamut gamut = {readings.arrPoints[enRedPoint], readings.arrPoints[enGreenPoint],
                          readings.arrPoints[enBluePoint]};
    readings.shares = Primaries::LuminancesForWhite(gamut, white, 1.0);
    readings.correlated = PlanckianLocus::TemperatureOf(white);
    readings.daylight = DaylightOf(white);
    readings.coverage = Gamut::CoverageOfStandards(gamut);
    return readings;
}
