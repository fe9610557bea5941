#include "workbench/MainWindow.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/JournalDock.h"
#include "workbench/PageTabs.h"
#include "workbench/ProjectActions.h"
#include "workbench/SenderTree.h"
#include "workbench/WheelGuard.h"
#include "workbench/addresses/AddressPage.h"
#include "workbench/colour/ColourPage.h"
#include "workbench/edid/EdidPage.h"
#include "workbench/output/OutputPage.h"
#include "workbench/simulation/SimulationPage.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>

namespace {

const QString c_strGeometryKey = QStringLiteral("geometry");
const QString c_strStateKey = QStringLiteral("windowState");
const QString c_strLanguageKey = QStringLiteral("language");

constexpr QSize c_sizeFirst(1280, 860);
constexpr int c_nTreeWidth = 360;
constexpr int c_nStatusTime = 8000; ///< ms that a line stays in the status bar

struct SLanguageRow
{
    enLanguage language;
    const char* szName; ///< in the language itself
};

constexpr SLanguageRow c_arrLanguages[] = {{enLanguage::enChinese, "中文"},
                                           {enLanguage::enEnglish, "English"}};

} // namespace

CMainWindow::CMainWindow(CLanguage& language, QSettings& settings)
    : m_language(language)
    , m_settings(settings)
    , m_pProject(new CProjectActions(this, settings))
    , m_pTree(new CSenderTree(this))
    , m_pTabs(new CPageTabs(this))
{
    auto* pSplitter = new QSplitter(this);
    pSplitter->addWidget(m_pTree);
    pSplitter->addWidget(m_pTabs);
    pSplitter->setStretchFactor(1, 1);
    pSplitter->setSizes({c_nTreeWidth, c_sizeFirst.width() - c_nTreeWidth});
    setCentralWidget(pSplitter);
    AddPages();
    // Tab goes from tree to tabs, page and journal: the order in which they are created.
    m_pJournal = new CJournalDock(this);
    addDockWidget(Qt::BottomDockWidgetArea, m_pJournal);
    new CWheelGuard(this);
    BuildMenus();
    resize(c_sizeFirst);
    restoreGeometry(m_settings.value(c_strGeometryKey).toByteArray());
    restoreState(m_settings.value(c_strStateKey).toByteArray());

    const auto funcReport = [this](const QString& strText) {
        statusBar()->showMessage(strText, c_nStatusTime);
    };
    connect(m_pTree, &CSenderTree::SelectionMoved, this, &CMainWindow::SelectionMoved);
    const auto* pRemove = new QShortcut(QKeySequence::Delete, m_pTree, nullptr, nullptr, Qt::WidgetShortcut);
    connect(pRemove, &QShortcut::activated, this, &CMainWindow::RemoveSelectedSender);
    connect(m_pProject, &CProjectActions::Reported, this, funcReport);
    for (CWorkbenchPage* pPage : m_vecPages) {
        connect(pPage, &CWorkbenchPage::Reported, this, funcReport);
        connect(pPage, &CWorkbenchPage::Failed, this, [this, pPage](const QString& strText) {
            QMessageBox::warning(this, pPage->Title(), strText);
        });
        connect(pPage, &CWorkbenchPage::SelectionWanted, m_pTree, &CSenderTree::Select);
    }
    CSimulator& simulator = CSimulator::Instance();
    connect(&simulator.Document(), &CProjectDocument::OnModifiedChanged, this, &CMainWindow::ShowTitle);
    connect(&simulator.Document(), &CProjectDocument::OnFilePathChanged, this, &CMainWindow::ShowTitle);
    connect(&simulator.Document(), &CProjectDocument::OnProblem, this,
            [this](const SFileProblem& problem) { QMessageBox::warning(this, tr("工程"), problem.Text()); });
    ShowTitle();
    // A project loaded before the window is shown starts at its current sender, like one
    // that is opened.
    m_pTree->Select({simulator.Project().nCurSender, -1});
}

CMainWindow::~CMainWindow() = default;

void CMainWindow::AddPages()
{
    AddPage(new CEdidPage(this));
    AddPage(new CColourPage(this));
    AddPage(new COutputPage(this));
    AddPage(new CAddressPage([this] { return m_pProject->MayLeave(); }, this));
    AddPage(new CSimulationPage(this));
}

void CMainWindow::AddPage(CWorkbenchPage* pPage)
{
    m_vecPages.push_back(pPage);
    m_pTabs->addTab(pPage, pPage->Title());
    // Ctrl+1 shows the first page.
    const auto* pShortcut = new QShortcut(QKeySequence(Qt::CTRL + Qt::Key_0 + int(m_vecPages.size())), this);
    connect(pShortcut, &QShortcut::activated, this, [this, pPage] { ShowPage(pPage); });
}

void CMainWindow::ShowPage(CWorkbenchPage* pPage)
{
    m_pTabs->setCurrentWidget(pPage);
}

void CMainWindow::BuildMenus()
{
    // Menus are rebuilt when the language changes: an action's text is set where the action is made.
    menuBar()->clear();
    BuildProjectMenu();
    BuildSenderMenu();
    BuildViewMenu();
}

void CMainWindow::BuildProjectMenu()
{
    QMenu* pMenu = menuBar()->addMenu(tr("工程(&P)"));
    QMenu* pNew = pMenu->addMenu(tr("新建"));
    pNew->addAction(tr("演示发送器"), m_pProject, &CProjectActions::NewDemo, QKeySequence::New);
    pNew->addAction(tr("所有类型的发送器"), m_pProject, &CProjectActions::NewCatalogue);
    pNew->addAction(tr("空工程"), m_pProject, &CProjectActions::NewEmpty);
    pMenu->addAction(tr("打开..."), m_pProject, &CProjectActions::ChooseAndOpen, QKeySequence::Open);
    QMenu* pRecent = pMenu->addMenu(tr("最近的工程"));
    connect(pRecent, &QMenu::aboutToShow, this, [this, pRecent] { FillRecentFiles(pRecent); });
    pMenu->addSeparator();
    pMenu->addAction(tr("保存"), m_pProject, &CProjectActions::Save, QKeySequence::Save);
    pMenu->addAction(tr("另存为..."), m_pProject, &CProjectActions::ChooseAndSave,
                     Qt::CTRL + Qt::SHIFT + Qt::Key_S);
    pMenu->addSeparator();
    pMenu->addAction(tr("退出"), this, &QWidget::close, QKeySequence::Quit);
}

void CMainWindow::FillRecentFiles(QMenu* pMenu)
{
    pMenu->clear();
    const QStringList listFiles = m_pProject->RecentFiles().List();
    for (const QString& strFile : listFiles)
        pMenu->addAction(strFile, this, [this, strFile] { m_pProject->Open(strFile); });
    if (listFiles.isEmpty())
        pMenu->addAction(tr("没有"))->setEnabled(false);
}

void CMainWindow::BuildSenderMenu()
{
    QMenu* pMenu = menuBar()->addMenu(tr("发送器(&S)"));
    QMenu* pAdd = pMenu->addMenu(tr("添加"));
    for (const int nType : CCatalogue::Instance().Types()) {
        const QString strText =
            QStringLiteral("%1 (%2)").arg(CCatalogue::Instance().ModelName(nType)).arg(nType);
        pAdd->addAction(strText, this, [this, nType] { AddSender(nType); });
    }
    pMenu->addAction(tr("删除所选的发送器"), this, &CMainWindow::RemoveSelectedSender);
}

void CMainWindow::AddSender(int nType)
{
    const int nSender = CSimulator::Instance().Document().AddSender(nType);
    m_pTree->Select({nSender, -1});
}

void CMainWindow::RemoveSelectedSender()
{
    const SSelection selection = m_pTree->Selection();
    if (selection.HasSender())
        CSimulator::Instance().Document().RemoveSender(selection.nSender);
}

void CMainWindow::BuildViewMenu()
{
    QMenu* pView = menuBar()->addMenu(tr("视图(&V)"));
    pView->addAction(m_pJournal->toggleViewAction());
    QMenu* pLanguage = menuBar()->addMenu(tr("语言(&L)"));
    for (const SLanguageRow& row : c_arrLanguages) {
        QAction* pAction = pLanguage->addAction(QString::fromUtf8(row.szName), this, [this, row] {
            m_language.Set(row.language);
            m_settings.setValue(c_strLanguageKey, CLanguage::Code(row.language));
        });
        pAction->setCheckable(true);
        pAction->setChecked(row.language == m_language.Current());
    }
}

void CMainWindow::SelectionMoved(const SSelection& selection)
{
    if (selection.HasSender())
        CSimulator::Instance().Document().SetCurrentSender(selection.nSender);
    for (CWorkbenchPage* pPage : m_vecPages)
        pPage->ShowSelection(selection);
}

void CMainWindow::changeEvent(QEvent* pEvent)
{
    if (pEvent->type() == QEvent::LanguageChange)
        Retranslate();
    QMainWindow::changeEvent(pEvent);
}

void CMainWindow::Retranslate()
{
    BuildMenus();
    m_pTree->Retranslate();
    m_pJournal->Retranslate();
    for (CWorkbenchPage* pPage : m_vecPages) {
        pPage->Retranslate();
        m_pTabs->setTabText(m_pTabs->indexOf(pPage), pPage->Title());
    }
    ShowTitle();
}

void CMainWindow::ShowTitle()
{
    CSimulator& simulator = CSimulator::Instance();
    const QString strFile = simulator.Document().FilePath().isEmpty()
                                ? tr("未命名")
                                : QFileInfo(simulator.Document().FilePath()).fileName();
    setWindowTitle(QStringLiteral("%1[*] — %2").arg(strFile, tr("发送器工作台")));
    setWindowModified(simulator.Document().IsModified());
}

void CMainWindow::closeEvent(QCloseEvent* pEvent)
{
    if (!m_pProject->MayLeave()) {
        pEvent->ignore();
        return;
    }
    m_settings.setValue(c_strGeometryKey, saveGeometry());
    m_settings.setValue(c_strStateKey, saveState());
    pEvent->accept();
}
