#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "workbench/MainWindow.h"
#include "workbench/ProjectHistory.h"
#include "workbench/colour/ChartControls.h"
#include "workbench/colour/ChartExport.h"
#include "workbench/colour/ChartView.h"
#include "workbench/colour/ColourPage.h"
#include "workbench/colour/GroupModel.h"
#include "workbench/colour/GroupPanel.h"
#include "workbench/colour/PictureSizeDialog.h"
#include "workbench/colour/PointKeys.h"
#include "workbench/colour/RegionOverlay.h"
#include "workbench/colour/WallPanel.h"
#include "workbench/tour/PageTours.h"
#include "workbench/tour/Tour.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

constexpr int c_nDragFrames = 12;
constexpr int c_nDemoModules = 24;

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

CProjectHistory& History(CColourPage& page)
{
    return qobject_cast<CMainWindow*>(page.window())->History();
}

void UndoAll(CColourPage& page)
{
    while (History(page).Steps().canUndo())
        History(page).Undo();
}

void TourOfModes(CTour& tour, CColourPage& page)
{
    CChartView& view = page.View();
    view.WaitForBitmap();
    tour.Picture(&view, QStringLiteral("chart-coverage"));
    page.Groups().SelectKey(enOutputColorSpace);
    page.Groups().RemoveSelected();
    page.Groups().AddStandard(enStandardSRGB);
    page.Groups().AddStandard(enStandardAdobeRGB);
    page.Groups().AddStandard(enStandardDCIP3);
    tour.Picture(&view, QStringLiteral("chart-rgb"));
    CGroupModel& model = page.Groups().Model();
    for (int i = 0; i < model.columnCount(); ++i)
        model.setData(model.index(CGroupModel::enMode, i), QStringLiteral("CMY"), Qt::EditRole);
    tour.Picture(&view, QStringLiteral("chart-cmy"));
    UndoAll(page);
    tour.Check(ColourGroups::Coverage(view.Chart()).has_value(),
               QStringLiteral("undoing everything did not bring the coverage back"));
}

void TourOfLook(CTour& tour, CColourPage& page)
{
    CChartView& view = page.View();
    page.Controls().SetStandardShown(true);
    tour.Picture(&view, QStringLiteral("chart-standard"));
    page.Controls().SetStandardShown(false);
    const int nAlpha = view.Chart().m_nGridAlpha;
    page.Controls().SetGridAlpha(0);
    tour.Picture(&view, QStringLiteral("chart-no-grid"));
    page.Controls().SetGridAlpha(nAlpha);
    const QColor clrBefore = view.Chart().m_clrBackground;
    page.Controls().SetBackground(QColor(16, 24, 40));
    tour.Picture(&view, QStringLiteral("chart-background"));
    page.Controls().SetBackground(clrBefore);
    page.Controls().SetTemperatureShown(true);
    Hover(view.Chart(), view.PixelOf({0.25F, 0.45F}));
    tour.Picture(&view, QStringLiteral("chart-tips"));
    Hover(view.Chart(), view.PixelOf(ColourGroups::ScreenSpace().ptWhite));
    tour.Picture(&page, QStringLiteral("chart-tips-white"));
    page.Controls().SetTemperatureShown(false);
}

void TourOfRegion(CTour& tour, CColourPage& page)
{
    CChartView& view = page.View();
    page.Controls().DrawRegion();
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
    UndoAll(page);
    tour.Check(!view.Region().IsRegion(), QStringLiteral("undo did not take the region back"));
}

void TourOfDrag(CTour& tour, CColourPage& page)
{
    CChartView& view = page.View();
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
    History(page).Undo();
    tour.Check(ColourGroups::PointText(pGroup->ptGreen) == ColourGroups::PointText(screen.ptGreen),
               QStringLiteral("undo did not take the drag back in one step"));
}

void TourOfKeys(CTour& tour, CColourPage& page)
{
    CPointKeys& keys = page.View().Keys();
    const SChromaGroupInfo* pGroup = page.View().Chart().GetChromaGroupByIndex(enScreenColorSpace);
    const CPointEx<float> ptBefore = pGroup->ptGreen;
    // The ring is visible while the chart has the focus.
    QApplication::setActiveWindow(page.window());
    keys.setFocus(Qt::OtherFocusReason);
    keys.Select({enScreenColorSpace, enGreenPoint});
    for (int i = 0; i < 2; ++i) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
        QCoreApplication::sendEvent(&keys, &press);
    }
    tour.Picture(&page, QStringLiteral("chart-keys"));
    tour.Check(pGroup->ptGreen.x > ptBefore.x, QStringLiteral("an arrow did not move the focused point"));
    keys.Select({enScreenColorSpace, enGreenPoint});
    History(page).Undo();
}

void TourOfReadings(CTour& tour, CColourPage& page)
{
    page.ShowTab(CColourPage::enReadingsTab);
    page.View().WaitForBitmap();
    tour.Picture(&page, QStringLiteral("chart-readings"));
    page.ShowTab(CColourPage::enGroupsTab);
}

/// A wall of 24 modules in a spreadsheet's clipboard format; the blue of one has faded.
QString DemoWall()
{
    QString strText = QStringLiteral("module\tRx\tRy\tRY\tGx\tGy\tGY\tBx\tBy\tBY\n");
    for (int i = 0; i < c_nDemoModules; ++i) {
        const int nOffset = i * 7 % 11 - 5;
        const double dOffset = 0.0006 * nOffset;
        strText += QStringLiteral("M%1\t%2\t0.305\t240\t%3\t0.7\t800\t0.14\t%4\t%5\n")
                       .arg(i + 1)
                       .arg(0.68 + dOffset)
                       .arg(0.2 - dOffset)
                       .arg(0.056 + dOffset / 2.0)
                       .arg(i == c_nDemoModules / 2 ? 60 : 76);
    }
    return strText;
}

void TourOfWall(CTour& tour, CColourPage& page)
{
    page.ShowTab(CColourPage::enWallTab);
    tour.Picture(&page, QStringLiteral("chart-wall-empty"));
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.setText(QStringLiteral("module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY\n1,0.69,0.3o,240\n"));
    tour.WithMessage(QStringLiteral("chart-wall-not-pasted"), 0,
                     [&] { tour.Check(!page.Wall().Paste(), QStringLiteral("a wrong number was pasted")); });
    tour.Picture(&page, QStringLiteral("chart-wall-problem"));
    clipboard.setText(DemoWall());
    tour.Check(page.Wall().Paste(), QStringLiteral("measurements were not pasted"));
    tour.Picture(&page, QStringLiteral("chart-wall"));
    page.ShowUcs(true);
    tour.Picture(&page, QStringLiteral("chart-ucs"));
    page.ShowUcs(false);
    tour.Check(page.Wall().SaveReport(QDir(tour.Folder()).filePath(QStringLiteral("wall.pdf"))),
               QStringLiteral("no report was saved"));
    page.Wall().Clear();
    page.ShowTab(CColourPage::enGroupsTab);
}

void TourOfFiles(CTour& tour, CColourPage& page)
{
    const QDir folder(tour.Folder());
    const SPictureSize size = ChartExport::ScreenSize(page.View().Chart());
    CPictureSizeDialog dialog(size, CPictureSizeDialog::enPixels, page.Title(), &page);
    tour.WithDialog(dialog, [&] { tour.Picture(&dialog, QStringLiteral("chart-size")); });
    tour.Check(page.SavePng(folder.filePath(QStringLiteral("chart.png")), size),
               QStringLiteral("no PNG was saved"));
    tour.Check(page.SaveSvg(folder.filePath(QStringLiteral("chart.svg")), size.size),
               QStringLiteral("no SVG was saved"));
    tour.WithMessage(QStringLiteral("chart-not-saved"), 0, [&] {
        tour.Check(!page.SavePng(folder.filePath(QStringLiteral("missing/chart.png")), size),
                   QStringLiteral("a PNG was saved in a folder that is not there"));
    });
}

} // namespace

void PageTours::Colour(CTour& tour, CMainWindow& window)
{
    CColourPage& page = *window.findChild<CColourPage*>();
    QCoreApplication::processEvents();
    page.View().WaitForBitmap();
    tour.Picture(&page, QStringLiteral("colour"));
    TourOfModes(tour, page);
    TourOfLook(tour, page);
    TourOfRegion(tour, page);
    TourOfDrag(tour, page);
    TourOfKeys(tour, page);
    TourOfReadings(tour, page);
    TourOfWall(tour, page);
    TourOfFiles(tour, page);
}
