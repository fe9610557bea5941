#include "workbench/colour/ChartView.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/chart/ChromaGamutThread.h"
#include "workbench/colour/PointKeys.h"
#include "workbench/colour/RegionOverlay.h"

#include <QMouseEvent>

#include <algorithm>

namespace {

/// The window type that shows the bitmap which the worker paints.
constexpr int c_nWorkerType = 0;

/// The chart is laid out for sides above 100 pixels; below twice that it cannot be read.
constexpr QSize c_sizeSmallest(200, 200);
constexpr QSize c_sizeFirst(560, 560);

} // namespace

CChartView::CChartView(QWidget* pParent)
    : QWidget(pParent)
    , m_pChart(new CChromaticityDlgWnd(this))
    , m_pEditor(new CChartEditor(*m_pChart, this))
    , m_pOverlay(new CRegionOverlay(*m_pChart, m_region, this))
    , m_pKeys(new CPointKeys(*this, this))
{
    m_pChart->SetWndType(c_nWorkerType);
    m_pChart->installEventFilter(this);
    // After a click the arrows fine-tune what was dragged.
    m_pChart->setFocusProxy(m_pKeys);
    // The answer is read right after the emission.
    connect(m_pChart, &CChromaticityDlgWnd::OnPositionChangeSignal, this, &CChartView::Answer,
            Qt::DirectConnection);
    connect(m_pEditor, &CChartEditor::Changed, m_pChart, QOverload<>::of(&QWidget::update));
    resize(c_sizeFirst);
    LayOut();
}

QSize CChartView::sizeHint() const
{
    return c_sizeFirst;
}

QSize CChartView::minimumSizeHint() const
{
    return c_sizeSmallest;
}

void CChartView::resizeEvent(QResizeEvent* /*pEvent*/)
{
    LayOut();
}

void CChartView::LayOut()
{
    const QSize sizeChart = size().expandedTo(c_sizeSmallest);
    m_pChart->setGeometry(QRect(QPoint(0, 0), sizeChart));
    m_pOverlay->setGeometry(m_pChart->geometry());
    m_pKeys->setGeometry(m_pChart->geometry());
    m_pChart->SetSize(sizeChart.width(), sizeChart.height());
    m_pChart->StoreWndData(c_nWorkerType, sizeChart.width(), sizeChart.height());
    m_pChart->StartWndBitmapThread();
    m_pChart->update();
}

void CChartView::WaitForBitmap()
{
    m_pChart->m_pThread->wait();
    m_pChart->update();
}

QPoint CChartView::PixelOf(CPointEx<float> point) const
{
    return m_pChart->Mapping().ToPixel(point).toPoint();
}

bool CChartView::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pWatched != m_pChart)
        return QWidget::eventFilter(pWatched, pEvent);
    const auto IsLeft = [pEvent] {
        return static_cast<const QMouseEvent*>(pEvent)->button() == Qt::LeftButton;
    };
    if (pEvent->type() == QEvent::MouseButtonPress && IsLeft())
        TakePoint(static_cast<const QMouseEvent*>(pEvent)->pos());
    else if (pEvent->type() == QEvent::MouseMove)
        RememberPlace();
    else if (pEvent->type() == QEvent::Leave)
        Q_EMIT MouseLeft();
    else if (pEvent->type() == QEvent::MouseButtonRelease && IsLeft()) {
        EndDrag();
        SelectDragged();
    }
    return QWidget::eventFilter(pWatched, pEvent);
}

void CChartView::RememberPlace()
{
    if (const SChromaGroupInfo* pGroup = m_pChart->m_mapGroups.value(m_pChart->m_nHoverGroup, nullptr))
        m_ptBefore = GroupPointOrOrigin(*pGroup, m_pChart->m_nHoverPoint);
    QMetaObject::invokeMethod(this, &CChartView::MouseMoved, Qt::QueuedConnection);
}

void CChartView::Answer(int nGroup, int nPoint, bool& bSuccessed)
{
    bSuccessed = m_region.Answer(*m_pChart, nGroup, nPoint, m_ptBefore);
    SChromaGroupInfo* pGroup = m_pChart->GetChromaGroupByIndex(nGroup);
    // The chart keeps the dragged point inside the locus; in CMY mode the triangle has different vertices.
    if (bSuccessed && pGroup != nullptr && !pGroup->bRgbMode)
        m_pChart->ReCalCMY(pGroup);
    // The point reaches its final place only after the answer is read.
    QMetaObject::invokeMethod(m_pEditor, &CChartEditor::Changed, Qt::QueuedConnection);
}

void CChartView::TakePoint(QPoint pos)
{
    m_pEditor->BeginDrag();
    int nGroup = -1;
    int nPoint = enNoPoint;
    m_pChart->HitTest(pos, nGroup, nPoint);
    if (nPoint != enNoPoint)
        Q_EMIT PointTaken(nGroup);
}

void CChartView::SelectDragged()
{
    const SGroupPoint point = {m_pChart->m_nHoverGroup, m_pChart->m_nHoverPoint};
    if (m_pKeys->Points().contains(point))
        m_pKeys->Select(point);
}

void CChartView::MovePoint(int nGroup, int nPoint, QPointF offset)
{
    SChromaGroupInfo* const pGroup = m_pChart->GetChromaGroupByIndex(nGroup);
    if (pGroup == nullptr || !IsChromaPoint(nPoint))
        return;
    m_ptBefore = GroupPoint(*pGroup, nPoint);
    const QPointF ptTarget = QPointF(double(m_ptBefore.x), double(m_ptBefore.y)) + offset;
    // The chart moves the point that it has recorded as under the mouse.
    const int nHoverPoint = m_pChart->m_nHoverPoint;
    m_pChart->m_nHoverPoint = nPoint;
    m_pChart->CalcCurrentPoint(m_pChart->Mapping().ToPixel(ptTarget), pGroup);
    m_pChart->m_nHoverPoint = nHoverPoint;
    bool bSuccessed = false;
    Answer(nGroup, nPoint, bSuccessed);
    if (!bSuccessed && IsColourPoint(nPoint))
        GroupPoint(*pGroup, nPoint) = m_pChart->QPointFToCPointF(m_pChart->m_ptNearest);
    m_pChart->update();
}

void CChartView::EndDrag()
{
    m_pEditor->EndDrag();
    AskForStandard();
    // The chart itself does not repaint at the end of a drag.
    m_pChart->update();
}

void CChartView::SetStandardShown(bool bShown)
{
    m_bStandardShown = bShown;
    AskForStandard();
}

void CChartView::PreferStandard(enColorStandard standard)
{
    m_standard = standard;
    AskForStandard();
}

void CChartView::AskForStandard()
{
    // The chart names only its first group, which it requests by index 0.
    m_pChart->ShowCIEStandard(0, m_standard, m_bStandardShown);
    m_pChart->update();
}
