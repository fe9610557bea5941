#ifndef SENDERMODULEDIALOG_CHART_SOLVE_CHARTSOLVER_H
#define SENDERMODULEDIALOG_CHART_SOLVE_CHARTSOLVER_H

#include "SenderModuleDialog/chart/solve/ChartGeometry.h"
#include "SenderModuleDialog/chart/solve/LocusEdges.h"
#include "SenderModuleDialog/geometry/Polygon.h"
#include "host/CommonClass/PointEx.h"

#include <QPointF>

#include <optional>

class CCCT2ColorCoord;
class CChromaGamutInterpolation;
struct SChromaGroupInfo;

/// What a dragged white snaps to.
struct SWhiteSnap
{
    QPointF ptTarget;           ///< chromaticity that it snaps to
    const CCCT2ColorCoord& cct; ///< decides whether a chromaticity has a colour temperature
};

/// Keeps groups legal: every point inside the spectral locus, the white inside the triangle of the colour
/// points. A point that breaks a rule is not refused; a new place is solved on the nearest legal boundary and
/// taken a tiny step inward.
///
/// `ptNearest` of the operations is the chart's channel for solved points: it is written when a solve
/// succeeds and otherwise left alone, unless an operation says differently. Nothing is allocated by
/// any operation.
class CChartSolver
{
public:
    /// @param gamut the locus; kept by reference. Each walk over its outline counts as a use of its list.
    explicit CChartSolver(CChromaGamutInterpolation& gamut);

    /// Whether the chromaticity is a real colour.
    bool IsInLocus(CPointEx<float> pt) const;

    /// Where a segment leaves the locus, a step towards its start.
    std::optional<CPointEx<float>> LeaveLocus(CPointEx<float> ptFrom, CPointEx<float> ptTo);

    /// Brings a vertex onto the cone in which the triangle holds its white, and into the locus. A vertex that
    /// is in the cone already is moved as well: callers test first.
    /// @param ptCurrent the vertex; ptA and ptB are the other two
    /// @return false when there is no such place
    bool GetNearestPoint(CPointEx<float> ptWhite, CPointEx<float> ptCurrent, CPointEx<float> ptA,
                         CPointEx<float> ptB, QPointF& ptNearest);

    /// The same without the locus, in single precision.
    static bool GetNearestPoint2(CPointEx<float> ptWhite, CPointEx<float> ptCurrent, CPointEx<float> ptA,
                                 CPointEx<float> ptB, CPointEx<float>& ptOut);

    /// Brings a white that left the triangle back onto it.
    /// @param ptNearest holds the white itself when no place on the triangle was found
    /// @return false for a triangle without width or height, with `ptNearest` left alone, and when there is
    ///         no place on the triangle
    bool GetWhiteIntersection(const SChromaTriangle& triangle, CPointEx<float> ptWhite, QPointF& ptNearest);

    /// Makes one point of a group in RGB mode legal. Negative coordinates of the three colour points become 0
    /// whatever else happens.
    /// @param nPoint 0 to 3; any other index only clamps
    /// @return false for a white outside the locus, which stays, and for an index that names no point
    bool ReCalRGB(SChromaGroupInfo& group, int nPoint, QPointF& ptNearest);

    /// Makes a group in CMY mode legal: its points become the vertices of the real triangle, each vertex is
    /// made legal, and the midpoints are taken again.
    /// @return false for a white outside the locus, with the three points restored
    bool ReCalCMY(SChromaGroupInfo& group, QPointF& ptNearest);

    /// Whether a point lies in the locus and the group's white in its triangle. The index selects the point
    /// for the locus only.
    bool IsPointInRegion(const SChromaGroupInfo& group, int nPoint) const;

    /// Moves a point of a group to the legal place nearest to where it is dragged.
    /// @param ptTarget where the mouse is
    /// @param nPoint 0 to 3; any other index moves nothing
    /// @param pSnap what the white snaps to, null for nothing
    void DragPoint(SChromaGroupInfo& group, int nPoint, CPointEx<float> ptTarget, const SWhiteSnap* pSnap,
                   QPointF& ptNearest);

private:
    void PlaceVertex(SChromaGroupInfo& group, int nPoint, const SChromaTriangle& triangle,
                     CPointEx<float> ptWanted, QPointF& ptNearest);
    void PlaceWhite(SChromaGroupInfo& group, CPointEx<float> ptWanted, QPointF& ptNearest);
    void DragWhite(SChromaGroupInfo& group, CPointEx<float> ptWanted, const SWhiteSnap* pSnap,
                   QPointF& ptNearest);

    CChromaGamutInterpolation& m_gamut;
    CLocusEdges m_edges;            ///< of the standard locus
    QVector<QPointF> m_vecStandard; ///< the standard locus, shared with every gamut that is not written to
    CPolygon m_polygonTriangle;     ///< used anew by each `GetWhiteIntersection`, so that none allocates
};

#endif // SENDERMODULEDIALOG_CHART_SOLVE_CHARTSOLVER_H
