#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/chart/CChromaticityDlgWndPrivate.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/chart/paint/CctCurve.h"
#include "SenderModuleDialog/chart/paint/ChartGroupOverlay.h"
#include "SenderModuleDialog/chart/paint/ChartOverlay.h"
#include "SenderModuleDialog/chart/solve/ChartGeometry.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "SenderModuleDialog/colour/ColourStandards.h"
#include "host/OrviControl/Style.h"

#include <QPainter>

#include <algorithm>

/// @file
/// The chart's layers: each takes what it shows from the chart and has it drawn.

namespace {

QString StandardLabel(int nStandard)
{
    const int nLast = int(std::size(c_arrColourStandards)) - 1;
    return QString::fromLatin1(c_arrColourStandards[std::min(nStandard, nLast)].szName);
}

QPoint Truncated(QPointF pt)
{
    return {SaturateTo<int>(pt.x()), SaturateTo<int>(pt.y())};
}

} // namespace

ChartOverlay::SChartFrame CChromaticityDlgWndPrivate::Frame() const
{
    return {m_chart.Mapping(), m_chart.m_rcChart, GetFontFamily()};
}

void CChromaticityDlgWnd::DrawBorder(QPainter& painter)
{
    ChartOverlay::DrawBorder(painter, m_pBoundaryPx, m_pPrivate->BoundaryCount());
}

void CChromaticityDlgWnd::DrawHexCoorDialog(QPainter& painter)
{
    ChartOverlay::DrawGrid(painter, m_pPrivate->Frame(), m_nGridAlpha);
}

QPointF CChromaticityDlgWndPrivate::TipsPoint() const
{
    QPointF ptShown;
    if (m_chart.m_nHoverGroup < 0)
        ptShown = m_chart.Mapping().ToChromaticity(m_chart.m_ptMouse);
    else if (const SChromaGroupInfo* const pGroup = m_chart.m_mapGroups.value(m_chart.m_nHoverGroup, nullptr))
        ptShown = Widened(GroupPointOrOrigin(*pGroup, m_chart.m_nHoverPoint));
    return {std::max(ptShown.x(), 0.0), std::max(ptShown.y(), 0.0)};
}

void CChromaticityDlgWnd::DrawTipsString(QPainter& painter)
{
    const QPointF ptShown = m_pPrivate->TipsPoint();
    if (!m_pGamut->IsPointInCIEPolygon(ptShown))
        return;
    const bool bShowTemperature = m_bHitWhite && m_bShowCCT;
    const QString strTemperature =
        bShowTemperature ? ChartOverlay::TemperatureText(ptShown, m_ptD65, *m_pCct) : QString();
    ChartOverlay::DrawTips(painter, m_pPrivate->Frame(), {ptShown, bShowTemperature, strTemperature});
}

QPoint CChromaticityDlgWndPrivate::CrossPlace() const
{
    const SChromaGroupInfo* const pGroup = m_chart.m_mapGroups.value(m_chart.m_nHoverGroup, nullptr);
    if (m_chart.m_nHoverGroup < 0 || !m_chart.m_bCanDrag || pGroup == nullptr)
        return m_chart.m_ptMouse;
    return Truncated(m_chart.Mapping().ToPixel(GroupPointOrOrigin(*pGroup, m_chart.m_nHoverPoint)));
}

void CChromaticityDlgWnd::DrawCrossLine(QPainter& painter)
{
    // The mouse decides, during a drag too, where the cross stands at the point.
    const CPointEx<float> ptMouse(float(m_ptMouse.x()), float(m_ptMouse.y()));
    if (ChartGeometry::IsInOutline(ptMouse, m_pBoundaryPxF, m_pPrivate->BoundaryCount()))
        ChartOverlay::DrawCross(painter, m_pPrivate->Frame(), m_pPrivate->CrossPlace());
}

void CChromaticityDlgWnd::DrawCCTLine(QPainter& painter)
{
    ChartOverlay::DrawCctCurve(painter, m_pPrivate->Frame(), m_pPrivate->m_cctCurve);
}

void CChromaticityDlgWnd::DrawCCTLineString(QPainter& painter, float /*fValue*/, QPointF pos, int nCCT)
{
    ChartOverlay::DrawCctLabel(painter, m_pPrivate->Frame(), pos, nCCT);
}

void CChromaticityDlgWnd::DrawChromTriangle(QPainter& painter)
{
    const ChartOverlay::SChartFrame frame = m_pPrivate->Frame();
    const float fRadius = frame.mapping.DotRadius();
    // All charts of the process share the radii, and they are carried from paint to paint.
    static ChartOverlay::DotRadii s_radii = {fRadius, fRadius, fRadius, fRadius};
    const ChartOverlay::SHeldPoint held = m_bPressed && m_bDragging
                                              ? ChartOverlay::SHeldPoint{m_nHoverGroup, m_nHoverPoint}
                                              : ChartOverlay::SHeldPoint{};
    ChartOverlay::DrawGroups(painter, frame, m_mapGroups, held, s_radii);
}

void CChromaticityDlgWnd::DrawChromNote(QPainter& painter)
{
    ChartOverlay::DrawLegend(painter, m_pPrivate->Frame(), m_mapGroups, m_fTextRatio, height());
}

int CChromaticityDlgWnd::CalcRatio()
{
    return ChartOverlay::CalcRatio(m_mapGroups);
}

void CChromaticityDlgWnd::DrawCIEStandardShow(QPainter& painter)
{
    if (!m_bShowStandard)
        return;
    CalcCIEStandardValid();
    if (m_nStandard < 0)
        return;
    const ChartOverlay::SChartFrame frame = m_pPrivate->Frame();
    const QRectF rcBox = ChartOverlay::StandardBox(frame.mapping, size());
    ChartOverlay::DrawStandardLabel(painter, frame, rcBox, StandardLabel(m_nStandard));

    // Only the first group can be shown: with another index chosen, no group is the one.
    Require(m_nGroupIndex == 0 && !m_mapGroups.isEmpty(), "keyNum == m_nGroupIndex");
    const SChromaGroupInfo& group = Deref(m_mapGroups.first(), "m_mapGroups.first() != nullptr");
    const QPointF ptMiddle =
        (frame.mapping.ToPixel(group.ptRed) + frame.mapping.ToPixel(group.ptGreen)) / 2.0;
    ChartOverlay::DrawStandardLine(painter, rcBox, ptMiddle);
}
