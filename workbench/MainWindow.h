#ifndef WORKBENCH_MAINWINDOW_H
#define WORKBENCH_MAINWINDOW_H

#include "workbench/Language.h"
#include "workbench/WorkbenchPage.h"

#include <QMainWindow>

#include <vector>

class CJournalDock;
class CMainMenu;
class CProjectActions;
class CProjectHistory;
class CSenderActions;
class CSenderTree;
class QSettings;
class QSplitter;
class QTabWidget;
struct SProjectChange;

/// The workbench: the senders of the simulated project on the left, pages about the selected one on the
/// right, and the journal of host calls below.
class CMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    CMainWindow(CLanguage& language, QSettings& settings);
    ~CMainWindow() override;

    CProjectActions& Project() { return *m_pProject; }
    CProjectHistory& History() { return *m_pHistory; }
    CSenderTree& Tree() { return *m_pTree; }
    CJournalDock& Journal() { return *m_pJournal; }
    const std::vector<CWorkbenchPage*>& Pages() const { return m_vecPages; }
    /// Size of the first window on a screen of that size.
    static QSize FirstSize(QSize sizeScreen);
    /// Whether such a screen has room for the journal below a page.
    static bool HasJournalRoom(QSize sizeScreen);
    /// Arranges window, tree and journal as at the first start on such a screen.
    void ArrangeFor(QSize sizeScreen);
    /// Brings a page to the front.
    void ShowPage(CWorkbenchPage* pPage);

protected:
    void closeEvent(QCloseEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private:
    void AddPages();
    void AddPage(CWorkbenchPage* pPage);
    void ConnectPage(CWorkbenchPage* pPage);
    void ConnectDocument();
    void RestoreState();
    void SaveState();
    void Report(const QString& strText);
    void SetLanguage(enLanguage language);
    void EditEdid();
    void ShowRestored(const SProjectChange& change);
    void SelectionMoved(const SSelection& selection);
    void Retranslate();
    void ShowTitle();

    CLanguage& m_language;
    QSettings& m_settings;
    CProjectActions* m_pProject = nullptr;
    CProjectHistory* m_pHistory = nullptr;
    QSplitter* m_pSplitter = nullptr;
    CSenderTree* m_pTree = nullptr;
    CSenderActions* m_pSenders = nullptr;
    CMainMenu* m_pMenu = nullptr;
    QTabWidget* m_pTabs = nullptr;
    CJournalDock* m_pJournal = nullptr;
    std::vector<CWorkbenchPage*> m_vecPages;
};

#endif // WORKBENCH_MAINWINDOW_H
