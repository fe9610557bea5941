#ifndef TESTS_WORKBENCH_COLOUR_SHOWNCOLOURPAGE_H
#define TESTS_WORKBENCH_COLOUR_SHOWNCOLOURPAGE_H

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "workbench/ProjectHistory.h"
#include "workbench/colour/ChartControls.h"
#include "workbench/colour/ChartView.h"
#include "workbench/colour/ColourPage.h"
#include "workbench/colour/RegionOverlay.h"

#include <QAction>
#include <QtTest>

/// The page as it starts: the output and the screen colour space, the latter to be dragged. Beside it the
/// history of the project.
struct SShownColourPage
{
    CColourPage page;
    CProjectHistory history;

    SShownColourPage()
    {
        history.Follow(page);
        page.addActions({history.UndoAction(), history.RedoAction()});
        page.resize(1000, 640);
        page.show();
        QCoreApplication::processEvents();
        View().WaitForBitmap();
    }

    CChartView& View() { return page.View(); }
    CChromaticityDlgWnd& Chart() { return page.View().Chart(); }
    const QUndoStack& Steps() const { return history.Steps(); }
    SChromaGroupInfo& Screen() { return *Chart().GetChromaGroupByIndex(enScreenColorSpace); }

    void Move(CPointEx<float> pt) { QTest::mouseMove(&Chart(), View().PixelOf(pt)); }
    void Press(CPointEx<float> pt)
    {
        Move(pt);
        QTest::mousePress(&Chart(), Qt::LeftButton, Qt::NoModifier, View().PixelOf(pt));
    }
    /// A move with the left button held, which QTest::mouseMove would not say.
    void Pull(CPointEx<float> pt)
    {
        const QPoint pos = View().PixelOf(pt);
        QMouseEvent event(QEvent::MouseMove, pos, Chart().mapToGlobal(pos), Qt::NoButton, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&Chart(), &event);
    }
    void Release(CPointEx<float> pt)
    {
        QTest::mouseRelease(&Chart(), Qt::LeftButton, Qt::NoModifier, View().PixelOf(pt));
    }
    void Drag(CPointEx<float> ptFrom, CPointEx<float> ptTo)
    {
        constexpr int c_nSteps = 5;
        Press(ptFrom);
        for (int i = 1; i <= c_nSteps; ++i) {
            const float fPart = float(i) / float(c_nSteps);
            Pull({ptFrom.x + (ptTo.x - ptFrom.x) * fPart, ptFrom.y + (ptTo.y - ptFrom.y) * fPart});
        }
        Release(ptTo);
    }
    void Draw(const QPolygonF& polygon)
    {
        page.Controls().DrawRegion();
        for (const QPointF& pt : polygon)
            QTest::mouseClick(&View().Overlay(), Qt::LeftButton, Qt::NoModifier,
                              Chart().Mapping().ToPixel(pt).toPoint());
    }
};

#endif // TESTS_WORKBENCH_COLOUR_SHOWNCOLOURPAGE_H
