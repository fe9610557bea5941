#include "workbench/MainWindow.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/ElidedTips.h"
#include "workbench/JournalDock.h"
#include "workbench/MainMenu.h"
#include "workbench/PageTabs.h"
#include "workbench/ProjectActions.h"
#include "workbench/ProjectHistory.h"
#include "workbench/SenderActions.h"
#include "workbench/SenderTree.h"
#include "workbench/WheelGuard.h"
#include "workbench/addresses/AddressPage.h"
#include "workbench/colour/ColourPage.h"
#include "workbench/edid/EdidPage.h"
#include "workbench/output/OutputPage.h"
#include "workbench/simulation/SimulationPage.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMessageBox>
#include <QScreen>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>

#include <algorithm>

namespace {

const QString c_strLanguageKey = QStringLiteral("language");

constexpr QSize c_sizeFirst(1280, 860);
constexpr int c_nTreeWidth = 360;
constexpr int c_nLeastTreeWidth = 220;
constexpr int c_nJournalRoom = 800; ///< height of a screen that shows page and journal together, pixels
constexpr int c_nJournalPart = 4;   ///< of the first window's height that the journal takes, as a divisor
constexpr int c_nStatusTime = 8000; ///< ms that a line stays in the status bar

/// The settings of windows on screens of that size.
QString ScreenKey(QSize sizeScreen, const char* szName)
{
    return QStringLiteral("screen%1x%2/%3")
        .arg(sizeScreen.width())
        .arg(sizeScreen.height())
        .arg(QString::fromLatin1(szName));
}

} // namespace

CMainWindow::CMainWindow(CLanguage& language, QSettings& settings)
    : m_language(language)
    , m_settings(settings)
    , m_pProject(new CProjectActions(this, settings))
    , m_pHistory(new CProjectHistory(this))
    , m_pSplitter(new QSplitter(this))
    , m_pTree(new CSenderTree(this))
    , m_pSenders(new CSenderActions(*m_pTree, *m_pHistory, this))
    , m_pTabs(new CPageTabs(this))
{
    m_pSplitter->addWidget(m_pTree);
    m_pSplitter->addWidget(m_pTabs);
    m_pSplitter->setStretchFactor(1, 1);
    m_pSplitter->setChildrenCollapsible(false);
    m_pTree->setMinimumWidth(c_nLeastTreeWidth);
    setCentralWidget(m_pSplitter);
    AddPages();
    // Tab goes from tree to tabs, page and journal: the order in which they are created.
    m_pJournal = new CJournalDock(this);
    addDockWidget(Qt::BottomDockWidgetArea, m_pJournal);
    new CWheelGuard(this);
    new CElidedTips(this);
    // Made now, so that the first message does not move the layout.
    statusBar();
    m_pMenu = new CMainMenu(*this, m_language, {m_pProject, m_pHistory, m_pSenders, m_pJournal, &m_vecPages});
    RestoreState();

    connect(m_pMenu, &CMainMenu::PageWanted, this, &CMainWindow::ShowPage);
    connect(m_pMenu, &CMainMenu::LanguageWanted, this, &CMainWindow::SetLanguage);
    connect(m_pTree, &CSenderTree::SelectionMoved, this, &CMainWindow::SelectionMoved);
    connect(m_pSenders, &CSenderActions::EdidWanted, this, &CMainWindow::EditEdid);
    connect(m_pSenders, &CSenderActions::Reported, this, &CMainWindow::Report);
    connect(m_pHistory, &CProjectHistory::Reported, this, &CMainWindow::Report);
    connect(m_pHistory, &CProjectHistory::Restored, this, &CMainWindow::ShowRestored);
    connect(m_pProject, &CProjectActions::Reported, this, &CMainWindow::Report);
    // What is typed after the focus was elsewhere is another step.
    connect(qApp, &QApplication::focusChanged, m_pHistory, &CProjectHistory::Settle);
    for (CWorkbenchPage* pPage : m_vecPages)
        ConnectPage(pPage);
    ConnectDocument();
    ShowTitle();
    // A project loaded before the window is shown starts at its current sender, like one
    // that is opened.
    m_pTree->Select({CSimulator::Instance().Project().nCurSender, -1});
}

CMainWindow::~CMainWindow() = default;

void CMainWindow::ConnectPage(CWorkbenchPage* pPage)
{
    m_pHistory->Follow(*pPage);
    connect(pPage, &CWorkbenchPage::Reported, this, &CMainWindow::Report);
    connect(pPage, &CWorkbenchPage::Failed, this, [this, pPage](const QString& strText) {
        // A success that is still told there would read like that of what failed.
        statusBar()->clearMessage();
        QMessageBox::warning(this, pPage->Title(), strText);
    });
    connect(pPage, &CWorkbenchPage::SelectionWanted, m_pTree, &CSenderTree::Select);
}

void CMainWindow::ConnectDocument()
{
    const CProjectDocument& document = CSimulator::Instance().Document();
    connect(&document, &CProjectDocument::OnModifiedChanged, this, &CMainWindow::ShowTitle);
    connect(&document, &CProjectDocument::OnFilePathChanged, this, &CMainWindow::ShowTitle);
    connect(&document, &CProjectDocument::OnProblem, this,
            [this](const SFileProblem& problem) { QMessageBox::warning(this, tr("工程"), problem.Text()); });
}

void CMainWindow::Report(const QString& strText)
{
    statusBar()->showMessage(strText, c_nStatusTime);
}

void CMainWindow::ArrangeFor(QSize sizeScreen)
{
    const QSize sizeWindow = FirstSize(sizeScreen);
    const int nTreeWidth = std::min(c_nTreeWidth, sizeWindow.width() * 3 / 10);
    resize(sizeWindow);
    m_pSplitter->setSizes({nTreeWidth, sizeWindow.width() - nTreeWidth});
    m_pJournal->setVisible(HasJournalRoom(sizeScreen));
    resizeDocks({m_pJournal}, {sizeWindow.height() / c_nJournalPart}, Qt::Vertical);
}

QSize CMainWindow::FirstSize(QSize sizeScreen)
{
    return c_sizeFirst.expandedTo(sizeScreen * 2 / 3).boundedTo(sizeScreen);
}

bool CMainWindow::HasJournalRoom(QSize sizeScreen)
{
    return sizeScreen.height() >= c_nJournalRoom;
}

/// Each size of screen has its own arrangement.
void CMainWindow::RestoreState()
{
    const QSize sizeScreen = screen()->availableSize();
    ArrangeFor(sizeScreen);
    restoreGeometry(m_settings.value(ScreenKey(sizeScreen, "geometry")).toByteArray());
    restoreState(m_settings.value(ScreenKey(sizeScreen, "windowState")).toByteArray());
    m_pSplitter->restoreState(m_settings.value(ScreenKey(sizeScreen, "splitter")).toByteArray());
}

void CMainWindow::SaveState()
{
    const QSize sizeScreen = screen()->availableSize();
    m_settings.setValue(ScreenKey(sizeScreen, "geometry"), saveGeometry());
    m_settings.setValue(ScreenKey(sizeScreen, "windowState"), saveState());
    m_settings.setValue(ScreenKey(sizeScreen, "splitter"), m_pSplitter->saveState());
}

void CMainWindow::SetLanguage(enLanguage language)
{
    m_language.Set(language);
    m_settings.setValue(c_strLanguageKey, CLanguage::Code(language));
}

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
}

void CMainWindow::ShowPage(CWorkbenchPage* pPage)
{
    m_pTabs->setCurrentWidget(pPage);
}

void CMainWindow::EditEdid()
{
    auto* pPage = findChild<CEdidPage*>();
    ShowPage(pPage);
    pPage->EditEdid();
}

/// Selects a sender that undo or redo has changed, so that the operator sees what happened.
void CMainWindow::ShowRestored(const SProjectChange& change)
{
    const auto& listSenders = CSimulator::Instance().Project().listSenders;
    const auto IsChanged = [&change](const SSimulatedSender& sender) {
        return change.setSenderIds.contains(sender.nId);
    };
    const SSimulatedSender* pSelected =
        CSimulator::Instance().Project().FindSender(m_pTree->Selection().nSender);
    if (pSelected != nullptr && IsChanged(*pSelected))
        return;
    const auto itChanged = std::find_if(listSenders.cbegin(), listSenders.cend(), IsChanged);
    if (itChanged != listSenders.cend())
        m_pTree->Select({int(itChanged - listSenders.cbegin()), -1});
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
    m_pTree->Retranslate();
    m_pJournal->Retranslate();
    for (CWorkbenchPage* pPage : m_vecPages) {
        pPage->Retranslate();
        m_pTabs->setTabText(m_pTabs->indexOf(pPage), pPage->Title());
    }
    m_pMenu->Rebuild();
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
    SaveState();
    pEvent->accept();
}
