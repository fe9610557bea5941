#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChartOverlay.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "tests/chart/ChartInputs.h"
#include "tests/chart/PlainOverlays.h"
#include "tests/chart/RecordingPaintDevice.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ExactCompare.h"

#include <QPainter>
#include <QtTest>

/// What the chart's layers tell a painter: order, places, pens, brushes, fonts and texts.
class TestChartOverlay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void EveryLayerIsToldLikeThePlainOne();
    void TheLayersComeInOrder();

    void TheLocusIsOutlinedInGrey();
    void TheGridHasTenLinesAcrossAndNineUp();
    void AnInvisibleGridKeepsItsLabels();
    void AnAlphaOutOfRangeGivesAnInvalidColour();

    void TheTipsShowThePlaceUnderTheMouse();
    void TheTipsShowTheHoveredPoint();
    void TheTipsDrawNothingOutsideTheLocus_data();
    void TheTipsDrawNothingOutsideTheLocus();
    void TheTemperatureStandsInAThirdRow();
    void TheTemperatureIsWrittenInItsForm_data();
    void TheTemperatureIsWrittenInItsForm();
    void AMouseOutsideTheLocusDrawsNoCross();
    void TheCrossFollowsTheMouse();
    void TheCrossStandsAtAPointThatCanBeDragged();

    void TheCurveHasElevenHundredAndOnePoints();
    void TheTicksSlant();
    void TheCurveFollowsTheSize();

    void ATriangleHasThreeLinesAndFourDots();
    void ACmyGroupShowsTheTriangleOfItsMidpoints();
    void AFixedPointIsSmallerWithAGreyRim();
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

    void TheStandardIsNamedInItsBox();
    void TheStandardIsNotShown_data();
    void TheStandardIsNotShown();
    void AnotherGroupThanTheFirstFaults();
};

namespace {

/// A side at which the margins are 30 pixels and the scale is 600.
constexpr int c_nSide = 600;

SChromaGroupInfo Group()
{
    SChromaGroupInfo group;
    group.ptRed = {0.64F, 0.33F};
    group.ptGreen = {0.30F, 0.60F};
    group.ptBlue = {0.15F, 0.06F};
    group.ptWhite = {0.3127F, 0.329F};
    group.bMoveRed = group.bMoveGreen = group.bMoveBlue = group.bMoveWhite = true;
    group.nPenStyle = int(Qt::SolidLine);
    group.strName = QStringLiteral("a group");
    return group;
}

/// A chart of the size above, laid out and given its geometry.
class CTestChart : public CChromaticityDlgWnd
{
public:
    explicit CTestChart(int nWidth = c_nSide, int nHeight = c_nSide)
        : CChromaticityDlgWnd(nullptr)
    {
        resize(nWidth, nHeight);
        SetSize(nWidth, nHeight);
    }

    QVector<SPaintCall> Record(void (CChromaticityDlgWnd::*pLayer)(QPainter&))
    {
        return RecordPainting([this, pLayer](QPainter& painter) { (this->*pLayer)(painter); });
    }

    void MoveMouseTo(double dX, double dY) { m_ptMouse = Mapping().ToPixel(QPointF(dX, dY)).toPoint(); }
};

QVector<SPaintCall> Only(const QVector<SPaintCall>& vecCalls, const char* szKind)
{
    QVector<SPaintCall> vecOnly;
    for (const SPaintCall& call : vecCalls) {
        if (call.strKind == QLatin1String(szKind))
            vecOnly.append(call);
    }
    return vecOnly;
}

QStringList TextsOf(const QVector<SPaintCall>& vecCalls)
{
    QStringList listTexts;
    for (const SPaintCall& call : Only(vecCalls, "text"))
        listTexts.append(call.strText);
    return listTexts;
}

double WidthOf(const SPaintCall& ellipse)
{
    return ellipse.vecPoints[1].x();
}

using FuncLayer = void (CChromaticityDlgWnd::*)(QPainter&);
using FuncPlainLayer = std::function<void(CPlainOverlays&, QPainter&)>;

struct SLayer
{
    const char* szName;
    FuncLayer pLayer;
    FuncPlainLayer funcPlain;
};

const std::vector<SLayer>& Layers()
{
    using Plain = CPlainOverlays;
    static const std::vector<SLayer> s_vecLayers = {
        {"border", &CChromaticityDlgWnd::DrawBorder, &Plain::DrawBorder},
        {"grid", &CChromaticityDlgWnd::DrawHexCoorDialog, &Plain::DrawHexCoorDialog},
        {"tips", &CChromaticityDlgWnd::DrawTipsString, &Plain::DrawTipsString},
        {"cross", &CChromaticityDlgWnd::DrawCrossLine, &Plain::DrawCrossLine},
        {"curve", &CChromaticityDlgWnd::DrawCCTLine, &Plain::DrawCCTLine},
        {"triangles", &CChromaticityDlgWnd::DrawChromTriangle, &Plain::DrawChromTriangle},
        {"legend", &CChromaticityDlgWnd::DrawChromNote, &Plain::DrawChromNote},
        {"standard", &CChromaticityDlgWnd::DrawCIEStandardShow, &Plain::DrawCIEStandardShow},
    };
    return s_vecLayers;
}

void AddRandomGroup(CTestChart& chart, CChartInputs& inputs, int nKey)
{
    SChromaGroupInfo group = inputs.OrdinaryGroup();
    if (inputs.Coin())
        group.ptWhite = {0.3127F, 0.329F};
    group.bOwnColor = inputs.Coin();
    group.nColorR = static_cast<unsigned char>(inputs.Coin() ? 255 : inputs.Whole(0, 255));
    group.nColorG = static_cast<unsigned char>(inputs.Whole(0, 255));
    group.nPenStyle = inputs.Whole(int(Qt::NoPen), int(Qt::DashDotDotLine));
    group.fPenWidth = inputs.Real(0.0F, 4.0F);
    group.bShowRedDot = inputs.Coin();
    group.bShowGreenDot = inputs.Coin();
    group.bShowBlueDot = inputs.Coin();
    group.bShowWhiteDot = inputs.Coin();
    group.bShowNote = inputs.Coin();
    group.strName = inputs.Coin() ? QStringLiteral("group %1").arg(nKey) : QString();
    chart.AddChromaGroupByIndex(nKey, group);
}

void SetRandomState(CTestChart& chart, CChartInputs& inputs)
{
    chart.ReleaseChromaData();
    for (int nCount = inputs.Whole(1, 11); nCount > 0; --nCount)
        AddRandomGroup(chart, inputs, inputs.Whole(0, 20));
    if (inputs.Coin()) {
        AddRandomGroup(chart, inputs, enOutputColorSpace);
        AddRandomGroup(chart, inputs, enScreenColorSpace);
    }
    const QList<int> listKeys = chart.m_mapGroups.keys();
    chart.m_nHoverGroup = inputs.Coin() ? -1 : listKeys[inputs.Whole(0, listKeys.size() - 1)];
    chart.m_nHoverPoint = inputs.Whole(-1, 4);
    chart.m_bPressed = inputs.Coin();
    chart.m_bDragging = inputs.Coin();
    chart.m_bCanDrag = inputs.Coin();
    chart.m_bHitWhite = inputs.Coin();
    chart.m_bShowCCT = inputs.Coin();
    chart.m_nGridAlpha = inputs.Whole(0, 300);
    chart.m_fTextRatio = inputs.Coin() ? 1.0F : inputs.Real(0.5F, 2.0F);
    chart.m_ptMouse = QPoint(inputs.Whole(-10, chart.width() + 10), inputs.Whole(-10, chart.height() + 10));
    chart.ShowCIEStandard(0, enStandardRec709, inputs.Coin());
    if (inputs.Coin()) {
        SChromaGroupInfo& first = *chart.m_mapGroups.first();
        first.ptRed = {0.64F, 0.33F};
        first.ptGreen = {0.30F, 0.60F};
        first.ptBlue = {0.15F, 0.06F};
        first.ptWhite = {0.3127F, 0.329F};
    }
}

} // namespace

// The first triangles that the process paints are held: the other radii start as those of this chart.
void TestChartOverlay::initTestCase()
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

void TestChartOverlay::EveryLayerIsToldLikeThePlainOne()
{
    CChartInputs inputs(31, CChromaGamutInterpolation().GetQPointFData());
    CTestChart chart;
    CPlainOverlays plain(chart);
    // Nothing is held: both sets of radii start alike.
    chart.AddChromaGroupByIndex(0, Group());
    chart.Record(&CChromaticityDlgWnd::DrawChromTriangle);
    RecordPainting([&](QPainter& painter) { plain.DrawChromTriangle(painter); });
    for (int i = 0; i < 300; ++i) {
        if (i % 10 == 0) {
            const QSize size(inputs.Whole(101, 2000), inputs.Whole(101, 2000));
            chart.resize(size);
            chart.SetSize(size.width(), size.height());
        }
        SetRandomState(chart, inputs);
        for (const SLayer& layer : Layers()) {
            const auto vecFast = chart.Record(layer.pLayer);
            const auto vecPlain = RecordPainting([&](QPainter& painter) { layer.funcPlain(plain, painter); });
            const QString strDifference = PaintDifference(vecFast, vecPlain);
            QVERIFY2(strDifference.isEmpty(), qPrintable(QLatin1String(layer.szName) + strDifference));
        }
    }
}

void TestChartOverlay::TheLayersComeInOrder()
{
    CTestChart chart;
    CPlainOverlays plain(chart);
    chart.AddChromaGroupByIndex(enOutputColorSpace, Group());
    chart.AddChromaGroupByIndex(enScreenColorSpace, Group());
    chart.MoveMouseTo(0.3, 0.4);
    chart.Record(&CChromaticityDlgWnd::DrawChromTriangle);
    const auto vecExpected = RecordPainting([&](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(50, 50, 50));
        painter.drawRect(QRect(0, 0, c_nSide, c_nSide));
        painter.drawImage(QRect(0, 0, c_nSide, c_nSide), QImage(c_nSide, c_nSide, QImage::Format_ARGB32));
        painter.setBrush(Qt::NoBrush);
        plain.DrawBorder(painter);
        plain.DrawHexCoorDialog(painter);
        plain.DrawTipsString(painter);
        plain.DrawCrossLine(painter);
        plain.DrawCCTLine(painter);
        plain.DrawChromTriangle(painter);
        plain.DrawChromNote(painter);
        painter.setPen(QPen(QColor(Qt::black), 1.0));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRect(0, 0, c_nSide, c_nSide));
    });
    QCOMPARE(PaintDifference(chart.Record(&CChromaticityDlgWnd::Draw), vecExpected), QString());
}

void TestChartOverlay::TheLocusIsOutlinedInGrey()
{
    CTestChart chart;
    const auto vecCalls = chart.Record(&CChromaticityDlgWnd::DrawBorder);
    QCOMPARE(vecCalls.size(), 1);
    QCOMPARE(vecCalls[0].strKind, QStringLiteral("polygon"));
    QCOMPARE(vecCalls[0].vecPoints.size(), 156);
    QCOMPARE(vecCalls[0].vecPoints[0], chart.m_pBoundaryPx[0]);
    QCOMPARE(vecCalls[0].pen, QPen(QColor(200, 200, 200), 2.0));
    QCOMPARE(vecCalls[0].brush.style(), Qt::NoBrush);
}

void TestChartOverlay::TheGridHasTenLinesAcrossAndNineUp()
{
    CTestChart chart;
    const auto vecCalls = chart.Record(&CChromaticityDlgWnd::DrawHexCoorDialog);
    const auto vecLines = Only(vecCalls, "line");
    QCOMPARE(vecLines.size(), 19);
    QCOMPARE(vecLines[0].vecPoints, (QVector<QPointF>{{30.0, 570.0}, {510.0, 570.0}}));
    QCOMPARE(vecLines[9].vecPoints, (QVector<QPointF>{{30.0, 30.0}, {510.0, 30.0}}));
    QCOMPARE(vecLines[10].vecPoints, (QVector<QPointF>{{30.0, 570.0}, {30.0, 30.0}}));
    QCOMPARE(vecLines[18].vecPoints, (QVector<QPointF>{{510.0, 570.0}, {510.0, 30.0}}));
    const auto vecTexts = Only(vecCalls, "text");
    QCOMPARE(vecTexts.size(), 19);
    QCOMPARE(vecTexts[0].strText, QStringLiteral(".0"));
    QCOMPARE(vecTexts[0].vecPoints[0], QPointF(10.0, 568.0));
    QCOMPARE(vecTexts[9].strText, QStringLiteral(".9"));
    QCOMPARE(vecTexts[18].strText, QStringLiteral(".8"));
    QCOMPARE(vecTexts[18].vecPoints[0], QPointF(498.0, 585.0));
    QCOMPARE(vecTexts[0].font.pixelSize(), 10);
    // Each line is drawn first and then its label.
    QCOMPARE(vecCalls[0].strKind, QStringLiteral("line"));
    QCOMPARE(vecCalls[1].strKind, QStringLiteral("text"));
}

void TestChartOverlay::AnInvisibleGridKeepsItsLabels()
{
    CTestChart chart;
    chart.SetGridLineAlpha(0);
    const auto vecCalls = chart.Record(&CChromaticityDlgWnd::DrawHexCoorDialog);
    QCOMPARE(Only(vecCalls, "line")[0].pen.color(), QColor(255, 255, 255, 0));
    QCOMPARE(Only(vecCalls, "text")[0].pen.color(), QColor(255, 255, 255, 120));
}

void TestChartOverlay::AnAlphaOutOfRangeGivesAnInvalidColour()
{
    CTestChart chart;
    chart.SetGridLineAlpha(256);
    QVERIFY(!Only(chart.Record(&CChromaticityDlgWnd::DrawHexCoorDialog), "line")[0].pen.color().isValid());
}

void TestChartOverlay::TheTipsShowThePlaceUnderTheMouse()
{
    CTestChart chart;
    chart.MoveMouseTo(0.3, 0.4);
    const auto vecCalls = chart.Record(&CChromaticityDlgWnd::DrawTipsString);
    QCOMPARE(TextsOf(vecCalls), QStringList({QStringLiteral("x : 0.3000"), QStringLiteral("y : 0.4000")}));
    QCOMPARE(vecCalls[0].pen, QPen(QColor(Qt::yellow), 1.0));
    const auto vecExpected = RecordPainting([&](QPainter& painter) {
        painter.setFont(vecCalls[0].font);
        painter.setPen(QPen(QColor(Qt::yellow), 1.0));
        painter.drawText(QRectF(447.0, 495.0, 120.0, 22.5), Qt::AlignCenter, QStringLiteral("x : 0.3000"));
        painter.drawText(QRectF(447.0, 525.0, 120.0, 22.5), Qt::AlignCenter, QStringLiteral("y : 0.4000"));
    });
    QCOMPARE(PaintDifference(vecCalls, vecExpected), QString());
}

void TestChartOverlay::TheTipsShowTheHoveredPoint()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(3, Group());
    chart.m_nHoverGroup = 3;
    chart.m_nHoverPoint = enGreenPoint;
    QCOMPARE(TextsOf(chart.Record(&CChromaticityDlgWnd::DrawTipsString)),
             QStringList({QStringLiteral("x : 0.3000"), QStringLiteral("y : 0.6000")}));
    // A group that went away while it was pointed at has no point to show.
    chart.RemoveChromaGroupByIndex(3);
    QCOMPARE(chart.Record(&CChromaticityDlgWnd::DrawTipsString).size(), 0);
}

void TestChartOverlay::TheTipsDrawNothingOutsideTheLocus_data()
{
    QTest::addColumn<double>("dX");
    QTest::addColumn<double>("dY");
    QTest::newRow("outside") << 0.7 << 0.7;
    QTest::newRow("the origin, from a negative coordinate") << -0.01 << 0.0;
    QTest::newRow("on the x axis, from a negative y") << 0.17 << -0.02;
}

void TestChartOverlay::TheTipsDrawNothingOutsideTheLocus()
{
    QFETCH(double, dX);
    QFETCH(double, dY);
    CTestChart chart;
    chart.MoveMouseTo(dX, dY);
    QCOMPARE(chart.Record(&CChromaticityDlgWnd::DrawTipsString).size(), 0);
}

void TestChartOverlay::TheTemperatureStandsInAThirdRow()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.m_nHoverGroup = 0;
    chart.m_nHoverPoint = enWhitePoint;
    chart.m_bHitWhite = true;
    chart.m_bShowCCT = true;
    const auto vecCalls = chart.Record(&CChromaticityDlgWnd::DrawTipsString);
    const auto vecExpected = RecordPainting([&](QPainter& painter) {
        painter.setFont(vecCalls[0].font);
        painter.setPen(QPen(QColor(Qt::yellow), 1.0));
        painter.drawText(QRectF(447.0, 495.0, 120.0, 22.5), Qt::AlignCenter, QStringLiteral("x : 0.3127"));
        painter.drawText(QRectF(447.0, 525.0, 120.0, 22.5), Qt::AlignCenter, QStringLiteral("y : 0.3290"));
        painter.drawText(QRectF(447.0, 555.0, 120.0, 22.5), Qt::AlignCenter, QStringLiteral("CCT:"));
        painter.drawText(QRectF(582.0, 555.0, 75.0, 22.5), QStringLiteral("6500K\n"), QTextOption());
    });
    QCOMPARE(PaintDifference(vecCalls, vecExpected), QString());
    chart.m_bShowCCT = false;
    QCOMPARE(chart.Record(&CChromaticityDlgWnd::DrawTipsString).size(), 2);
}

void TestChartOverlay::TheTemperatureIsWrittenInItsForm_data()
{
    QTest::addColumn<QPointF>("pt");
    QTest::addColumn<QString>("strText");
    const double dPart = double(0.025F);
    QTest::newRow("D65") << QPointF(0.3127, 0.329) << QStringLiteral("6500K\n");
    QTest::newRow("within 0.025 of D65")
        << QPointF(0.3127 * (1.0 + dPart * 0.999), 0.329 * (1.0 - dPart * 0.999))
        << QStringLiteral("6500K\n");
    QTest::newRow("5001 K is filled up to 102 characters")
        << QPointF(0.3457, 0.3585) << QString(102 - 4, QChar(0x2)) + QStringLiteral("5001K");
    QTest::newRow("no temperature") << QPointF(0.3, 0.1858000010251999) << QStringLiteral("- -!");
    QTest::newRow("above the range") << QPointF(0.25, 0.25) << QStringLiteral("- -!");
}

void TestChartOverlay::TheTemperatureIsWrittenInItsForm()
{
    QFETCH(QPointF, pt);
    QFETCH(QString, strText);
    const CCCT2ColorCoord cct;
    QPointF ptD65;
    cct.CCTtoColorCoord(6500.0F, &ptD65, false);
    QCOMPARE(ChartOverlay::TemperatureText(pt, ptD65, cct), strText);
}

void TestChartOverlay::AMouseOutsideTheLocusDrawsNoCross()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.m_nHoverGroup = 0;
    chart.m_nHoverPoint = enRedPoint;
    chart.MoveMouseTo(0.7, 0.7);
    QCOMPARE(chart.Record(&CChromaticityDlgWnd::DrawCrossLine).size(), 0);
}

void TestChartOverlay::TheCrossFollowsTheMouse()
{
    CTestChart chart;
    chart.m_ptMouse = QPoint(200, 400);
    const auto vecLines = chart.Record(&CChromaticityDlgWnd::DrawCrossLine);
    QCOMPARE(vecLines.size(), 2);
    QCOMPARE(vecLines[0].vecPoints, (QVector<QPointF>{{0.0, 400.0}, {600.0, 400.0}}));
    QCOMPARE(vecLines[1].vecPoints, (QVector<QPointF>{{200.0, 0.0}, {200.0, 600.0}}));
    QCOMPARE(vecLines[0].pen, QPen(QColor(255, 240, 240, 240), 1.0));
}

void TestChartOverlay::TheCrossStandsAtAPointThatCanBeDragged()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.m_ptMouse = QPoint(200, 400);
    chart.m_nHoverGroup = 0;
    chart.m_nHoverPoint = enWhitePoint;
    // 600 * 0.3127 + 30 and 570 - 600 * 0.329, cut.
    QCOMPARE(chart.Record(&CChromaticityDlgWnd::DrawCrossLine)[0].vecPoints[0], QPointF(0.0, 372.0));
    QCOMPARE(chart.Record(&CChromaticityDlgWnd::DrawCrossLine)[1].vecPoints[0], QPointF(217.0, 0.0));
    chart.m_nHoverPoint = c_nChromaPointCount;
    QCOMPARE(chart.Record(&CChromaticityDlgWnd::DrawCrossLine)[1].vecPoints[0], QPointF(30.0, 0.0));
    chart.m_bCanDrag = false;
    QCOMPARE(chart.Record(&CChromaticityDlgWnd::DrawCrossLine)[1].vecPoints[0], QPointF(200.0, 0.0));
}

void TestChartOverlay::TheCurveHasElevenHundredAndOnePoints()
{
    CTestChart chart;
    const auto vecCalls = chart.Record(&CChromaticityDlgWnd::DrawCCTLine);
    QCOMPARE(vecCalls[0].strKind, QStringLiteral("path"));
    QCOMPARE(vecCalls[0].vecPoints.size(), 1101);
    QCOMPARE(vecCalls[0].pen, QPen(QColor(Qt::black), 1.0));
    QCOMPARE(TextsOf(vecCalls),
             QStringList({QStringLiteral("4000"), QStringLiteral("6500"), QStringLiteral("12000")}));
}

void TestChartOverlay::TheTicksSlant()
{
    CTestChart chart;
    const auto vecLines = Only(chart.Record(&CChromaticityDlgWnd::DrawCCTLine), "line");
    QCOMPARE(vecLines.size(), 3);
    for (const SPaintCall& tick : vecLines) {
        const QPointF ptAway = tick.vecPoints[0] - tick.vecPoints[1];
        // With y = 5 / q, x is 5 / q / q.
        QVERIFY(ptAway.y() > 0.0 && ptAway.y() < 5.0);
        QVERIFY(std::abs(ptAway.x() - ptAway.y() * ptAway.y() / 5.0) < 1e-4);
    }
}

void TestChartOverlay::TheCurveFollowsTheSize()
{
    CTestChart chart;
    const auto vecSmall = chart.Record(&CChromaticityDlgWnd::DrawCCTLine);
    chart.SetSize(900, 900);
    const auto vecLarge = chart.Record(&CChromaticityDlgWnd::DrawCCTLine);
    QVERIFY(vecSmall[0].vecPoints != vecLarge[0].vecPoints);
    chart.SetSize(c_nSide, c_nSide);
    QCOMPARE(PaintDifference(chart.Record(&CChromaticityDlgWnd::DrawCCTLine), vecSmall), QString());
}

void TestChartOverlay::ATriangleHasThreeLinesAndFourDots()
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

void TestChartOverlay::ACmyGroupShowsTheTriangleOfItsMidpoints()
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

void TestChartOverlay::AFixedPointIsSmallerWithAGreyRim()
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

void TestChartOverlay::HiddenDotsAreLeftOut()
{
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.bShowRedDot = group.bShowBlueDot = group.bShowWhiteDot = false;
    chart.AddChromaGroupByIndex(0, group);
    const auto vecDots = Only(chart.Record(&CChromaticityDlgWnd::DrawChromTriangle), "ellipse");
    QCOMPARE(vecDots.size(), 1);
    QCOMPARE(vecDots[0].brush.color(), QColor(Qt::green));
}

void TestChartOverlay::VisibleGroupsTakeThePaletteInOrder()
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

void TestChartOverlay::TheTenthVisibleGroupReadsInsideThePalette()
{
    CTestChart chart;
    for (int nKey = 0; nKey < 10; ++nKey)
        chart.AddChromaGroupByIndex(nKey, Group());
    const auto vecLines = Only(chart.Record(&CChromaticityDlgWnd::DrawChromTriangle), "line");
    QCOMPARE(vecLines[24].pen.color(), QColor(138, 43, 226));
    QCOMPARE(vecLines[27].pen.color(), QColor(255, 0, 0));
}

void TestChartOverlay::AGroupKeepsItsOwnColour()
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

void TestChartOverlay::AHeldDotGrowsAndFixedOnesShrinkUntilTheDragEnds()
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

void TestChartOverlay::ChartsShareTheRadii()
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

void TestChartOverlay::AHiddenGroupKeepsItsRow()
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

void TestChartOverlay::ARowWithoutTextIsSkipped()
{
    CTestChart chart;
    for (int nKey = 0; nKey < 3; ++nKey)
        chart.AddChromaGroupByIndex(nKey, Group());
    chart.GetChromaGroupByIndex(1)->strName.clear();
    const auto vecLines = Only(chart.Record(&CChromaticityDlgWnd::DrawChromNote), "line");
    QCOMPARE(vecLines.size(), 2);
    QCOMPARE(vecLines[1].vecPoints[0].y() - vecLines[0].vecPoints[0].y(), 22.0);
}

void TestChartOverlay::TheRedByteDecidesAboutDashes_data()
{
    QTest::addColumn<int>("nRed");
    QTest::addColumn<bool>("bDashed");
    QTest::newRow("brown is dashed") << 165 << true;
    QTest::newRow("violet is dashed") << 138 << true;
    QTest::newRow("255 is solid") << 255 << false;
    QTest::newRow("0 is solid") << 0 << false;
}

void TestChartOverlay::TheRedByteDecidesAboutDashes()
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

void TestChartOverlay::TheTwoWordingsTakeTurns()
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

void TestChartOverlay::HalfTheOutputSpaceIsFiftyPercent()
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

void TestChartOverlay::ThereIsNoRatioUnlessBothGroupsAreVisible()
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

void TestChartOverlay::AskingForTheRatioLeavesEmptyEntries()
{
    CTestChart chart;
    QCOMPARE(chart.CalcRatio(), -1);
    QCOMPARE(chart.m_mapGroups.keys(), QList<int>({enOutputColorSpace, enScreenColorSpace}));
    QVERIFY(chart.GetChromaGroupByIndex(enOutputColorSpace) == nullptr);
}

void TestChartOverlay::EmptyEntriesEndTheTrianglesAndFaultElsewhere()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.AddChromaGroupByIndex(enOutputColorSpace, Group());
    chart.AddChromaGroupByIndex(enScreenColorSpace + 1, Group());
    QCOMPARE(chart.CalcRatio(), -1);
    QCOMPARE(Only(chart.Record(&CChromaticityDlgWnd::DrawChromTriangle), "line").size(), 6);
    const SDeath deathNote = RunToDeath([&] { chart.Record(&CChromaticityDlgWnd::DrawChromNote); });
    QVERIFY(deathNote.bAborted);
    QVERIFY(deathNote.strOutput.contains("does not hold"));
    const SDeath deathHit = RunToDeath([&] {
        int nGroup = 0;
        int nPoint = 0;
        chart.HitTest(QPoint(1, 1), nGroup, nPoint);
    });
    QVERIFY(deathHit.bAborted);
    QVERIFY(deathHit.strOutput.contains("does not hold"));
}

void TestChartOverlay::TheStandardIsNamedInItsBox()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(4, Group());
    chart.ShowCIEStandard(0, enStandardRec709, true);
    const auto vecCalls = chart.Record(&CChromaticityDlgWnd::DrawCIEStandardShow);
    const auto vecExpected = RecordPainting([&](QPainter& painter) {
        painter.setFont(vecCalls[0].font);
        painter.setPen(QColor(Qt::red));
        painter.drawText(QRectF(398.0, 142.0, 120.0, 20.0), QStringLiteral("Rec709"), QTextOption());
        painter.setPen(QPen(QColor(Qt::blue), 1.5));
        const QPointF ptRed = chart.Mapping().ToPixel(CPointEx<float>(0.64F, 0.33F));
        const QPointF ptGreen = chart.Mapping().ToPixel(CPointEx<float>(0.30F, 0.60F));
        painter.drawLine((ptRed + ptGreen) / 2.0, QPointF(398.0, 152.0));
    });
    QCOMPARE(PaintDifference(vecCalls, vecExpected), QString());
}

void TestChartOverlay::TheStandardIsNotShown_data()
{
    QTest::addColumn<bool>("bShow");
    QTest::addColumn<float>("fRed");
    QTest::newRow("not asked for") << false << 0.64F;
    QTest::newRow("no standard") << true << 0.65F;
}

void TestChartOverlay::TheStandardIsNotShown()
{
    QFETCH(bool, bShow);
    QFETCH(float, fRed);
    CTestChart chart;
    SChromaGroupInfo group = Group();
    group.ptRed.x = fRed;
    chart.AddChromaGroupByIndex(0, group);
    chart.ShowCIEStandard(0, enStandardSRGB, bShow);
    QCOMPARE(chart.Record(&CChromaticityDlgWnd::DrawCIEStandardShow).size(), 0);
}

void TestChartOverlay::AnotherGroupThanTheFirstFaults()
{
    CTestChart chart;
    chart.AddChromaGroupByIndex(0, Group());
    chart.AddChromaGroupByIndex(1, Group());
    chart.ShowCIEStandard(1, enStandardSRGB, true);
    const SDeath death = RunToDeath([&] { chart.Record(&CChromaticityDlgWnd::DrawCIEStandardShow); });
    QVERIFY(death.bAborted);
    QVERIFY(death.strOutput.contains("\"keyNum == m_nGroupIndex\""));
}

QTEST_MAIN(TestChartOverlay)
#include "TestChartOverlay.moc"
