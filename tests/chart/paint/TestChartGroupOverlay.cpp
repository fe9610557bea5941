#include "tests/chart/OverlayTesting.h"
#include "tests/support/DeathTest.h"

#include <QFontMetrics>
#include <QtTest>

#include <algorithm>
#include <limits>

using namespace OverlayTesting;

/// What the layers of the groups tell a painter: triangles with their dots, and the legend.
class TestChartGroupOverlay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void ATriangleHasThreeLinesAndFourDots();
    void ACmyGroupShowsTheTriangleOfItsMidpoints();
    void AFixedPointIsSmallerWithAGreyRim();
    void ADotWithoutASizeStaysWithinNumbers();
    void HiddenDotsAreLeftOut();
    void VisibleGroupsTakeThePaletteInOrder();
    void TheTenthVisibleGroupReadsInsideThePalette();
    void AGroupKeepsItsOwnColour();
    void AHeldDotGrowsAndFixedOnesShrinkUntilTheDragEnds();
    void ChartsShareTheRadii();

    void AHiddenGroupKeepsItsRow();
    void ARowWithoutTextIsSkipped();
    void TheRedByteDecidesAboutDashes_data();
    void TheRedByteDecidesAboutDashes();
    void TheTwoWordingsTakeTurns();
    void HalfTheOutputSpaceIsFiftyPercent();
    void ThereIsNoRatioUnlessBothGroupsAreVisible();
    void AskingForTheRatioLeavesEmptyEntries();
    void EmptyEntriesEndTheTrianglesAndFaultElsewhere();
};

namespace {

double WidthOf(const SPaintCall& ellipse)
{
    return ellipse.vecPoints[1].x();
}

} // namespace

/// The first triangles that the process paints are held: the other radii start as those of this chart.
void TestChartGroupOverlay::initTestCase()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.m_nHoverGroup = 0;
    chart.m_nHoverPoint = enRedPoint;
    chart.m_bPressed = chart.m_bDragging = true;
    const auto vecDots = Only(chart.Record(&CChromaticityDlgWnd::DrawChromTriangle), "ellipse");
    QCOMPARE(vecDots.size(), 5);
    QCOMPARE(WidthOf(vecDots[0]), 18.0);
    QCOMPARE(WidthOf(vecDots[1]), 12.0);
    QCOMPARE(WidthOf(vecDots[2]), 12.0);
    QCOMPARE(WidthOf(vecDots[3]), 14.0);
}

void TestChartGroupOverlay::ATriangleHasThreeLinesAndFourDots()
{
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.ptRed = {0.75F, 0.25F};
    group.ptGreen = {0.25F, 0.75F};
    group.ptBlue = {0.125F, 0.0F};
    group.ptWhite = {0.25F, 0.25F};
    group.bOwnColor = true;
    group.nColorR = 10;
    group.nColorG = 20;
    group.nColorB = 30;
    group.fPenWidth = 1.5F;
    group.nPenStyle = int(Qt::DotLine);
    chart.AddChromaGroupByIndex(0, group);
    const auto vecCalls = chart.Record(&CChromaticityDlgWnd::DrawChromTriangle);
    QCOMPARE(vecCalls.size(), 8);
    const QPointF ptRed(480.0, 420.0);
    const QPointF ptGreen(180.0, 120.0);
    const QPointF ptBlue(105.0, 570.0);
    QCOMPARE(vecCalls[0].vecPoints, (QVector<QPointF>{ptRed, ptGreen}));
    QCOMPARE(vecCalls[1].vecPoints, (QVector<QPointF>{ptGreen, ptBlue}));
    QCOMPARE(vecCalls[2].vecPoints, (QVector<QPointF>{ptBlue, ptRed}));
    QCOMPARE(vecCalls[0].pen, QPen(QColor(10, 20, 30), 1.5, Qt::DotLine));
    QCOMPARE(vecCalls[3].vecPoints, (QVector<QPointF>{{474.0, 414.0}, {12.0, 12.0}}));
    QCOMPARE(vecCalls[3].pen, QPen(QColor(Qt::white), 2.0));
    QCOMPARE(vecCalls[3].brush.color(), QColor(Qt::red));
    QCOMPARE(vecCalls[4].brush.color(), QColor(Qt::green));
    QCOMPARE(vecCalls[5].brush.color(), QColor(Qt::blue));
    QCOMPARE(vecCalls[6].vecPoints, (QVector<QPointF>{{173.0, 413.0}, {14.0, 14.0}}));
    QCOMPARE(vecCalls[6].pen, QPen(QColor(Qt::white), 3.0));
    QCOMPARE(vecCalls[6].brush.color(), QColor(10, 20, 30));
    QCOMPARE(vecCalls[7].vecPoints, (QVector<QPointF>{{177.0, 417.0}, {5.0, 5.0}}));
    QCOMPARE(vecCalls[7].pen.color(), QColor(Qt::white));
    QCOMPARE(vecCalls[7].brush.color(), QColor(Qt::white));
}

void TestChartGroupOverlay::ACmyGroupShowsTheTriangleOfItsMidpoints()
{
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.bRgbMode = false;
    group.ptRed = {0.25F, 0.375F};
    group.ptGreen = {0.5F, 0.125F};
    group.ptBlue = {0.5F, 0.5F};
    chart.AddChromaGroupByIndex(0, group);
    const auto vecCalls = chart.Record(&CChromaticityDlgWnd::DrawChromTriangle);
    const QPointF ptA(480.0, 420.0);
    const QPointF ptB(180.0, 120.0);
    const QPointF ptC(180.0, 570.0);
    QCOMPARE(vecCalls[0].vecPoints, (QVector<QPointF>{ptA, ptB}));
    QCOMPARE(vecCalls[1].vecPoints, (QVector<QPointF>{ptB, ptC}));
    QCOMPARE(vecCalls[2].vecPoints, (QVector<QPointF>{ptC, ptA}));
    QCOMPARE(vecCalls[3].brush.color(), QColor(Qt::cyan));
    QCOMPARE(vecCalls[4].brush.color(), QColor(Qt::magenta));
    QCOMPARE(vecCalls[5].brush.color(), QColor(Qt::yellow));
}

void TestChartGroupOverlay::ADotWithoutASizeStaysWithinNumbers()
{
    CTestChart chart(101, 101);
    SChromaGroupInfo group = Group();
    group.ptWhite = {-1e30F, 1e30F};
    chart.AddChromaGroupByIndex(0, group);
    const auto vecDots = Only(chart.Record(&CChromaticityDlgWnd::DrawChromTriangle), "ellipse");
    // The white disc in the white point's dot: its radius is below a pixel.
    const QVector<QPointF> vecDisc = vecDots.last().vecPoints;
    QCOMPARE(vecDisc[1], QPointF(0.0, 0.0));
    // Its sides are start + size - 1.
    constexpr double c_dSmallest = std::numeric_limits<int>::min();
    QVERIFY(vecDisc[0].x() - 1.0 >= c_dSmallest);
    QVERIFY(vecDisc[0].y() - 1.0 >= c_dSmallest);
}

void TestChartGroupOverlay::AFixedPointIsSmallerWithAGreyRim()
{
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.bMoveGreen = false;
    group.bMoveWhite = false;
    chart.AddChromaGroupByIndex(0, group);
    const auto vecDots = Only(chart.Record(&CChromaticityDlgWnd::DrawChromTriangle), "ellipse");
    QCOMPARE(WidthOf(vecDots[0]), 12.0);
    QCOMPARE(WidthOf(vecDots[1]), 9.0); // 0.8 * 12, cut
    QCOMPARE(vecDots[1].pen, QPen(QColor(Qt::lightGray), 2.0));
    QCOMPARE(WidthOf(vecDots[3]), 11.0); // 2 * (0.8 * 6 + 1), cut
    QCOMPARE(vecDots[3].pen.color(), QColor(Qt::white));
}

void TestChartGroupOverlay::HiddenDotsAreLeftOut()
{
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.bShowRedDot = group.bShowBlueDot = group.bShowWhiteDot = false;
    chart.AddChromaGroupByIndex(0, group);
    const auto vecDots = Only(chart.Record(&CChromaticityDlgWnd::DrawChromTriangle), "ellipse");
    QCOMPARE(vecDots.size(), 1);
    QCOMPARE(vecDots[0].brush.color(), QColor(Qt::green));
}

void TestChartGroupOverlay::VisibleGroupsTakeThePaletteInOrder()
{
    CTestChart chart;
    for (int nKey = 0; nKey < 3; ++nKey)
        chart.AddChromaGroupByIndex(nKey, Group());
    chart.GetChromaGroupByIndex(1)->bVisible = false;
    chart.GetChromaGroupByIndex(1)->nColorB = 77;
    const auto vecLines = Only(chart.Record(&CChromaticityDlgWnd::DrawChromTriangle), "line");
    QCOMPARE(vecLines.size(), 6);
    QCOMPARE(vecLines[0].pen.color(), QColor(255, 0, 0));
    QCOMPARE(vecLines[3].pen.color(), QColor(0, 255, 0));
    // The colour is stored in the group; a hidden one keeps what it had.
    QCOMPARE(int(chart.GetChromaGroupByIndex(2)->nColorG), 255);
    QCOMPARE(int(chart.GetChromaGroupByIndex(1)->nColorB), 77);
}

void TestChartGroupOverlay::TheTenthVisibleGroupReadsInsideThePalette()
{
    CTestChart chart;
    for (int nKey = 0; nKey < 10; ++nKey)
        chart.AddChromaGroupByIndex(nKey, Group());
    const auto vecLines = Only(chart.Record(&CChromaticityDlgWnd::DrawChromTriangle), "line");
    QCOMPARE(vecLines[24].pen.color(), QColor(138, 43, 226));
    QCOMPARE(vecLines[27].pen.color(), QColor(255, 0, 0));
}

void TestChartGroupOverlay::AGroupKeepsItsOwnColour()
{
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.bOwnColor = true;
    group.nColorG = 99;
    chart.AddChromaGroupByIndex(0, group);
    chart.AddChromaGroupByIndex(1, Group());
    const auto vecLines = Only(chart.Record(&CChromaticityDlgWnd::DrawChromTriangle), "line");
    QCOMPARE(vecLines[0].pen.color(), QColor(0, 99, 0));
    // It counts in the palette all the same.
    QCOMPARE(vecLines[3].pen.color(), QColor(0, 255, 0));
}

void TestChartGroupOverlay::AHeldDotGrowsAndFixedOnesShrinkUntilTheDragEnds()
{
    CTestChart chart(c_nSide, c_nSide);
    SChromaGroupInfo group = Group();
    group.bMoveGreen = false;
    chart.AddChromaGroupByIndex(5, group);
    chart.m_bPressed = chart.m_bDragging = true;
    const auto funcWidths = [&chart] {
        const auto vecDots = Only(chart.Record(&CChromaticityDlgWnd::DrawChromTriangle), "ellipse");
        return QList<double>{WidthOf(vecDots[0]), WidthOf(vecDots[1]), WidthOf(vecDots[2])};
    };
    QCOMPARE(funcWidths(), (QList<double>{12.0, 9.0, 12.0}));
    chart.m_nHoverGroup = 5;
    chart.m_nHoverPoint = enRedPoint;
    QCOMPARE(funcWidths(), (QList<double>{18.0, 7.0, 12.0})); // 12 * 0.64, cut
    QCOMPARE(funcWidths(), (QList<double>{18.0, 6.0, 12.0})); // 12 * 0.512, cut
    chart.m_bDragging = false;
    QCOMPARE(funcWidths(), (QList<double>{12.0, 9.0, 12.0}));
}

void TestChartGroupOverlay::ChartsShareTheRadii()
{
    CTestChart small;
    CTestChart large(2 * c_nSide, 2 * c_nSide);
    small.AddChromaGroupByIndex(0, Group());
    large.AddChromaGroupByIndex(0, Group());
    large.Record(&CChromaticityDlgWnd::DrawChromTriangle);
    small.m_bPressed = small.m_bDragging = true;
    small.m_nHoverGroup = 0;
    small.m_nHoverPoint = enRedPoint;
    const auto vecDots = Only(small.Record(&CChromaticityDlgWnd::DrawChromTriangle), "ellipse");
    QCOMPARE(WidthOf(vecDots[0]), 18.0);
    QCOMPARE(WidthOf(vecDots[1]), double(int(2.0F * large.m_fScale / 100.0F)));
}

void TestChartGroupOverlay::AHiddenGroupKeepsItsRow()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.GetChromaGroupByIndex(0)->bVisible = false;
    const auto vecCalls = chart.Record(&CChromaticityDlgWnd::DrawChromNote);
    QCOMPARE(TextsOf(vecCalls), QStringList(QStringLiteral("a group")));
    QCOMPARE(vecCalls.size(), 2);
    // (height - 1) / 12 in whole numbers.
    QCOMPARE(vecCalls[1].vecPoints[0].y(), 49.0);
    QCOMPARE(vecCalls[1].vecPoints[1].x() - vecCalls[1].vecPoints[0].x(), 30.0);
    QCOMPARE(vecCalls[0].vecPoints[0].y(), 54.0);
}

void TestChartGroupOverlay::ARowWithoutTextIsSkipped()
{
    CTestChart chart;
    for (int nKey = 0; nKey < 3; ++nKey)
        chart.AddChromaGroupByIndex(nKey, Group());
    chart.GetChromaGroupByIndex(1)->strName.clear();
    const auto vecLines = Only(chart.Record(&CChromaticityDlgWnd::DrawChromNote), "line");
    QCOMPARE(vecLines.size(), 2);
    QCOMPARE(vecLines[1].vecPoints[0].y() - vecLines[0].vecPoints[0].y(), 22.0);
}

void TestChartGroupOverlay::TheRedByteDecidesAboutDashes_data()
{
    QTest::addColumn<int>("nRed");
    QTest::addColumn<bool>("bDashed");
    QTest::newRow("brown is dashed") << 165 << true;
    QTest::newRow("violet is dashed") << 138 << true;
    QTest::newRow("255 is solid") << 255 << false;
    QTest::newRow("0 is solid") << 0 << false;
}

void TestChartGroupOverlay::TheRedByteDecidesAboutDashes()
{
    QFETCH(int, nRed);
    QFETCH(bool, bDashed);
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.GetChromaGroupByIndex(0)->nColorR = static_cast<unsigned char>(nRed);
    const QPen pen = Only(chart.Record(&CChromaticityDlgWnd::DrawChromNote), "line")[0].pen;
    QCOMPARE(pen.widthF(), 2.0);
    QCOMPARE(pen.style() == Qt::SolidLine, !bDashed);
    QCOMPARE(pen.dashPattern(), bDashed ? QVector<qreal>({2.0, 2.0}) : QVector<qreal>());
}

void TestChartGroupOverlay::TheTwoWordingsTakeTurns()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(enOutputColorSpace, Group());
    chart.AddChromaGroupByIndex(enScreenColorSpace, Group());
    const auto vecCalls = chart.Record(&CChromaticityDlgWnd::DrawChromNote);
    QCOMPARE(TextsOf(vecCalls).join(QString()),
             QStringLiteral("输出颜色空间, 100% 被覆盖屏幕颜色空间（校正后）"));
    // The row is placed by the width of the other wording.
    const QFontMetrics metrics(vecCalls[0].font);
    const int nWidest = std::max(metrics.boundingRect(QStringLiteral("输出色彩空间, 100% 被覆盖")).width(),
                                 metrics.boundingRect(QStringLiteral("屏幕颜色空间（校正后）")).width());
    QCOMPARE(vecCalls[0].vecPoints[0].x(), 0.8 * 600.0 + 30.0 - nWidest - 30.0 + 20.0);
}

void TestChartGroupOverlay::HalfTheOutputSpaceIsFiftyPercent()
{
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.ptRed = {0.5F, 0.0F};
    group.ptGreen = {0.0F, 0.5F};
    group.ptBlue = {0.0F, 0.0F};
    chart.AddChromaGroupByIndex(enOutputColorSpace, group);
    group.ptRed = {0.25F, 0.0F};
    chart.AddChromaGroupByIndex(enScreenColorSpace, group);
    QCOMPARE(chart.CalcRatio(), 50);
    const QString strRow = TextsOf(chart.Record(&CChromaticityDlgWnd::DrawChromNote)).join(QString());
    QVERIFY2(strRow.startsWith(QStringLiteral("输出颜色空间, 50% 被覆盖")), qPrintable(strRow));
}

void TestChartGroupOverlay::ThereIsNoRatioUnlessBothGroupsAreVisible()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(enOutputColorSpace, Group());
    chart.AddChromaGroupByIndex(enScreenColorSpace, Group());
    QCOMPARE(chart.CalcRatio(), 100);
    chart.GetChromaGroupByIndex(enScreenColorSpace)->bVisible = false;
    QCOMPARE(chart.CalcRatio(), -1);
    QVERIFY(!TextsOf(chart.Record(&CChromaticityDlgWnd::DrawChromNote))
                 .join(QString())
                 .contains(QLatin1Char('%')));
}

void TestChartGroupOverlay::AskingForTheRatioLeavesEmptyEntries()
{
    CTestChart chart;
    QCOMPARE(chart.CalcRatio(), -1);
    QCOMPARE(chart.m_mapGroups.keys(), QList<int>({enOutputColorSpace, enScreenColorSpace}));
    QVERIFY(chart.GetChromaGroupByIndex(enOutputColorSpace) == nullptr);
}

void TestChartGroupOverlay::EmptyEntriesEndTheTrianglesAndFaultElsewhere()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.AddChromaGroupByIndex(enOutputColorSpace, Group());
    chart.AddChromaGroupByIndex(enScreenColorSpace + 1, Group());
    QCOMPARE(chart.CalcRatio(), -1);
    QCOMPARE(Only(chart.Record(&CChromaticityDlgWnd::DrawChromTriangle), "line").size(), 6);
    const SDeath deathNote = RunToDeath([&] { chart.Record(&CChromaticityDlgWnd::DrawChromNote); });
    QVERIFY(deathNote.bAborted);
    QVERIFY(deathNote.strOutput.contains("\"DrawChromNote\""));
    const SDeath deathHit = RunToDeath([&] {
        int nGroup = 0;
        int nPoint = 0;
        chart.HitTest(QPoint(1, 1), nGroup, nPoint);
    });
    QVERIFY(deathHit.bAborted);
    QVERIFY(deathHit.strOutput.contains("does not hold"));
}

QTEST_MAIN(TestChartGroupOverlay)
#include "TestChartGroupOverlay.moc"
