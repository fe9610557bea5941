#include "instruments/colour/WallAnalysis.h"

#include "instruments/colour/StandardGamut.h"

CColourResult<SStandardFit> WallAnalysis::FitOf(const SPrimaries& primaries, SChromaticity white,
                                                const SColourStandard& standard)
{
    const auto greatest = Primaries::GreatestLevel(primaries, white);
    if (!greatest)
        return greatest.Fault();
    const auto drive =
        Primaries::DriveMatrix(StandardGamut::Primaries(standard), white, greatest->dLevel, primaries);
    if (!drive)
        return drive.Fault();
    return SStandardFit{standard.szName, white, *greatest, *drive,
                        Primaries::ClipShare(*drive, c_nClipSteps)};
}

CColourResult<SWallAnalysis> WallAnalysis::Of(const Modules& modules, SChromaticity white,
                                              const SColourStandard& standard)
{
    const auto spread = ModuleWall::SpreadOf(modules);
    if (!spread)
        return spread.Fault();
    const SPrimaries mean = spread->MeanPrimaries();
    const auto coverage = Gamut::CoverageOfStandards(Primaries::GamutOf(mean));
    if (!coverage)
        return coverage.Fault();
    SWallAnalysis analysis;
    analysis.spread = *spread;
    analysis.temperature =
        PlanckianLocus::TemperatureOf(spread->arrMean[std::size_t(enWallColour::enWhite)].xy);
    analysis.arrMeanCoverage = *coverage;
    analysis.common = ModuleWall::CommonOf(modules, white);
    if (analysis.common)
        if (const auto common = Gamut::CoverageOfStandards(analysis.common->gamut))
            analysis.commonCoverage = *common;
    analysis.fit = FitOf(mean, white, standard);
    return analysis;
}
