#ifndef SENDERMODULEDIALOG_GEOMETRY_POLYGON_H
#define SENDERMODULEDIALOG_GEOMETRY_POLYGON_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"

#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QVector>

/// A polygon on the chromaticity plane that can become the convex hull of its vertices and can pull a point
/// that strayed outside to a place just inside.
///
/// The polygon closes from its last vertex to vertex 0 by itself. Inside means `containsPoint` with
/// `Qt::WindingFill`. Vertices are held in double; tests of edges work on copies rounded to float.
///
/// Used by one thread at a time.
///
/// The constructors convert, as those of `QPolygonF` do: `CPolygon polygon = vecPoints;`.
class SENDERMODULEDIALOG_EXPORT CPolygon : public QPolygonF
{
public:
    /// A polygon without vertices.
    CPolygon() = default;

    /// The polygon with these vertices. It is not prepared for `GrahamScan`.
    CPolygon(const QPolygonF& polygon);

    /// The polygon with these vertices: the only constructor that prepares it for `GrahamScan`.
    CPolygon(const QVector<QPointF>& vecPoints);

    /// A rectangle's polygon. It is not prepared for `GrahamScan`.
    CPolygon(const QRectF& rect);

    /// So many vertices at (0, 0); a count below 1 gives none. It is not prepared for `GrahamScan`.
    CPolygon(int nCount);

    /// Whether every corner turns the same way as the corner at vertex 1. The corner at vertex 0 is not
    /// tested, and a straight corner at vertex 1 accepts every other corner. True below 2 vertices.
    bool IsConvex() const;

    /// Moves a point that is outside to a place just inside: `GetPointCloser2Convex` for a convex polygon,
    /// `GetPointCloser2Concave` for any other.
    /// @param pPoint input and output; not null. A point inside is left alone.
    /// @return false when the polygon is convex and no place was found; the point is then left alone
    bool GetPointCloser(QPointF* pPoint) const;

    /// Moves a point that is outside to the foot of its perpendicular on the first edge, in vertex order,
    /// that the segment from the centre (the average of the vertices) to the point crosses, nudged toward the
    /// centre. Where that is still outside, the nearer end of that edge is nudged and taken; of two equally
    /// near, the later.
    /// @param pPoint input and output; not null
    /// @return false when the point is outside and no edge is crossed: there are no vertices, or the
    ///         segment passes exactly through a vertex
    bool GetPointCloser2Convex(QPointF* pPoint) const;

    /// Moves a point that is outside to the nearest vertex or foot of a perpendicular, nudged toward the
    /// average of the vertices. The result is not tested to be inside.
    /// @param pPoint input and output; not null
    /// @return true
    bool GetPointCloser2Concave(QPointF* pPoint) const;

    /// A point moved by the nudge, 1e-5, along the line toward another. A point exactly below or above the
    /// other (their x round to one float) does not move.
    /// @param ptFrom not changed
    static QPointF MakePointCloser(QPointF& ptFrom, const QPointF& ptToward);

    /// Makes this polygon the convex hull of its vertices, counter-clockwise from the lowest (of several, the
    /// leftmost). Vertices that repeat or lie on an edge of the hull are dropped, save next to the first
    /// vertex: the two that come after it in the order of angle are never tested against it.
    ///
    /// The polygon must hold three vertices or more, not all on one line, put there by the constructor from a
    /// vector; fewer fault. A hull whose single-precision corners do not test as convex faults with
    /// "IsConvex()". Three vertices or more on one line leave three of them. Method: R. L. Graham, An
    /// efficient algorithm for determining the convex hull of a finite planar set, 1972.
    void GrahamScan();

protected:
    /// The points that `GrahamScan` sorts in place, and the hull after it.
    QVector<QPointF> m_vecHullPoints;

private:
    QPointF Centre() const;
    void SortByAngle();
};

#endif // SENDERMODULEDIALOG_GEOMETRY_POLYGON_H
