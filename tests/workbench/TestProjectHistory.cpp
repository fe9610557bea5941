#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "tests/workbench/DialogOperator.h"
#include "tests/workbench/ShownWorkbench.h"
#include "workbench/ProjectActions.h"
#include "workbench/ProjectHistory.h"
#include "workbench/colour/ColourPage.h"
#include "workbench/colour/GroupPanel.h"
#include "workbench/edid/EdidPage.h"
#include "workbench/output/OutputPage.h"

#include <QAction>
#include <QSpinBox>

namespace {

CProjectDocument& Document()
{
    return CSimulator::Instance().Document();
}

QJsonObject Values()
{
    return ProjectToJson(Document().Project());
}

void Rename(const char* szName)
{
    Document().Change([szName](SSimulatedProject& project) {
        project.listSenders[0].strName = QString::fromLatin1(szName);
    });
}

} // namespace

class TestProjectHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void EveryChangeOfTheProjectIsAStep();
    void AStepCoversAllThatHappensInIt();
    void AStepWithoutAChangeIsNone();
    void TheChoiceOfASenderIsNoStep();
    void AnotherProjectStartsWithoutSteps_data();
    void AnotherProjectStartsWithoutSteps();
    void NoStepIsTakenInTheMiddleOfAnother();
    void SavedStatesAreRecognisedOnTheWayBack();
    void TypingIntoAFieldIsOneStep();
    void TypingAfterThePauseOfTheFocusIsAnother();
    void EachPageMakesNamedSteps_data();
    void EachPageMakesNamedSteps();
    void UndoSelectsTheSenderItChanges();
    void TheMenuNamesTheStep();
    void StepsShareTheSendersThatStay();
};

void TestProjectHistory::initTestCase()
{
    SenderModuleDialogInit(CSimulator::Instance().Label());
}

void TestProjectHistory::init()
{
    Document().NewProject();
}

void TestProjectHistory::EveryChangeOfTheProjectIsAStep()
{
    CProjectHistory history;
    const QJsonObject before = Values();
    Rename("a");
    Document().AddSender(16);
    const QJsonObject after = Values();
    QCOMPARE(history.Steps().count(), 2);
    history.Undo();
    history.Undo();
    QCOMPARE(Values(), before);
    QVERIFY(!Document().IsModified());
    history.Redo();
    history.Redo();
    QCOMPARE(Values(), after);
}

void TestProjectHistory::AStepCoversAllThatHappensInIt()
{
    CProjectHistory history;
    const QJsonObject before = Values();
    history.BeginStep(QStringLiteral("outer"));
    Rename("a");
    history.BeginStep(QStringLiteral("inner"));
    Rename("b");
    history.EndStep();
    // Without an announcement, as the dialogs write.
    Document().Edit().listSenders[1].strName = QStringLiteral("c");
    history.EndStep();
    QCOMPARE(history.Steps().count(), 1);
    QCOMPARE(history.Steps().undoText(), QStringLiteral("outer"));
    history.Undo();
    QCOMPARE(Values(), before);
}

void TestProjectHistory::AStepWithoutAChangeIsNone()
{
    CProjectHistory history;
    history.BeginStep(QStringLiteral("nothing"));
    history.EndStep();
    QCOMPARE(history.Steps().count(), 0);
}

void TestProjectHistory::TheChoiceOfASenderIsNoStep()
{
    const CProjectHistory history;
    Document().SetCurrentSender(3);
    QCOMPARE(history.Steps().count(), 0);
}

void TestProjectHistory::AnotherProjectStartsWithoutSteps_data()
{
    QTest::addColumn<bool>("empty");
    QTest::newRow("with senders") << false;
    QTest::newRow("empty") << true;
}

void TestProjectHistory::AnotherProjectStartsWithoutSteps()
{
    QFETCH(bool, empty);
    CProjectHistory history;
    Rename("a");
    if (empty)
        Document().NewEmptyProject();
    else
        Document().NewProject();
    QCOMPARE(history.Steps().count(), 0);
    // The first change of the new project counts.
    Document().AddSender(16);
    QCOMPARE(history.Steps().count(), 1);
}

void TestProjectHistory::NoStepIsTakenInTheMiddleOfAnother()
{
    CProjectHistory history;
    Rename("a");
    history.BeginStep(QStringLiteral("step"));
    history.Undo();
    QCOMPARE(history.Steps().index(), 1);
    history.EndStep();
    history.Undo();
    QCOMPARE(history.Steps().index(), 0);
}

void TestProjectHistory::SavedStatesAreRecognisedOnTheWayBack()
{
    const QTemporaryDir folder;
    CProjectHistory history;
    Rename("a");
    SFileProblem problem;
    QVERIFY(Document().SaveAs(folder.filePath(QStringLiteral("project.json")), problem));
    Rename("b");
    QVERIFY(Document().IsModified());
    history.Undo();
    QVERIFY(!Document().IsModified());
    history.Undo();
    QVERIFY(Document().IsModified());
    history.Redo();
    QVERIFY(!Document().IsModified());
}

/// The field of the simulation page that holds the number of output ports.
QSpinBox* PortsField(CMainWindow& window)
{
    for (QSpinBox* pField : window.findChildren<QSpinBox*>())
        if (pField->accessibleName() == QStringLiteral("输出口数量"))
            return pField;
    return nullptr;
}

void TestProjectHistory::TypingIntoAFieldIsOneStep()
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    QTest::keyClick(&workbench.window, Qt::Key_5, Qt::ControlModifier);
    QSpinBox* pPorts = PortsField(workbench.window);
    const int nBefore = pPorts->value();
    pPorts->setFocus();
    pPorts->selectAll();
    QTest::keyClicks(pPorts, QStringLiteral("27"));
    QCOMPARE(CSimulator::Instance().Project().listSenders[0].record.nOutputPortCount, 27);
    QCOMPARE(workbench.window.History().Steps().count(), 1);
    workbench.window.History().Undo();
    QCOMPARE(pPorts->value(), nBefore);
    QCOMPARE(workbench.window.History().Steps().count(), 1);
}

void TestProjectHistory::TypingAfterThePauseOfTheFocusIsAnother()
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    QTest::keyClick(&workbench.window, Qt::Key_5, Qt::ControlModifier);
    QSpinBox* pPorts = PortsField(workbench.window);
    pPorts->setFocus();
    QTest::keyClick(pPorts, Qt::Key_Up);
    QTest::keyClick(pPorts, Qt::Key_Up);
    workbench.window.Tree().setFocus();
    pPorts->setFocus();
    QTest::keyClick(pPorts, Qt::Key_Up);
    QCOMPARE(workbench.window.History().Steps().count(), 2);
}

void TestProjectHistory::EachPageMakesNamedSteps_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QString>("text");
    QTest::newRow("EDID") << QByteArray("edid") << QStringLiteral("设置 EDID");
    QTest::newRow("canvas") << QByteArray("canvas") << QStringLiteral("设置画布");
    QTest::newRow("rate") << QByteArray("rate") << QStringLiteral("设置帧率和色深");
    QTest::newRow("colour") << QByteArray("colour") << QStringLiteral("添加 sRGB");
}

void TestProjectHistory::EachPageMakesNamedSteps()
{
    QFETCH(QByteArray, action);
    CWorkbenchFixture workbench;
    workbench.Activate();
    workbench.window.Tree().Select({0, Document().Project().listSenders[0].listInputs[0].nInterfaceId});
    const QJsonObject before = Values();
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        auto* pOk = pDialog->findChild<QPushButton*>(QStringLiteral("ok"));
        if (auto* pWidth = pDialog->findChild<CCustomSpinBox*>(QStringLiteral("width")))
            pWidth->setValue(pWidth->value() - 2);
        pOk->click();
    });
    CMainWindow& window = workbench.window;
    const QHash<QByteArray, std::function<void()>> hashActions = {
        {"edid", [&window] { window.findChild<CEdidPage*>()->EditEdid(); }},
        {"canvas", [&window] { window.findChild<COutputPage*>()->SetCanvas(); }},
        {"rate",
         [&window] {
             Document().Change([](SSimulatedProject& project) { project.listSenders[0].b50Hz = true; });
             window.findChild<COutputPage*>()->SetRateAndDepth();
         }},
        {"colour", [&window] { window.findChild<CColourPage*>()->Groups().AddStandard(enStandardSRGB); }},
    };
    hashActions.value(action)();
    QTEST(window.History().Steps().undoText(), "text");
    while (window.History().Steps().canUndo())
        window.History().Undo();
    QCOMPARE(Values(), before);
}

void TestProjectHistory::UndoSelectsTheSenderItChanges()
{
    CWorkbenchFixture workbench;
    workbench.window.Tree().Select({3, -1});
    Rename("a");
    workbench.window.History().Undo();
    QCOMPARE(workbench.window.Tree().Selection().nSender, 0);
}

void TestProjectHistory::TheMenuNamesTheStep()
{
    CWorkbenchFixture workbench;
    QVERIFY(!workbench.window.History().UndoAction()->isEnabled());
    workbench.window.History().BeginStep(QStringLiteral("step"));
    Rename("a");
    workbench.window.History().EndStep();
    QVERIFY(workbench.window.History().UndoAction()->isEnabled());
    QCOMPARE(workbench.window.History().UndoAction()->text(), QStringLiteral("撤销(&U)：step"));
}

void TestProjectHistory::StepsShareTheSendersThatStay()
{
    Document().NewEmptyProject();
    Document().AddSenders(21, 1000);
    CProjectHistory history;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 20; ++i)
        Rename(QByteArray::number(i).constData());
    QCOMPARE(history.Steps().count(), 20);
    qInfo("a step of one sender among a thousand takes %.1f ms", double(timer.elapsed()) / 20);
}

QTEST_MAIN(TestProjectHistory)
#include "TestProjectHistory.moc"
