#ifndef SENDERMODULEDIALOG_CHART_SOLVE_CHARTGEOMETRY_H
#define SENDERMODULEDIALOG_CHART_SOLVE_CHARTGEOMETRY_H

#include "SenderModuleDialog/chart/ChartTriangle.h"
#include "SenderModuleDialog/geometry/PointPrecision.h"
#include "host/CommonClass/PointEx.h"

#include <QList>
#include <QPointF>

#include <optional>

/// The questions and steps that keep a group legal, over plain values. All coordinates are CIE 1931 xy
/// chromaticities in single precision; each product and sum rounds on its own, in the order written.
namespace ChartGeometry {

/// The same point within `c_fVertexReach`, in x and in y.
bool IsSamePoint(CPointEx<float> ptFirst, CPointEx<float> ptSecond);

/// The point with negative coordinates replaced by 0.
CPointEx<float> WithoutNegatives(CPointEx<float> pt);

/// Takes a solved point `c_fVertexReach` further along the line from an outside point to it, so that it lands
/// just inside the boundary and not on it, where the next inside test would be in doubt. On a vertical line
/// the point stays where it is: the vertical slope leaves no step.
/// @param pt the solved point on the boundary
/// @param ptFrom the outside point that it was solved for
CPointEx<float> StepInward(CPointEx<float> pt, CPointEx<float> ptFrom);

/// The same for a point kept in double precision: the point and the outside point are narrowed first, the
/// step is computed in single precision, and added in double.
QPointF StepInward(QPointF pt, QPointF ptFrom);

/// Whether the point is one of the triangle's vertices within the tolerance, or inside it by the
/// even-odd rule.
bool IsInTriangle(CPointEx<float> pt, const SChromaTriangle& triangle);

/// Whether a place lies in the chart's outline or at one of its vertices, all in widget pixels: within the
/// tolerance of a vertex in x and in y, else by the even-odd rule.
bool IsInOutline(CPointEx<float> pt, const CPointEx<float>* pOutline, int nCount);

/// Whether the triangle has no width or no height: red shares its x, or its y, with
/// both others.
bool IsFlat(const SChromaTriangle& triangle);

/// Where a segment crosses a closed polygon: on the crossed edge that comes last in list order, wherever on
/// the segment that is.
/// @return nothing for fewer than 3 points, or when no edge is crossed
std::optional<CPointEx<float>> LastCrossing(const QList<CPointEx<float>>& listPolygon, CPointEx<float> ptFrom,
                                            CPointEx<float> ptTo);

/// Where a segment leaves a closed polygon: its last crossing, taken a step towards the segment's start.
/// @return nothing for fewer than 3 points, or when no edge is crossed
std::optional<CPointEx<float>> LeavePolygon(const QList<CPointEx<float>>& listPolygon, CPointEx<float> ptFrom,
                                            CPointEx<float> ptTo);

/// The mean of a polygon's vertices, summed in list order.
/// @pre the list is not empty
CPointEx<float> MeanPoint(const QList<CPointEx<float>>& listPolygon);

/// Brings a vertex of a triangle to where the triangle just holds its white point. The white lies inside
/// exactly when the vertex is inside the cone at the white that is opposite to the angle between the other
/// two vertices; the vertex is moved along that angle's bisector onto the nearer side of the cone.
/// @param ptWhite the cone's tip
/// @param ptCurrent the vertex to move
/// @param ptA, ptB the triangle's other vertices
/// @return nothing when the bisector is parallel to the cone's side
std::optional<CPointEx<float>> MeetCone(CPointEx<float> ptWhite, CPointEx<float> ptCurrent,
                                        CPointEx<float> ptA, CPointEx<float> ptB);

} // namespace ChartGeometry

#endif // SENDERMODULEDIALOG_CHART_SOLVE_CHARTGEOMETRY_H
