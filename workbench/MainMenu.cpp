#include "workbench/MainMenu.h"

#include "workbench/JournalDock.h"
#include "workbench/KeysDialog.h"
#include "workbench/ProjectActions.h"
#include "workbench/ProjectHistory.h"
#include "workbench/SenderActions.h"
#include "workbench/WorkbenchPage.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>

namespace {

struct SLanguageRow
{
    enLanguage language;
    const char* szName; ///< in the language itself
};

constexpr SLanguageRow c_arrLanguages[] = {{enLanguage::enChinese, "中文(&C)"},
                                           {enLanguage::enEnglish, "&English"}};

/// A name as it reads in a menu, where an ampersand marks a key.
QString Escaped(QString strName)
{
    return strName.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

CMainMenu::CMainMenu(QMainWindow& window, const CLanguage& language, const SParts& parts)
    : QObject(&window)
    , m_window(window)
    , m_language(language)
    , m_parts(parts)
{
    Rebuild();
}

void CMainMenu::Rebuild()
{
    // The menu whose entry switched the language is among them, and still at work.
    for (QMenu* pMenu : m_window.menuBar()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly))
        pMenu->deleteLater();
    m_window.menuBar()->clear();
    BuildProject();
    BuildEdit();
    BuildSenders();
    BuildView();
    BuildLanguages();
    BuildHelp();
}

QMenu* CMainMenu::NewMenu(const QString& strTitle)
{
    return m_window.menuBar()->addMenu(strTitle);
}

void CMainMenu::BuildProject()
{
    CProjectActions* pProject = m_parts.pProject;
    QMenu* pMenu = NewMenu(tr("工程(&P)"));
    QMenu* pNew = pMenu->addMenu(tr("新建(&N)"));
    pNew->addAction(tr("演示发送器(&D)"), pProject, &CProjectActions::NewDemo)
        ->setShortcut(QKeySequence::New);
    pNew->addAction(tr("所有类型的发送器(&A)"), pProject, &CProjectActions::NewCatalogue);
    pNew->addAction(tr("空工程(&E)"), pProject, &CProjectActions::NewEmpty);
    pMenu->addAction(tr("打开(&O)..."), pProject, &CProjectActions::ChooseAndOpen)
        ->setShortcut(QKeySequence::Open);
    QMenu* pRecent = pMenu->addMenu(tr("最近的工程(&R)"));
    connect(pRecent, &QMenu::aboutToShow, this, [this, pRecent] { FillRecentFiles(pRecent); });
    pMenu->addSeparator();
    pMenu->addAction(tr("保存(&S)"), pProject, &CProjectActions::Save)->setShortcut(QKeySequence::Save);
    pMenu->addAction(tr("另存为(&A)..."), pProject, &CProjectActions::ChooseAndSave)
        ->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+S")));
    pMenu->addSeparator();
    // The standard key exists on some desktops alone.
    pMenu->addAction(tr("退出(&X)"), &m_window, &QWidget::close)
        ->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
}

void CMainMenu::FillRecentFiles(QMenu* pMenu)
{
    pMenu->clear();
    const QStringList listFiles = m_parts.pProject->RecentFiles().List();
    int nNumber = 0;
    for (const QString& strFile : listFiles)
        pMenu->addAction(QStringLiteral("&%1 %2").arg(++nNumber).arg(Escaped(strFile)), this,
                         [this, strFile] { m_parts.pProject->Open(strFile); });
    if (listFiles.isEmpty())
        pMenu->addAction(tr("没有(&N)"))->setEnabled(false);
}

void CMainMenu::BuildEdit()
{
    QMenu* pMenu = NewMenu(tr("编辑(&E)"));
    m_parts.pHistory->Retranslate();
    pMenu->addActions({m_parts.pHistory->UndoAction(), m_parts.pHistory->RedoAction()});
}

void CMainMenu::BuildSenders()
{
    QMenu* pMenu = NewMenu(tr("发送器(&S)"));
    m_parts.pSenders->Retranslate();
    m_parts.pSenders->AddTo(pMenu);
}

void CMainMenu::BuildView()
{
    QMenu* pMenu = NewMenu(tr("视图(&V)"));
    int nPage = 0;
    for (CWorkbenchPage* pPage : *m_parts.pPages) {
        ++nPage;
        QAction* pAction = pMenu->addAction(QStringLiteral("&%1 %2").arg(nPage).arg(Escaped(pPage->Title())),
                                            this, [this, pPage] { Q_EMIT PageWanted(pPage); });
        pAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(nPage)));
    }
    pMenu->addSeparator();
    QAction* pJournal = m_parts.pJournal->toggleViewAction();
    pJournal->setText(tr("主机调用记录(&J)"));
    pJournal->setShortcut(QKeySequence(QStringLiteral("Ctrl+J")));
    pMenu->addAction(pJournal);
}

void CMainMenu::BuildLanguages()
{
    QMenu* pMenu = NewMenu(tr("语言(&L)"));
    for (const SLanguageRow& row : c_arrLanguages) {
        QAction* pAction = pMenu->addAction(QString::fromUtf8(row.szName), this,
                                            [this, row] { Q_EMIT LanguageWanted(row.language); });
        pAction->setCheckable(true);
        pAction->setChecked(row.language == m_language.Current());
    }
}

void CMainMenu::BuildHelp()
{
    QMenu* pMenu = NewMenu(tr("帮助(&H)"));
    pMenu->addAction(tr("按键和步骤(&K)"), this, &CMainMenu::ShowKeys)
        ->setShortcut(QKeySequence::HelpContents);
    pMenu->addAction(tr("关于(&A)..."), this, &CMainMenu::ShowAbout);
}

void CMainMenu::ShowKeys()
{
    CKeysDialog(&m_window).exec();
}

void CMainMenu::ShowAbout()
{
    QMessageBox box(QMessageBox::Information, tr("关于"),
                    tr("发送器工作台 %1\n\n用 SenderModuleDialog 的对话框设置模拟的 LED 显示屏发送器。\n"
                       "Qt %2")
                        .arg(QApplication::applicationVersion(), QString::fromLatin1(qVersion())),
                    QMessageBox::NoButton, &m_window);
    box.setObjectName(QStringLiteral("about"));
    box.addButton(tr("关闭"), QMessageBox::AcceptRole);
    box.exec();
}
