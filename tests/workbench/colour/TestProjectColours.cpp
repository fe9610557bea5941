#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/colour/ShownColourPage.h"
#include "workbench/colour/GroupPanel.h"

#include <QTemporaryDir>

namespace {

CProjectDocument& Document()
{
    return CSimulator::Instance().Document();
}

const std::optional<SProjectColour>& Colour()
{
    return CSimulator::Instance().Project().colour;
}

QPolygonF Region()
{
    return QPolygonF({{0.25, 0.25}, {0.5, 0.25}, {0.375, 0.5}});
}

} // namespace

class TestProjectColours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void AChartAsItStartsIsNoChange();
    void ADragIsAnUnsavedChange();
    void UndoTakesTheChangeBack();
    void ARegionIsAnUnsavedChange();
    void ANewProjectStartsWithItsOwnGroups();
    void AProjectBringsItsGroupsAndRegion();
    void AFileWithoutColoursOpens();
    void OneOfThePairAloneIsRefused();
};

void TestProjectColours::initTestCase()
{
    SenderModuleDialogInit(CSimulator::Instance().Label());
}

void TestProjectColours::init()
{
    Document().NewProject();
}

void TestProjectColours::AChartAsItStartsIsNoChange()
{
    const SShownColourPage shown;
    QVERIFY(!Document().IsModified());
    QVERIFY(!Colour());
}

void TestProjectColours::ADragIsAnUnsavedChange()
{
    SShownColourPage shown;
    shown.Drag(shown.Screen().ptGreen, {0.3F, 0.6F});
    QVERIFY(Document().IsModified());
    QCOMPARE(Colour()->listGroups.size(), 2);
    QCOMPARE(Colour()->listGroups.last().green.place.fX, shown.Screen().ptGreen.x);
}

void TestProjectColours::UndoTakesTheChangeBack()
{
    SShownColourPage shown;
    shown.Drag(shown.Screen().ptGreen, {0.3F, 0.6F});
    shown.history.Undo();
    QVERIFY(!Document().IsModified());
}

void TestProjectColours::ARegionIsAnUnsavedChange()
{
    SShownColourPage shown;
    shown.Draw(Region());
    QTest::keyClick(&shown.View().Overlay(), Qt::Key_Return);
    QVERIFY(Document().IsModified());
    QCOMPARE(Colour()->listRegion.size(), 3);
    QVERIFY(Colour()->bRegionOn);
}

void TestProjectColours::ANewProjectStartsWithItsOwnGroups()
{
    SShownColourPage shown;
    const CPointEx<float> ptBefore = shown.Screen().ptGreen;
    shown.Drag(ptBefore, {0.3F, 0.6F});
    shown.Draw(Region());
    QTest::keyClick(&shown.View().Overlay(), Qt::Key_Return);
    Document().NewProject();
    QCOMPARE(shown.Screen().ptGreen.x, ptBefore.x);
    QVERIFY(!shown.View().Region().IsRegion());
    QVERIFY(!shown.Steps().canUndo());
    QVERIFY(!Document().IsModified());
}

void TestProjectColours::AProjectBringsItsGroupsAndRegion()
{
    const QTemporaryDir folder;
    const QString strFile = folder.filePath(QStringLiteral("project.json"));
    SFileProblem problem;
    CPointEx<float> ptGreen;
    {
        SShownColourPage shown;
        shown.page.Groups().AddStandard(enStandardSRGB);
        shown.Drag(shown.Screen().ptGreen, {0.3F, 0.6F});
        shown.Draw(Region());
        QTest::keyClick(&shown.View().Overlay(), Qt::Key_Return);
        ptGreen = shown.Screen().ptGreen;
        QVERIFY2(Document().SaveAs(strFile, problem), qPrintable(problem.Text()));
        QVERIFY(!Document().IsModified());
    }
    Document().NewProject();
    SShownColourPage shown;
    QVERIFY2(Document().Open(strFile, problem), qPrintable(problem.Text()));
    QCOMPARE(shown.Chart().m_mapGroups.size(), 3);
    QCOMPARE(shown.Screen().ptGreen.x, ptGreen.x);
    QCOMPARE(shown.Screen().ptGreen.y, ptGreen.y);
    QCOMPARE(shown.View().Region().Polygon().size(), 3);
    QVERIFY(shown.View().Region().IsOn());
    QVERIFY(!Document().IsModified());
}

void TestProjectColours::AFileWithoutColoursOpens()
{
    QJsonObject object = ProjectToJson(CSimulator::Instance().Project());
    object.remove(QStringLiteral("colour"));
    SFileProblem problem;
    QVERIFY(!ProjectFromJson(object, problem).colour);
    QVERIFY2(!problem.IsSet(), qPrintable(problem.Text()));
}

void TestProjectColours::OneOfThePairAloneIsRefused()
{
    SSimulatedProject project;
    project.colour.emplace().listGroups.append(SProjectColourGroup());
    project.colour->listGroups.first().nKey = enOutputColorSpace;
    SFileProblem problem;
    ProjectFromJson(ProjectToJson(project), problem);
    QCOMPARE(problem.strPlace, QStringLiteral("colour.groups"));
}

QTEST_MAIN(TestProjectColours)
#include "TestProjectColours.moc"
