#ifndef WORKBENCH_MAINWINDOW_H
#define WORKBENCH_MAINWINDOW_H

#include "workbench/Language.h"
#include "workbench/WorkbenchPage.h"

#include <QMainWindow>

#include <vector>

class CJournalDock;
class CProjectActions;
class CSenderTree;
class QMenu;
class QSettings;
class QTabWidget;

/// The workbench: the senders of the simulated project on the left, pages about the selected one on the
/// right, and the journal of host calls below.
class CMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    CMainWindow(CLanguage& language, QSettings& settings);
    ~CMainWindow() override;

    CProjectActions& Project() { return *m_pProject; }
    CSenderTree& Tree() { return *m_pTree; }
    CJournalDock& Journal() { return *m_pJournal; }
    const std::vector<CWorkbenchPage*>& Pages() const { return m_vecPages; }
    /// Brings a page to the front.
    void ShowPage(CWorkbenchPage* pPage);

protected:
    void closeEvent(QCloseEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private:
    void AddPages();
    void AddPage(CWorkbenchPage* pPage);
    void BuildMenus();
    void BuildProjectMenu();
    void BuildSenderMenu();
    void BuildViewMenu();
    void FillRecentFiles(QMenu* pMenu);
    void AddSender(int nType);
    void RemoveSelectedSender();
    void SelectionMoved(const SSelection& selection);
    void Retranslate();
    void ShowTitle();

    CLanguage& m_language;
    QSettings& m_settings;
    CProjectActions* m_pProject = nullptr;
    CSenderTree* m_pTree = nullptr;
    QTabWidget* m_pTabs = nullptr;
    CJournalDock* m_pJournal = nullptr;
    std::vector<CWorkbenchPage*> m_vecPages;
};

#endif // WORKBENCH_MAINWINDOW_H
