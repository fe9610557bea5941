#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/colour/ShownColourPage.h"
#include "workbench/colour/PointKeys.h"

#include <QAccessible>
#include <QSignalSpy>

namespace {

QString Text(CPointEx<float> point)
{
    return ColourGroups::PointText(point);
}

/// The page with the keys on one of the screen's points.
struct SKeyedPage : SShownColourPage
{
    explicit SKeyedPage(int nPoint = enGreenPoint)
    {
        page.activateWindow();
        Keys().setFocus(Qt::OtherFocusReason);
        Keys().Select({enScreenColorSpace, nPoint});
    }

    CPointKeys& Keys() { return View().Keys(); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&Keys(), key, modifiers);
    }
};

} // namespace

class TestPointKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void AnArrowMovesThePoint_data();
    void AnArrowMovesThePoint();
    void TabGoesFromPointToPointAndOut();
    void FixedAndHiddenPointsAreLeftOut();
    void ABurstIsOneStep();
    void APauseEndsTheStep();
    void UndoTakesTheWholeBurstBack();
    void AnArrowIsAsLegalAsADrag();
    void TheRegionHoldsThePoint();
    void WhatWasDraggedIsFocused();
    void TheFocusedPointIsRinged();
    void ScreenReadersAreTold();
    void WithoutPointsArrowsDoNothing();
};

/// The groups belong to the project, which outlives a page.
void TestPointKeys::init()
{
    CSimulator::Instance().Document().NewProject();
}

void TestPointKeys::AnArrowMovesThePoint_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<QString>("place");
    QTest::newRow("left") << Qt::Key_Left << false << QStringLiteral("0.2640, 0.6900");
    QTest::newRow("right") << Qt::Key_Right << false << QStringLiteral("0.2660, 0.6900");
    QTest::newRow("up") << Qt::Key_Up << false << QStringLiteral("0.2650, 0.6910");
    QTest::newRow("down") << Qt::Key_Down << false << QStringLiteral("0.2650, 0.6890");
    QTest::newRow("Shift, left") << Qt::Key_Left << true << QStringLiteral("0.2649, 0.6900");
    QTest::newRow("Shift, up") << Qt::Key_Up << true << QStringLiteral("0.2650, 0.6901");
}

void TestPointKeys::AnArrowMovesThePoint()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, shift);
    SKeyedPage shown;
    shown.Press(key, shift ? Qt::ShiftModifier : Qt::NoModifier);
    QTEST(Text(shown.Screen().ptGreen), "place");
}

void TestPointKeys::TabGoesFromPointToPointAndOut()
{
    SKeyedPage shown(enRedPoint);
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    for (const int nPoint : {enGreenPoint, enBluePoint, enWhitePoint}) {
        shown.Press(Qt::Key_Tab);
        QCOMPARE(shown.Keys().Current(), (SGroupPoint{enScreenColorSpace, nPoint}));
    }
    shown.Press(Qt::Key_Tab);
    QVERIFY(!shown.Keys().hasFocus());
    shown.Keys().setFocus(Qt::BacktabFocusReason);
    QCOMPARE(shown.Keys().Current(), (SGroupPoint{enScreenColorSpace, enWhitePoint}));
    shown.Press(Qt::Key_Backtab);
    QCOMPARE(shown.Keys().Current(), (SGroupPoint{enScreenColorSpace, enBluePoint}));
}

void TestPointKeys::FixedAndHiddenPointsAreLeftOut()
{
    SKeyedPage shown;
    shown.Screen().bMoveBlue = false;
    const QVector<SGroupPoint> vecPoints = shown.Keys().Points();
    QCOMPARE(vecPoints.size(), 3);
    QVERIFY(!vecPoints.contains({enScreenColorSpace, enBluePoint}));
    QVERIFY(!vecPoints.contains({enOutputColorSpace, enRedPoint}));
    shown.Screen().bVisible = false;
    QVERIFY(shown.Keys().Points().isEmpty());
}

void TestPointKeys::ABurstIsOneStep()
{
    SKeyedPage shown;
    for (int i = 0; i < 5; ++i)
        shown.Press(Qt::Key_Right);
    shown.Press(Qt::Key_Down);
    QCOMPARE(shown.Steps().count(), 0);
    shown.Press(Qt::Key_Escape);
    QCOMPARE(shown.Steps().count(), 1);
    QCOMPARE(Text(shown.Screen().ptGreen), QStringLiteral("0.2700, 0.6890"));
    shown.history.Undo();
    QCOMPARE(Text(shown.Screen().ptGreen), QStringLiteral("0.2650, 0.6900"));
}

void TestPointKeys::APauseEndsTheStep()
{
    SKeyedPage shown;
    shown.Press(Qt::Key_Right);
    QTRY_COMPARE(shown.Steps().count(), 1);
    shown.Press(Qt::Key_Right);
    QTRY_COMPARE(shown.Steps().count(), 2);
}

void TestPointKeys::UndoTakesTheWholeBurstBack()
{
    SKeyedPage shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    shown.Press(Qt::Key_Right);
    shown.Press(Qt::Key_Right);
    QTest::keySequence(&shown.Keys(), QKeySequence::Undo);
    QCOMPARE(Text(shown.Screen().ptGreen), QStringLiteral("0.2650, 0.6900"));
}

void TestPointKeys::AnArrowIsAsLegalAsADrag()
{
    SKeyedPage shown;
    // Far beyond the locus, the point stays where the drag would leave it.
    for (int i = 0; i < 400; ++i)
        shown.Press(Qt::Key_Up);
    const CPointEx<float> ptGreen = shown.Screen().ptGreen;
    QVERIFY(shown.Chart().m_pGamut->IsPointInCIEPolygon({double(ptGreen.x), double(ptGreen.y)}));
    QVERIFY(ptGreen.y > 0.69F);
    SKeyedPage white(enWhitePoint);
    for (int i = 0; i < 400; ++i)
        white.Press(Qt::Key_Left);
    const SChromaGroupInfo& group = white.Screen();
    QPolygonF triangle;
    for (int nPoint = enRedPoint; nPoint <= enBluePoint; ++nPoint)
        triangle.append(
            {double(GroupPointOrOrigin(group, nPoint).x), double(GroupPointOrOrigin(group, nPoint).y)});
    QVERIFY(triangle.containsPoint({double(group.ptWhite.x), double(group.ptWhite.y)}, Qt::OddEvenFill));
}

void TestPointKeys::TheRegionHoldsThePoint()
{
    SKeyedPage shown;
    shown.View().Region().SetPolygon(QPolygonF({{0.20, 0.20}, {0.50, 0.20}, {0.50, 0.695}, {0.20, 0.695}}));
    shown.View().Region().SetOn(true);
    for (int i = 0; i < 20; ++i)
        shown.Press(Qt::Key_Up);
    QVERIFY(shown.Screen().ptGreen.y < 0.6951F);
}

void TestPointKeys::WhatWasDraggedIsFocused()
{
    SShownColourPage shown;
    shown.page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    shown.Drag(shown.Screen().ptBlue, {0.17F, 0.08F});
    QVERIFY(shown.View().Keys().hasFocus());
    QCOMPARE(shown.View().Keys().Current(), (SGroupPoint{enScreenColorSpace, enBluePoint}));
    QCOMPARE(shown.Steps().count(), 1);
}

void TestPointKeys::TheFocusedPointIsRinged()
{
    SKeyedPage shown;
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    const QImage with = shown.View().grab().toImage();
    shown.Keys().clearFocus();
    const QImage without = shown.View().grab().toImage();
    const QPoint pos = shown.View().PixelOf(shown.Screen().ptGreen);
    const QRect around(pos - QPoint(16, 16), QSize(33, 33));
    QVERIFY(with.copy(around) != without.copy(around));
}

void TestPointKeys::ScreenReadersAreTold()
{
    SKeyedPage shown;
    QSignalSpy spy(&shown.Keys(), &CPointKeys::Told);
    shown.Press(Qt::Key_Right);
    QCOMPARE(spy.count(), 1);
    const QAccessibleInterface* pAccessible = QAccessible::queryAccessibleInterface(&shown.Keys());
    QVERIFY(pAccessible != nullptr);
    QVERIFY(pAccessible->text(QAccessible::Name).contains(QStringLiteral("0.2660, 0.6900")));
    QVERIFY(pAccessible->text(QAccessible::Name).contains(QString::fromUtf8("绿")));
}

void TestPointKeys::WithoutPointsArrowsDoNothing()
{
    SKeyedPage shown;
    shown.Chart().ReleaseChromaData();
    shown.Press(Qt::Key_Right);
    shown.Press(Qt::Key_Escape);
    QVERIFY(!shown.Steps().canUndo());
}

QTEST_MAIN(TestPointKeys)
#include "TestPointKeys.moc"
