#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/colour/ShownColourPage.h"
#include "workbench/colour/GroupModel.h"
#include "workbench/colour/GroupPanel.h"
#include "workbench/colour/PointKeys.h"
#include "workbench/colour/PointReadout.h"
#include "workbench/colour/UcsView.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QToolTip>
#include <QtTest>

namespace {

QString Text(CPointEx<float> point)
{
    return ColourGroups::PointText(point);
}

QPolygonF Pentagon()
{
    return QPolygonF({{0.20, 0.20}, {0.50, 0.28}, {0.46, 0.46}, {0.30, 0.62}, {0.20, 0.45}});
}

} // namespace

class TestColourPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ItStartsWithBothSpaces();
    void AResizeLaysTheChartOutAndPaintsItsBitmap_data();
    void AResizeLaysTheChartOutAndPaintsItsBitmap();
    void ADragIsOneStep();
    void UndoAndRedoFollowTheKeys();
    void ADragOfAFixedPointIsNoStep();
    void NoStepIsTakenInTheMiddleOfADrag();
    void ARegionHoldsADraggedPoint();
    void ARegionIsDrawnByClicksAndKeys();
    void EscapeKeepsTheRegion();
    void ADragInCmyModeStaysLegal();
    void TheNameOfTheStandardOutlivesADrag();
    void APresetTakesThePointsAndCanBeUndone_data();
    void APresetTakesThePointsAndCanBeUndone();
    void APresetOfAnotherGroupLeavesTheNameAlone();
    void RemovingOneSpaceRemovesBoth();
    void GroupsCanBeAddedAfterAllWereRemoved();
    void WhiteSnapsWhileItIsTold();
    void TheReadoutNamesThePointUnderTheMouse();
    void TheReadoutNamesTheWavelengthNearTheOutline();
    void TheUcsDiagramShowsTheSameGroups();
    void TakingHoldOfAPointSelectsItsGroup();
    void AGroupIsHeadedByItsName();
    void DrawingAndClearingARegionAreStepsOfTheirOwn();
    void ConfiningThePointsCanBeUndoneAndTheTickFollows();
    void TheHintStandsAtTheChartAndFollowsTheCorners();
    void TheHintGoesWithTheDrawing();
    void TheLineBelowTheChartFollowsUndo();
    void TheLineBelowTheChartForgetsTheMouseThatLeft();
    void TheLineBelowTheChartForgetsARemovedGroup();
    void AWidePageShowsBothDiagrams();
    void AScreenOf3840By2160ShowsBothDiagrams();
    void ARefusedValueIsExplainedAtItsCell();
    void ANarrowPageLeavesRoomForTheChart();
};

/// The groups belong to the project, which outlives a page.
void TestColourPage::init()
{
    CSimulator::Instance().Document().NewProject();
}

void TestColourPage::ItStartsWithBothSpaces()
{
    SShownColourPage shown;
    QCOMPARE(shown.Chart().m_mapGroups.keys(), (QList<int>{enOutputColorSpace, enScreenColorSpace}));
    QVERIFY(!shown.Steps().canUndo());
    QCOMPARE(ColourGroups::Coverage(shown.Chart()).value_or(-1), 72);
}

void TestColourPage::AResizeLaysTheChartOutAndPaintsItsBitmap_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("large") << QSize(900, 800);
    QTest::newRow("small") << QSize(220, 240);
    QTest::newRow("wide") << QSize(1200, 300);
    QTest::newRow("too small to read") << QSize(50, 20);
}

void TestColourPage::AResizeLaysTheChartOutAndPaintsItsBitmap()
{
    QFETCH(QSize, size);
    CChartView view;
    view.resize(size);
    view.show();
    view.resize(size + QSize(7, 3));
    view.WaitForBitmap();
    const QSize sizeChart = (size + QSize(7, 3)).expandedTo(view.minimumSizeHint());
    QCOMPARE(view.Chart().size(), sizeChart);
    QCOMPARE(QSize(view.Chart().m_nWndWidth, view.Chart().m_nWndHeight), sizeChart);
    QVERIFY(view.Chart().m_wndBitmap0.bReady);
    QCOMPARE(view.Chart().m_wndBitmap0.pImage->size(), sizeChart);
}

void TestColourPage::ADragIsOneStep()
{
    SShownColourPage shown;
    const CPointEx<float> ptBefore = shown.Screen().ptGreen;
    shown.Drag(ptBefore, {0.30F, 0.60F});
    const QString strAfter = Text(shown.Screen().ptGreen);
    QVERIFY(strAfter != Text(ptBefore));
    QCOMPARE(shown.Steps().count(), 1);
    shown.history.Undo();
    QCOMPARE(Text(shown.Screen().ptGreen), Text(ptBefore));
    shown.history.Redo();
    QCOMPARE(Text(shown.Screen().ptGreen), strAfter);
}

void TestColourPage::UndoAndRedoFollowTheKeys()
{
    SShownColourPage shown;
    shown.page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    const CPointEx<float> ptBefore = shown.Screen().ptGreen;
    shown.Drag(ptBefore, {0.30F, 0.60F});
    QTest::keySequence(&shown.Chart(), QKeySequence::Undo);
    QCOMPARE(Text(shown.Screen().ptGreen), Text(ptBefore));
    QTest::keySequence(&shown.Chart(), QKeySequence::Redo);
    QVERIFY(Text(shown.Screen().ptGreen) != Text(ptBefore));
}

void TestColourPage::ADragOfAFixedPointIsNoStep()
{
    SShownColourPage shown;
    const CPointEx<float> ptFixed = shown.Chart().GetChromaGroupByIndex(enOutputColorSpace)->ptGreen;
    shown.Drag(ptFixed, {0.30F, 0.60F});
    QCOMPARE(shown.Steps().count(), 0);
    QCOMPARE(Text(shown.Chart().GetChromaGroupByIndex(enOutputColorSpace)->ptGreen), Text(ptFixed));
}

void TestColourPage::NoStepIsTakenInTheMiddleOfADrag()
{
    SShownColourPage shown;
    shown.Drag(shown.Screen().ptGreen, {0.30F, 0.60F});
    shown.Press(shown.Screen().ptGreen);
    shown.Pull({0.32F, 0.58F});
    shown.history.Undo();
    QCOMPARE(shown.Steps().index(), 1);
    shown.Release({0.32F, 0.58F});
    QCOMPARE(shown.Steps().index(), 2);
}

void TestColourPage::ARegionHoldsADraggedPoint()
{
    SShownColourPage shown;
    shown.View().Region().SetPolygon(Pentagon());
    shown.page.Controls().SetRegionOn(true);
    shown.Drag(shown.Screen().ptGreen, {0.32F, 0.66F});
    QVERIFY(shown.View().Region().Allows(shown.Screen().ptGreen));
    shown.page.Controls().SetRegionOn(false);
    shown.Drag(shown.Screen().ptGreen, {0.28F, 0.66F});
    QVERIFY(
        !Pentagon().containsPoint(shown.Chart().CPointFToQPointF(shown.Screen().ptGreen), Qt::OddEvenFill));
}

void TestColourPage::ARegionIsDrawnByClicksAndKeys()
{
    SShownColourPage shown;
    QPolygonF polygon = Pentagon();
    polygon.append(QPointF(0.1, 0.1));
    shown.Draw(polygon);
    QVERIFY(shown.View().Overlay().IsDrawing());
    QTest::keyClick(&shown.View().Overlay(), Qt::Key_Backspace);
    QTest::keyClick(&shown.View().Overlay(), Qt::Key_Return);
    QVERIFY(!shown.View().Overlay().IsDrawing());
    QVERIFY(shown.View().Region().IsOn());
    QCOMPARE(shown.View().Region().Polygon().size(), Pentagon().size());
    constexpr double c_dPixel = 0.003; // a pixel of this chart
    for (int i = 0; i < Pentagon().size(); ++i)
        QVERIFY(QLineF(shown.View().Region().Polygon().at(i), Pentagon().at(i)).length() < c_dPixel);
}

void TestColourPage::EscapeKeepsTheRegion()
{
    SShownColourPage shown;
    shown.View().Region().SetPolygon(Pentagon());
    shown.Draw(QPolygonF(QVector<QPointF>{{0.3, 0.3}, {0.4, 0.3}}));
    QTest::keyClick(&shown.View().Overlay(), Qt::Key_Return);
    QVERIFY2(shown.View().Overlay().IsDrawing(), "two corners close nothing");
    QTest::keyClick(&shown.View().Overlay(), Qt::Key_Escape);
    QVERIFY(!shown.View().Overlay().IsDrawing());
    QCOMPARE(shown.View().Region().Polygon(), Pentagon());
}

void TestColourPage::ADragInCmyModeStaysLegal()
{
    SShownColourPage shown;
    ColourGroups::SetMode(shown.Screen(), false);
    shown.Drag(shown.Screen().ptRed, {0.05F, 0.30F});
    SChromaGroupInfo group = shown.Screen();
    ColourGroups::SetMode(group, true);
    for (const int nPoint : {enRedPoint, enGreenPoint, enBluePoint})
        QVERIFY(shown.Chart().IsPointInRegion(&group, nPoint));
}

void TestColourPage::TheNameOfTheStandardOutlivesADrag()
{
    SShownColourPage shown;
    shown.page.Controls().SetStandardShown(true);
    shown.page.grab();
    QVERIFY(shown.Chart().m_bShowStandard);
    QCOMPARE(shown.Chart().m_nStandard, int(enStandardRec2020));
    shown.Drag(shown.Screen().ptGreen, {0.30F, 0.60F});
    QVERIFY(shown.Chart().m_bShowStandard);
    shown.page.Controls().SetStandardShown(false);
    QVERIFY(!shown.Chart().m_bShowStandard);
}

void TestColourPage::APresetTakesThePointsAndCanBeUndone_data()
{
    QTest::addColumn<int>("nStandard");
    for (int i = 0; i < c_nColorStandardCount; ++i)
        QTest::addRow("standard %d", i) << i;
}

void TestColourPage::APresetTakesThePointsAndCanBeUndone()
{
    QFETCH(int, nStandard);
    SShownColourPage shown;
    shown.page.Controls().SetStandardShown(true);
    shown.page.Groups().SelectKey(enOutputColorSpace);
    shown.page.Groups().ApplyStandard(enColorStandard(nStandard));
    shown.page.grab();
    QCOMPARE(shown.Chart().m_nStandard, nStandard);
    shown.history.Undo();
    shown.page.grab();
    QCOMPARE(shown.Chart().m_nStandard, int(enStandardRec2020));
}

void TestColourPage::APresetOfAnotherGroupLeavesTheNameAlone()
{
    SShownColourPage shown;
    shown.page.Controls().SetStandardShown(true);
    shown.page.Groups().SelectKey(enOutputColorSpace);
    shown.page.Groups().ApplyStandard(enStandardRec709);
    shown.page.Groups().SelectKey(enScreenColorSpace);
    shown.page.Groups().ApplyStandard(enStandardPAL);
    shown.Drag(shown.Screen().ptGreen, {0.25F, 0.55F});
    shown.page.grab();
    QCOMPARE(shown.Chart().m_nStandard, int(enStandardRec709));
}

void TestColourPage::RemovingOneSpaceRemovesBoth()
{
    SShownColourPage shown;
    shown.page.Groups().SelectKey(enOutputColorSpace);
    shown.page.Groups().RemoveSelected();
    shown.page.grab();
    QVERIFY(shown.Chart().m_mapGroups.isEmpty());
    shown.history.Undo();
    QCOMPARE(shown.Chart().m_mapGroups.size(), 2);
}

void TestColourPage::GroupsCanBeAddedAfterAllWereRemoved()
{
    SShownColourPage shown;
    shown.page.Controls().SetStandardShown(true);
    shown.page.Groups().RemoveSelected();
    shown.page.grab();
    QCOMPARE(shown.page.Groups().SelectedKey(), -1);
    shown.page.Groups().AddStandard(enStandardNTSC);
    shown.page.Groups().AddCoveragePair();
    shown.page.grab();
    QCOMPARE(shown.Chart().m_mapGroups.keys(), (QList<int>{0, enOutputColorSpace, enScreenColorSpace}));
    QCOMPARE(shown.Chart().m_nStandard, int(enStandardNTSC));
}

void TestColourPage::WhiteSnapsWhileItIsTold()
{
    SShownColourPage shown;
    shown.page.Controls().SetSnapping(true);
    shown.Drag(shown.Screen().ptWhite, {0.325F, 0.335F});
    QCOMPARE(shown.Screen().ptWhite.x, float(shown.Chart().m_ptD65.x()));
    QCOMPARE(shown.Screen().ptWhite.y, float(shown.Chart().m_ptD65.y()));
}

void TestColourPage::TheReadoutNamesThePointUnderTheMouse()
{
    SShownColourPage shown;
    shown.Move(shown.Screen().ptGreen);
    const QString strGreen = PointReadout::Of(shown.Chart());
    QVERIFY(strGreen.contains(QString::fromUtf8("绿")));
    QVERIFY(strGreen.contains(Text(shown.Screen().ptGreen)));
    shown.Move(shown.Screen().ptWhite);
    QVERIFY(PointReadout::Of(shown.Chart()).contains(QStringLiteral(" K")));
    shown.Move({0.205F, 0.4F});
    QVERIFY(PointReadout::Of(shown.Chart()).startsWith(QStringLiteral("x, y = 0.2")));
    shown.Move({0.7F, 0.7F});
    QVERIFY(PointReadout::Of(shown.Chart()).isEmpty());
}

void TestColourPage::TheReadoutNamesTheWavelengthNearTheOutline()
{
    SShownColourPage shown;
    shown.Move({0.0743F, 0.8338F});
    QVERIFY(PointReadout::Of(shown.Chart()).contains(QStringLiteral("520 nm")));
    // Just outside there is no chromaticity to show, but still the wavelength.
    shown.Move({0.0720F, 0.8430F});
    QVERIFY(PointReadout::Of(shown.Chart()).contains(QStringLiteral(" nm")));
    shown.Move({0.3F, 0.3F});
    QVERIFY(!PointReadout::Of(shown.Chart()).contains(QStringLiteral(" nm")));
}

void TestColourPage::TheUcsDiagramShowsTheSameGroups()
{
    SShownColourPage shown;
    auto* pUcs = shown.page.findChild<CUcsView*>();
    QVERIFY(!pUcs->isVisible());
    shown.page.ShowUcs(true);
    QVERIFY(pUcs->isVisible());
    QVERIFY(!shown.View().isVisible());
    // Equal energy lies where 4/19 and 9/19 are on the axes: a fixed place of the diagram.
    const QPointF ptWhite = pUcs->PixelOf({1.0 / 3.0, 1.0 / 3.0});
    const QPointF ptRed = pUcs->PixelOf({0.64, 0.33});
    QVERIFY(ptRed.x() > ptWhite.x() && ptRed.y() < ptWhite.y());
    const QImage before = pUcs->grab().toImage();
    shown.page.Groups().ApplyStandard(enStandardSRGB);
    QVERIFY(pUcs->grab().toImage() != before);
    shown.page.ShowUcs(false);
    QVERIFY(shown.View().isVisible());
}

void TestColourPage::TakingHoldOfAPointSelectsItsGroup()
{
    SShownColourPage shown;
    for (int i = 0; i < 6; ++i)
        shown.page.Groups().AddStandard(enStandardSRGB);
    auto* pTable = shown.page.Groups().findChild<QTableView*>();
    pTable->scrollTo(pTable->model()->index(0, 0));
    shown.page.Groups().SelectKey(0);
    shown.Drag(shown.Screen().ptGreen, {0.30F, 0.60F});
    QCOMPARE(shown.page.Groups().SelectedKey(), int(enScreenColorSpace));
    QVERIFY(pTable->viewport()->rect().contains(pTable->visualRect(pTable->currentIndex())));
}

void TestColourPage::AGroupIsHeadedByItsName()
{
    SShownColourPage shown;
    shown.page.Groups().AddStandard(enStandardSRGB);
    CGroupModel& model = shown.page.Groups().Model();
    const int nColumn = model.Column(shown.page.Groups().SelectedKey());
    QCOMPARE(model.headerData(nColumn, Qt::Horizontal, Qt::DisplayRole), QVariant(QStringLiteral("sRGB")));
    QSignalSpy spy(&model, &CGroupModel::headerDataChanged);
    QVERIFY(model.setData(model.index(CGroupModel::enName, nColumn), QStringLiteral("stage"), Qt::EditRole));
    QCOMPARE(model.headerData(nColumn, Qt::Horizontal, Qt::DisplayRole), QVariant(QStringLiteral("stage")));
    QVERIFY(!spy.isEmpty());
}

void TestColourPage::DrawingAndClearingARegionAreStepsOfTheirOwn()
{
    SShownColourPage shown;
    shown.Draw(Pentagon());
    QTest::keyClick(&shown.View().Overlay(), Qt::Key_Return);
    QCOMPARE(shown.Steps().count(), 1);
    shown.page.Controls().ClearRegion();
    QCOMPARE(shown.Steps().count(), 2);
    QVERIFY(!shown.View().Region().IsRegion());
    shown.history.Undo();
    QCOMPARE(shown.View().Region().Polygon().size(), Pentagon().size());
    QVERIFY(shown.View().Region().IsOn());
    shown.history.Undo();
    QVERIFY(!shown.View().Region().IsRegion());
    shown.history.Redo();
    QVERIFY(shown.View().Region().IsOn());
    QVERIFY(CSimulator::Instance().Project().colour->bRegionOn);
}

void TestColourPage::ConfiningThePointsCanBeUndoneAndTheTickFollows()
{
    SShownColourPage shown;
    shown.Draw(Pentagon());
    QTest::keyClick(&shown.View().Overlay(), Qt::Key_Return);
    const QList<QCheckBox*> listBoxes = shown.page.Controls().findChildren<QCheckBox*>();
    auto* pTick = *std::find_if(listBoxes.cbegin(), listBoxes.cend(), [](const QCheckBox* pBox) {
        return pBox->text() == QString::fromUtf8("点留在区域内");
    });
    QVERIFY(pTick->isChecked());
    pTick->click();
    QVERIFY(!shown.View().Region().IsOn());
    shown.history.Undo();
    QVERIFY(shown.View().Region().IsOn());
    QVERIFY(pTick->isChecked());
}

void TestColourPage::TheHintStandsAtTheChartAndFollowsTheCorners()
{
    SShownColourPage shown;
    CRegionOverlay& overlay = shown.View().Overlay();
    QSignalSpy spy(&shown.page, &CColourPage::Reported);
    QStringList listHints;
    shown.page.Controls().DrawRegion();
    const QImage imgWithHint = overlay.grab().toImage();
    for (const QPointF& pt : Pentagon()) {
        listHints.append(overlay.Hint());
        QTest::mouseClick(&overlay, Qt::LeftButton, Qt::NoModifier,
                          shown.Chart().Mapping().ToPixel(pt).toPoint());
    }
    QVERIFY(listHints[0].contains(QString::fromUtf8("第一个")));
    QVERIFY(listHints[2].contains(QString::fromUtf8("下一个")));
    QVERIFY(listHints[3].contains(QString::fromUtf8("双击")));
    QCOMPARE(spy.count(), 0);
    QTest::keyClick(&overlay, Qt::Key_Escape);
    QVERIFY(overlay.grab().toImage() != imgWithHint);
}

void TestColourPage::TheHintGoesWithTheDrawing()
{
    SShownColourPage shown;
    CRegionOverlay& overlay = shown.View().Overlay();
    const QImage imgBefore = overlay.grab().toImage();
    shown.page.Controls().DrawRegion();
    QVERIFY(overlay.grab().toImage() != imgBefore);
    QTest::keyClick(&overlay, Qt::Key_Escape);
    QCOMPARE(overlay.Hint(), QString());
    QCOMPARE(overlay.grab().toImage(), imgBefore);
}

namespace {

/// The line below the chart.
QString Line(SShownColourPage& shown)
{
    QCoreApplication::processEvents();
    return shown.page.findChild<QLabel*>(QStringLiteral("readout"))->text();
}

} // namespace

void TestColourPage::TheLineBelowTheChartFollowsUndo()
{
    SShownColourPage shown;
    const QString strBefore = Text(shown.Screen().ptGreen);
    shown.Press(shown.Screen().ptGreen);
    shown.Pull({0.30F, 0.60F});
    QVERIFY(Line(shown).contains(Text(shown.Screen().ptGreen)));
    shown.Release({0.30F, 0.60F});
    QVERIFY(Line(shown).contains(Text(shown.Screen().ptGreen)));
    shown.history.Undo();
    QVERIFY(Line(shown).contains(strBefore));
}

void TestColourPage::TheLineBelowTheChartForgetsTheMouseThatLeft()
{
    SShownColourPage shown;
    shown.page.Groups().findChild<QTableView*>()->setFocus();
    const QString strHint = Line(shown);
    shown.Move({0.3F, 0.3F});
    QVERIFY(Line(shown) != strHint);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&shown.Chart(), &leave);
    QCOMPARE(Line(shown), strHint);
}

void TestColourPage::TheLineBelowTheChartForgetsARemovedGroup()
{
    SShownColourPage shown;
    shown.page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&shown.page));
    shown.page.Groups().findChild<QTableView*>()->setFocus();
    const QString strHint = Line(shown);
    shown.View().Keys().setFocus();
    QVERIFY(Line(shown) != strHint);
    shown.page.Groups().SelectKey(enScreenColorSpace);
    shown.page.Groups().RemoveSelected();
    QCOMPARE(Line(shown), strHint);
}

void TestColourPage::AWidePageShowsBothDiagrams()
{
    SShownColourPage shown;
    auto* pUcs = shown.page.findChild<CUcsView*>();
    QVERIFY(!pUcs->isVisible());
    shown.page.resize(3000, 1000);
    QCoreApplication::processEvents();
    QVERIFY(shown.View().isVisible());
    QVERIFY(pUcs->isVisible());
    // Each diagram gets the width that its height can use.
    QVERIFY(shown.View().width() >= int(0.95 * shown.View().height()));
    QVERIFY(pUcs->width() >= int(0.95 * pUcs->height()));
    shown.page.resize(1000, 640);
    QCoreApplication::processEvents();
    QVERIFY(shown.View().isVisible());
    QVERIFY(!pUcs->isVisible());
}

void TestColourPage::AScreenOf3840By2160ShowsBothDiagrams()
{
    SShownColourPage shown;
    // What tree, menu and journal leave to the page.
    shown.page.resize(3460, 1850);
    QCoreApplication::processEvents();
    QVERIFY(shown.View().isVisible());
    QVERIFY(shown.page.findChild<CUcsView*>()->isVisible());
}

void TestColourPage::ARefusedValueIsExplainedAtItsCell()
{
    SShownColourPage shown;
    auto* pTable = shown.page.Groups().findChild<QTableView*>();
    const QModelIndex index = pTable->model()->index(CGroupModel::enWhite, pTable->currentIndex().column());
    pTable->setCurrentIndex(index);
    pTable->edit(index);
    QTest::keyClicks(pTable->findChild<QLineEdit*>(), QStringLiteral("2, 3"));
    QTest::keyClick(pTable->findChild<QLineEdit*>(), Qt::Key_Return);
    QTRY_VERIFY(QToolTip::text().contains(QStringLiteral("2, 3")));
}

void TestColourPage::ANarrowPageLeavesRoomForTheChart()
{
    SShownColourPage shown;
    shown.page.resize(700, 600);
    QCoreApplication::processEvents();
    QCOMPARE(shown.page.width(), 700);
    QVERIFY(shown.View().width() >= 300);
}

QTEST_MAIN(TestColourPage)
#include "TestColourPage.moc"
