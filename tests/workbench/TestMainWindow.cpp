#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "host/OrviControl/CustomMessageBox.h"
#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/DialogOperator.h"
#include "tests/workbench/ShownWorkbench.h"
#include "workbench/JournalDock.h"
#include "workbench/ProjectActions.h"
#include "workbench/edid/EdidPage.h"
#include "workbench/edid/HexView.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QtTest>

namespace {

void MakeAChange()
{
    CSimulator::Instance().Document().Change(
        [](SSimulatedProject& project) { project.listSenders[0].strName += QLatin1Char('!'); });
}

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void TheTreeShowsEachSenderWithItsInputs();
    void SelectingASenderMakesItTheCurrentOne();
    void AProjectThatWasThereBeforeTheWindowIsShownFromItsCurrentSender();
    void TheTreeFollowsSendersThatComeAndGo();
    void TheLanguageSwitchesAtRunTime();
    void AProjectIsSavedAndOpenedAgain();
    void TheLastProjectOpensAtStart();
    void UnsavedChangesAreAskedAbout_data();
    void UnsavedChangesAreAskedAbout();
    void ABrokenFileIsToldAndTheProjectStays();
    void AWrittenSettingFillsTheMemoryAndShowsTheChange();
    void ABlockIsSavedWhole();
    void ABlockThatCannotBeSavedIsTold();
    void AWriteThatTookIsReported();
    void AFailedWriteIsAMessageWithReasonAndRemedy_data();
    void AFailedWriteIsAMessageWithReasonAndRemedy();
    void QtsOwnTextsFollowTheLanguage();
    void SaveAsProposesThePresentFile();
    void SmallScreensStartWithoutTheJournal_data();
    void SmallScreensStartWithoutTheJournal();
    void TheJournalLeavesMostOfASmallScreenToThePage();
    void TheArrangementIsKeptForTheScreen();
    void TheFirstMessageMovesNothing();
    void ChoosingAByteMarksItsField();
    void TheJournalShowsAndFiltersCalls();
};

void TestMainWindow::initTestCase()
{
    SenderModuleDialogInit(CSimulator::Instance().Label());
}

void TestMainWindow::TheTreeShowsEachSenderWithItsInputs()
{
    CWorkbenchFixture workbench;
    const auto& listSenders = CSimulator::Instance().Project().listSenders;
    QCOMPARE(workbench.window.Tree().topLevelItemCount(), int(listSenders.size()));
    QCOMPARE(workbench.window.Tree().topLevelItem(0)->childCount(), int(listSenders[0].listInputs.size()));
    QCOMPARE(workbench.window.Tree().topLevelItem(2)->text(1), QStringLiteral("类型 16"));
    QCOMPARE(workbench.window.Tree().topLevelItem(2)->child(0)->text(1),
             QStringLiteral("接口 %1").arg(listSenders[2].listInputs[0].nInterfaceId));
}

void TestMainWindow::SelectingASenderMakesItTheCurrentOne()
{
    CWorkbenchFixture workbench;
    workbench.window.Tree().Select({3, -1});
    QCOMPARE(CSimulator::Instance().Project().nCurSender, 3);
}

void TestMainWindow::AProjectThatWasThereBeforeTheWindowIsShownFromItsCurrentSender()
{
    CSimulator::Instance().Document().NewProject();
    CSimulator::Instance().Document().SetCurrentSender(2);
    QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    CLanguage language;
    CMainWindow window(language, settings);
    QCOMPARE(window.Tree().Selection().nSender, 2);
}

void TestMainWindow::TheTreeFollowsSendersThatComeAndGo()
{
    CWorkbenchFixture workbench;
    const int nBefore = workbench.window.Tree().topLevelItemCount();
    const int nSender = CSimulator::Instance().Document().AddSender(CCatalogue::Instance().Types().first());
    QCOMPARE(workbench.window.Tree().topLevelItemCount(), nBefore + 1);
    CSimulator::Instance().Document().RemoveSender(nSender);
    QCOMPARE(workbench.window.Tree().topLevelItemCount(), nBefore);
}

void TestMainWindow::TheLanguageSwitchesAtRunTime()
{
    CWorkbenchFixture workbench;
    QCOMPARE(workbench.window.menuBar()->actions().first()->text(), QStringLiteral("工程(&P)"));
    workbench.language.Set(enLanguage::enEnglish);
    QTRY_COMPARE(workbench.window.menuBar()->actions().first()->text(), QStringLiteral("&Project"));
    QCOMPARE(workbench.window.Tree().headerItem()->text(0), QStringLiteral("Sender"));
    workbench.language.Set(enLanguage::enChinese);
    QTRY_COMPARE(workbench.window.menuBar()->actions().first()->text(), QStringLiteral("工程(&P)"));
}

void TestMainWindow::AProjectIsSavedAndOpenedAgain()
{
    CWorkbenchFixture workbench;
    MakeAChange();
    const QString strName = CSimulator::Instance().Project().listSenders[0].strName;
    QVERIFY(workbench.window.isWindowModified());
    QVERIFY(workbench.window.Project().SaveAs(workbench.File("a.json")));
    QVERIFY(!workbench.window.isWindowModified());
    QVERIFY(workbench.window.Project().NewEmpty());
    QVERIFY(workbench.window.Project().Open(workbench.File("a.json")));
    QCOMPARE(CSimulator::Instance().Project().listSenders[0].strName, strName);
    QCOMPARE(workbench.window.Project().RecentFiles().List(), QStringList{workbench.File("a.json")});
}

void TestMainWindow::TheLastProjectOpensAtStart()
{
    CWorkbenchFixture workbench;
    QVERIFY(workbench.window.Project().SaveAs(workbench.File("a.json")));
    CSimulator::Instance().Document().NewEmptyProject();
    workbench.window.Project().OpenLast();
    QCOMPARE(CSimulator::Instance().Document().FilePath(), workbench.File("a.json"));
}

void TestMainWindow::UnsavedChangesAreAskedAbout_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<bool>("leaves");
    QTest::addColumn<bool>("saved");
    QTest::newRow("save") << QByteArray("保存") << true << true;
    QTest::newRow("discard") << QByteArray("不保存") << true << false;
    QTest::newRow("cancel") << QByteArray("取消") << false << false;
}

void TestMainWindow::UnsavedChangesAreAskedAbout()
{
    QFETCH(QByteArray, button);
    CWorkbenchFixture workbench;
    QVERIFY(workbench.window.Project().SaveAs(workbench.File("a.json")));
    MakeAChange();
    const CMessageAnswer answer(button.constData());
    QTEST(workbench.window.Project().MayLeave(), "leaves");
    QCOMPARE(answer.strText, QStringLiteral("工程有未保存的更改。要保存吗？"));
    QTEST(!CSimulator::Instance().Document().IsModified(), "saved");
}

void TestMainWindow::ABrokenFileIsToldAndTheProjectStays()
{
    CWorkbenchFixture workbench;
    QFile file(workbench.File("broken.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{ not json");
    file.close();
    const std::size_t nSenders = CSimulator::Instance().Project().listSenders.size();
    const CMessageAnswer answer("OK");
    QVERIFY(!workbench.window.Project().Open(file.fileName()));
    QVERIFY2(answer.strText.contains(QStringLiteral("broken.json")), qPrintable(answer.strText));
    QCOMPARE(CSimulator::Instance().Project().listSenders.size(), nSenders);
}

void TestMainWindow::AWrittenSettingFillsTheMemoryAndShowsTheChange()
{
    CWorkbenchFixture workbench;
    const int nInterfaceId = CSimulator::Instance().Project().listSenders[0].listInputs[0].nInterfaceId;
    workbench.window.Tree().Select({0, nInterfaceId});
    auto* pBytes = workbench.window.findChild<CHexView*>();
    QVERIFY(pBytes->Bytes().isEmpty());
    const auto funcWrite = [&](quint16 wWidth, quint16 wHeight) {
        CSimulator::Instance().Document().Change([&](SSimulatedProject& project) {
            SEdidSetting setting;
            setting.wWidth = wWidth;
            setting.wHeight = wHeight;
            setting.byRate = 60;
            project.FindSender(0)->FindInput(nInterfaceId)->setting = setting;
        });
        Q_EMIT CSimulator::Instance().Hardware().OnEdidWritten(0, nInterfaceId);
    };
    funcWrite(1920, 1080);
    QCOMPARE(pBytes->Bytes().size(), 128);
    QVERIFY(pBytes->Changed().isEmpty());
    funcWrite(1920, 1200);
    QVERIFY(pBytes->Changed().contains(127));
    QVERIFY(!pBytes->Changed().contains(0));
}

void TestMainWindow::ABlockIsSavedWhole()
{
    CWorkbenchFixture workbench;
    const int nInterfaceId = CSimulator::Instance().Project().listSenders[0].listInputs[0].nInterfaceId;
    QVERIFY(CSimulator::Instance().Hardware().SetEdidMemory(0, nInterfaceId, QByteArray(128, 'x')));
    workbench.window.Tree().Select({0, nInterfaceId});
    QVERIFY(workbench.window.findChild<CEdidPage*>()->SaveBlock(workbench.File("edid.bin")));
    QFile file(workbench.File("edid.bin"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray(128, 'x'));
}

void TestMainWindow::ABlockThatCannotBeSavedIsTold()
{
    CWorkbenchFixture workbench;
    const int nInterfaceId = CSimulator::Instance().Project().listSenders[0].listInputs[0].nInterfaceId;
    QVERIFY(CSimulator::Instance().Hardware().SetEdidMemory(0, nInterfaceId, QByteArray(128, 'x')));
    workbench.window.Tree().Select({0, nInterfaceId});
    auto* pPage = workbench.window.findChild<CEdidPage*>();
    workbench.window.Tree().Select(
        {0, CSimulator::Instance().Project().listSenders[0].listInputs[0].nInterfaceId});
    CMessageAnswer answer("OK");
    QVERIFY(!pPage->SaveBlock(workbench.File("no/such/folder/edid.bin")));
    QVERIFY(answer.strText.contains(QStringLiteral("edid.bin")));
}

/// Answers the EDID dialog and the message of its failure.
class CWriteOperator : public QObject
{
public:
    CWriteOperator() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::Show && qobject_cast<CEdidSetDlg*>(pWatched) != nullptr)
            QMetaObject::invokeMethod(pWatched, "OnOKPushButtonClicked", Qt::QueuedConnection);
        if (auto* pMessage = qobject_cast<CCustomMessageBox*>(pWatched))
            if (pEvent->type() == QEvent::Show)
                QMetaObject::invokeMethod(pMessage, "reject", Qt::QueuedConnection);
        return QObject::eventFilter(pWatched, pEvent);
    }
};

/// What the window told about a write of the first input's EDID.
struct SWriteOutcome
{
    QString strStatus;
    QString strMessage;
};

/// Writes with such a sender, from a status bar that tells of an earlier success.
SWriteOutcome WriteWith(const std::function<void(SSimulatedSender&)>& funcChange)
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    CSimulator::Instance().Document().Change([&funcChange](SSimulatedProject& project) {
        project.bDemoMode = true;
        funcChange(project.listSenders[0]);
    });
    const int nInterfaceId = CSimulator::Instance().Project().listSenders[0].listInputs[0].nInterfaceId;
    workbench.window.Tree().Select({0, nInterfaceId});
    workbench.window.statusBar()->showMessage(QStringLiteral("当前模式：1 × 1 @ 60 Hz"));
    const CWriteOperator writeOperator;
    const CMessageAnswer answer("OK");
    workbench.window.findChild<CEdidPage*>()->EditEdid();
    return {workbench.window.statusBar()->currentMessage(), answer.strText};
}

void TestMainWindow::AWriteThatTookIsReported()
{
    const SWriteOutcome outcome = WriteWith([](SSimulatedSender& sender) {
        sender.listInputs[0].setting = SEdidSetting();
        sender.listInputs[0].setting->wWidth = 1280;
        sender.listInputs[0].setting->wHeight = 720;
        sender.listInputs[0].setting->byRate = 60;
    });
    QCOMPARE(outcome.strStatus, QStringLiteral("当前模式：1280 × 720 @ 60 Hz"));
    QVERIFY(outcome.strMessage.isEmpty());
}

void TestMainWindow::AFailedWriteIsAMessageWithReasonAndRemedy_data()
{
    QTest::addColumn<bool>("fullRecord");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a full record is refused") << true << 5 << QStringLiteral("发送器返回错误 5");
    QTest::newRow("a basic record is refused") << false << 7 << QStringLiteral("发送器返回错误 7");
    QTest::newRow("a basic record does not take") << false << 0 << QStringLiteral("发送器没有采用新的模式");
}

void TestMainWindow::AFailedWriteIsAMessageWithReasonAndRemedy()
{
    QFETCH(bool, fullRecord);
    QFETCH(int, result);
    QFETCH(QString, reason);
    const SWriteOutcome outcome = WriteWith([&](SSimulatedSender& sender) {
        sender.capability.bExtendedEdid = fullRecord;
        sender.faults.nEdidWriteResult = result;
        sender.faults.bBasicEdidFails = true;
    });
    QVERIFY2(outcome.strMessage.contains(reason), qPrintable(outcome.strMessage));
    QVERIFY(outcome.strMessage.contains(QStringLiteral("请检查发送器")));
    QCOMPARE(outcome.strStatus, QString());
}

/// Texts of the buttons in the dialog that opens a project.
QString TextsOfOpenDialog(CMainWindow& window)
{
    QStringList listTexts;
    const CDialogOperator dialogOperator([&listTexts](QDialog* pDialog) {
        for (const QAbstractButton* pButton : pDialog->findChild<QDialogButtonBox*>()->buttons())
            listTexts.append(pButton->text());
    });
    QApplication::setActiveWindow(&window);
    QTest::keyClick(&window, Qt::Key_O, Qt::ControlModifier);
    return listTexts.join(QLatin1Char(' '));
}

void TestMainWindow::QtsOwnTextsFollowTheLanguage()
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    QCOMPARE(TextsOfOpenDialog(workbench.window), QStringLiteral("打开(&O) 取消"));
    workbench.language.Set(enLanguage::enEnglish);
    QCoreApplication::processEvents();
    QCOMPARE(TextsOfOpenDialog(workbench.window), QStringLiteral("&Open Cancel"));
}

void TestMainWindow::SaveAsProposesThePresentFile()
{
    CWorkbenchFixture workbench;
    QVERIFY(workbench.window.Project().SaveAs(workbench.File("wall.json")));
    QStringList listProposed;
    const CDialogOperator dialogOperator([&listProposed](QDialog* pDialog) {
        listProposed = qobject_cast<QFileDialog*>(pDialog)->selectedFiles();
    });
    QVERIFY(!workbench.window.Project().ChooseAndSave());
    QCOMPARE(listProposed, QStringList{workbench.File("wall.json")});
}

void TestMainWindow::SmallScreensStartWithoutTheJournal_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("journal");
    QTest::newRow("1024x700: all of the screen") << QSize(1024, 700) << QSize(1024, 700) << false;
    QTest::newRow("1366x768") << QSize(1366, 768) << QSize(1280, 768) << false;
    QTest::newRow("1920x1040: as designed") << QSize(1920, 1040) << QSize(1280, 860) << true;
    QTest::newRow("3840x2160: two thirds") << QSize(3840, 2160) << QSize(2560, 1440) << true;
}

void TestMainWindow::SmallScreensStartWithoutTheJournal()
{
    QFETCH(QSize, screen);
    QTEST(CMainWindow::FirstSize(screen), "size");
    QTEST(CMainWindow::HasJournalRoom(screen), "journal");
}

void TestMainWindow::TheJournalLeavesMostOfASmallScreenToThePage()
{
    constexpr QSize c_sizeScreen(1024, 700);
    CWorkbenchFixture workbench;
    workbench.window.ArrangeFor(c_sizeScreen);
    workbench.Activate();
    QTest::keyClick(&workbench.window, Qt::Key_J, Qt::ControlModifier);
    QCoreApplication::processEvents();
    QCOMPARE(workbench.window.size(), c_sizeScreen);
    QVERIFY(workbench.window.Journal().isVisible());
    QVERIFY(workbench.window.Journal().height() * 3 <= c_sizeScreen.height());
}

void TestMainWindow::TheArrangementIsKeptForTheScreen()
{
    QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    CLanguage language;
    CSimulator::Instance().Document().NewProject();
    int nTreeWidth = 0;
    {
        CMainWindow window(language, settings);
        window.show();
        window.resize(1200, 900);
        window.Journal().show();
        auto* pSplitter = window.findChild<QSplitter*>();
        pSplitter->setSizes({333, 800});
        nTreeWidth = window.Tree().width();
        window.close();
    }
    CMainWindow window(language, settings);
    window.show();
    window.resize(1200, 900);
    QCOMPARE(window.Tree().width(), nTreeWidth);
    QVERIFY(window.Journal().isVisible());
    const QSize sizeScreen = window.screen()->availableSize();
    QCOMPARE(settings.childGroups().filter(QStringLiteral("screen")),
             QStringList{QStringLiteral("screen%1x%2").arg(sizeScreen.width()).arg(sizeScreen.height())});
}

void TestMainWindow::TheFirstMessageMovesNothing()
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    const QRect before = workbench.window.centralWidget()->geometry();
    QVERIFY(workbench.window.Project().SaveAs(workbench.File("a.json")));
    QCoreApplication::processEvents();
    QCOMPARE(workbench.window.centralWidget()->geometry(), before);
}

void TestMainWindow::ChoosingAByteMarksItsField()
{
    CWorkbenchFixture workbench;
    const int nInterfaceId = CSimulator::Instance().Project().listSenders[0].listInputs[0].nInterfaceId;
    QVERIFY(CSimulator::Instance().Hardware().SetEdidMemory(0, nInterfaceId, QByteArray(128, 1)));
    workbench.window.Tree().Select({0, nInterfaceId});
    auto* pBytes = workbench.window.findChild<CHexView*>();
    pBytes->resize(pBytes->sizeHint());
    QTest::mouseClick(pBytes, Qt::LeftButton, Qt::NoModifier, pBytes->ByteRect(0x37).center());
    QCOMPARE(pBytes->Marked(), (QVector<int>{0x36, 0x37}));
}

void TestMainWindow::TheJournalShowsAndFiltersCalls()
{
    CWorkbenchFixture workbench;
    CSimulator::Instance().Journal().Clear();
    SJournalEntry entry;
    entry.strOperation = QStringLiteral("SetOutput50Hz");
    CSimulator::Instance().Journal().Append(entry);
    entry.strOperation = QStringLiteral("GetSenderType");
    CSimulator::Instance().Journal().Append(entry);
    workbench.window.Journal().SetFilterText(QStringLiteral("50Hz"));
    QCOMPARE(workbench.window.Journal().ShownLines().count(QLatin1Char('\n')), 0);
    QVERIFY(workbench.window.Journal().ShownLines().contains(QStringLiteral("SetOutput50Hz")));
}

QTEST_MAIN(TestMainWindow)
#include "TestMainWindow.moc"
