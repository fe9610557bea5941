#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "workbench/colour/ChartEditor.h"
#include "workbench/colour/GroupModel.h"

#include <QColor>
#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr int c_nKey = 4;

/// A chart of one sRGB group with its editor and model.
struct SModelled
{
    CChromaticityDlgWnd chart{nullptr};
    CChartEditor editor{chart};
    CGroupModel model{editor};
    QSignalSpy spyChanged{&editor, &CChartEditor::Changed};

    SModelled()
    {
        chart.SetSize(500, 500);
        chart.AddChromaGroupByIndex(c_nKey, ColourGroups::OfStandard(enStandardSRGB));
        model.Refresh();
        QObject::connect(&editor, &CChartEditor::Changed, &model, &CGroupModel::Refresh);
    }

    SChromaGroupInfo& Group() { return *chart.GetChromaGroupByIndex(c_nKey); }
    QModelIndex Cell(int nRow) const { return model.index(nRow, 0); }
    QString Text(int nRow) const { return Cell(nRow).data().toString(); }
    bool Type(int nRow, const char* szText)
    {
        return model.setData(Cell(nRow), QString::fromUtf8(szText), Qt::EditRole);
    }
};

} // namespace

class TestGroupModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AGroupIsAColumn();
    void EveryTickSetsItsField_data();
    void EveryTickSetsItsField();
    void ATypedPointIsTaken();
    void APointBeyondTheLocusStopsInsideIt();
    void AWhiteBeyondTheLocusIsRefused();
    void ATextThatIsNoPointIsRefused();
    void AnUnchangedTextKeepsTheHiddenDigits();
    void TheModeKeepsTheGamut();
    void APointInCmyModeIsTaken();
    void AColourBecomesTheGroupsOwn();
    void TheNamesOfTheTwoSpacesAreFixed();
    void AnEditIsOneStep();
    void AnEditWithoutEffectIsNoStep();
    void RemovedGroupsLeaveTheTable();
};

void TestGroupModel::AGroupIsAColumn()
{
    const SModelled modelled;
    QCOMPARE(modelled.model.columnCount(), 1);
    QCOMPARE(modelled.model.rowCount(), int(CGroupModel::enRowCount));
    QCOMPARE(modelled.Text(CGroupModel::enName), QStringLiteral("sRGB"));
    QCOMPARE(modelled.Text(CGroupModel::enMode), QStringLiteral("RGB"));
    QCOMPARE(modelled.Text(CGroupModel::enRed), QStringLiteral("0.6400, 0.3300"));
    QCOMPARE(modelled.Text(CGroupModel::enWhite), QStringLiteral("0.3127, 0.3290"));
    QCOMPARE(modelled.model.Key(0), c_nKey);
    QCOMPARE(modelled.model.Column(c_nKey), 0);
}

void TestGroupModel::EveryTickSetsItsField_data()
{
    QTest::addColumn<int>("nRow");
    QTest::newRow("visible") << int(CGroupModel::enVisible);
    QTest::newRow("red may move") << int(CGroupModel::enRed);
    QTest::newRow("green may move") << int(CGroupModel::enGreen);
    QTest::newRow("blue may move") << int(CGroupModel::enBlue);
    QTest::newRow("white may move") << int(CGroupModel::enWhite);
    QTest::newRow("own colour") << int(CGroupModel::enColour);
    QTest::newRow("legend") << int(CGroupModel::enNote);
}

void TestGroupModel::EveryTickSetsItsField()
{
    QFETCH(int, nRow);
    SModelled modelled;
    const auto Fields = [&modelled] {
        const SChromaGroupInfo& group = modelled.Group();
        return QVector<bool>{group.bVisible,   group.bMoveRed,  group.bMoveGreen, group.bMoveBlue,
                             group.bMoveWhite, group.bOwnColor, group.bShowNote};
    };
    static constexpr int c_arrRows[] = {CGroupModel::enVisible, CGroupModel::enRed,   CGroupModel::enGreen,
                                        CGroupModel::enBlue,    CGroupModel::enWhite, CGroupModel::enColour,
                                        CGroupModel::enNote};
    QVector<bool> vecExpected = Fields();
    const int nField = int(std::find(std::begin(c_arrRows), std::end(c_arrRows), nRow) - c_arrRows);
    const bool bBefore = modelled.Cell(nRow).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    QCOMPARE(bBefore, vecExpected.at(nField));
    QVERIFY(modelled.model.setData(modelled.Cell(nRow), bBefore ? Qt::Unchecked : Qt::Checked,
                                   Qt::CheckStateRole));
    vecExpected[nField] = !bBefore;
    QCOMPARE(Fields(), vecExpected);
}

void TestGroupModel::ATypedPointIsTaken()
{
    SModelled modelled;
    QVERIFY(modelled.Type(CGroupModel::enGreen, "0.25 0.65"));
    QCOMPARE(modelled.Text(CGroupModel::enGreen), QStringLiteral("0.2500, 0.6500"));
}

void TestGroupModel::APointBeyondTheLocusStopsInsideIt()
{
    SModelled modelled;
    QVERIFY(modelled.Type(CGroupModel::enRed, "0.8, 0.3"));
    QVERIFY(modelled.Group().ptRed.x > 0.64F);
    QVERIFY(modelled.Group().ptRed.x < 0.75F);
    QVERIFY(modelled.chart.IsPointInRegion(&modelled.Group(), enRedPoint));
}

void TestGroupModel::AWhiteBeyondTheLocusIsRefused()
{
    SModelled modelled;
    const QSignalSpy spy(&modelled.model, &CGroupModel::Refused);
    QVERIFY(!modelled.Type(CGroupModel::enWhite, "0.8, 0.8"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(modelled.Text(CGroupModel::enWhite), QStringLiteral("0.3127, 0.3290"));
    QCOMPARE(modelled.spyChanged.count(), 0);
}

void TestGroupModel::ATextThatIsNoPointIsRefused()
{
    SModelled modelled;
    const QSignalSpy spy(&modelled.model, &CGroupModel::Refused);
    QVERIFY(!modelled.Type(CGroupModel::enRed, "rot"));
    QCOMPARE(spy.count(), 1);
    QVERIFY(spy.first().first().toString().contains(QStringLiteral("rot")));
}

void TestGroupModel::AnUnchangedTextKeepsTheHiddenDigits()
{
    SModelled modelled;
    modelled.Group().ptRed = {0.640004F, 0.330004F};
    QVERIFY(modelled.Type(CGroupModel::enRed, "0.6400, 0.3300"));
    QCOMPARE(modelled.Group().ptRed.x, 0.640004F);
    QCOMPARE(modelled.spyChanged.count(), 0);
}

void TestGroupModel::TheModeKeepsTheGamut()
{
    SModelled modelled;
    QVERIFY(modelled.Type(CGroupModel::enMode, "CMY"));
    QVERIFY(!modelled.Group().bRgbMode);
    QCOMPARE(modelled.Text(CGroupModel::enRed), QStringLiteral("0.2250, 0.3300"));
    QVERIFY(modelled.Type(CGroupModel::enMode, "RGB"));
    QCOMPARE(modelled.Text(CGroupModel::enRed), QStringLiteral("0.6400, 0.3300"));
}

void TestGroupModel::APointInCmyModeIsTaken()
{
    SModelled modelled;
    modelled.Type(CGroupModel::enMode, "CMY");
    QVERIFY(modelled.Type(CGroupModel::enRed, "0.23, 0.34"));
    QCOMPARE(modelled.Text(CGroupModel::enRed), QStringLiteral("0.2300, 0.3400"));
    QCOMPARE(modelled.Text(CGroupModel::enGreen), QStringLiteral("0.3950, 0.1950"));
}

void TestGroupModel::AColourBecomesTheGroupsOwn()
{
    SModelled modelled;
    QVERIFY(modelled.model.setData(modelled.Cell(CGroupModel::enColour), QColor(1, 2, 3), Qt::EditRole));
    QVERIFY(modelled.Group().bOwnColor);
    QCOMPARE(modelled.Text(CGroupModel::enColour), QStringLiteral("#010203"));
}

void TestGroupModel::TheNamesOfTheTwoSpacesAreFixed()
{
    SModelled modelled;
    modelled.chart.AddChromaGroupByIndex(enOutputColorSpace, ColourGroups::OutputSpace());
    modelled.chart.AddChromaGroupByIndex(enScreenColorSpace, ColourGroups::ScreenSpace());
    modelled.model.Refresh();
    for (const int nKey : {int(enOutputColorSpace), int(enScreenColorSpace)}) {
        const QModelIndex index = modelled.model.index(CGroupModel::enName, modelled.model.Column(nKey));
        QVERIFY(!index.flags().testFlag(Qt::ItemIsEditable));
    }
    QVERIFY(modelled.Cell(CGroupModel::enName).flags().testFlag(Qt::ItemIsEditable));
}

void TestGroupModel::AnEditIsOneStep()
{
    SModelled modelled;
    const QSignalSpy spySteps(&modelled.editor, &CChartEditor::StepBegan);
    modelled.Type(CGroupModel::enName, "LED");
    modelled.Type(CGroupModel::enGreen, "0.25 0.65");
    QCOMPARE(modelled.spyChanged.count(), 2);
    QCOMPARE(spySteps.count(), 2);
}

void TestGroupModel::AnEditWithoutEffectIsNoStep()
{
    SModelled modelled;
    QVERIFY(modelled.Type(CGroupModel::enName, "sRGB"));
    QCOMPARE(modelled.spyChanged.count(), 0);
}

void TestGroupModel::RemovedGroupsLeaveTheTable()
{
    SModelled modelled;
    modelled.editor.Change(QStringLiteral("remove"),
                           [&modelled] { return modelled.chart.RemoveChromaGroupByIndex(c_nKey); });
    QCOMPARE(modelled.model.columnCount(), 0);
}

QTEST_MAIN(TestGroupModel)
#include "TestGroupModel.moc"
