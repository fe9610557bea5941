#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/DialogOperator.h"
#include "tests/workbench/FilledPages.h"
#include "tests/workbench/ShownWorkbench.h"
#include "workbench/JournalDock.h"
#include "workbench/PageTabs.h"
#include "workbench/ProjectActions.h"
#include "workbench/edid/EdidPage.h"
#include "workbench/edid/FieldTree.h"
#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTabBar>
#include <QTextBrowser>
#include <QtTest>

#include <functional>

/// The window operated by keys alone: the way of Tab, the keys of menus, and those that F1 names.
class TestMainWindowKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void TabGoesFromTheTreeToTabsPageAndJournal_data();
    void TabGoesFromTheTreeToTabsPageAndJournal();
    void EachStopOfTabHasAName_data();
    void EachStopOfTabHasAName();
    void ControlAndADigitShowAPage();
    void TheTabBarShowsItsFocus();
    void EveryMenuEntryHasAKeyOfItsOwn_data();
    void EveryMenuEntryHasAKeyOfItsOwn();
    void F1ShowsSteps();
    void F1NamesEveryKey();
    void AboutTellsTheProgram();
    void SaveAsHasItsKey();
    void ControlJFoldsTheJournal();
    void TheKeyOfUndoTakesTheBlockBackFirst();
};

void TestMainWindowKeys::initTestCase()
{
    SenderModuleDialogInit(CSimulator::Instance().Label());
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

/// Goes from the tree along Tab until it comes back there, and hands over each stop.
/// @return whether it came back
bool WalkAlongTab(CWorkbenchFixture& workbench, const std::function<void(QWidget& stop)>& funcStop)
{
    constexpr int c_nMostStops = 100;
    workbench.Activate();
    workbench.window.Tree().setFocus();
    for (int i = 0; i < c_nMostStops; ++i) {
        funcStop(*QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (QApplication::focusWidget() == &workbench.window.Tree())
            return true;
    }
    return false;
}

void TestMainWindowKeys::TabGoesFromTheTreeToTabsPageAndJournal_data()
{
    FilledPages::AddRows();
}

void TestMainWindowKeys::TabGoesFromTheTreeToTabsPageAndJournal()
{
    QFETCH(int, page);
    QFETCH(int, tab);
    CWorkbenchFixture workbench;
    FilledPages::Show(workbench.window, page, tab);
    QStringList listParts;
    QVERIFY(WalkAlongTab(workbench, [&](const QWidget&) {
        const QString strPart = PartWithFocus(workbench.window);
        if (listParts.isEmpty() || listParts.last() != strPart)
            listParts.append(strPart);
    }));
    QCOMPARE(listParts.join(QLatin1Char(' ')), QStringLiteral("tree tabs page journal"));
}

void TestMainWindowKeys::EachStopOfTabHasAName_data()
{
    FilledPages::AddRows();
}

void TestMainWindowKeys::EachStopOfTabHasAName()
{
    QFETCH(int, page);
    QFETCH(int, tab);
    CWorkbenchFixture workbench;
    FilledPages::Show(workbench.window, page, tab);
    QStringList listNameless;
    QVERIFY(WalkAlongTab(workbench, [&listNameless](QWidget& stop) {
        // Of tabs, each has a name.
        const bool bTabs = qobject_cast<QTabBar*>(&stop) != nullptr;
        const QString strName = QAccessible::queryAccessibleInterface(&stop)->text(QAccessible::Name);
        if (!bTabs && strName.isEmpty())
            listNameless.append(QLatin1String(stop.metaObject()->className()));
    }));
    QCOMPARE(listNameless, QStringList());
}

void TestMainWindowKeys::ControlAndADigitShowAPage()
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

void TestMainWindowKeys::EveryMenuEntryHasAKeyOfItsOwn_data()
{
    QTest::addColumn<int>("language");
    QTest::newRow("Chinese") << int(enLanguage::enChinese);
    QTest::newRow("English") << int(enLanguage::enEnglish);
}

void TestMainWindowKeys::EveryMenuEntryHasAKeyOfItsOwn()
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

void TestMainWindowKeys::F1ShowsSteps()
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

void TestMainWindowKeys::F1NamesEveryKey()
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

void TestMainWindowKeys::AboutTellsTheProgram()
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    const CMessageAnswer answer("关闭");
    QTest::keyClick(&workbench.window, Qt::Key_H, Qt::AltModifier);
    QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_A);
    QTRY_VERIFY(answer.strText.contains(QStringLiteral("SenderModuleDialog")));
}

void TestMainWindowKeys::SaveAsHasItsKey()
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

void TestMainWindowKeys::ControlJFoldsTheJournal()
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    const bool bBefore = workbench.window.Journal().isVisible();
    QTest::keyClick(&workbench.window, Qt::Key_J, Qt::ControlModifier);
    QCOMPARE(workbench.window.Journal().isVisible(), !bBefore);
    QTest::keyClick(&workbench.window, Qt::Key_J, Qt::ControlModifier);
    QCOMPARE(workbench.window.Journal().isVisible(), bBefore);
}

void TestMainWindowKeys::TheTabBarShowsItsFocus()
{
    CWorkbenchFixture workbench;
    workbench.Activate();
    auto* pBar = workbench.window.findChild<QTabWidget*>()->tabBar();
    workbench.window.Tree().setFocus();
    const QImage without = pBar->grab().toImage();
    pBar->setFocus();
    QVERIFY(pBar->grab().toImage() != without);
}

void TestMainWindowKeys::TheKeyOfUndoTakesTheBlockBackFirst()
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

QTEST_MAIN(TestMainWindowKeys)
#include "TestMainWindowKeys.moc"
