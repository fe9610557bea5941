#include "SenderModuleDialog/chart/solve/ChartSolver.h"

#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace ChartGeometry;

namespace {

/// How near to its target a dragged white snaps, chromaticity units.
constexpr double c_dSnapDistance = 0.025;

constexpr int c_nTriangleVertices = 3;

/// The two other vertices of each vertex, in the order in which the solving takes them.
constexpr std::size_t c_arrOtherVertices[c_nTriangleVertices][2] = {
    {enGreenPoint, enBluePoint},
    {enRedPoint, enBluePoint},
    {enRedPoint, enGreenPoint},
};

/// A triangle's vertices by point index.
std::array<CPointEx<float>, c_nTriangleVertices> VerticesOf(const SChromaTriangle& triangle)
{
    return {triangle.ptRed, triangle.ptGreen, triangle.ptBlue};
}

CPointEx<float> MiddleOf(CPointEx<float> ptFirst, CPointEx<float> ptSecond)
{
    return {(ptFirst.x + ptSecond.x) / 2.0F, (ptFirst.y + ptSecond.y) / 2.0F};
}

/// The vertex opposite to the first midpoint, whose edge holds it between the two others.
CPointEx<float> VertexOf(CPointEx<float> ptOpposite, CPointEx<float> ptFirst, CPointEx<float> ptSecond)
{
    return {ptFirst.x + ptSecond.x - ptOpposite.x, ptFirst.y + ptSecond.y - ptOpposite.y};
}

void SetTriangle(SChromaGroupInfo& group, const SChromaTriangle& triangle)
{
    group.ptRed = triangle.ptRed;
    group.ptGreen = triangle.ptGreen;
    group.ptBlue = triangle.ptBlue;
}

SChromaTriangle ClampedTriangle(const SChromaTriangle& triangle)
{
    return {WithoutNegatives(triangle.ptRed), WithoutNegatives(triangle.ptGreen),
            WithoutNegatives(triangle.ptBlue)};
}

SChromaTriangle WithVertex(const SChromaTriangle& triangle, int nPoint, CPointEx<float> pt)
{
    return {nPoint == enRedPoint ? pt : triangle.ptRed, nPoint == enGreenPoint ? pt : triangle.ptGreen,
            nPoint == enBluePoint ? pt : triangle.ptBlue};
}

/// The triangle whose edges have these midpoints.
SChromaTriangle TriangleOfMidpoints(const SChromaTriangle& middles)
{
    const auto& [ptCyan, ptMagenta, ptYellow] = middles;
    return {VertexOf(ptCyan, ptMagenta, ptYellow), VertexOf(ptMagenta, ptYellow, ptCyan),
            VertexOf(ptYellow, ptMagenta, ptCyan)};
}

SChromaTriangle MidpointsOfTriangle(const SChromaTriangle& triangle)
{
    const auto& [ptRed, ptGreen, ptBlue] = triangle;
    return {MiddleOf(ptGreen, ptBlue), MiddleOf(ptRed, ptBlue), MiddleOf(ptRed, ptGreen)};
}

/// The vertex that a white solved close to a corner stands for, else the solved white itself.
CPointEx<float> SnappedToVertex(CPointEx<float> ptWhite, const SChromaTriangle& triangle)
{
    const auto vertices = VerticesOf(triangle);
    const auto itVertex = std::find_if(vertices.begin(), vertices.end(), [ptWhite](CPointEx<float> ptVertex) {
        return IsSamePoint(ptWhite, ptVertex);
    });
    return itVertex == vertices.end() ? ptWhite : *itVertex;
}

/// Where a white goes that is dragged to a point. The distance is tested first: the colour temperature takes
/// a search.
CPointEx<float> SnappedWhite(CPointEx<float> ptWhite, const SWhiteSnap& snap)
{
    const QPointF ptAway = Widened(ptWhite) - snap.ptTarget;
    if (!(std::sqrt(ptAway.x() * ptAway.x() + ptAway.y() * ptAway.y()) < c_dSnapDistance))
        return ptWhite;
    float fTemperature = 0.0F;
    return snap.cct.TriangAlgCalcRelativeCCT(Widened(ptWhite), &fTemperature, false) ? Narrowed(snap.ptTarget)
                                                                                     : ptWhite;
}

} // namespace

CChartSolver::CChartSolver(CChromaGamutInterpolation& gamut)
    : m_gamut(gamut)
    , m_edges(CChromaGamutInterpolation().GetQPointFData())
    , m_vecStandard(CChromaGamutInterpolation().GetQPointFData())
    , m_polygonTriangle(c_nTriangleVertices)
{}

bool CChartSolver::IsInLocus(CPointEx<float> pt) const
{
    return m_gamut.IsPointInCIEPolygon(Widened(pt));
}

std::optional<CPointEx<float>> CChartSolver::LeaveLocus(CPointEx<float> ptFrom, CPointEx<float> ptTo)
{
    // A host that wrote to the outline gets the walk over all that the list has gathered.
    if (m_gamut.GetQPointFData().constData() != m_vecStandard.constData())
        return LeavePolygon(m_gamut.GetData(), ptFrom, ptTo);

    // The list repeats the outline, and a copy is joined to the next by an edge equal to the closing one: the
    // last crossing of one pass is that of the whole list.
    m_gamut.UseFloatOutline();
    const std::optional<CPointEx<float>> ptCrossing = m_edges.LastCrossing(ptFrom, ptTo);
    if (!ptCrossing)
        return std::nullopt;
    return StepInward(*ptCrossing, ptTo);
}

bool CChartSolver::GetNearestPoint(CPointEx<float> ptWhite, CPointEx<float> ptCurrent, CPointEx<float> ptA,
                                   CPointEx<float> ptB, QPointF& ptNearest)
{
    const std::optional<CPointEx<float>> ptOnCone = MeetCone(ptWhite, ptCurrent, ptA, ptB);
    if (!ptOnCone)
        return false;
    CPointEx<float> ptLegal = *ptOnCone;
    if (!IsInLocus(ptLegal))
        ptLegal = LeaveLocus(ptWhite, ptLegal).value_or(ptLegal);
    ptNearest = StepInward(Widened(ptLegal), Widened(ptCurrent));
    return true;
}

bool CChartSolver::GetNearestPoint2(CPointEx<float> ptWhite, CPointEx<float> ptCurrent, CPointEx<float> ptA,
                                    CPointEx<float> ptB, CPointEx<float>& ptOut)
{
    const std::optional<CPointEx<float>> ptOnCone = MeetCone(ptWhite, ptCurrent, ptA, ptB);
    if (!ptOnCone)
        return false;
    ptOut = StepInward(*ptOnCone, ptCurrent);
    return true;
}

bool CChartSolver::GetWhiteIntersection(const SChromaTriangle& triangle, CPointEx<float> ptWhite,
                                        QPointF& ptNearest)
{
    if (IsFlat(triangle))
        return false;
    const auto vertices = VerticesOf(triangle);
    std::transform(vertices.begin(), vertices.end(), m_polygonTriangle.begin(), Widened);

    ptNearest = Widened(ptWhite);
    if (!m_polygonTriangle.GetPointCloser(&ptNearest))
        return false;
    ptNearest = StepInward(ptNearest, Widened(ptWhite));
    return true;
}

bool CChartSolver::ReCalRGB(SChromaGroupInfo& group, int nPoint, QPointF& ptNearest)
{
    const SChromaTriangle triangle = ClampedTriangle(TriangleOf(group));
    SetTriangle(group, triangle);
    if (!IsChromaPoint(nPoint))
        return false;

    // The white is clamped for itself alone: the group keeps it as it is, and the vertices are solved
    // against that.
    const CPointEx<float> ptMoved = WithoutNegatives(GroupPoint(group, nPoint));
    const bool bInLocus = IsInLocus(ptMoved);
    if (nPoint == enWhitePoint) {
        if (bInLocus)
            PlaceWhite(group, ptMoved, ptNearest);
        return bInLocus;
    }
    // The triangle is tested with the vertex at its unclipped place.
    const CPointEx<float> ptLegal = bInLocus ? ptMoved : LeaveLocus(group.ptWhite, ptMoved).value_or(ptMoved);
    PlaceVertex(group, nPoint, triangle, ptLegal, ptNearest);
    return true;
}

bool CChartSolver::ReCalCMY(SChromaGroupInfo& group, QPointF& ptNearest)
{
    if (!IsInLocus(WithoutNegatives(group.ptWhite)))
        return false;

    const SChromaTriangle triangle = ClampedTriangle(TriangleOfMidpoints(TriangleOf(group)));
    SetTriangle(group, triangle);
    // Each vertex is tested against the vertices as they came in, not against those that are legal by now.
    const auto vertices = VerticesOf(triangle);
    for (const int nPoint : {enBluePoint, enGreenPoint, enRedPoint}) {
        const CPointEx<float> ptVertex = vertices[std::size_t(nPoint)];
        if (IsInLocus(ptVertex))
            continue;
        const CPointEx<float> ptLegal = LeaveLocus(group.ptWhite, ptVertex).value_or(ptVertex);
        PlaceVertex(group, nPoint, triangle, ptLegal, ptNearest);
    }
    SetTriangle(group, MidpointsOfTriangle(TriangleOf(group)));
    return true;
}

bool CChartSolver::IsPointInRegion(const SChromaGroupInfo& group, int nPoint) const
{
    return IsInLocus(WithoutNegatives(GroupPointOrOrigin(group, nPoint))) &&
           IsInTriangle(group.ptWhite, TriangleOf(group));
}

void CChartSolver::DragPoint(SChromaGroupInfo& group, int nPoint, CPointEx<float> ptTarget,
                             const SWhiteSnap* pSnap, QPointF& ptNearest)
{
    // The way from the white is clipped wherever the mouse is: inside the locus it crosses nothing.
    const CPointEx<float> ptMouse = WithoutNegatives(ptTarget);
    const CPointEx<float> ptLegal = LeaveLocus(group.ptWhite, ptMouse).value_or(ptMouse);
    if (nPoint == enWhitePoint) {
        DragWhite(group, ptLegal, pSnap, ptNearest);
        return;
    }
    if (!IsColourPoint(nPoint))
        return;
    PlaceVertex(group, nPoint, WithVertex(TriangleOf(group), nPoint, ptLegal), ptLegal, ptNearest);
}

/// Puts a vertex where it is wanted if the white lies in the triangle, else onto the white's cone. Where
/// neither is possible it stays.
void CChartSolver::PlaceVertex(SChromaGroupInfo& group, int nPoint, const SChromaTriangle& triangle,
                               CPointEx<float> ptWanted, QPointF& ptNearest)
{
    if (IsInTriangle(group.ptWhite, triangle)) {
        GroupPoint(group, nPoint) = ptWanted;
        return;
    }
    const auto vertices = VerticesOf(triangle);
    const auto& [nA, nB] = c_arrOtherVertices[std::size_t(nPoint)];
    if (GetNearestPoint(group.ptWhite, vertices[std::size_t(nPoint)], vertices[nA], vertices[nB], ptNearest))
        GroupPoint(group, nPoint) = Narrowed(ptNearest);
}

void CChartSolver::PlaceWhite(SChromaGroupInfo& group, CPointEx<float> ptWanted, QPointF& ptNearest)
{
    if (IsInTriangle(ptWanted, TriangleOf(group)))
        group.ptWhite = ptWanted;
    else if (GetWhiteIntersection(TriangleOf(group), ptWanted, ptNearest))
        group.ptWhite = Narrowed(ptNearest);
}

void CChartSolver::DragWhite(SChromaGroupInfo& group, CPointEx<float> ptWanted, const SWhiteSnap* pSnap,
                             QPointF& ptNearest)
{
    const SChromaTriangle triangle = TriangleOf(group);
    // The mouse's place decides whether the white may go there, not the place that it snaps to.
    if (IsInTriangle(ptWanted, triangle))
        group.ptWhite = pSnap == nullptr ? ptWanted : SnappedWhite(ptWanted, *pSnap);
    else if (GetWhiteIntersection(triangle, ptWanted, ptNearest))
        group.ptWhite = SnappedToVertex(Narrowed(ptNearest), triangle);
}
