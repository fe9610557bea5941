#ifndef INSTRUMENTS_COLOUR_WALLANALYSIS_H
#define INSTRUMENTS_COLOUR_WALLANALYSIS_H

#include "SenderModuleDialog/colour/ColourStandards.h"
#include "instruments/colour/ModuleWall.h"
#include "instruments/colour/PlanckianLocus.h"

/// @file
/// Everything that is told of a wall of modules, in one record: for the tool, the workbench and reports.

/// How the mean of a wall shows a standard.
struct SStandardFit
{
    const char* szName = nullptr;       ///< name of the standard
    SChromaticity white;                ///< the white that the standard is shown with
    Primaries::SGreatestLevel greatest; ///< level of the white at full drive of one channel
    CColourMatrix drive;                ///< linear light of the standard to drive values, at that level
    Primaries::SClipShare clip;         ///< over a grid of `c_nClipSteps` places along each channel
};

/// Places of the grid along each channel: 35,937 colours.
inline constexpr int c_nClipSteps = 33;

/// What `WallAnalysis::Of` calculates. A part that has no answer holds its fault; the others stand.
struct SWallAnalysis
{
    ModuleWall::SSpread spread; ///< how the modules differ
    /// Of the mean white.
    CColourResult<PlanckianLocus::STemperature> temperature = enColourFault::enNoModules;
    /// Coverage of the standards by the mean primaries.
    std::array<Gamut::SStandardCoverage, Gamut::c_nStandards> arrMeanCoverage = {};
    /// What all modules can show.
    CColourResult<ModuleWall::SCommon> common = enColourFault::enNoModules;
    /// By the common gamut, where there is one.
    std::optional<std::array<Gamut::SStandardCoverage, Gamut::c_nStandards>> commonCoverage;
    /// How the mean shows the standard that was asked for.
    CColourResult<SStandardFit> fit = enColourFault::enNoModules;
};

namespace WallAnalysis {

/// Everything that is told of a wall.
/// @param white the white that the corrected wall and the standard are shown with
/// @param standard what the wall is to show
CColourResult<SWallAnalysis> Of(const Modules& modules, SChromaticity white, const SColourStandard& standard);

/// How primaries show a standard with a white.
CColourResult<SStandardFit> FitOf(const SPrimaries& primaries, SChromaticity white,
                                  const SColourStandard& standard);

} // namespace WallAnalysis

#endif // INSTRUMENTS_COLOUR_WALLANALYSIS_H
