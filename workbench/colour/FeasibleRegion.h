#ifndef WORKBENCH_COLOUR_FEASIBLEREGION_H
#define WORKBENCH_COLOUR_FEASIBLEREGION_H

#include "host/CommonClass/PointEx.h"

#include <QList>
#include <QPolygonF>

class CChromaticityDlgWnd;

/// A polygon of chromaticities that confines dragged colour points while it is switched on.
class CFeasibleRegion
{
public:
    static constexpr int c_nMinVertices = 3;

    /// The polygon's vertices as chromaticities, in order. Fewer than three are no region.
    void SetPolygon(const QPolygonF& polygon) { m_polygon = polygon; }
    const QPolygonF& Polygon() const { return m_polygon; }
    bool IsRegion() const { return m_polygon.size() >= c_nMinVertices; }

    void SetOn(bool bOn) { m_bOn = bOn; }
    bool IsOn() const { return m_bOn; }

    /// Whether a point is allowed: it lies inside, or the region is off.
    bool Allows(CPointEx<float> point) const;

    /// The answer to a chart whose point was dragged. A colour point outside the region moves to its
    /// border, or stays at `ptBefore` when the line from the white does not cross the border; the
    /// chart is notified.
    /// @return whether the point may keep its new position
    bool Answer(CChromaticityDlgWnd& chart, int nGroup, int nPoint, CPointEx<float> ptBefore) const;

private:
    QPolygonF m_polygon;
    bool m_bOn = false;
};

#endif // WORKBENCH_COLOUR_FEASIBLEREGION_H
