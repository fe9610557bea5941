#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/chart/CChromaticityDlgWndPrivate.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/chart/solve/ChartGeometry.h"
#include "SenderModuleDialog/chart/solve/ChartSolver.h"

/// @file
/// The chart's operations that keep groups legal.

bool CChromaticityDlgWnd::GetCIEIntersection(const QList<CPointEx<float>>& list, CPointEx<float> ptFrom,
                                             CPointEx<float> ptTo, CPointEx<float>& ptOut)
{
    const std::optional<CPointEx<float>> ptLeft = ChartGeometry::LeavePolygon(list, ptFrom, ptTo);
    ptOut = ptLeft.value_or(ptOut);
    return ptLeft.has_value();
}

void CChromaticityDlgWnd::GetFeasibleRegionNearstPoint(QList<CPointEx<float>>& region, CPointEx<float>& point)
{
    const SChromaGroupInfo* const pGroup = m_mapGroups.value(m_nHoverGroup, nullptr);
    if (pGroup != nullptr && IsColourPoint(m_nHoverPoint))
        GetCIEIntersection(region, pGroup->ptWhite, GroupPointOrOrigin(*pGroup, m_nHoverPoint), point);
}

void CChromaticityDlgWnd::GetFeasibleRegionNearstPoint2(QList<CPointEx<float>>& region,
                                                        CPointEx<float>& point)
{
    const SChromaGroupInfo* const pGroup = m_mapGroups.value(m_nHoverGroup, nullptr);
    if (pGroup != nullptr && IsColourPoint(m_nHoverPoint) && !region.isEmpty())
        GetCIEIntersection(region, ChartGeometry::MeanPoint(region),
                           GroupPointOrOrigin(*pGroup, m_nHoverPoint), point);
}

bool CChromaticityDlgWnd::GetNearestPoint(CPointEx<float> ptWhite, CPointEx<float> ptCur, CPointEx<float> ptA,
                                          CPointEx<float> ptB)
{
    return m_pPrivate->m_solver.GetNearestPoint(ptWhite, ptCur, ptA, ptB, m_ptNearest);
}

bool CChromaticityDlgWnd::GetNearestPoint2(CPointEx<float> ptWhite, CPointEx<float> ptCur,
                                           CPointEx<float> ptA, CPointEx<float> ptB, CPointEx<float>& ptOut)
{
    return CChartSolver::GetNearestPoint2(ptWhite, ptCur, ptA, ptB, ptOut);
}

bool CChromaticityDlgWnd::GetWhiteIntersection(SChromaGroupInfo* pGroup, CPointEx<float> ptWhite)
{
    return pGroup != nullptr &&
           m_pPrivate->m_solver.GetWhiteIntersection(TriangleOf(*pGroup), ptWhite, m_ptNearest);
}

void CChromaticityDlgWnd::AddFloatExcursion(QPointF& point, QPointF ptFrom)
{
    point = ChartGeometry::StepInward(point, ptFrom);
}

bool CChromaticityDlgWnd::ReCalRGB(SChromaGroupInfo* pGroup, int nIndex)
{
    return m_pPrivate->m_solver.ReCalRGB(Deref(pGroup, "pGroup != nullptr"), nIndex, m_ptNearest);
}

bool CChromaticityDlgWnd::ReCalCMY(SChromaGroupInfo* pGroup)
{
    return m_pPrivate->m_solver.ReCalCMY(Deref(pGroup, "pGroup != nullptr"), m_ptNearest);
}

bool CChromaticityDlgWnd::IsPointInRegion(SChromaGroupInfo* pGroup, int nIndex)
{
    return m_pPrivate->m_solver.IsPointInRegion(Deref(pGroup, "pGroup != nullptr"), nIndex);
}
