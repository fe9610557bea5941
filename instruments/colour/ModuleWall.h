#ifndef INSTRUMENTS_COLOUR_MODULEWALL_H
#define INSTRUMENTS_COLOUR_MODULEWALL_H

#include "instruments/colour/Primaries.h"

#include <QString>

#include <array>
#include <optional>
#include <vector>

/// @file
/// A wall of many measured modules: how far they differ, and what makes them alike.

/// The readings of one module (or cabinet).
struct SModule
{
    QString strName;      ///< as the file or the operator names it
    SPrimaries primaries; ///< readings at full drive of one primary
    /// Where it was measured; otherwise the white is the sum of the primaries.
    std::optional<SReading> white;
};

/// The modules of a wall, in the order in which they were measured.
using Modules = std::vector<SModule>;

/// The colours that a module is judged by.
enum class enWallColour
{
    enRed,
    enGreen,
    enBlue,
    enWhite,
};
/// Values of `enWallColour`.
inline constexpr std::size_t c_nWallColours = 4;

namespace ModuleWall {

/// A module whose readings cannot be calculated with.
struct SModuleFault
{
    std::size_t nModule = 0;                     ///< index of the module
    enColourFault fault = enColourFault::enNone; ///< what is wrong with it
};

/// The first module with a fault, if any.
std::optional<SModuleFault> FirstFault(const Modules& modules);

/// A module's reading of one colour; the white is the measured one where there is one.
SReading ReadingOf(const SModule& module, enWallColour colour);

/// How one colour of a module differs from the wall's mean.
struct SDifference
{
    double dUcs = 0.0;       ///< distance in (u', v')
    double dLuminance = 0.0; ///< luminance divided by the mean's, less 1
};

/// How one module differs from the wall's mean.
struct SModuleSpread
{
    std::array<SDifference, c_nWallColours> arrColours; ///< by `enWallColour`
    SDifference worst; ///< the largest distance and the luminance farthest from the mean, of all colours
    bool bOddColour = false;    ///< its distance is above the wall's limit
    bool bOddLuminance = false; ///< its luminance is farther from the mean than the wall's limit

    /// Whether the module stands out in either.
    bool IsOdd() const { return bOddColour || bOddLuminance; }
};

/// The spread of a wall's modules.
struct SSpread
{
    /// The mean in (u', v') and in luminance, by `enWallColour`.
    std::array<SReading, c_nWallColours> arrMean;
    std::vector<SModuleSpread> vecModules; ///< in the order of the modules
    /// Above these a module is odd: more than 3.5 scaled median absolute deviations above the median of the
    /// modules (B. Iglewicz, D. Hoaglin, How to detect and handle outliers, 1993), and never what nobody sees
    /// (`c_dVisibleUcs`, `c_dVisibleLuminance`).
    SDifference limit;

    /// Modules that stand out.
    std::size_t OddCount() const;
    /// The mean readings of the three primaries.
    SPrimaries MeanPrimaries() const;
};

/// Three steps of the (u', v') circle of CIE TN 001:2014: a step of 0.0011 is just visible side by side.
inline constexpr double c_dVisibleUcs = 3.0 * 0.0011;
/// A difference in luminance that shows at the seam of two modules.
inline constexpr double c_dVisibleLuminance = 0.05;

/// The spread of a wall.
/// @return `enNoModules`, or the fault of the first module that has one
CColourResult<SSpread> SpreadOf(const Modules& modules);

/// What all modules can show, and what makes each show the same.
struct SCommon
{
    /// The intersection of all gamuts in (x, y), counter-clockwise.
    ConvexPolygon intersection;
    /// The largest triangle in the intersection, by its area in (u', v'): the primaries of all modules after
    /// correction. The largest triangle in a convex polygon has its corners at corners of the polygon.
    SGamut gamut;
    SChromaticity white; ///< the white that was asked for
    /// The greatest luminance of the white that every module reaches, cd/m2.
    double dLevel = 0.0;
    /// The module that limits the level.
    std::size_t nLimitingModule = 0;
    /// The channel of that module.
    Primaries::enChannel limitingChannel = Primaries::enChannel::enRed;
    /// For each module the matrix in linear light from the common primaries to its own drive values.
    std::vector<CColourMatrix> vecMatrices;
};

/// What all modules can show.
/// @param white the white of all modules after correction
/// @return a module's fault, `enNoModules`, `enNoCommonGamut`, or `enWhiteOutsideGamut`
CColourResult<SCommon> CommonOf(const Modules& modules, SChromaticity white);

/// The intersection of all gamuts in (x, y).
CColourResult<ConvexPolygon> IntersectionOf(const Modules& modules);

/// The largest triangle with corners at corners of a convex polygon, as indices of corners; none in a polygon
/// of fewer than three.
std::optional<std::array<std::size_t, 3>> LargestTriangle(const ConvexPolygon& polygon);

} // namespace ModuleWall

#endif // INSTRUMENTS_COLOUR_MODULEWALL_H
