#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/colour/ShownColourPage.h"
#include "workbench/colour/GroupPanel.h"
#include "workbench/colour/ReadingsModels.h"
#include "workbench/colour/ReadingsPanel.h"

#include <QSignalSpy>

namespace {

QString Cell(const QAbstractItemModel& model, int nRow, int nColumn)
{
    return model.index(nRow, nColumn).data().toString();
}

SChromaGroupInfo GroupOf(enColorStandard standard)
{
    return ColourGroups::OfStandard(standard);
}

} // namespace

class TestReadingsPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ReadingsOfAStandardAreTheKnownOnes();
    void CmyModeTellsOfTheSameTriangle();
    void ImpossiblePointsLeaveCellsEmpty();
    void ThePanelTellsOfTheSelectedGroup();
    void ItFollowsADrag();
    void ItFollowsUndo();
    void BehindAnotherTabItRests();
    void WithoutAGroupItIsEmpty();
};

/// The groups belong to the project, which outlives a page.
void TestReadingsPanel::init()
{
    CSimulator::Instance().Document().NewProject();
}

void TestReadingsPanel::ReadingsOfAStandardAreTheKnownOnes()
{
    CPointReadingsModel points;
    points.SetReadings(GroupReadings::Of(GroupOf(enStandardRec709)));
    QCOMPARE(Cell(points, CPointReadingsModel::enU, enRedPoint), QStringLiteral("0.4507"));
    QCOMPARE(Cell(points, CPointReadingsModel::enV, enWhitePoint), QStringLiteral("0.4683"));
    QCOMPARE(Cell(points, CPointReadingsModel::enWavelength, enRedPoint), QStringLiteral("611.3 nm"));
    QCOMPARE(Cell(points, CPointReadingsModel::enPurity, enGreenPoint), QStringLiteral("73.4 %"));
    QCOMPARE(Cell(points, CPointReadingsModel::enShare, enGreenPoint), QStringLiteral("71.5 %"));
    QCOMPARE(Cell(points, CPointReadingsModel::enCorrelated, enWhitePoint), QStringLiteral("6504 K"));
    QCOMPARE(Cell(points, CPointReadingsModel::enDuv, enWhitePoint), QStringLiteral("+0.0032"));
    QCOMPARE(Cell(points, CPointReadingsModel::enDaylight, enWhitePoint), QStringLiteral("6500 K"));
    CCoverageModel coverage;
    coverage.SetReadings(GroupReadings::Of(GroupOf(enStandardDCIP3)));
    QCOMPARE(Cell(coverage, enStandardRec2020, CCoverageModel::enCoveredXy), QStringLiteral("71.7 %"));
    QCOMPARE(Cell(coverage, enStandardRec2020, CCoverageModel::enCoveredUcs), QStringLiteral("72.8 %"));
    QCOMPARE(Cell(coverage, enStandardDCIP3, CCoverageModel::enAreaXy), QStringLiteral("100.0 %"));
}

void TestReadingsPanel::CmyModeTellsOfTheSameTriangle()
{
    SChromaGroupInfo group = GroupOf(enStandardDCIP3);
    ColourGroups::SetMode(group, false);
    CPointReadingsModel points;
    points.SetReadings(GroupReadings::Of(group));
    CPointReadingsModel expected;
    expected.SetReadings(GroupReadings::Of(GroupOf(enStandardDCIP3)));
    for (int nColumn = 0; nColumn < points.columnCount(); ++nColumn)
        QCOMPARE(Cell(points, CPointReadingsModel::enU, nColumn),
                 Cell(expected, CPointReadingsModel::enU, nColumn));
}

void TestReadingsPanel::ImpossiblePointsLeaveCellsEmpty()
{
    SChromaGroupInfo group = GroupOf(enStandardDCIP3);
    group.ptWhite = {0.0F, 0.0F};
    group.ptGreen = group.ptRed;
    CPointReadingsModel points;
    points.SetReadings(GroupReadings::Of(group));
    CCoverageModel coverage;
    coverage.SetReadings(GroupReadings::Of(group));
    const QString strNone = QStringLiteral("–");
    QCOMPARE(Cell(points, CPointReadingsModel::enWavelength, enRedPoint), strNone);
    QCOMPARE(Cell(points, CPointReadingsModel::enShare, enBluePoint), strNone);
    QCOMPARE(Cell(points, CPointReadingsModel::enCorrelated, enWhitePoint), strNone);
    QCOMPARE(Cell(points, CPointReadingsModel::enDaylight, enWhitePoint), strNone);
    QCOMPARE(Cell(coverage, 0, CCoverageModel::enCoveredXy), strNone);
}

void TestReadingsPanel::ThePanelTellsOfTheSelectedGroup()
{
    SShownColourPage shown;
    shown.page.ShowTab(CColourPage::enReadingsTab);
    shown.page.Groups().SelectKey(enScreenColorSpace);
    const QString strScreen = Cell(shown.page.Readings().Points(), CPointReadingsModel::enU, enGreenPoint);
    shown.page.Groups().SelectKey(enOutputColorSpace);
    QVERIFY(Cell(shown.page.Readings().Points(), CPointReadingsModel::enU, enGreenPoint) != strScreen);
}

void TestReadingsPanel::ItFollowsADrag()
{
    SShownColourPage shown;
    shown.page.ShowTab(CColourPage::enReadingsTab);
    shown.page.Groups().SelectKey(enScreenColorSpace);
    const auto Green = [&shown] {
        return Cell(shown.page.Readings().Points(), CPointReadingsModel::enWavelength, enGreenPoint);
    };
    const QString strBefore = Green();
    shown.Press(shown.Screen().ptGreen);
    shown.Pull({0.28F, 0.64F});
    QTRY_VERIFY(Green() != strBefore);
    const QString strHalfway = Green();
    shown.Pull({0.30F, 0.60F});
    QTRY_VERIFY(Green() != strHalfway);
    shown.Release({0.30F, 0.60F});
}

void TestReadingsPanel::ItFollowsUndo()
{
    SShownColourPage shown;
    shown.page.ShowTab(CColourPage::enReadingsTab);
    shown.page.Groups().SelectKey(enScreenColorSpace);
    const auto Red = [&shown] {
        return Cell(shown.page.Readings().Points(), CPointReadingsModel::enU, enRedPoint);
    };
    const QString strBefore = Red();
    shown.page.Groups().ApplyStandard(enStandardSRGB);
    QVERIFY(Red() != strBefore);
    shown.history.Undo();
    QCOMPARE(Red(), strBefore);
}

void TestReadingsPanel::BehindAnotherTabItRests()
{
    SShownColourPage shown;
    const QSignalSpy spy(&shown.page.Readings().Points(), &QAbstractItemModel::dataChanged);
    shown.page.Groups().ApplyStandard(enStandardSRGB);
    QCOMPARE(spy.count(), 0);
    shown.page.ShowTab(CColourPage::enReadingsTab);
    QVERIFY(spy.count() > 0);
    QCOMPARE(Cell(shown.page.Readings().Points(), CPointReadingsModel::enU, enRedPoint),
             QStringLiteral("0.4507"));
}

void TestReadingsPanel::WithoutAGroupItIsEmpty()
{
    SShownColourPage shown;
    shown.page.ShowTab(CColourPage::enReadingsTab);
    shown.page.Groups().RemoveSelected();
    QCOMPARE(shown.Chart().m_mapGroups.size(), 0);
    QCOMPARE(Cell(shown.page.Readings().Points(), CPointReadingsModel::enU, enRedPoint), QString());
}

QTEST_MAIN(TestReadingsPanel)
#include "TestReadingsPanel.moc"
