#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "workbench/Tour.h"
#include "workbench/colour/ChartControls.h"
#include "workbench/colour/ChartExport.h"
#include "workbench/colour/ChartView.h"
#include "workbench/colour/ColourPage.h"
#include "workbench/colour/GroupModel.h"
#include "workbench/colour/GroupPanel.h"
#include "workbench/colour/PointKeys.h"
#include "workbench/colour/RegionOverlay.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

constexpr int c_nDragFrames = 12;

void SendMouse(QWidget& widget, QEvent::Type type, QPoint pos, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    QMouseEvent event(type, pos, widget.mapToGlobal(pos), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void Hover(QWidget& widget, QPoint pos)
{
    // The chart's answer to whether a point may be dragged lags one move behind.
    for (int i = 0; i < 2; ++i)
        SendMouse(widget, QEvent::MouseMove, pos, Qt::NoButton, Qt::NoButton);
}

/// A drag with the left button in even steps, the button down from first to last.
class CDrag
{
public:
    CDrag(CChartView& view, CPointEx<float> ptFrom, CPointEx<float> ptTo)
        : m_view(view)
        , m_ptFrom(view.PixelOf(ptFrom))
        , m_ptTo(view.PixelOf(ptTo))
    {
        SendMouse(m_view.Chart(), QEvent::MouseButtonPress, m_ptFrom.toPoint(), Qt::LeftButton,
                  Qt::LeftButton);
    }
    ~CDrag()
    {
        SendMouse(m_view.Chart(), QEvent::MouseButtonRelease, m_ptTo.toPoint(), Qt::LeftButton, Qt::NoButton);
    }
    Q_DISABLE_COPY(CDrag)

    /// @param dPart how far, 0 to 1
    void Move(double dPart)
    {
        SendMouse(m_view.Chart(), QEvent::MouseMove, (m_ptFrom + (m_ptTo - m_ptFrom) * dPart).toPoint(),
                  Qt::NoButton, Qt::LeftButton);
    }

private:
    CChartView& m_view;
    QPointF m_ptFrom;
    QPointF m_ptTo;
};

void Drag(CChartView& view, CPointEx<float> ptFrom, CPointEx<float> ptTo)
{
    CDrag(view, ptFrom, ptTo).Move(1.0);
}

void DrawRegion(CChartView& view, const QPolygonF& polygon)
{
    for (const QPointF& ptChromaticity : polygon) {
        const QPoint pt = view.Chart().Mapping().ToPixel(ptChromaticity).toPoint();
        SendMouse(view.Overlay(), QEvent::MouseMove, pt, Qt::NoButton, Qt::NoButton);
        SendMouse(view.Overlay(), QEvent::MouseButtonPress, pt, Qt::LeftButton, Qt::LeftButton);
    }
}

} // namespace

void CColourPage::TourOfModes(CTour& tour)
{
    CChartView& view = *m_pView;
    view.WaitForBitmap();
    tour.Picture(&view, QStringLiteral("chart-coverage"));
    m_pGroups->SelectKey(enOutputColorSpace);
    m_pGroups->RemoveSelected();
    m_pGroups->AddStandard(enStandardSRGB);
    m_pGroups->AddStandard(enStandardAdobeRGB);
    m_pGroups->AddStandard(enStandardDCIP3);
    tour.Picture(&view, QStringLiteral("chart-rgb"));
    CGroupModel& model = m_pGroups->Model();
    for (int i = 0; i < model.columnCount(); ++i)
        model.setData(model.index(CGroupModel::enMode, i), QStringLiteral("CMY"), Qt::EditRole);
    tour.Picture(&view, QStringLiteral("chart-cmy"));
    while (view.Editor().Steps().canUndo())
        view.Editor().Undo();
    tour.Check(ColourGroups::Coverage(view.Chart()).has_value(),
               QStringLiteral("undoing everything did not bring the coverage back"));
}

void CColourPage::TourOfLook(CTour& tour)
{
    CChartView& view = *m_pView;
    m_pControls->SetStandardShown(true);
    tour.Picture(&view, QStringLiteral("chart-standard"));
    m_pControls->SetStandardShown(false);
    const int nAlpha = view.Chart().m_nGridAlpha;
    m_pControls->SetGridAlpha(0);
    tour.Picture(&view, QStringLiteral("chart-no-grid"));
    m_pControls->SetGridAlpha(nAlpha);
    const QColor clrBefore = view.Chart().m_clrBackground;
    m_pControls->SetBackground(QColor(16, 24, 40));
    tour.Picture(&view, QStringLiteral("chart-background"));
    m_pControls->SetBackground(clrBefore);
    m_pControls->SetTemperatureShown(true);
    Hover(view.Chart(), view.PixelOf({0.25F, 0.45F}));
    tour.Picture(&view, QStringLiteral("chart-tips"));
    Hover(view.Chart(), view.PixelOf(ColourGroups::ScreenSpace().ptWhite));
    tour.Picture(this, QStringLiteral("chart-tips-white"));
    m_pControls->SetTemperatureShown(false);
}

void CColourPage::TourOfRegion(CTour& tour)
{
    CChartView& view = *m_pView;
    m_pControls->DrawRegion();
    const QPolygonF polygon({{0.20, 0.20}, {0.50, 0.28}, {0.46, 0.46}, {0.30, 0.62}, {0.20, 0.45}});
    DrawRegion(view, polygon);
    tour.Picture(&view, QStringLiteral("chart-region-drawing"));
    SendMouse(view.Overlay(), QEvent::MouseButtonDblClick, {}, Qt::LeftButton, Qt::LeftButton);
    tour.Check(view.Region().IsOn(), QStringLiteral("the region that was drawn is not on"));
    const SChromaGroupInfo screen = ColourGroups::ScreenSpace();
    Drag(view, screen.ptGreen, {0.32F, 0.66F});
    tour.Picture(&view, QStringLiteral("chart-region"));
    const SChromaGroupInfo* pGroup = view.Chart().GetChromaGroupByIndex(enScreenColorSpace);
    tour.Check(view.Region().Allows(pGroup->ptGreen), QStringLiteral("a drag left the region"));
    m_pControls->ClearRegion();
    view.Editor().Undo();
}

void CColourPage::TourOfDrag(CTour& tour)
{
    CChartView& view = *m_pView;
    const SChromaGroupInfo screen = ColourGroups::ScreenSpace();
    {
        CDrag drag(view, screen.ptGreen, {0.12F, 0.88F});
        for (int i = 1; i <= c_nDragFrames; ++i) {
            drag.Move(double(i) / c_nDragFrames);
            tour.Picture(&view, QStringLiteral("chart-drag-%1").arg(i, 2, 10, QLatin1Char('0')));
        }
    }
    const SChromaGroupInfo* pGroup = view.Chart().GetChromaGroupByIndex(enScreenColorSpace);
    tour.Check(ColourGroups::PointText(pGroup->ptGreen) != ColourGroups::PointText(screen.ptGreen),
               QStringLiteral("the drag moved nothing"));
    view.Editor().Undo();
    tour.Check(ColourGroups::PointText(pGroup->ptGreen) == ColourGroups::PointText(screen.ptGreen),
               QStringLiteral("undo did not take the drag back in one step"));
}

void CColourPage::TourOfKeys(CTour& tour)
{
    CPointKeys& keys = m_pView->Keys();
    const SChromaGroupInfo* pGroup = m_pView->Chart().GetChromaGroupByIndex(enScreenColorSpace);
    const CPointEx<float> ptBefore = pGroup->ptGreen;
    // The ring is there while the keys go to the chart.
    QApplication::setActiveWindow(window());
    keys.setFocus(Qt::OtherFocusReason);
    keys.Select({enScreenColorSpace, enGreenPoint});
    for (int i = 0; i < 2; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
        QCoreApplication::sendEvent(&keys, &press);
    }
    tour.Picture(this, QStringLiteral("chart-keys"));
    tour.Check(pGroup->ptGreen.x > ptBefore.x, QStringLiteral("an arrow did not move the focused point"));
    keys.Select({enScreenColorSpace, enGreenPoint});
    m_pView->Editor().Undo();
}

void CColourPage::TourOfReadings(CTour& tour)
{
    ShowTab(enReadingsTab);
    m_pView->WaitForBitmap();
    tour.Picture(this, QStringLiteral("chart-readings"));
    ShowTab(enGroupsTab);
}

void CColourPage::TourOfFiles(CTour& tour)
{
    const QDir folder(tour.Folder());
    tour.Check(SavePng(folder.filePath(QStringLiteral("chart.png"))), QStringLiteral("no PNG was saved"));
    tour.Check(SaveSvg(folder.filePath(QStringLiteral("chart.svg"))), QStringLiteral("no SVG was saved"));
    tour.Check(!SavePng(folder.filePath(QStringLiteral("missing/chart.png"))),
               QStringLiteral("a PNG was saved in a folder that is not there"));
}

void CColourPage::Tour(CTour& tour, QWidget* pWorkbench)
{
    QCoreApplication::processEvents();
    m_pView->WaitForBitmap();
    tour.Picture(pWorkbench, QStringLiteral("colour"));
    TourOfModes(tour);
    TourOfLook(tour);
    TourOfRegion(tour);
    TourOfDrag(tour);
    TourOfKeys(tour);
    TourOfReadings(tour);
    TourOfFiles(tour);
}
