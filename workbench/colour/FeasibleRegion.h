#ifndef WORKBENCH_COLOUR_FEASIBLEREGION_H
#define WORKBENCH_COLOUR_FEASIBLEREGION_H

#include "host/CommonClass/PointEx.h"

#include <QList>
#include <QPolygonF>

class CChromaticityDlgWnd;

/// A polygon of chromaticities that dragged colour points are held in while it is switched on.
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

    /// Whether a point may stand where it is: inside, or nothing holds it.
    bool Allows(CPointEx<float> point) const;

    /// The answer to a chart whose point was dragged. A colour point outside the region is to fall back to
    /// its border, or stay at `ptBefore` where the border is not met on the way from the white; the chart is
    /// told.
    /// @return whether the point may keep its new position
    bool Answer(CChromaticityDlgWnd& chart, int nGroup, int nPoint, CPointEx<float> ptBefore) const;

private:
    QPolygonF m_polygon;
    bool m_bOn = false;
};

#endif // WORKBENCH_COLOUR_FEASIBLEREGION_H
