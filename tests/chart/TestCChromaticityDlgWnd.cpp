#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChromaGamutThread.h"
#include "SenderModuleDialog/chart/ChromaPalette.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "SenderModuleDialog/colour/ColourStandards.h"
#include "tests/chart/StandardGroups.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ExactCompare.h"

#include <QMetaMethod>
#include <QtTest>

#include <array>
#include <cstddef>

class TestCChromaticityDlgWnd : public QObject
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
};

void TestCChromaticityDlgWnd::TheGroupRecordHasItsFieldsInOrder()
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

void TestCChromaticityDlgWnd::TheGroupRecordHasItsDefaults()
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

void TestCChromaticityDlgWnd::TheBitmapRecordHasItsFieldsInOrder()
{
    QCOMPARE(offsetof(SWndBitmap, nType), size_t(0));
    QCOMPARE(offsetof(SWndBitmap, nWidth), size_t(4));
    QCOMPARE(offsetof(SWndBitmap, nHeight), size_t(8));
    QCOMPARE(offsetof(SWndBitmap, pImage), size_t(16));
    QCOMPARE(offsetof(SWndBitmap, bReady), size_t(24));
}

void TestCChromaticityDlgWnd::TheBitmapRecordHasItsDefaults()
{
    const SWndBitmap bitmap;
    QCOMPARE(bitmap.nType, -1);
    QCOMPARE(bitmap.nWidth, 0);
    QCOMPARE(bitmap.nHeight, 0);
    QCOMPARE(bitmap.pImage, nullptr);
    QCOMPARE(bitmap.bReady.load(), false);
}

void TestCChromaticityDlgWnd::ThePaletteHasItsNineColours()
{
    const QColor arrExpected[] = {{255, 0, 0},   {0, 255, 0},   {0, 0, 255},   {255, 255, 0}, {0, 255, 255},
                                  {165, 42, 42}, {255, 0, 255}, {255, 153, 0}, {138, 43, 226}};
    QCOMPARE(int(std::size(arrExpected)), c_nPaletteSize);
    for (int i = 0; i < c_nPaletteSize; ++i)
        QCOMPARE(QColor(g_colorRed[i], g_colorGreen[i], g_colorBlue[i]), arrExpected[i]);
}

void TestCChromaticityDlgWnd::ATenthGroupReadsInsideThePalette()
{
    QCOMPARE(PaletteIndex(8), 8);
    QCOMPARE(PaletteIndex(9), 0);
    QCOMPARE(PaletteIndex(1000), 1000 % 9);
}

void TestCChromaticityDlgWnd::TheStandardsHaveTheirValues_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("standard");
    QTest::addColumn<QVector<float>>("coordinates");
    QTest::newRow("sRGB") << 0 << int(enStandardSRGB)
                          << QVector<float>{0.64F, 0.33F, 0.30F, 0.60F, 0.15F, 0.06F, 0.3127F, 0.329F};
    QTest::newRow("AdobeRGB") << 1 << int(enStandardAdobeRGB)
                              << QVector<float>{0.64F, 0.33F, 0.21F, 0.71F, 0.15F, 0.06F, 0.3127F, 0.329F};
    QTest::newRow("PAL") << 2 << int(enStandardPAL)
                         << QVector<float>{0.60F, 0.33F, 0.148F, 0.60F, 0.15F, 0.16F, 0.3127F, 0.329F};
    QTest::newRow("NTSC") << 3 << int(enStandardNTSC)
                          << QVector<float>{0.67F, 0.33F, 0.21F, 0.71F, 0.14F, 0.08F, 0.31F, 0.316F};
    QTest::newRow("Rec601") << 4 << int(enStandardRec601)
                            << QVector<float>{0.64F, 0.33F, 0.29F, 0.60F, 0.15F, 0.06F, 0.3127F, 0.329F};
    QTest::newRow("Rec709") << 5 << int(enStandardRec709)
                            << QVector<float>{0.64F, 0.33F, 0.30F, 0.60F, 0.15F, 0.06F, 0.3127F, 0.329F};
    QTest::newRow("Rec2020") << 6 << int(enStandardRec2020)
                             << QVector<float>{0.708F, 0.292F, 0.17F,   0.797F,
                                               0.131F, 0.046F, 0.3127F, 0.329F};
    QTest::newRow("DCIP3") << 7 << int(enStandardDCIP3)
                           << QVector<float>{0.68F, 0.32F, 0.265F, 0.69F, 0.15F, 0.06F, 0.3127F, 0.329F};
}

void TestCChromaticityDlgWnd::TheStandardsHaveTheirValues()
{
    QFETCH(int, value);
    QFETCH(int, standard);
    QFETCH(QVector<float>, coordinates);
    QCOMPARE(standard, value);
    QCOMPARE(int(std::size(c_arrColourStandards)), c_nColorStandardCount);
    const SColourStandard& row = c_arrColourStandards[value];
    QCOMPARE(row.szName, QTest::currentDataTag());
    const float arrActual[] = {row.ptRed.x,  row.ptRed.y,  row.ptGreen.x, row.ptGreen.y,
                               row.ptBlue.x, row.ptBlue.y, row.ptWhite.x, row.ptWhite.y};
    for (int i = 0; i < coordinates.size(); ++i)
        COMPARE_BITS(arrActual[i], coordinates[i]);
}

void TestCChromaticityDlgWnd::TheChartIsAPlainWidgetWithOneSignal()
{
    const QMetaObject& meta = CChromaticityDlgWnd::staticMetaObject;
    QCOMPARE(meta.superClass()->className(), "QWidget");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod method = meta.method(meta.methodOffset());
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
    QCOMPARE(method.methodSignature(), QByteArray("OnPositionChangeSignal(int,int,bool&)"));
}

void TestCChromaticityDlgWnd::TheConstructorSetsTheMembers()
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

void TestCChromaticityDlgWnd::TheConstructorSetsTheSwitches()
{
    const CChromaticityDlgWnd chart(nullptr);
    QVERIFY(!chart.m_bShowCCT && !chart.m_bSnapWhite && !chart.m_bHasStaticPixels && !chart.m_bHitWhite);
    QVERIFY(!chart.m_bMouseInside && !chart.m_bPressed && !chart.m_bDragging && !chart.m_bShowStandard);
    QVERIFY(!chart.m_bAbortPaint);
    QVERIFY(chart.m_bDefaultDirty && chart.m_bFirstPress && chart.m_bCanDrag);
}

void TestCChromaticityDlgWnd::TheConstructorZeroesTheBoundary()
{
    const CChromaticityDlgWnd chart(nullptr);
    for (int i = 0; i < chart.m_pGamut->GetQPointFData().size(); ++i) {
        COMPARE_BITS(chart.m_pBoundaryPx[i], QPointF(0, 0));
        COMPARE_BITS(chart.m_pBoundaryPxF[i].x, 0.0F);
        COMPARE_BITS(chart.m_pBoundaryPxF[i].y, 0.0F);
    }
}

void TestCChromaticityDlgWnd::TheConstructorTracksTheMouseAndKnowsD65()
{
    const CChromaticityDlgWnd chart(nullptr);
    QVERIFY(chart.hasMouseTracking());
    COMPARE_BITS(chart.m_ptD65, QPointF(0.3127000033855438, 0.32899999618530273));
}

void TestCChromaticityDlgWnd::TheWorkerIsAChildAtRest()
{
    const CChromaticityDlgWnd chart(nullptr);
    QCOMPARE(chart.m_pThread->parent(), static_cast<const QObject*>(&chart));
    QVERIFY(!chart.m_pThread->isRunning());
}

void TestCChromaticityDlgWnd::AddingMakesACopyWithTheKey()
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

void TestCChromaticityDlgWnd::AddingAPresentKeyChangesNothing()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(3, GroupOf(c_arrColourStandards[enStandardPAL]));
    const SChromaGroupInfo* pGroup = chart.GetChromaGroupByIndex(3);
    QVERIFY(!chart.AddChromaGroupByIndex(3, GroupOf(c_arrColourStandards[enStandardNTSC])));
    QCOMPARE(chart.GetChromaGroupByIndex(3), pGroup);
    QCOMPARE(pGroup->ptRed.x, 0.60F);
    QCOMPARE(chart.m_mapGroups.size(), 1);
}

void TestCChromaticityDlgWnd::AddingUnderANegativeKeyIsRefused()
{
    CChromaticityDlgWnd chart(nullptr);
    QVERIFY(!chart.AddChromaGroupByIndex(-1, {}));
    QVERIFY(chart.m_mapGroups.isEmpty());
}

void TestCChromaticityDlgWnd::AddingUnderKeyZeroSucceeds()
{
    CChromaticityDlgWnd chart(nullptr);
    QVERIFY(chart.AddChromaGroupByIndex(0, {}));
    QVERIFY(chart.GetChromaGroupByIndex(0) != nullptr);
}

void TestCChromaticityDlgWnd::RemovingFreesTheKey()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(5, {});
    QVERIFY(chart.RemoveChromaGroupByIndex(5));
    QVERIFY(chart.m_mapGroups.isEmpty());
    QVERIFY(chart.AddChromaGroupByIndex(5, {}));
}

void TestCChromaticityDlgWnd::RemovingWhatIsNotThereIsRefused()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(5, {});
    QVERIFY(!chart.RemoveChromaGroupByIndex(6));
    QVERIFY(!chart.RemoveChromaGroupByIndex(-1));
    QCOMPARE(chart.m_mapGroups.size(), 1);
}

void TestCChromaticityDlgWnd::GettingGivesTheLiveGroup()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(enScreenColorSpace, {});
    chart.GetChromaGroupByIndex(enScreenColorSpace)->bMoveRed = true;
    QVERIFY(chart.m_mapGroups.value(0x300)->bMoveRed);
}

void TestCChromaticityDlgWnd::GettingWhatIsNotThereGivesNull()
{
    CChromaticityDlgWnd chart(nullptr);
    QCOMPARE(chart.GetChromaGroupByIndex(-1), nullptr);
    QCOMPARE(chart.GetChromaGroupByIndex(4), nullptr);
    QVERIFY(chart.m_mapGroups.isEmpty());
}

void TestCChromaticityDlgWnd::SettingAnAbsentKeyAdds()
{
    CChromaticityDlgWnd chart(nullptr);
    QVERIFY(chart.SetChromaGroupByIndex(2, {}));
    QCOMPARE(chart.GetChromaGroupByIndex(2)->nGroupKey, 2);
}

void TestCChromaticityDlgWnd::SettingANegativeKeyIsRefused()
{
    CChromaticityDlgWnd chart(nullptr);
    QVERIFY(!chart.SetChromaGroupByIndex(-1, {}));
}

void TestCChromaticityDlgWnd::SettingAPresentKeyEndsTheProcess()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(2, {});
    const SDeath death = RunToDeath([&chart] { chart.SetChromaGroupByIndex(2, {}); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("SetChromaGroupByIndex"), death.strOutput.constData());
}

void TestCChromaticityDlgWnd::ReleasingEmptiesTheMap()
{
    CChromaticityDlgWnd chart(nullptr);
    for (int nKey = 0; nKey < 5; ++nKey)
        chart.AddChromaGroupByIndex(nKey, {});
    chart.ReleaseChromaData();
    QVERIFY(chart.m_mapGroups.isEmpty());
    chart.ReleaseChromaData();
}

QTEST_MAIN(TestCChromaticityDlgWnd)
#include "TestCChromaticityDlgWnd.moc"
