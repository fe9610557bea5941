#ifndef INSTRUMENTS_COLOUR_GAMUT_H
#define INSTRUMENTS_COLOUR_GAMUT_H

#include "instruments/colour/Chromaticity.h"

#include <array>
#include <vector>

/// @file
/// Gamuts as triangles and convex polygons, in (x, y) and in (u', v'). The two diagrams are projections of
/// each other, so straight lines stay straight and an intersection is the same set in both; areas are not.

/// The chromaticities of three primaries.
struct SGamut
{
    SChromaticity red;   ///< CIE 1931 xy of red
    SChromaticity green; ///< CIE 1931 xy of green
    SChromaticity blue;  ///< CIE 1931 xy of blue
};

/// A place in either diagram.
struct SPlace
{
    double dX = 0.0; ///< x, or u'
    double dY = 0.0; ///< y, or v'
};

/// A convex polygon in either diagram, in counter-clockwise order.
using ConvexPolygon = std::vector<SPlace>;

/// The diagram that an area is measured in.
enum class enDiagram
{
    enXy,  ///< CIE 1931 (x, y)
    enUcs, ///< CIE 1976 (u', v')
};

namespace Gamut {

/// Below this area in (x, y) three primaries count as lying on one line: a triangle of sides of 0.001 has
/// about this area, and readings are no finer.
inline constexpr double c_dSmallestArea = 5e-7;

/// The place of a chromaticity in a diagram.
SPlace PlaceIn(enDiagram diagram, SChromaticity xy);
/// The chromaticity at a place of a diagram.
SChromaticity ChromaticityAt(enDiagram diagram, SPlace place);

/// Why a gamut cannot be calculated with: a point that is no chromaticity, or no area.
enColourFault Check(const SGamut& gamut);

/// The triangle, turned counter-clockwise if need be.
ConvexPolygon Triangle(enDiagram diagram, const SGamut& gamut);
/// The area of the triangle a, b, c; positive where they run counter-clockwise.
double TriangleArea(SPlace a, SPlace b, SPlace c);
/// The area of a polygon by the shoelace formula; not negative for a counter-clockwise one.
double Area(const ConvexPolygon& polygon);
/// The part of a polygon that lies in a convex one (I. Sutherland, G. Hodgman, Reentrant polygon clipping,
/// 1974). Empty, or a few points without area, where they are apart.
ConvexPolygon Intersection(const ConvexPolygon& polygon, const ConvexPolygon& clip);
/// Whether a convex polygon holds a place, its edge included up to a rounding.
bool Contains(const ConvexPolygon& polygon, SPlace place);

/// How one gamut stands to another in one diagram.
struct SCoverage
{
    double dCovered = 0.0;   ///< the part of the other that lies in this one, 0 to 1
    double dAreaRatio = 0.0; ///< this one's area divided by the other's
};

/// How much of one gamut another covers, by the intersection of their triangles.
/// @param covered the gamut whose area is the whole
/// @param covering the gamut that is laid over it
/// @return the fault of `Check` where either gamut has one
CColourResult<SCoverage> CoverageOf(enDiagram diagram, const SGamut& covered, const SGamut& covering);

/// Rows of `c_arrColourStandards`.
inline constexpr std::size_t c_nStandards = 8;

/// Coverage of one standard colour space, in both diagrams.
struct SStandardCoverage
{
    const char* szName; ///< as in `c_arrColourStandards`
    SCoverage xy;       ///< in CIE 1931 (x, y)
    SCoverage ucs;      ///< in CIE 1976 (u', v')
};

/// The coverage of each standard colour space by a gamut, in the order of `c_arrColourStandards`.
CColourResult<std::array<SStandardCoverage, c_nStandards>> CoverageOfStandards(const SGamut& covering);

} // namespace Gamut

#endif // INSTRUMENTS_COLOUR_GAMUT_H
