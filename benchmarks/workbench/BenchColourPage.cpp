#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "benchmarks/support/RatioReporter.h"
#include "workbench/colour/ChartView.h"
#include "workbench/colour/ColourPage.h"
#include "workbench/colour/ReadingsPanel.h"
#include "workbench/colour/WallPanel.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QClipboard>
#include <QMouseEvent>

/// @file
/// A step of a drag on the shown colour page, from the mouse's move to the last repaint that it causes: with
/// the readings in front, and with the groups alone.

namespace {

/// A place of the circle that the drag goes around.
constexpr int c_nPlaces = 24;

class CDraggedPage
{
public:
    explicit CDraggedPage(CColourPage::enTab tab)
    {
        m_page.resize(1000, 640);
        m_page.ShowTab(tab);
        m_page.show();
        Settle();
        m_page.View().WaitForBitmap();
        const auto* pScreen = m_page.View().Chart().GetChromaGroupByIndex(enScreenColorSpace);
        m_ptStart = m_page.View().PixelOf(pScreen->ptGreen);
        // The chart's answer to whether a point may be dragged lags one move behind.
        Send(QEvent::MouseMove, m_ptStart, Qt::NoButton);
        Send(QEvent::MouseMove, m_ptStart, Qt::NoButton);
        Send(QEvent::MouseButtonPress, m_ptStart, Qt::LeftButton);
    }

    void Step()
    {
        m_nStep = (m_nStep + 1) % c_nPlaces;
        Send(QEvent::MouseMove, m_ptStart + QPoint(m_nStep, m_nStep / 2), Qt::LeftButton);
        Settle();
    }

    CColourPage& Page() { return m_page; }

private:
    static void Settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    void Send(QEvent::Type type, QPoint pos, Qt::MouseButtons buttons)
    {
        CChromaticityDlgWnd& chart = m_page.View().Chart();
        const Qt::MouseButton button = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, pos, chart.mapToGlobal(pos), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&chart, &event);
    }

    CColourPage m_page;
    QPoint m_ptStart;
    int m_nStep = 0;
};

void DragStep(benchmark::State& state, CColourPage::enTab tab)
{
    CDraggedPage dragged(tab);
    for (auto step : state) {
        Q_UNUSED(step)
        dragged.Step();
    }
}

void WithReadings(benchmark::State& state)
{
    DragStep(state, CColourPage::enReadingsTab);
}

void WithGroups(benchmark::State& state)
{
    DragStep(state, CColourPage::enGroupsTab);
}

/// What the readings add to a step before anything is painted.
void Readings(benchmark::State& state)
{
    CDraggedPage dragged(CColourPage::enReadingsTab);
    for (auto step : state) {
        Q_UNUSED(step)
        dragged.Page().Readings().Refresh();
    }
}

/// The step with the side panel hidden: the chart with its overlay.
void ChartAlone(benchmark::State& state)
{
    CDraggedPage dragged(CColourPage::enReadingsTab);
    dragged.Page().Readings().parentWidget()->parentWidget()->hide();
    for (auto step : state) {
        Q_UNUSED(step)
        dragged.Step();
    }
}

/// The step over a thousand measured modules.
void OverModules(benchmark::State& state)
{
    CDraggedPage dragged(CColourPage::enReadingsTab);
    QString strText = QStringLiteral("module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY\n");
    for (int i = 0; i < 1000; ++i)
        strText += QStringLiteral("%1,%2,0.305,240,%3,0.7,800,0.14,0.055,76\n")
                       .arg(i)
                       .arg(0.68 + 0.00001 * (i % 97))
                       .arg(0.19 + 0.00002 * (i % 89));
    QGuiApplication::clipboard()->setText(strText);
    dragged.Page().Wall().Paste();
    for (auto step : state) {
        Q_UNUSED(step)
        dragged.Step();
    }
    dragged.Page().Wall().Clear();
}

} // namespace

int main(int nArguments, char** ppArguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(nArguments, ppArguments);
    benchmark::RegisterBenchmark("drag step with the readings/library", WithReadings)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("drag step over 1,000 modules/library", OverModules)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("calculate the readings/library", Readings)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("drag step of the chart alone/library", ChartAlone)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("drag step with the groups/library", WithGroups)
        ->Unit(benchmark::kMicrosecond);
    return RunWithRatios(nArguments, ppArguments);
}
