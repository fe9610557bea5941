#include "instruments/colour/Gamut.h"

#include "instruments/colour/StandardGamut.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

/// A place this far outside an edge, measured as a cross product, still counts as on it.
constexpr double c_dEdgeTolerance = 1e-12;

/// Twice the area of the triangle a, b, c; positive where they run counter-clockwise.
double Cross(SPlace a, SPlace b, SPlace c)
{
    return (b.dX - a.dX) * (c.dY - a.dY) - (b.dY - a.dY) * (c.dX - a.dX);
}

/// Where the way from one place to another crosses a line, by the places' cross products with it.
SPlace Crossing(SPlace from, double dFrom, SPlace to, double dTo)
{
    const double dPart = dFrom / (dFrom - dTo);
    return {from.dX + (to.dX - from.dX) * dPart, from.dY + (to.dY - from.dY) * dPart};
}

/// The part of a polygon on the left of the line from a to b.
ConvexPolygon LeftOf(const ConvexPolygon& polygon, SPlace a, SPlace b)
{
    ConvexPolygon part;
    part.reserve(polygon.size() + 1);
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const SPlace& from = polygon[i];
        const SPlace& to = polygon[(i + 1) % polygon.size()];
        const double dFrom = Cross(a, b, from);
        const double dTo = Cross(a, b, to);
        if (dFrom >= 0.0)
            part.push_back(from);
        if ((dFrom > 0.0 && dTo < 0.0) || (dFrom < 0.0 && dTo > 0.0))
            part.push_back(Crossing(from, dFrom, to, dTo));
    }
    return part;
}

} // namespace

SPlace Gamut::PlaceIn(enDiagram diagram, SChromaticity xy)
{
    if (diagram == enDiagram::enXy)
        return {xy.dX, xy.dY};
    const SUcs uv = Chromaticity::ToUcs(xy);
    return {uv.dU, uv.dV};
}

SChromaticity Gamut::ChromaticityAt(enDiagram diagram, SPlace place)
{
    if (diagram == enDiagram::enXy)
        return {place.dX, place.dY};
    return Chromaticity::FromUcs({place.dX, place.dY});
}

enColourFault Gamut::Check(const SGamut& gamut)
{
    for (const SChromaticity& xy : {gamut.red, gamut.green, gamut.blue})
        if (const enColourFault fault = Chromaticity::Check(xy); fault != enColourFault::enNone)
            return fault;
    const double dArea = Area(Triangle(enDiagram::enXy, gamut));
    return dArea < c_dSmallestArea ? enColourFault::enDegenerateGamut : enColourFault::enNone;
}

ConvexPolygon Gamut::Triangle(enDiagram diagram, const SGamut& gamut)
{
    ConvexPolygon triangle = {PlaceIn(diagram, gamut.red), PlaceIn(diagram, gamut.green),
                              PlaceIn(diagram, gamut.blue)};
    if (Cross(triangle[0], triangle[1], triangle[2]) < 0.0)
        std::swap(triangle[1], triangle[2]);
    return triangle;
}

double Gamut::TriangleArea(SPlace a, SPlace b, SPlace c)
{
    return 0.5 * Cross(a, b, c);
}

double Gamut::Area(const ConvexPolygon& polygon)
{
    double dTwice = 0.0;
    for (std::size_t i = 2; i < polygon.size(); ++i)
        dTwice += Cross(polygon[0], polygon[i - 1], polygon[i]);
    return 0.5 * dTwice;
}

ConvexPolygon Gamut::Intersection(const ConvexPolygon& polygon, const ConvexPolygon& clip)
{
    ConvexPolygon part = polygon;
    for (std::size_t i = 0; i < clip.size() && !part.empty(); ++i)
        part = LeftOf(part, clip[i], clip[(i + 1) % clip.size()]);
    return part;
}

bool Gamut::Contains(const ConvexPolygon& polygon, SPlace place)
{
    for (std::size_t i = 0; i < polygon.size(); ++i)
        if (Cross(polygon[i], polygon[(i + 1) % polygon.size()], place) < -c_dEdgeTolerance)
            return false;
    return !polygon.empty();
}

CColourResult<Gamut::SCoverage> Gamut::CoverageOf(enDiagram diagram, const SGamut& covered,
                                                  const SGamut& covering)
{
    for (const SGamut& gamut : {covered, covering})
        if (const enColourFault fault = Check(gamut); fault != enColourFault::enNone)
            return fault;
    const ConvexPolygon reference = Triangle(diagram, covered);
    const ConvexPolygon cover = Triangle(diagram, covering);
    const double dReference = Area(reference);
    // The crossings are rounded, so equal gamuts may come out a last digit above 1.
    const double dCovered = std::min(Area(Intersection(reference, cover)) / dReference, 1.0);
    return SCoverage{dCovered, Area(cover) / dReference};
}

CColourResult<std::array<Gamut::SStandardCoverage, Gamut::c_nStandards>>
Gamut::CoverageOfStandards(const SGamut& covering)
{
    static_assert(std::size(c_arrColourStandards) == c_nStandards);
    if (const enColourFault fault = Check(covering); fault != enColourFault::enNone)
        return fault;
    std::array<SStandardCoverage, c_nStandards> arrCoverages;
    for (std::size_t i = 0; i < c_nStandards; ++i) {
        const SGamut standard = StandardGamut::Primaries(c_arrColourStandards[i]);
        arrCoverages[i] = {c_arrColourStandards[i].szName, *CoverageOf(enDiagram::enXy, standard, covering),
                           *CoverageOf(enDiagram::enUcs, standard, covering)};
    }
    return arrCoverages;
}
