#include "workbench/colour/FeasibleRegion.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"

namespace {

QList<CPointEx<float>> Vertices(const QPolygonF& polygon)
{
    QList<CPointEx<float>> listVertices;
    for (const QPointF& pt : polygon)
        listVertices.append({float(pt.x()), float(pt.y())});
    return listVertices;
}

} // namespace

bool CFeasibleRegion::Allows(CPointEx<float> point) const
{
    return !m_bOn || !IsRegion() ||
           m_polygon.containsPoint({double(point.x), double(point.y)}, Qt::OddEvenFill);
}

bool CFeasibleRegion::Answer(CChromaticityDlgWnd& chart, int nGroup, int nPoint,
                             CPointEx<float> ptBefore) const
{
    SChromaGroupInfo* pGroup = chart.GetChromaGroupByIndex(nGroup);
    // The chart keeps a white point in place, whatever the answer.
    if (pGroup == nullptr || !IsColourPoint(nPoint) || Allows(GroupPoint(*pGroup, nPoint)))
        return true;
    QList<CPointEx<float>> listVertices = Vertices(m_polygon);
    CPointEx<float> ptStop = ptBefore;
    chart.GetFeasibleRegionNearstPoint(listVertices, ptStop);
    chart.SetNearstPoint(chart.CPointFToQPointF(ptStop));
    return false;
}
