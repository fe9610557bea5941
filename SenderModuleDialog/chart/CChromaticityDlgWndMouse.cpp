#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/chart/CChromaticityDlgWndPrivate.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/chart/solve/ChartHitTest.h"
#include "SenderModuleDialog/chart/solve/ChartSolver.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPainter>

/// @file
/// How the operator points at a group's dot and drags it. The cursor's shape is left alone until the button
/// is released: feedback by the cursor is no part of the chart.

void CChromaticityDlgWnd::HitTest(QPoint pos, int& nGroup, int& nPoint)
{
    const SChartHit hit = HitTestChart(m_mapGroups, Mapping(), pos);
    m_bHitWhite = hit.bWhite;
    nGroup = hit.nGroup;
    nPoint = hit.nPoint;
}

void CChromaticityDlgWnd::CalcCurrentPoint(QPointF pos, SChromaGroupInfo* pGroup)
{
    const CPointEx<float> ptTarget = QPointFToCPointF(Mapping().ToChromaticity(pos));
    const SWhiteSnap snap = {m_ptD65, *m_pCct};
    m_pPrivate->m_solver.DragPoint(Deref(pGroup, "pGroup != nullptr"), m_nHoverPoint, ptTarget,
                                   m_bSnapWhite ? &snap : nullptr, m_ptNearest);
}

void CChromaticityDlgWnd::mousePressEvent(QMouseEvent* event)
{
    setFocus(Qt::OtherFocusReason);
    if (event->button() != Qt::LeftButton)
        return;
    int nGroup = -1;
    int nPoint = enNoPoint;
    HitTest(event->pos(), nGroup, nPoint);
    if (nPoint == enNoPoint) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_nHoverGroup = nGroup;
    m_nHoverPoint = nPoint;
    m_bCanDrag = IsPointMovable(*m_mapGroups.value(nGroup), nPoint);
    m_bPressed = true;
    m_bFirstPress = false;
    if (m_bCanDrag)
        m_bDragging = true;
    else
        m_nHoverGroup = -1;
    update();
}

void CChromaticityDlgWnd::mouseMoveEvent(QMouseEvent* event)
{
    m_ptMouse = event->pos();
    if (!event->buttons().testFlag(Qt::LeftButton))
        m_pPrivate->Hover(event->pos());
    else if (m_bCanDrag && m_mapGroups.value(m_nHoverGroup, nullptr) != nullptr)
        m_pPrivate->Drag(event->pos());
    else
        return;
    update();
}

void CChromaticityDlgWndPrivate::Drag(QPoint pos)
{
    m_chart.m_bMouseInside = true;
    m_chart.m_bShowStandard = false;
    m_chart.CalcCurrentPoint(QPointF(pos), m_chart.m_mapGroups.value(m_chart.m_nHoverGroup));

    const int nGroup = m_chart.m_nHoverGroup;
    const int nPoint = m_chart.m_nHoverPoint;
    bool bSuccessed = false;
    Q_EMIT m_chart.OnPositionChangeSignal(nGroup, nPoint, bSuccessed);
    // The host may have changed the groups in its answer. For the white the new place stands whatever
    // it says.
    SChromaGroupInfo* const pGroup = m_chart.m_mapGroups.value(nGroup, nullptr);
    if (!bSuccessed && pGroup != nullptr && IsColourPoint(nPoint))
        GroupPoint(*pGroup, nPoint) = m_chart.QPointFToCPointF(m_chart.m_ptNearest);
}

void CChromaticityDlgWndPrivate::Hover(QPoint pos)
{
    // In pixels, not in chromaticities: in effect this is never inside. Nothing reads it.
    m_chart.m_bMouseInside = m_chart.m_pGamut->IsPointInCIEPolygon(QPointF(pos));
    int nGroup = -1;
    int nPoint = enNoPoint;
    m_chart.HitTest(pos, nGroup, nPoint);
    // The flag is that of the point from before this move: it lags one move behind, and a press sets it anew.
    if (nPoint != enNoPoint && IsChromaPoint(m_chart.m_nHoverPoint))
        m_chart.m_bCanDrag = IsPointMovable(*m_chart.m_mapGroups.value(nGroup), m_chart.m_nHoverPoint);
    m_chart.m_nHoverGroup = nGroup;
    m_chart.m_nHoverPoint = nPoint;
}

void CChromaticityDlgWnd::mouseReleaseEvent(QMouseEvent* event)
{
    const QPoint pos = event->pos();
    m_nHoverGroup = -1;
    m_nHoverPoint = enNoPoint;
    m_bCanDrag = false;
    m_bMouseInside = pos.x() >= 0 && pos.y() >= 0 && pos.x() <= width() && pos.y() <= height();
    m_bDragging = false;
    setCursor(Qt::ArrowCursor);
}

void CChromaticityDlgWnd::leaveEvent(QEvent* /*event*/)
{
    update();
}

void CChromaticityDlgWnd::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    Draw(painter);
    painter.end();
}
