#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "host/OrviControl/CustomMessageBox.h"
#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/DialogOperator.h"
#include "tests/workbench/FilledPages.h"
#include "tests/workbench/ShownWorkbench.h"
#include "workbench/JournalDock.h"
#include "workbench/PageTabs.h"
#include "workbench/ProjectActions.h"
#include "workbench/edid/EdidPage.h"
#include "workbench/edid/FieldTree.h"
#include "workbench/edid/HexView.h"

#include <QAccessible>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTextBrowser>
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
    void TabGoesFromTheTreeToTabsPageAndJournal_data();
    void TabGoesFromTheTreeToTabsPageAndJournal();
    void EachStopOfTabHasAName_data();
    void EachStopOfTabHasAName();
    void ControlAndADigitShowAPage();
    void TheTabBarShowsItsFocus();
    void EveryMenuEntryHasAKeyOfItsOwn_data();
    void EveryMenuEntryHasAKeyOfItsOwn();
    void QtsOwnTextsFollowTheLanguage();
    void F1ShowsSteps();
    void F1NamesEveryKey();
    void AboutTellsTheProgram();
    void SaveAsHasItsKey();
    void SaveAsProposesThePresentFile();
    void SmallScreensStartWithoutTheJournal_data();
    void SmallScreensStartWithoutTheJournal();
    void TheJournalLeavesMostOfASmallScreenToThePage();
    void TheArrangementIsKeptForTheScreen();
    void TheFirstMessageMovesNothing();
    void ControlJFoldsTheJournal();
    void ChoosingAByteMarksItsField();
    void TheKeyOfUndoTakesTheBlockBackFirst();
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

/// Which part of the window has the focus.
QString PartWithFocus(CMainWindow& window)
{
    const QWidget* pFocus = QApplication::focusWidget();
    if (pFocus == nullptr)
        return QStringLiteral("nothing");
    if (pFocus == &window.Tree())
        return QStringLiteral("tree");
    if (pFocus == window.findChild<CPageTabs*>()->tabBar())
        return QStringLiteral("tabs");
    if (window.Journal().isAncestorOf(pFocus))
        return QStringLiteral("journal");
    return QStringLiteral("page");
}

void TestMainWindow::TabGoesFromTheTreeToTabsPageAndJournal_data()
{
    FilledPages::AddRows();
}

void TestMainWindow::TabGoesFromTheTreeToTabsPageAndJournal()
{
    constexpr int c_nMostStops = 100;
    QFETCH(int, page);
    QFETCH(int, tab);
    CWorkbenchFixture workbench;
    FilledPages::Show(workbench.window, page, tab);
    workbench.Activate();
    workbench.window.Tree().setFocus();
    QStringList listParts;
    for (int i = 0; i < c_nMostStops; ++i) {
        const QString strPart = PartWithFocus(workbench.window);
        if (listParts.size() > 1 && strPart == QStringLiteral("tree"))
            break;
        if (listParts.isEmpty() || listParts.last() != strPart)
            listParts.append(strPart);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(listParts.join(QLatin1Char(' ')), QStringLiteral("tree tabs page journal"));
}

void TestMainWindow::EachStopOfTabHasAName_data()
{
    FilledPages::AddRows();
}

void TestMainWindow::EachStopOfTabHasAName()
{
    constexpr int c_nMostStops = 100;
    QFETCH(int, page);
    QFETCH(int, tab);
    CWorkbenchFixture workbench;
    FilledPages::Show(workbench.window, page, tab);
    workbench.Activate();
    workbench.window.Tree().setFocus();
    for (int i = 0; i < c_nMostStops; ++i) {
        QWidget* pFocus = QApplication::focusWidget();
        // Of tabs, each has a name.
        const bool bTabs = qobject_cast<QTabBar*>(pFocus) != nullptr;
        const QString strName = QAccessible::queryAccessibleInterface(pFocus)->text(QAccessible::Name);
        QVERIFY2(bTabs || !strName.isEmpty(), pFocus->metaObject()->className());
        QTest::keyClick(pFocus, Qt::Key_Tab);
        if (QApplication::focusWidget() == &workbench.window.Tree())
            return;
    }
    QFAIL("Tab does not come back to the tree");
}

void TestMainWindow::ControlAndADigitShowAPage()
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    const auto* pTabs = workbench.window.findChild<CPageTabs*>();
    for (int i = int(workbench.window.Pages().size()) - 1; i >= 0; --i) {
        QTest::keyClick(&workbench.window, Qt::Key(Qt::Key_1 + i), Qt::ControlModifier);
        QCOMPARE(pTabs->currentIndex(), i);
    }
}

/// The entries of a menu that lack a key or share one with another entry.
QStringList EntriesWithoutOwnKey(const QList<QAction*>& listEntries)
{
    QStringList listFaults;
    QSet<QChar> setKeys;
    for (const QAction* pEntry : listEntries) {
        const QKeySequence key = QKeySequence::mnemonic(pEntry->text());
        const QChar chKey = key.isEmpty() ? QChar() : key.toString().back();
        if (!pEntry->isSeparator() && (key.isEmpty() || setKeys.contains(chKey)))
            listFaults.append(pEntry->text());
        setKeys.insert(chKey);
    }
    return listFaults;
}

/// The entries of each menu of a window: of the menu bar, of buttons, and of what is selected.
std::vector<QList<QAction*>> AllMenus(const QMainWindow& window)
{
    std::vector<QList<QAction*>> vecMenus = {window.menuBar()->actions()};
    for (QMenu* pMenu : window.findChildren<QMenu*>()) {
        Q_EMIT pMenu->aboutToShow();
        vecMenus.push_back(pMenu->actions());
    }
    for (const QWidget* pWidget : window.findChildren<QWidget*>())
        if (pWidget->contextMenuPolicy() == Qt::ActionsContextMenu)
            vecMenus.push_back(pWidget->actions());
    return vecMenus;
}

void TestMainWindow::EveryMenuEntryHasAKeyOfItsOwn_data()
{
    QTest::addColumn<int>("language");
    QTest::newRow("Chinese") << int(enLanguage::enChinese);
    QTest::newRow("English") << int(enLanguage::enEnglish);
}

void TestMainWindow::EveryMenuEntryHasAKeyOfItsOwn()
{
    constexpr std::size_t c_nMenus = 15; // bar, its 6 with 2 in them, 3 of buttons, 3 of what is selected
    QFETCH(int, language);
    CWorkbenchFixture workbench;
    workbench.language.Set(enLanguage(language));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    workbench.window.Project().RecentFiles().Note(workbench.File("a.json"));
    const std::vector<QList<QAction*>> vecMenus = AllMenus(workbench.window);
    QVERIFY(vecMenus.size() >= c_nMenus);
    for (const QList<QAction*>& listEntries : vecMenus)
        QCOMPARE(EntriesWithoutOwnKey(listEntries), QStringList());
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

/// The text that F1 shows.
QString TextOfF1(CWorkbenchFixture& workbench)
{
    workbench.Activate();
    QString strText;
    const CDialogOperator dialogOperator([&strText](QDialog* pDialog) {
        strText = pDialog->findChild<QTextBrowser*>()->toPlainText();
        QTest::keyClick(pDialog, Qt::Key_Escape);
    });
    QTest::keyClick(&workbench.window, Qt::Key_F1);
    return strText;
}

void TestMainWindow::F1ShowsSteps()
{
    CWorkbenchFixture workbench;
    QVERIFY(TextOfF1(workbench).contains(QStringLiteral("双击它，设置它的 EDID")));
}

/// A key as it is written on the keyboard.
QString KeyboardText(const QKeySequence& key)
{
    const std::pair<QString, QString> arrNames[] = {{QStringLiteral("Return"), QStringLiteral("Enter")},
                                                    {QStringLiteral("Ins"), QStringLiteral("Insert")},
                                                    {QStringLiteral("Del"), QStringLiteral("Delete")}};
    QString strKey = key.toString();
    for (const auto& [strName, strWritten] : arrNames)
        strKey.replace(strName, strWritten);
    return strKey;
}

void TestMainWindow::F1NamesEveryKey()
{
    CWorkbenchFixture workbench;
    const QString strText = TextOfF1(workbench);
    for (const QAction* pAction : workbench.window.findChildren<QAction*>()) {
        const QString strKey = KeyboardText(pAction->shortcut());
        // A key of its own between what separates keys in the table.
        const QRegularExpression key(QStringLiteral("(^|, )%1(,|$)").arg(QRegularExpression::escape(strKey)),
                                     QRegularExpression::MultilineOption);
        QVERIFY2(strKey.isEmpty() || key.match(strText).hasMatch(), qPrintable(strKey));
    }
}

void TestMainWindow::AboutTellsTheProgram()
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    const CMessageAnswer answer("关闭");
    QTest::keyClick(&workbench.window, Qt::Key_H, Qt::AltModifier);
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_A);
    QTRY_VERIFY(answer.strText.contains(QStringLiteral("SenderModuleDialog")));
}

void TestMainWindow::SaveAsHasItsKey()
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    const QString strFile = workbench.File("wall");
    const CDialogOperator dialogOperator([&strFile](QDialog* pDialog) {
        auto* pName = pDialog->findChild<QLineEdit*>();
        pName->selectAll();
        QTest::keyClicks(pName, strFile);
        QTest::keyClick(pName, Qt::Key_Return);
    });
    QTest::keyClick(&workbench.window, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY(QFile::exists(strFile + QStringLiteral(".json")));
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

void TestMainWindow::ControlJFoldsTheJournal()
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    const bool bBefore = workbench.window.Journal().isVisible();
    QTest::keyClick(&workbench.window, Qt::Key_J, Qt::ControlModifier);
    QCOMPARE(workbench.window.Journal().isVisible(), !bBefore);
    QTest::keyClick(&workbench.window, Qt::Key_J, Qt::ControlModifier);
    QCOMPARE(workbench.window.Journal().isVisible(), bBefore);
}

void TestMainWindow::TheTabBarShowsItsFocus()
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    auto* pBar = workbench.window.findChild<QTabWidget*>()->tabBar();
    workbench.window.Tree().setFocus();
    const QImage without = pBar->grab().toImage();
    pBar->setFocus();
    QVERIFY(pBar->grab().toImage() != without);
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

void TestMainWindow::TheKeyOfUndoTakesTheBlockBackFirst()
{
    CWorkbenchFixture workbench;
    const int nInterfaceId = CSimulator::Instance().Project().listSenders[0].listInputs[0].nInterfaceId;
    workbench.window.Tree().Select({0, nInterfaceId});
    QVERIFY(CSimulator::Instance().Hardware().SetEdidMemory(0, nInterfaceId, QByteArray(128, 1)));
    workbench.window.show();
    QVERIFY(QTest::qWaitForWindowActive(&workbench.window));
    auto* pPage = workbench.window.findChild<CEdidPage*>();
    pPage->Document().Load({QByteArray(128, 2), enEdidOrigin::enPasted, {}, false}, QStringLiteral("paste"));
    auto* pFields = pPage->findChild<CFieldTree*>();
    pFields->setFocus();
    QTest::keyClick(pFields, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(pPage->Document().Content().bytes, QByteArray(128, 1));
    QCOMPARE(pPage->Input()->baEdid, QByteArray(128, 1));
    QTest::keyClick(pFields, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(pPage->Input()->baEdid.isEmpty());
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
