#include "instruments/colour/ModuleWall.h"

#include <algorithm>
#include <limits>

namespace {

using Corners = std::array<std::size_t, 3>;

double AreaOf(const ConvexPolygon& polygon, const Corners& corners)
{
    return Gamut::TriangleArea(polygon[corners[0]], polygon[corners[1]], polygon[corners[2]]);
}

ConvexPolygon ToUcs(const ConvexPolygon& polygonXy)
{
    ConvexPolygon polygon;
    for (const SPlace& place : polygonXy)
        polygon.push_back(Gamut::PlaceIn(enDiagram::enUcs, {place.dX, place.dY}));
    return polygon;
}

double SquaredDistance(SChromaticity a, SChromaticity b)
{
    return (a.dX - b.dX) * (a.dX - b.dX) + (a.dY - b.dY) * (a.dY - b.dY);
}

/// How far three primaries lie from a display's.
double Mismatch(const SGamut& gamut, const SGamut& other)
{
    return SquaredDistance(gamut.red, other.red) + SquaredDistance(gamut.green, other.green) +
           SquaredDistance(gamut.blue, other.blue);
}

/// Names three corners red, green and blue after the nearest primaries.
SGamut Named(const std::array<SChromaticity, 3>& corners, const SGamut& names)
{
    std::array<std::size_t, 3> order = {0, 1, 2};
    SGamut best = {corners[0], corners[1], corners[2]};
    while (std::next_permutation(order.begin(), order.end())) {
        const SGamut gamut = {corners[order[0]], corners[order[1]], corners[order[2]]};
        if (Mismatch(gamut, names) < Mismatch(best, names))
            best = gamut;
    }
    return best;
}

CColourResult<SGamut> LargestGamut(const ConvexPolygon& intersection, const SGamut& names)
{
    const auto corners = ModuleWall::LargestTriangle(ToUcs(intersection));
    if (!corners)
        return enColourFault::enNoCommonGamut;
    const auto At = [&](std::size_t nCorner) {
        const SPlace& place = intersection[(*corners)[nCorner]];
        return SChromaticity{place.dX, place.dY};
    };
    const SGamut gamut = Named({At(0), At(1), At(2)}, names);
    if (Gamut::Check(gamut) != enColourFault::enNone)
        return enColourFault::enNoCommonGamut;
    return gamut;
}

/// Lowers the common level to what each module reaches.
enColourFault LowerLevel(const Modules& modules, ModuleWall::SCommon& common)
{
    common.dLevel = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < modules.size(); ++i) {
        const auto greatest = Primaries::GreatestLevel(modules[i].primaries, common.white);
        if (!greatest)
            return greatest.Fault();
        if (greatest->dLevel < common.dLevel) {
            common.dLevel = greatest->dLevel;
            common.nLimitingModule = i;
            common.limitingChannel = greatest->limit;
        }
    }
    return enColourFault::enNone;
}

enColourFault AddMatrices(const Modules& modules, ModuleWall::SCommon& common)
{
    const auto target = Primaries::SourceToXyz(common.gamut, common.white, common.dLevel);
    if (!target)
        return target.Fault();
    common.vecMatrices.reserve(modules.size());
    for (const SModule& module : modules) {
        const auto matrix = Primaries::MatrixToXyz(module.primaries);
        if (!matrix)
            return matrix.Fault();
        common.vecMatrices.push_back(matrix->Inverse() * *target);
    }
    return enColourFault::enNone;
}

} // namespace

std::optional<std::array<std::size_t, 3>> ModuleWall::LargestTriangle(const ConvexPolygon& polygon)
{
    if (polygon.size() < 3)
        return std::nullopt;
    // All triples: the intersection of a wall has some tens of corners, and neighbours that rounding alone
    // keeps apart would stop a walk that follows the rising area.
    Corners best = {0, 1, 2};
    double dLargest = AreaOf(polygon, best);
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        for (std::size_t j = i + 1; j < polygon.size(); ++j) {
            for (std::size_t k = j + 1; k < polygon.size(); ++k) {
                const double dArea = AreaOf(polygon, {i, j, k});
                if (dArea > dLargest) {
                    dLargest = dArea;
                    best = {i, j, k};
                }
            }
        }
    }
    return best;
}

CColourResult<ConvexPolygon> ModuleWall::IntersectionOf(const Modules& modules)
{
    if (modules.empty())
        return enColourFault::enNoModules;
    if (const auto fault = FirstFault(modules))
        return fault->fault;
    ConvexPolygon polygon = Gamut::Triangle(enDiagram::enXy, Primaries::GamutOf(modules.front().primaries));
    for (const SModule& module : modules)
        polygon = Gamut::Intersection(polygon,
                                      Gamut::Triangle(enDiagram::enXy, Primaries::GamutOf(module.primaries)));
    if (Gamut::Area(polygon) < Gamut::c_dSmallestArea)
        return enColourFault::enNoCommonGamut;
    return polygon;
}

CColourResult<ModuleWall::SCommon> ModuleWall::CommonOf(const Modules& modules, SChromaticity white)
{
    if (const enColourFault fault = Chromaticity::Check(white); fault != enColourFault::enNone)
        return fault;
    const CColourResult<ConvexPolygon> intersection = IntersectionOf(modules);
    if (!intersection)
        return intersection.Fault();
    const auto gamut = LargestGamut(*intersection, Primaries::GamutOf(modules.front().primaries));
    if (!gamut)
        return gamut.Fault();
    SCommon common;
    common.intersection = *intersection;
    common.gamut = *gamut;
    common.white = white;
    if (const enColourFault fault = LowerLevel(modules, common); fault != enColourFault::enNone)
        return fault;
    if (const enColourFault fault = AddMatrices(modules, common); fault != enColourFault::enNone)
        return fault;
    return common;
}
