#include "SenderModuleDialog/chart/paint/ChartOverlay.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "host/OrviControl/Style.h"
#include "oracles/chart/PlainOverlays.h"
#include "tests/chart/ChartInputs.h"
#include "tests/chart/OverlayTesting.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

using namespace OverlayTesting;

/// What the chart's layers tell a painter: order, places, pens, brushes, fonts and texts.
class TestChartOverlay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ALabelOfATemperatureIsCutAtItsBox();
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

    void NoTextIsCutAtItsBox_data();
    void NoTextIsCutAtItsBox();
    void TheStandardIsNamedInItsBox();
    void TheStandardIsNotShown_data();
    void TheStandardIsNotShown();
    void AnotherGroupThanTheFirstFaults();
};

namespace {

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
        painter.drawText(QRectF(447.0, 495.0, 120.0, 22.5), Qt::AlignCenter | Qt::TextDontClip,
                         QStringLiteral("x : 0.3000"));
        painter.drawText(QRectF(447.0, 525.0, 120.0, 22.5), Qt::AlignCenter | Qt::TextDontClip,
                         QStringLiteral("y : 0.4000"));
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
        painter.drawText(QRectF(447.0, 495.0, 120.0, 22.5), Qt::AlignCenter | Qt::TextDontClip,
                         QStringLiteral("x : 0.3127"));
        painter.drawText(QRectF(447.0, 525.0, 120.0, 22.5), Qt::AlignCenter | Qt::TextDontClip,
                         QStringLiteral("y : 0.3290"));
        painter.drawText(QRectF(447.0, 555.0, 120.0, 22.5), Qt::AlignCenter | Qt::TextDontClip,
                         QStringLiteral("CCT:"));
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

namespace {

/// What a painter of pixels makes of an action.
QImage Painted(QSize size, const std::function<void(QPainter&)>& funcPaint)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::darkGreen);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    funcPaint(painter);
    return image;
}

/// Texts at their places and lines, without a box that could cut them.
void PaintFreely(QPainter& painter, const QVector<SPaintCall>& vecCalls)
{
    for (const SPaintCall& call : vecCalls) {
        painter.setPen(call.pen);
        painter.setFont(call.font);
        if (call.strKind == QLatin1String("text"))
            painter.drawText(call.vecPoints[0], call.strText);
        else
            painter.drawLine(call.vecPoints[0], call.vecPoints[1]);
    }
}

} // namespace

void TestChartOverlay::NoTextIsCutAtItsBox_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("500x400") << QSize(500, 400);
    QTest::newRow("600x600") << QSize(600, 600);
    QTest::newRow("1000x1000") << QSize(1000, 1000);
    QTest::newRow("1920x1080") << QSize(1920, 1080);
}

void TestChartOverlay::NoTextIsCutAtItsBox()
{
    QFETCH(QSize, size);
    CTestChart chart(size.width(), size.height());
    chart.AddChromaGroupByIndex(4, Group());
    chart.ShowCIEStandard(0, enStandardRec709, true);
    chart.MoveMouseTo(0.3, 0.4);
    for (const auto pLayer :
         {&CChromaticityDlgWnd::DrawTipsString, &CChromaticityDlgWnd::DrawCIEStandardShow}) {
        const QVector<SPaintCall> vecCalls = chart.Record(pLayer);
        QCOMPARE(vecCalls.size(), 2);
        const QImage imageLayer = Painted(size, [&](QPainter& painter) { (chart.*pLayer)(painter); });
        const QImage imageFree = Painted(size, [&](QPainter& painter) { PaintFreely(painter, vecCalls); });
        QVERIFY(imageLayer == imageFree);
    }
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
        painter.drawText(QRectF(398.0, 142.0, 120.0, 20.0), Qt::TextDontClip, QStringLiteral("Rec709"));
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

void TestChartOverlay::ALabelOfATemperatureIsCutAtItsBox()
{
    CTestChart chart;
    constexpr int c_nLong = 1234567890;
    const QSize size(c_nSide, c_nSide);
    const QImage imageLabel = Painted(size, [&](QPainter& painter) {
        chart.DrawCCTLineString(painter, 0.0F, QPointF(300.0, 200.0), c_nLong);
    });
    const QImage imageExpected = Painted(size, [&](QPainter& painter) {
        painter.setFont(QFont(GetFontFamily(), 12, -1, false));
        painter.setPen(QColor(Qt::black));
        painter.drawText(QRectF(306.0, 200.0, 48.0, 24.0), QString::number(c_nLong), QTextOption());
    });
    QVERIFY(imageLabel == imageExpected);
}

QTEST_MAIN(TestChartOverlay)
#include "TestChartOverlay.moc"
