#ifndef TESTS_CHART_MOUSETESTING_H
#define TESTS_CHART_MOUSETESTING_H

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "oracles/chart/PlainChart.h"

#include <QApplication>
#include <QMouseEvent>
#include <QtTest>

/// What the tests of the chart under the mouse share.
namespace MouseTesting {

/// A side at which the margins are 30 pixels and the scale is 600.
inline constexpr int c_nSide = 600;

inline SChromaGroupInfo Group()
{
    SChromaGroupInfo group;
    group.ptRed = {0.64F, 0.33F};
    group.ptGreen = {0.30F, 0.60F};
    group.ptBlue = {0.15F, 0.06F};
    group.ptWhite = {0.3127F, 0.329F};
    group.bMoveRed = group.bMoveGreen = group.bMoveBlue = group.bMoveWhite = true;
    return group;
}

class CTestChart : public CChromaticityDlgWnd
{
public:
    CTestChart()
        : CChromaticityDlgWnd(nullptr)
    {
        resize(c_nSide, c_nSide);
        SetSize(c_nSide, c_nSide);
    }

    QPoint PixelOf(CPoint pt) const { return Mapping().ToPixel(pt).toPoint(); }
    SChromaGroupInfo& First() { return *m_mapGroups.first(); }

    void Press(QPoint pos, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(this, button, Qt::NoModifier, pos);
    }
    void Release(QPoint pos) { QTest::mouseRelease(this, Qt::LeftButton, Qt::NoModifier, pos); }
    void Move(QPoint pos, Qt::MouseButtons buttons)
    {
        QMouseEvent event(QEvent::MouseMove, pos, mapToGlobal(pos), Qt::NoButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(this, &event);
    }
    /// Drags a point of the first group to a chromaticity, in one move.
    void Drag(int nPoint, CPoint ptTo)
    {
        const QPoint posFrom = PixelOf(GroupPoint(First(), nPoint));
        const QPoint posTo = PixelOf(ptTo);
        Press(posFrom);
        Move(posTo, Qt::LeftButton);
        Release(posTo);
    }
    /// A host that keeps every new position.
    void Accept()
    {
        connect(this, &CChromaticityDlgWnd::OnPositionChangeSignal, this,
                [](int, int, bool& bSuccessed) { bSuccessed = true; });
    }

    int nPaints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++nPaints;
        CChromaticityDlgWnd::paintEvent(event);
    }
};

} // namespace MouseTesting

#endif // TESTS_CHART_MOUSETESTING_H
