#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "SenderModuleDialog/colour/ColourStandards.h"
#include "tests/chart/StandardGroups.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ExactCompare.h"

#include <QImage>
#include <QtTest>

#include <cmath>

namespace {

/// Counts its repaints.
class CCountingChart : public CChromaticityDlgWnd
{
public:
    CCountingChart()
        : CChromaticityDlgWnd(nullptr)
    {
        resize(200, 200);
        SetSize(200, 200);
        show();
        QCoreApplication::processEvents();
        m_nPaints = 0;
    }

    int Paints()
    {
        QCoreApplication::processEvents();
        return m_nPaints;
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++m_nPaints;
        CChromaticityDlgWnd::paintEvent(event);
    }

private:
    int m_nPaints = 0;
};

} // namespace

class TestChartMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SetSizeLaysTheChartOut_data();
    void SetSizeLaysTheChartOut();
    void SetSizeMapsTheLocus();
    void SetSizeNeitherRepaintsNorMarksBitmaps();
    void SetSizeRefusesSmallSides_data();
    void SetSizeRefusesSmallSides();
    void TheMappingIsItsOwnInverse();
    void SettersStoreAndRepaintAsStated();
    void PointsConvertWithoutScaling();
    void AGroupIsRecognised_data();
    void AGroupIsRecognised();
    void RecognisingKeepsRec709();
    void RecognisingComparesTheFirstGroupAlone();
    void RecognisingWithAnotherIndexChangesNothing();
    void RecognisingWithoutGroupsChangesNothing();
};

void TestChartMapping::SetSizeLaysTheChartOut_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<float>("marginX");
    QTest::addColumn<float>("marginY");
    QTest::addColumn<float>("scale");

    QTest::newRow("the height limits") << 1000 << 1000 << 43.333332F << 43.333332F << 1014.81482F;
    QTest::newRow("the width limits") << 300 << 900 << 20.0F << 40.0F << 325.0F;
    QTest::newRow("the smallest") << 101 << 101 << 13.3666668F << 13.3666668F << 82.5185165F;
}

void TestChartMapping::SetSizeLaysTheChartOut()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(float, marginX);
    QFETCH(float, marginY);
    QFETCH(float, scale);

    CChromaticityDlgWnd chart(nullptr);
    const QSize sizeBefore = chart.size();
    chart.SetSize(width, height);
    QCOMPARE(QSize(chart.m_nWndWidth, chart.m_nWndHeight), QSize(width, height));
    QCOMPARE(chart.m_rcChart.bottomRight(), QPoint(width - 1, height - 1));
    QCOMPARE(chart.m_rcChart.topLeft(), QPoint(0, 0));
    COMPARE_BITS(chart.m_fMarginX, marginX);
    COMPARE_BITS(chart.m_fMarginY, marginY);
    COMPARE_BITS(chart.m_fScale, scale);
    QCOMPARE(chart.size(), sizeBefore);
}

void TestChartMapping::SetSizeMapsTheLocus()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(731, 517);
    const QVector<QPointF> vecLocus = chart.m_pGamut->GetQPointFData();
    for (int i = 0; i < vecLocus.size(); ++i) {
        const double dX = double(chart.m_fScale) * vecLocus[i].x() + double(chart.m_fMarginX);
        const double dY = (517.0 - double(chart.m_fMarginY)) - double(chart.m_fScale) * vecLocus[i].y();
        COMPARE_BITS(chart.m_pBoundaryPx[i], QPointF(dX, dY));
        COMPARE_BITS(chart.m_pBoundaryPxF[i].x, float(dX));
        COMPARE_BITS(chart.m_pBoundaryPxF[i].y, float(dY));
    }
}

void TestChartMapping::SetSizeNeitherRepaintsNorMarksBitmaps()
{
    CCountingChart chart;
    QVERIFY(!chart.m_bDefaultDirty);
    const QSize sizeImage = chart.m_pDefaultImage->size();
    chart.SetSize(300, 300);
    QCOMPARE(chart.Paints(), 0);
    chart.repaint();
    QVERIFY(!chart.m_bDefaultDirty);
    QCOMPARE(chart.m_pDefaultImage->size(), sizeImage);
}

void TestChartMapping::SetSizeRefusesSmallSides_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("width 100") << 100 << 200;
    QTest::newRow("height 100") << 200 << 100;
    QTest::newRow("negative") << -1 << -1;
}

void TestChartMapping::SetSizeRefusesSmallSides()
{
    QFETCH(int, width);
    QFETCH(int, height);
    CChromaticityDlgWnd chart(nullptr);
    const SDeath death = RunToDeath([&chart, width, height] { chart.SetSize(width, height); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("nWidth > 100 && nHeight > 100"), death.strOutput.constData());
}

void TestChartMapping::TheMappingIsItsOwnInverse()
{
    // A pixel carries about 2^-44 of rounding; divided by the scale that is far below this.
    constexpr double c_dTolerance = 1e-13;
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(640, 480);
    const CChartMapping mapping = chart.Mapping();
    for (int i = 0; i <= 80; ++i) {
        const QPointF pt(i / 100.0, (90 - i) / 100.0);
        const QPointF ptBack = mapping.ToChromaticity(mapping.ToPixel(pt));
        QVERIFY(std::fabs(ptBack.x() - pt.x()) < c_dTolerance &&
                std::fabs(ptBack.y() - pt.y()) < c_dTolerance);
    }
}

void TestChartMapping::SettersStoreAndRepaintAsStated()
{
    CCountingChart chart;
    chart.SetGridLineAlpha(300);
    chart.SetWndType(9);
    chart.SetNearstPoint({0.25, 0.5});
    chart.ShowCIEStandard(4, enStandardDCIP3, true);
    QCOMPARE(chart.Paints(), 0);
    QCOMPARE(chart.m_nGridAlpha, 300);
    QCOMPARE(chart.m_nWndType, 9);
    COMPARE_BITS(chart.m_ptNearest, QPointF(0.25, 0.5));
    QCOMPARE(chart.m_nGroupIndex, 4);
    QCOMPARE(chart.m_nStandard, 7);
    QVERIFY(chart.m_bShowStandard);
    chart.SetBackgroundColor(Qt::darkBlue);
    QCOMPARE(chart.m_clrBackground, QColor(Qt::darkBlue));
    QCOMPARE(chart.Paints(), 1);
}

void TestChartMapping::PointsConvertWithoutScaling()
{
    CChromaticityDlgWnd chart(nullptr);
    COMPARE_BITS(chart.CPointFToQPointF({0.1F, 0.7F}), QPointF(double(0.1F), double(0.7F)));
    COMPARE_BITS(chart.QPointFToCPointF({0.1, 0.7}).x, 0.1F);
    COMPARE_BITS(chart.QPointFToCPointF({0.1, 0.7}).y, 0.7F);
}

void TestChartMapping::AGroupIsRecognised_data()
{
    QTest::addColumn<int>("pointsOf");
    QTest::addColumn<float>("offset");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("expected");

    QTest::newRow("sRGB after Rec709 stays Rec709") << 0 << 0.0F << 5 << 5;
    QTest::newRow("sRGB after anything else") << 0 << 0.0F << 3 << 0;
    QTest::newRow("sRGB after none") << 0 << 0.0F << -1 << 0;
    QTest::newRow("Rec709 is sRGB as well") << 5 << 0.0F << 0 << 0;
    QTest::newRow("AdobeRGB") << 1 << 0.0F << 0 << 1;
    QTest::newRow("PAL") << 2 << 0.0F << 0 << 2;
    QTest::newRow("NTSC") << 3 << 0.0F << 0 << 3;
    QTest::newRow("Rec601") << 4 << 0.0F << 0 << 4;
    QTest::newRow("Rec2020") << 6 << 0.0F << 0 << 6;
    QTest::newRow("DCIP3") << 7 << 0.0F << 5 << 7;
    QTest::newRow("a millionth off is none") << 0 << 1e-06F << 0 << -1;
    QTest::newRow("a millionth off is none after Rec709 too") << 0 << 1e-06F << 5 << -1;
    QTest::newRow("a rounding off is the standard") << 0 << 1.2e-07F << 3 << 0;
}

void TestChartMapping::AGroupIsRecognised()
{
    QFETCH(int, pointsOf);
    QFETCH(float, offset);
    QFETCH(int, before);
    QFETCH(int, expected);

    // Every coordinate counts.
    for (int nCoordinate = 0; nCoordinate < 8; ++nCoordinate) {
        SChromaGroupInfo group = GroupOf(c_arrColourStandards[pointsOf]);
        float* const arrCoordinates[] = {&group.ptRed.x,   &group.ptRed.y,  &group.ptGreen.x,
                                         &group.ptGreen.y, &group.ptBlue.x, &group.ptBlue.y,
                                         &group.ptWhite.x, &group.ptWhite.y};
        *arrCoordinates[nCoordinate] += offset;
        CChromaticityDlgWnd chart(nullptr);
        chart.AddChromaGroupByIndex(12, group);
        chart.m_nStandard = before;
        chart.CalcCIEStandardValid();
        QCOMPARE(chart.m_nStandard, expected);
    }
}

void TestChartMapping::RecognisingKeepsRec709()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(0, GroupOf(c_arrColourStandards[enStandardRec709]));
    chart.ShowCIEStandard(0, enStandardRec709, true);
    chart.CalcCIEStandardValid();
    QCOMPARE(chart.m_nStandard, int(enStandardRec709));
}

void TestChartMapping::RecognisingComparesTheFirstGroupAlone()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(20, GroupOf(c_arrColourStandards[enStandardNTSC]));
    chart.AddChromaGroupByIndex(10, GroupOf(c_arrColourStandards[enStandardPAL]));
    chart.CalcCIEStandardValid();
    QCOMPARE(chart.m_nStandard, int(enStandardPAL));
}

void TestChartMapping::RecognisingWithAnotherIndexChangesNothing()
{
    // The walk's counter stays 0, so no group ever has another index. Intentional.
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(0, GroupOf(c_arrColourStandards[enStandardNTSC]));
    chart.AddChromaGroupByIndex(1, GroupOf(c_arrColourStandards[enStandardPAL]));
    chart.ShowCIEStandard(1, enStandardDCIP3, true);
    chart.CalcCIEStandardValid();
    QCOMPARE(chart.m_nStandard, int(enStandardDCIP3));
}

void TestChartMapping::RecognisingWithoutGroupsChangesNothing()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.m_nStandard = 6;
    chart.CalcCIEStandardValid();
    QCOMPARE(chart.m_nStandard, 6);
}

QTEST_MAIN(TestChartMapping)
#include "TestChartMapping.moc"
