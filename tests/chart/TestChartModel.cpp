#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChromaGamutThread.h"
#include "SenderModuleDialog/chart/ChromaPalette.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "SenderModuleDialog/colour/ColourStandards.h"
#include "tests/chart/PlainBitmap.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ExactCompare.h"

#include <QMetaMethod>
#include <QtTest>

#include <cstddef>
#include <memory>

namespace {

using Point = CPointEx<float>;

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

SChromaGroupInfo GroupOf(const SColourStandard& standard)
{
    SChromaGroupInfo group;
    group.ptRed = standard.ptRed;
    group.ptGreen = standard.ptGreen;
    group.ptBlue = standard.ptBlue;
    group.ptWhite = standard.ptWhite;
    return group;
}

std::vector<Point> Outline(const CChromaticityDlgWnd& chart)
{
    return {chart.m_pBoundaryPxF, chart.m_pBoundaryPxF + chart.m_pGamut->GetQPointFData().size()};
}

} // namespace

class TestChartModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheGroupRecordHasItsFieldsInOrder();
    void TheGroupRecordHasItsDefaults();
    void TheBitmapRecordHasItsFieldsInOrder();
    void TheBitmapRecordHasItsDefaults();
    void ThePaletteHasItsNineColours();
    void ATenthGroupReadsInsideThePalette();
    void TheStandardsHaveTheirValues_data();
    void TheStandardsHaveTheirValues();

    void TheChartIsAPlainWidgetWithOneSignal();
    void TheConstructorSetsTheMembers();
    void TheConstructorSetsTheSwitches();
    void TheConstructorZeroesTheBoundary();
    void TheConstructorTracksTheMouseAndKnowsD65();
    void TheWorkerIsAChildAtRest();

    void AddingMakesACopyWithTheKey();
    void AddingAPresentKeyChangesNothing();
    void AddingUnderANegativeKeyIsRefused();
    void AddingUnderKeyZeroSucceeds();
    void RemovingFreesTheKey();
    void RemovingWhatIsNotThereIsRefused();
    void GettingGivesTheLiveGroup();
    void GettingWhatIsNotThereGivesNull();
    void SettingAnAbsentKeyAdds();
    void SettingANegativeKeyIsRefused();
    void SettingAPresentKeyEndsTheProcess();
    void ReleasingEmptiesTheMap();

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

    void WndDataIsStoredForItsTypesAlone();
    void SetWndDataPaintsAtOnce();
    void SetWndDataOfTheDefaultTypePaintsIt();
    void StoreWndDataPaintsNothing();
    void ARepeatedSetWndDataReplacesTheImage();
    void AnUnknownTypePaintsNothing();
    void ABitmapHasTheWidgetsOutlineInItsOwnBox();
    void AnAbortedBitmapIsReadyAndTransparent();
    void InitialWndBitMapDoesNothing();

    void StaticPixelsAreMapped();
    void StaticPixelsMayBeNone();
    void StaticPixelsRefuseNull();
    void StaticPixelsRefuseANegativeCount();
    void StaticPixelsOfAnEarlierCallStayReadable();
};

void TestChartModel::TheGroupRecordHasItsFieldsInOrder()
{
    // A host that was built against the record reads it by these places.
    QCOMPARE(offsetof(SChromaGroupInfo, nGroupKey), size_t(0x00));
    QCOMPARE(offsetof(SChromaGroupInfo, ptRed), size_t(0x04));
    QCOMPARE(offsetof(SChromaGroupInfo, ptGreen), size_t(0x0C));
    QCOMPARE(offsetof(SChromaGroupInfo, ptBlue), size_t(0x14));
    QCOMPARE(offsetof(SChromaGroupInfo, ptWhite), size_t(0x1C));
    QCOMPARE(offsetof(SChromaGroupInfo, bMoveRed), size_t(0x24));
    QCOMPARE(offsetof(SChromaGroupInfo, bMoveWhite), size_t(0x27));
    QCOMPARE(offsetof(SChromaGroupInfo, nColorR), size_t(0x28));
    QCOMPARE(offsetof(SChromaGroupInfo, nColorB), size_t(0x2A));
    QCOMPARE(offsetof(SChromaGroupInfo, nPenStyle), size_t(0x2C));
    QCOMPARE(offsetof(SChromaGroupInfo, fPenWidth), size_t(0x30));
    QCOMPARE(offsetof(SChromaGroupInfo, bOwnColor), size_t(0x34));
    QCOMPARE(offsetof(SChromaGroupInfo, bReserved35), size_t(0x35));
    QCOMPARE(offsetof(SChromaGroupInfo, bVisible), size_t(0x36));
    QCOMPARE(offsetof(SChromaGroupInfo, bShowRedDot), size_t(0x37));
    QCOMPARE(offsetof(SChromaGroupInfo, bShowBlueDot), size_t(0x39));
    QCOMPARE(offsetof(SChromaGroupInfo, bReserved3A), size_t(0x3A));
    QCOMPARE(offsetof(SChromaGroupInfo, bReserved3C), size_t(0x3C));
    QCOMPARE(offsetof(SChromaGroupInfo, bShowWhiteDot), size_t(0x3D));
    QCOMPARE(offsetof(SChromaGroupInfo, bRgbMode), size_t(0x3E));
    QCOMPARE(offsetof(SChromaGroupInfo, bShowNote), size_t(0x3F));
    QCOMPARE(offsetof(SChromaGroupInfo, strName), size_t(0x40));
}

void TestChartModel::TheGroupRecordHasItsDefaults()
{
    const SChromaGroupInfo group;
    QCOMPARE(group.fPenWidth, 1.0F);
    QVERIFY(!group.bOwnColor && !group.bReserved35);
    QVERIFY(group.bVisible);
    QVERIFY(group.bShowRedDot && group.bShowGreenDot && group.bShowBlueDot && group.bShowWhiteDot);
    QVERIFY(!group.bReserved3A && !group.bReserved3B && !group.bReserved3C);
    QVERIFY(group.bRgbMode && group.bShowNote);
    QVERIFY(group.strName.isEmpty());
}

void TestChartModel::TheBitmapRecordHasItsFieldsInOrder()
{
    QCOMPARE(offsetof(SWndBitmap, nType), size_t(0));
    QCOMPARE(offsetof(SWndBitmap, nWidth), size_t(4));
    QCOMPARE(offsetof(SWndBitmap, nHeight), size_t(8));
    QCOMPARE(offsetof(SWndBitmap, pImage), size_t(16));
    QCOMPARE(offsetof(SWndBitmap, bReady), size_t(24));
}

void TestChartModel::TheBitmapRecordHasItsDefaults()
{
    const SWndBitmap bitmap;
    QCOMPARE(bitmap.nType, -1);
    QCOMPARE(bitmap.nWidth, 0);
    QCOMPARE(bitmap.nHeight, 0);
    QCOMPARE(bitmap.pImage, nullptr);
    QCOMPARE(bitmap.bReady.load(), false);
}

void TestChartModel::ThePaletteHasItsNineColours()
{
    const QColor arrExpected[] = {{255, 0, 0},   {0, 255, 0},   {0, 0, 255},   {255, 255, 0}, {0, 255, 255},
                                  {165, 42, 42}, {255, 0, 255}, {255, 153, 0}, {138, 43, 226}};
    QCOMPARE(int(std::size(arrExpected)), c_nPaletteSize);
    for (int i = 0; i < c_nPaletteSize; ++i)
        QCOMPARE(QColor(g_colorRed[i], g_colorGreen[i], g_colorBlue[i]), arrExpected[i]);
}

void TestChartModel::ATenthGroupReadsInsideThePalette()
{
    QCOMPARE(PaletteIndex(8), 8);
    QCOMPARE(PaletteIndex(9), 0);
    QCOMPARE(PaletteIndex(1000), 1000 % 9);
}

void TestChartModel::TheStandardsHaveTheirValues_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("standard");
    QTest::newRow("sRGB") << 0 << int(enStandardSRGB);
    QTest::newRow("AdobeRGB") << 1 << int(enStandardAdobeRGB);
    QTest::newRow("PAL") << 2 << int(enStandardPAL);
    QTest::newRow("NTSC") << 3 << int(enStandardNTSC);
    QTest::newRow("Rec601") << 4 << int(enStandardRec601);
    QTest::newRow("Rec709") << 5 << int(enStandardRec709);
    QTest::newRow("Rec2020") << 6 << int(enStandardRec2020);
    QTest::newRow("DCIP3") << 7 << int(enStandardDCIP3);
}

void TestChartModel::TheStandardsHaveTheirValues()
{
    QFETCH(int, value);
    QFETCH(int, standard);
    QCOMPARE(standard, value);
    QCOMPARE(int(std::size(c_arrColourStandards)), c_nColorStandardCount);
    QCOMPARE(c_arrColourStandards[value].szName, QTest::currentDataTag());
}

void TestChartModel::TheChartIsAPlainWidgetWithOneSignal()
{
    const QMetaObject& meta = CChromaticityDlgWnd::staticMetaObject;
    QCOMPARE(meta.superClass()->className(), "QWidget");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
    QCOMPARE(method.methodSignature(), QByteArray("OnPositionChangeSignal(int,int,bool&)"));
}

void TestChartModel::TheConstructorSetsTheMembers()
{
    const CChromaticityDlgWnd chart(nullptr);
    QCOMPARE(chart.m_nStandard, 0);
    QCOMPARE(chart.m_nHoverGroup, -1);
    QCOMPARE(chart.m_nHoverPoint, -1);
    QCOMPARE(chart.m_nGroupIndex, 0);
    QCOMPARE(chart.m_nWndType, -1);
    QCOMPARE(QSize(chart.m_nWndWidth, chart.m_nWndHeight), QSize(0, 0));
    QCOMPARE(chart.m_rcChart, QRect());
    QCOMPARE(chart.m_rcChart.right(), -1);
    QCOMPARE(chart.m_clrBackground, QColor(50, 50, 50, 255));
    QCOMPARE(chart.m_nGridAlpha, 120);
    COMPARE_BITS(chart.m_fMarginX, 25.0F);
    COMPARE_BITS(chart.m_fMarginY, 25.0F);
    COMPARE_BITS(chart.m_fScale, 500.0F);
    COMPARE_BITS(chart.m_fTextRatio, 1.0F);
    COMPARE_BITS(chart.m_ptNearest, QPointF(0, 0));
    QCOMPARE(chart.m_pDefaultImage, nullptr);
    QCOMPARE(chart.m_pStaticPixels, nullptr);
    const std::array<int, 4> arrColour = {chart.m_nStaticColor[0], chart.m_nStaticColor[1],
                                          chart.m_nStaticColor[2], chart.m_nStaticColor[3]};
    QVERIFY((arrColour == std::array<int, 4>{255, 0, 0, 0}));
    QCOMPARE(chart.m_ptMouse, QPoint(0, 0));
    QVERIFY(chart.m_mapGroups.isEmpty());
}

void TestChartModel::TheConstructorSetsTheSwitches()
{
    const CChromaticityDlgWnd chart(nullptr);
    QVERIFY(!chart.m_bShowCCT && !chart.m_bSnapWhite && !chart.m_bHasStaticPixels && !chart.m_bHitWhite);
    QVERIFY(!chart.m_bMouseInside && !chart.m_bPressed && !chart.m_bDragging && !chart.m_bShowStandard);
    QVERIFY(!chart.m_bAbortPaint);
    QVERIFY(chart.m_bDefaultDirty && chart.m_bFirstPress && chart.m_bCanDrag);
}

void TestChartModel::TheConstructorZeroesTheBoundary()
{
    const CChromaticityDlgWnd chart(nullptr);
    for (int i = 0; i < chart.m_pGamut->GetQPointFData().size(); ++i) {
        COMPARE_BITS(chart.m_pBoundaryPx[i], QPointF(0, 0));
        COMPARE_BITS(chart.m_pBoundaryPxF[i].x, 0.0F);
        COMPARE_BITS(chart.m_pBoundaryPxF[i].y, 0.0F);
    }
}

void TestChartModel::TheConstructorTracksTheMouseAndKnowsD65()
{
    const CChromaticityDlgWnd chart(nullptr);
    QVERIFY(chart.hasMouseTracking());
    COMPARE_BITS(chart.m_ptD65, QPointF(0.3127000033855438, 0.32899999618530273));
}

void TestChartModel::TheWorkerIsAChildAtRest()
{
    const CChromaticityDlgWnd chart(nullptr);
    QCOMPARE(chart.m_pThread->parent(), static_cast<const QObject*>(&chart));
    QVERIFY(!chart.m_pThread->isRunning());
}

void TestChartModel::AddingMakesACopyWithTheKey()
{
    CChromaticityDlgWnd chart(nullptr);
    SChromaGroupInfo info = GroupOf(c_arrColourStandards[enStandardNTSC]);
    info.nGroupKey = 99;
    info.strName = QStringLiteral("screen");
    QVERIFY(chart.AddChromaGroupByIndex(7, info));
    info.ptRed.x = 0.0F;
    const SChromaGroupInfo* pGroup = chart.GetChromaGroupByIndex(7);
    QCOMPARE(pGroup->nGroupKey, 7);
    QCOMPARE(pGroup->ptRed.x, 0.67F);
    QCOMPARE(pGroup->strName, QStringLiteral("screen"));
}

void TestChartModel::AddingAPresentKeyChangesNothing()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(3, GroupOf(c_arrColourStandards[enStandardPAL]));
    const SChromaGroupInfo* pGroup = chart.GetChromaGroupByIndex(3);
    QVERIFY(!chart.AddChromaGroupByIndex(3, GroupOf(c_arrColourStandards[enStandardNTSC])));
    QCOMPARE(chart.GetChromaGroupByIndex(3), pGroup);
    QCOMPARE(pGroup->ptRed.x, 0.60F);
    QCOMPARE(chart.m_mapGroups.size(), 1);
}

void TestChartModel::AddingUnderANegativeKeyIsRefused()
{
    CChromaticityDlgWnd chart(nullptr);
    QVERIFY(!chart.AddChromaGroupByIndex(-1, {}));
    QVERIFY(chart.m_mapGroups.isEmpty());
}

void TestChartModel::AddingUnderKeyZeroSucceeds()
{
    CChromaticityDlgWnd chart(nullptr);
    QVERIFY(chart.AddChromaGroupByIndex(0, {}));
    QVERIFY(chart.GetChromaGroupByIndex(0) != nullptr);
}

void TestChartModel::RemovingFreesTheKey()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(5, {});
    QVERIFY(chart.RemoveChromaGroupByIndex(5));
    QVERIFY(chart.m_mapGroups.isEmpty());
    QVERIFY(chart.AddChromaGroupByIndex(5, {}));
}

void TestChartModel::RemovingWhatIsNotThereIsRefused()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(5, {});
    QVERIFY(!chart.RemoveChromaGroupByIndex(6));
    QVERIFY(!chart.RemoveChromaGroupByIndex(-1));
    QCOMPARE(chart.m_mapGroups.size(), 1);
}

void TestChartModel::GettingGivesTheLiveGroup()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(enScreenColorSpace, {});
    chart.GetChromaGroupByIndex(enScreenColorSpace)->bMoveRed = true;
    QVERIFY(chart.m_mapGroups.value(0x300)->bMoveRed);
}

void TestChartModel::GettingWhatIsNotThereGivesNull()
{
    CChromaticityDlgWnd chart(nullptr);
    QCOMPARE(chart.GetChromaGroupByIndex(-1), nullptr);
    QCOMPARE(chart.GetChromaGroupByIndex(4), nullptr);
    QVERIFY(chart.m_mapGroups.isEmpty());
}

void TestChartModel::SettingAnAbsentKeyAdds()
{
    CChromaticityDlgWnd chart(nullptr);
    QVERIFY(chart.SetChromaGroupByIndex(2, {}));
    QCOMPARE(chart.GetChromaGroupByIndex(2)->nGroupKey, 2);
}

void TestChartModel::SettingANegativeKeyIsRefused()
{
    CChromaticityDlgWnd chart(nullptr);
    QVERIFY(!chart.SetChromaGroupByIndex(-1, {}));
}

void TestChartModel::SettingAPresentKeyEndsTheProcess()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(2, {});
    const SDeath death = RunToDeath([&chart] { chart.SetChromaGroupByIndex(2, {}); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("SetChromaGroupByIndex"), death.strOutput.constData());
}

void TestChartModel::ReleasingEmptiesTheMap()
{
    CChromaticityDlgWnd chart(nullptr);
    for (int nKey = 0; nKey < 5; ++nKey)
        chart.AddChromaGroupByIndex(nKey, {});
    chart.ReleaseChromaData();
    QVERIFY(chart.m_mapGroups.isEmpty());
    chart.ReleaseChromaData();
}

void TestChartModel::SetSizeLaysTheChartOut_data()
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

void TestChartModel::SetSizeLaysTheChartOut()
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

void TestChartModel::SetSizeMapsTheLocus()
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

void TestChartModel::SetSizeNeitherRepaintsNorMarksBitmaps()
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

void TestChartModel::SetSizeRefusesSmallSides_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("width 100") << 100 << 200;
    QTest::newRow("height 100") << 200 << 100;
    QTest::newRow("negative") << -1 << -1;
}

void TestChartModel::SetSizeRefusesSmallSides()
{
    QFETCH(int, width);
    QFETCH(int, height);
    CChromaticityDlgWnd chart(nullptr);
    const SDeath death = RunToDeath([&chart, width, height] { chart.SetSize(width, height); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("nWidth > 100 && nHeight > 100"), death.strOutput.constData());
}

void TestChartModel::TheMappingIsItsOwnInverse()
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

void TestChartModel::SettersStoreAndRepaintAsStated()
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

void TestChartModel::PointsConvertWithoutScaling()
{
    CChromaticityDlgWnd chart(nullptr);
    COMPARE_BITS(chart.CPointFToQPointF({0.1F, 0.7F}), QPointF(double(0.1F), double(0.7F)));
    COMPARE_BITS(chart.QPointFToCPointF({0.1, 0.7}).x, 0.1F);
    COMPARE_BITS(chart.QPointFToCPointF({0.1, 0.7}).y, 0.7F);
}

void TestChartModel::AGroupIsRecognised_data()
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

void TestChartModel::AGroupIsRecognised()
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

void TestChartModel::RecognisingKeepsRec709()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(0, GroupOf(c_arrColourStandards[enStandardRec709]));
    chart.ShowCIEStandard(0, enStandardRec709, true);
    chart.CalcCIEStandardValid();
    QCOMPARE(chart.m_nStandard, int(enStandardRec709));
}

void TestChartModel::RecognisingComparesTheFirstGroupAlone()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(20, GroupOf(c_arrColourStandards[enStandardNTSC]));
    chart.AddChromaGroupByIndex(10, GroupOf(c_arrColourStandards[enStandardPAL]));
    chart.CalcCIEStandardValid();
    QCOMPARE(chart.m_nStandard, int(enStandardPAL));
}

void TestChartModel::RecognisingWithAnotherIndexChangesNothing()
{
    // The walk's counter stays 0, so no group is ever the one with another index; that is meant.
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(0, GroupOf(c_arrColourStandards[enStandardNTSC]));
    chart.AddChromaGroupByIndex(1, GroupOf(c_arrColourStandards[enStandardPAL]));
    chart.ShowCIEStandard(1, enStandardDCIP3, true);
    chart.CalcCIEStandardValid();
    QCOMPARE(chart.m_nStandard, int(enStandardDCIP3));
}

void TestChartModel::RecognisingWithoutGroupsChangesNothing()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.m_nStandard = 6;
    chart.CalcCIEStandardValid();
    QCOMPARE(chart.m_nStandard, 6);
}

void TestChartModel::WndDataIsStoredForItsTypesAlone()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    for (int nType = 0; nType < 5; ++nType)
        chart.SetWndData(nType, 50 + nType, 60 + nType);
    for (int nType = 0; nType < 5; ++nType) {
        int nWidth = 0;
        int nHeight = 0;
        chart.GetWndData(nType, nWidth, nHeight);
        QCOMPARE(QSize(nWidth, nHeight), QSize(50 + nType, 60 + nType));
    }
    const SWndBitmap* const arrBitmaps[] = {&chart.m_wndBitmap0, &chart.m_wndBitmap1, &chart.m_wndBitmap2,
                                            &chart.m_wndBitmap3, &chart.m_wndBitmap4};
    for (int nType = 0; nType < 5; ++nType)
        QCOMPARE(arrBitmaps[nType]->nType, nType);
    for (const int nType : {-1, 5}) {
        int nWidth = 11;
        int nHeight = 22;
        chart.SetWndData(nType, 70, 70);
        chart.GetWndData(nType, nWidth, nHeight);
        QCOMPARE(QSize(nWidth, nHeight), QSize(11, 22));
    }
}

void TestChartModel::SetWndDataPaintsAtOnce()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    chart.SetWndData(3, 120, 90);
    QVERIFY(chart.m_wndBitmap3.bReady);
    QCOMPARE(chart.m_wndBitmap3.pImage->size(), QSize(120, 90));
    QCOMPARE(chart.m_wndBitmap3.pImage->format(), QImage::Format_ARGB32);
    QVERIFY(!chart.m_wndBitmap0.bReady && chart.m_wndBitmap0.pImage == nullptr);
}

void TestChartModel::SetWndDataOfTheDefaultTypePaintsIt()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(220, 180);
    chart.SetWndData(-1, 50, 50);
    QCOMPARE(chart.m_pDefaultImage->size(), QSize(220, 180));
    QVERIFY(chart.m_bDefaultDirty);
}

void TestChartModel::StoreWndDataPaintsNothing()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    chart.StoreWndData(1, 120, 90);
    QCOMPARE(chart.m_wndBitmap1.nType, 1);
    QCOMPARE(chart.m_wndBitmap1.nWidth, 120);
    QVERIFY(!chart.m_wndBitmap1.bReady && chart.m_wndBitmap1.pImage == nullptr);
    chart.StoreWndData(5, 1, 1);
}

void TestChartModel::ARepeatedSetWndDataReplacesTheImage()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    chart.SetWndData(4, 120, 90);
    chart.SetWndData(4, 60, 50);
    QCOMPARE(chart.m_wndBitmap4.pImage->size(), QSize(60, 50));
    QVERIFY(chart.m_wndBitmap4.bReady);
}

void TestChartModel::AnUnknownTypePaintsNothing()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    chart.SetWndData(2, 120, 90);
    const QImage* pImage = chart.m_wndBitmap2.pImage;
    for (const int nType : {7, 5, -2}) {
        chart.GetChromaticityBmp(nType);
        QCOMPARE(chart.m_pDefaultImage, nullptr);
        QVERIFY(chart.m_bDefaultDirty);
        QCOMPARE(chart.m_wndBitmap2.pImage, pImage);
        for (const SWndBitmap* pBitmap :
             {&chart.m_wndBitmap0, &chart.m_wndBitmap1, &chart.m_wndBitmap3, &chart.m_wndBitmap4})
            QVERIFY(!pBitmap->bReady && pBitmap->pImage == nullptr);
    }
}

void TestChartModel::ABitmapHasTheWidgetsOutlineInItsOwnBox()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(800, 600);
    chart.SetWndData(2, 400, 300);
    const QImage& image = *chart.m_wndBitmap2.pImage;
    QCOMPARE(image.size(), QSize(400, 300));
    QVERIFY(image == PlainBitmap::Paint(400, 300, chart.m_pGamut->GetQPointFData(), Outline(chart)));
    // The middle of the widget's shape lies below the box of the bitmap's, its top left part inside.
    QCOMPARE(qAlpha(image.pixel(200, 295)), 0);
    QCOMPARE(qAlpha(image.pixel(200, 250)), 255);
}

void TestChartModel::AnAbortedBitmapIsReadyAndTransparent()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    chart.m_bAbortPaint = true;
    chart.SetWndData(0, 120, 90);
    QVERIFY(chart.m_wndBitmap0.bReady);
    QCOMPARE(chart.m_wndBitmap0.pImage->size(), QSize(120, 90));
    QCOMPARE(chart.m_wndBitmap0.pImage->pixel(60, 50), 0U);
}

void TestChartModel::InitialWndBitMapDoesNothing()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    chart.StoreWndData(0, 120, 90);
    chart.InitialWndBitMap();
    QVERIFY(!chart.m_pThread->isRunning());
    QVERIFY(!chart.m_wndBitmap0.bReady && chart.m_pDefaultImage == nullptr);
}

void TestChartModel::StaticPixelsAreMapped()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(640, 480);
    QPointF arrPoints[] = {{0.3, 0.4}, {0.0, 0.0}};
    QVERIFY(chart.DrawStaticPiexl(arrPoints, 2, 1, 2, 3, 4));
    QVERIFY(chart.m_bHasStaticPixels);
    QCOMPARE(chart.m_nStaticPixelCount, 2);
    for (int i = 0; i < 2; ++i)
        COMPARE_BITS(chart.m_pStaticPixels[i], chart.Mapping().ToPixel(arrPoints[i]));
    for (int i = 0; i < 4; ++i)
        QCOMPARE(int(chart.m_nStaticColor[i]), i + 1);
}

void TestChartModel::StaticPixelsMayBeNone()
{
    CChromaticityDlgWnd chart(nullptr);
    QPointF pt;
    QVERIFY(chart.DrawStaticPiexl(&pt, 0, 1, 2, 3, 4));
    QVERIFY(chart.m_bHasStaticPixels && chart.m_pStaticPixels != nullptr);
    QCOMPARE(chart.m_nStaticPixelCount, 0);
}

void TestChartModel::StaticPixelsRefuseNull()
{
    CChromaticityDlgWnd chart(nullptr);
    QVERIFY(!chart.DrawStaticPiexl(nullptr, 3, 1, 2, 3, 4));
    QVERIFY(!chart.m_bHasStaticPixels && chart.m_pStaticPixels == nullptr);
    QCOMPARE(int(chart.m_nStaticColor[0]), 255);
}

void TestChartModel::StaticPixelsRefuseANegativeCount()
{
    CChromaticityDlgWnd chart(nullptr);
    QPointF pt;
    QVERIFY(!chart.DrawStaticPiexl(&pt, -1, 1, 2, 3, 4));
    QVERIFY(!chart.m_bHasStaticPixels);
}

void TestChartModel::StaticPixelsOfAnEarlierCallStayReadable()
{
    // The earlier array is dropped, not freed; that is meant. So this test frees it.
    CChromaticityDlgWnd chart(nullptr);
    chart.SetSize(200, 200);
    QPointF pt(0.3, 0.3);
    chart.DrawStaticPiexl(&pt, 1, 0, 0, 0, 0);
    const std::unique_ptr<QPointF[]> pEarlier(chart.m_pStaticPixels);
    chart.DrawStaticPiexl(&pt, 1, 0, 0, 0, 0);
    QVERIFY(chart.m_pStaticPixels != pEarlier.get());
    COMPARE_BITS(pEarlier[0], chart.Mapping().ToPixel(pt));
}

QTEST_MAIN(TestChartModel)
#include "TestChartModel.moc"
