#include "SenderModuleDialog/chart/solve/ChartGeometry.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "tests/chart/ChartInputs.h"
#include "tests/chart/MouseTesting.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/ExactCompare.h"

#include <QLineF>

using namespace MouseTesting;

/// The chart under the mouse: what is hit, what a drag does, and what the host is asked, by real
/// mouse events.
class TestCChromaticityDlgWndMouse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AMovablePointUnderTheMouseWins_data();
    void AMovablePointUnderTheMouseWins();
    void ADotOfAHiddenGroupIsHit();
    void AWhiteUnderTheMouseIsNotedWhateverTheResultIs();
    void TheHitBoxIncludesItsEdges_data();
    void TheHitBoxIncludesItsEdges();
    void HitTestAllocatesNothing();

    void RedBeyondTheLocusStopsJustInside();
    void RedThatLosesTheWhiteMovesToTheConesEdge();
    void AWhiteOutsideTheTriangleComesToTheNearestEdge();
    void AWhiteNearAVertexLandsOnIt();
    void AWhiteNearD65SnapsToIt_data();
    void AWhiteNearD65SnapsToIt();
    void ADragStepAllocatesNothing();
    void ADragStepCountsAsAUseOfTheList();

    void TheHostIsAskedAfterThePointWasMoved();
    void ARefusedPointGoesToTheNearestPoint();
    void WithoutAnAnswerPointsJumpToTheOrigin();
    void ARefusedWhiteMovesAllTheSame();
    void TheHostMayRemoveTheGroupInItsAnswer();

    void ARightPressChangesNothingButTheFocus();
    void APressOnNothingGoesToTheWidgetBelow();
    void APressOnAFixedPointBlocksTheDrag();
    void TheFlagLagsOneMoveBehind();
    void ADragEndsTheShowingOfTheStandard();
    void AReleaseEndsEverythingButThePress_data();
    void AReleaseEndsEverythingButThePress();
    void OnlyTheReleaseSetsTheCursor();
    void WhatRepaints_data();
    void WhatRepaints();
};

namespace {

double DistanceOf(CPoint ptFirst, CPoint ptSecond)
{
    return QLineF(Widened(ptFirst), Widened(ptSecond)).length();
}

} // namespace

void TestCChromaticityDlgWndMouse::AMovablePointUnderTheMouseWins_data()
{
    QTest::addColumn<bool>("bFirstMoves");
    QTest::addColumn<bool>("bSecondMoves");
    QTest::addColumn<int>("nGroup");
    QTest::newRow("the first fixed, the second movable") << false << true << 1;
    QTest::newRow("both fixed") << false << false << 0;
    QTest::newRow("both movable") << true << true << 1;
    QTest::newRow("the first movable, the second fixed") << true << false << 0;
}

void TestCChromaticityDlgWndMouse::AMovablePointUnderTheMouseWins()
{
    QFETCH(bool, bFirstMoves);
    QFETCH(bool, bSecondMoves);
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.AddChromaGroupByIndex(1, Group());
    chart.GetChromaGroupByIndex(0)->bMoveRed = bFirstMoves;
    chart.GetChromaGroupByIndex(1)->bMoveRed = bSecondMoves;
    int nGroup = -1;
    int nPoint = -1;
    chart.HitTest(chart.PixelOf(Group().ptRed), nGroup, nPoint);
    QTEST(nGroup, "nGroup");
    QCOMPARE(nPoint, int(enRedPoint));
}

void TestCChromaticityDlgWndMouse::ADotOfAHiddenGroupIsHit()
{
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.bVisible = false;
    group.bShowGreenDot = false;
    chart.AddChromaGroupByIndex(7, group);
    int nGroup = -1;
    int nPoint = -1;
    chart.HitTest(chart.PixelOf(group.ptGreen), nGroup, nPoint);
    QCOMPARE(nGroup, 7);
    QCOMPARE(nPoint, int(enGreenPoint));
}

void TestCChromaticityDlgWndMouse::AWhiteUnderTheMouseIsNotedWhateverTheResultIs()
{
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.ptGreen = group.ptWhite;
    group.bMoveWhite = false;
    chart.AddChromaGroupByIndex(0, group);
    int nGroup = -1;
    int nPoint = -1;
    chart.HitTest(chart.PixelOf(group.ptWhite), nGroup, nPoint);
    QCOMPARE(nPoint, int(enGreenPoint));
    QVERIFY(chart.m_bHitWhite);
    chart.HitTest(QPoint(0, 0), nGroup, nPoint);
    QCOMPARE(nGroup, -1);
    QCOMPARE(nPoint, -1);
    QVERIFY(!chart.m_bHitWhite);
}

void TestCChromaticityDlgWndMouse::TheHitBoxIncludesItsEdges_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<bool>("bHit");
    // The point stands at (180, 420), the radius is 6.
    QTest::newRow("upper left corner") << QPoint(174, 414) << true;
    QTest::newRow("lower right corner") << QPoint(186, 426) << true;
    QTest::newRow("left of it") << QPoint(173, 420) << false;
    QTest::newRow("right of it") << QPoint(187, 420) << false;
    QTest::newRow("above it") << QPoint(180, 413) << false;
    QTest::newRow("below it") << QPoint(180, 427) << false;
}

void TestCChromaticityDlgWndMouse::TheHitBoxIncludesItsEdges()
{
    QFETCH(QPoint, pos);
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.ptRed = {0.25F, 0.25F};
    group.ptWhite = {0.5F, 0.5F};
    chart.AddChromaGroupByIndex(0, group);
    int nGroup = -1;
    int nPoint = -1;
    chart.HitTest(pos, nGroup, nPoint);
    QTEST(nPoint == enRedPoint, "bHit");
}

void TestCChromaticityDlgWndMouse::HitTestAllocatesNothing()
{
    CTestChart chart;
    for (int nKey = 0; nKey < 10; ++nKey)
        chart.AddChromaGroupByIndex(nKey, Group());
    int nGroup = -1;
    int nPoint = -1;
    const CAllocationCounter counter;
    for (int i = 0; i < c_nSide; ++i)
        chart.HitTest(QPoint(i, i), nGroup, nPoint);
    QCOMPARE(counter.Count(), std::size_t(0));
}

void TestCChromaticityDlgWndMouse::RedBeyondTheLocusStopsJustInside()
{
    CTestChart chart;
    chart.Accept();
    chart.AddChromaGroupByIndex(0, Group());
    chart.Drag(enRedPoint, {0.78F, 0.331F});
    const CPoint ptRed = chart.First().ptRed;
    QVERIFY(chart.m_pGamut->IsPointInCIEPolygon(Widened(ptRed)));
    // 0.0001 further along the same line it is outside.
    const CPoint ptWhite = chart.First().ptWhite;
    const double dLength = DistanceOf(ptRed, ptWhite);
    const auto funcBeyond = [&](double dBy) {
        const QPointF ptFrom = Widened(ptWhite);
        return ptFrom + (Widened(ptRed) - ptFrom) * ((dLength + dBy) / dLength);
    };
    QVERIFY(chart.m_pGamut->IsPointInCIEPolygon(funcBeyond(0.00009)));
    QVERIFY(!chart.m_pGamut->IsPointInCIEPolygon(funcBeyond(0.00011)));
}

void TestCChromaticityDlgWndMouse::RedThatLosesTheWhiteMovesToTheConesEdge()
{
    CTestChart chart;
    chart.Accept();
    chart.AddChromaGroupByIndex(0, Group());
    chart.Drag(enRedPoint, {0.2F, 0.4F});
    const SChromaGroupInfo& group = chart.First();
    QVERIFY(DistanceOf(group.ptRed, {0.2F, 0.4F}) > 0.01);
    QVERIFY(ChartGeometry::IsInTriangle(group.ptWhite, TriangleOf(group)));
    QCOMPARE(group.ptRed.x, float(chart.m_ptNearest.x()));
}

void TestCChromaticityDlgWndMouse::AWhiteOutsideTheTriangleComesToTheNearestEdge()
{
    CTestChart chart;
    chart.Accept();
    chart.AddChromaGroupByIndex(0, Group());
    chart.Drag(enWhitePoint, {0.5F, 0.5F});
    const SChromaGroupInfo& group = chart.First();
    QVERIFY(ChartGeometry::IsInTriangle(group.ptWhite, TriangleOf(group)));
    // On the edge from red to green: x and y together are about 0.93 there.
    QVERIFY(DistanceOf(group.ptWhite, {0.5F, 0.5F}) < 0.06);
}

void TestCChromaticityDlgWndMouse::AWhiteNearAVertexLandsOnIt()
{
    CTestChart chart;
    chart.Accept();
    chart.AddChromaGroupByIndex(0, Group());
    chart.Drag(enWhitePoint, {0.70F, 0.28F});
    COMPARE_BITS(chart.First().ptWhite.x, 0.64F);
    COMPARE_BITS(chart.First().ptWhite.y, 0.33F);
}

void TestCChromaticityDlgWndMouse::AWhiteNearD65SnapsToIt_data()
{
    QTest::addColumn<bool>("bSnap");
    QTest::addColumn<QPointF>("ptAway");
    QTest::addColumn<bool>("bSnapped");
    QTest::newRow("0.02 away") << true << QPointF(0.02, 0.0) << true;
    QTest::newRow("just nearer than 0.025, to the right") << true << QPointF(0.02499, 0.0) << true;
    QTest::newRow("just nearer than 0.025, below") << true << QPointF(0.0, -0.02499) << true;
    QTest::newRow("just nearer than 0.025, aslant") << true << QPointF(0.014994, 0.019992) << true;
    QTest::newRow("just farther than 0.025, to the right") << true << QPointF(0.02501, 0.0) << false;
    QTest::newRow("just farther than 0.025, below") << true << QPointF(0.0, -0.02501) << false;
    QTest::newRow("just farther than 0.025, aslant") << true << QPointF(0.015006, 0.020008) << false;
    QTest::newRow("0.03 away") << true << QPointF(0.03, 0.0) << false;
    QTest::newRow("switched off") << false << QPointF(0.02, 0.0) << false;
}

void TestCChromaticityDlgWndMouse::AWhiteNearD65SnapsToIt()
{
    QFETCH(bool, bSnap);
    QFETCH(QPointF, ptAway);
    QFETCH(bool, bSnapped);
    CTestChart chart;
    chart.Accept();
    chart.AddChromaGroupByIndex(0, Group());
    chart.m_bSnapWhite = bSnap;
    chart.m_nHoverPoint = enWhitePoint;
    const CPoint ptTarget = chart.QPointFToCPointF(chart.m_ptD65 + ptAway);
    chart.CalcCurrentPoint(chart.Mapping().ToPixel(ptTarget), &chart.First());
    const CPoint ptWhite = chart.First().ptWhite;
    const bool bOnD65 = ExactCompare::SameBits(ptWhite.x, float(chart.m_ptD65.x())) &&
                        ExactCompare::SameBits(ptWhite.y, float(chart.m_ptD65.y()));
    QCOMPARE(bOnD65, bSnapped);
    QVERIFY(bSnapped || DistanceOf(ptWhite, ptTarget) < 1e-6);
}

void TestCChromaticityDlgWndMouse::ADragStepAllocatesNothing()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.m_bSnapWhite = true;
    for (int nPoint = enRedPoint; nPoint <= enWhitePoint; ++nPoint) {
        chart.m_nHoverPoint = nPoint;
        const CAllocationCounter counter;
        for (int i = 0; i < c_nSide; ++i)
            chart.CalcCurrentPoint(QPointF(i, c_nSide - 0.5 * i), &chart.First());
        QCOMPARE(counter.Count(), std::size_t(0));
    }
}

void TestCChromaticityDlgWndMouse::ADragStepCountsAsAUseOfTheList()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.m_nHoverPoint = enRedPoint;
    for (int i = 0; i < 9; ++i)
        chart.CalcCurrentPoint(chart.Mapping().ToPixel(CPoint(0.6F, 0.34F)), &chart.First());
    QCOMPARE(chart.m_pGamut->GetData().size(), 10 * 156);
}

void TestCChromaticityDlgWndMouse::TheHostIsAskedAfterThePointWasMoved()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0x300, Group());
    QList<int> listAsked;
    CPoint ptSeen;
    connect(&chart, &CChromaticityDlgWnd::OnPositionChangeSignal, &chart,
            [&](int nGroup, int nPoint, bool& bSuccessed) {
                listAsked << nGroup << nPoint << int(bSuccessed);
                ptSeen = chart.First().ptGreen;
                bSuccessed = true;
            });
    chart.Drag(enGreenPoint, {0.28F, 0.62F});
    QCOMPARE(listAsked, QList<int>({0x300, enGreenPoint, 0}));
    QVERIFY(DistanceOf(ptSeen, {0.28F, 0.62F}) < 0.002);
    QVERIFY(ChartGeometry::IsSamePoint(ptSeen, chart.First().ptGreen));
}

void TestCChromaticityDlgWndMouse::ARefusedPointGoesToTheNearestPoint()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    connect(&chart, &CChromaticityDlgWnd::OnPositionChangeSignal, &chart,
            [&](int, int, bool&) { chart.SetNearstPoint(QPointF(0.25, 0.5)); });
    chart.Drag(enBluePoint, {0.2F, 0.1F});
    COMPARE_BITS(chart.First().ptBlue.x, 0.25F);
    COMPARE_BITS(chart.First().ptBlue.y, 0.5F);
}

void TestCChromaticityDlgWndMouse::WithoutAnAnswerPointsJumpToTheOrigin()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.Drag(enBluePoint, {0.16F, 0.07F});
    COMPARE_BITS(chart.First().ptBlue.x, 0.0F);
    COMPARE_BITS(chart.First().ptBlue.y, 0.0F);
}

void TestCChromaticityDlgWndMouse::ARefusedWhiteMovesAllTheSame()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.Drag(enWhitePoint, {0.33F, 0.36F});
    QVERIFY(DistanceOf(chart.First().ptWhite, {0.33F, 0.36F}) < 0.002);
}

void TestCChromaticityDlgWndMouse::TheHostMayRemoveTheGroupInItsAnswer()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    connect(&chart, &CChromaticityDlgWnd::OnPositionChangeSignal, &chart,
            [&](int nGroup, int, bool&) { chart.RemoveChromaGroupByIndex(nGroup); });
    chart.Drag(enRedPoint, {0.6F, 0.3F});
    QVERIFY(chart.m_mapGroups.isEmpty());
}

void TestCChromaticityDlgWndMouse::ARightPressChangesNothingButTheFocus()
{
    CTestChart chart;
    chart.Accept();
    chart.AddChromaGroupByIndex(0, Group());
    chart.show();
    chart.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&chart));
    chart.clearFocus();
    chart.Press(chart.PixelOf(Group().ptRed), Qt::RightButton);
    QVERIFY(chart.hasFocus());
    QCOMPARE(chart.m_nHoverGroup, -1);
    QVERIFY(!chart.m_bPressed);
    QVERIFY(chart.m_bFirstPress);
}

void TestCChromaticityDlgWndMouse::APressOnNothingGoesToTheWidgetBelow()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.m_nHoverGroup = 5;
    chart.m_nHoverPoint = enBluePoint;
    const QPoint pos(3, 3);
    QMouseEvent press(QEvent::MouseButtonPress, pos, chart.mapToGlobal(pos), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    press.accept();
    QApplication::sendEvent(&chart, &press);
    // The base class passes it on.
    QVERIFY(!press.isAccepted());
    QCOMPARE(chart.m_nHoverGroup, 5);
    QCOMPARE(chart.m_nHoverPoint, int(enBluePoint));
    QVERIFY(!chart.m_bPressed);
}

void TestCChromaticityDlgWndMouse::APressOnAFixedPointBlocksTheDrag()
{
    CTestChart chart;
    chart.Accept();
    SChromaGroupInfo group = Group();
    group.bMoveRed = false;
    chart.AddChromaGroupByIndex(0, group);
    chart.Press(chart.PixelOf(group.ptRed));
    QVERIFY(chart.m_bPressed);
    QVERIFY(!chart.m_bDragging);
    QVERIFY(!chart.m_bFirstPress);
    QCOMPARE(chart.m_nHoverGroup, -1);
    QCOMPARE(chart.m_nHoverPoint, int(enRedPoint));
    chart.Move(QPoint(300, 300), Qt::LeftButton);
    QCOMPARE(PointDifference(chart.First(), group), QString());
    QCOMPARE(chart.m_ptMouse, QPoint(300, 300));
}

void TestCChromaticityDlgWndMouse::TheFlagLagsOneMoveBehind()
{
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.bMoveRed = false;
    chart.AddChromaGroupByIndex(0, group);
    chart.Move(chart.PixelOf(group.ptRed), Qt::NoButton);
    QCOMPARE(chart.m_nHoverPoint, int(enRedPoint));
    // No point before: the flag stays.
    QVERIFY(chart.m_bCanDrag);
    chart.Move(chart.PixelOf(group.ptGreen), Qt::NoButton);
    QCOMPARE(chart.m_nHoverPoint, int(enGreenPoint));
    // It is red's.
    QVERIFY(!chart.m_bCanDrag);
    chart.Move(QPoint(3, 3), Qt::NoButton);
    QCOMPARE(chart.m_nHoverGroup, -1);
    QCOMPARE(chart.m_nHoverPoint, -1);
    QVERIFY(!chart.m_bCanDrag);
}

void TestCChromaticityDlgWndMouse::ADragEndsTheShowingOfTheStandard()
{
    CTestChart chart;
    chart.Accept();
    chart.AddChromaGroupByIndex(0, Group());
    chart.ShowCIEStandard(0, enStandardSRGB, true);
    chart.Press(chart.PixelOf(Group().ptRed));
    QVERIFY(chart.m_bShowStandard);
    chart.Move(QPoint(400, 350), Qt::LeftButton);
    QVERIFY(!chart.m_bShowStandard);
    QVERIFY(chart.m_bMouseInside);
}

void TestCChromaticityDlgWndMouse::AReleaseEndsEverythingButThePress_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<bool>("bInside");
    QTest::newRow("at the origin") << QPoint(0, 0) << true;
    QTest::newRow("at the width and the height") << QPoint(c_nSide, c_nSide) << true;
    QTest::newRow("beyond the width") << QPoint(c_nSide + 1, 0) << false;
    QTest::newRow("above the chart") << QPoint(0, -1) << false;
}

void TestCChromaticityDlgWndMouse::AReleaseEndsEverythingButThePress()
{
    QFETCH(QPoint, pos);
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.Press(chart.PixelOf(Group().ptRed));
    QVERIFY(chart.m_bDragging);
    chart.Release(pos);
    QCOMPARE(chart.m_nHoverGroup, -1);
    QCOMPARE(chart.m_nHoverPoint, -1);
    QVERIFY(!chart.m_bCanDrag);
    QVERIFY(!chart.m_bDragging);
    QVERIFY(chart.m_bPressed);
    QTEST(chart.m_bMouseInside, "bInside");
}

void TestCChromaticityDlgWndMouse::OnlyTheReleaseSetsTheCursor()
{
    CTestChart chart;
    chart.Accept();
    chart.AddChromaGroupByIndex(0, Group());
    chart.setCursor(Qt::CrossCursor);
    const QPoint pos = chart.PixelOf(Group().ptRed);
    chart.Move(pos, Qt::NoButton);
    chart.Press(pos);
    chart.Move(QPoint(400, 350), Qt::LeftButton);
    QCOMPARE(chart.cursor().shape(), Qt::CrossCursor);
    chart.Release(QPoint(400, 350));
    QCOMPARE(chart.cursor().shape(), Qt::ArrowCursor);
}

void TestCChromaticityDlgWndMouse::WhatRepaints_data()
{
    QTest::addColumn<int>("nType");
    QTest::addColumn<bool>("bOnPoint");
    QTest::addColumn<bool>("bMovable");
    QTest::addColumn<bool>("bRepaints");
    QTest::newRow("a press on a point") << int(QEvent::MouseButtonPress) << true << true << true;
    QTest::newRow("a press on a fixed point") << int(QEvent::MouseButtonPress) << true << false << true;
    QTest::newRow("a press on nothing") << int(QEvent::MouseButtonPress) << false << true << false;
    QTest::newRow("a move over nothing") << int(QEvent::MouseMove) << false << true << true;
    QTest::newRow("a release") << int(QEvent::MouseButtonRelease) << true << true << false;
    QTest::newRow("leaving") << int(QEvent::Leave) << false << true << true;
}

void TestCChromaticityDlgWndMouse::WhatRepaints()
{
    QFETCH(int, nType);
    QFETCH(bool, bOnPoint);
    QFETCH(bool, bMovable);
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.bMoveRed = bMovable;
    chart.AddChromaGroupByIndex(0, group);
    chart.show();
    QVERIFY(QTest::qWaitForWindowExposed(&chart));
    // A first press takes the focus, which repaints too.
    chart.setFocus(Qt::OtherFocusReason);
    QCoreApplication::processEvents();
    chart.nPaints = 0;
    const QPointF pos = bOnPoint ? QPointF(chart.PixelOf(group.ptRed)) : QPointF(3.0, 3.0);
    if (nType == QEvent::Leave) {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(&chart, &event);
    } else {
        const bool bMove = nType == QEvent::MouseMove;
        QMouseEvent event(QEvent::Type(nType), pos, chart.mapToGlobal(pos.toPoint()),
                          bMove ? Qt::NoButton : Qt::LeftButton,
                          nType == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&chart, &event);
    }
    QCoreApplication::processEvents();
    QTEST(chart.nPaints > 0, "bRepaints");
}

QTEST_MAIN(TestCChromaticityDlgWndMouse)
#include "TestCChromaticityDlgWndMouse.moc"
