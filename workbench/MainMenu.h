#ifndef WORKBENCH_MAINMENU_H
#define WORKBENCH_MAINMENU_H

#include "workbench/Language.h"

#include <QObject>

#include <vector>

class CJournalDock;
class CProjectActions;
class CProjectHistory;
class CSenderActions;
class CWorkbenchPage;
class QAction;
class QMainWindow;
class QMenu;

/// The menu bar of the main window.
class CMainMenu : public QObject
{
    Q_OBJECT

public:
    /// What the menus operate.
    struct SParts
    {
        CProjectActions* pProject;
        CProjectHistory* pHistory;
        CSenderActions* pSenders;
        CJournalDock* pJournal;
        const std::vector<CWorkbenchPage*>* pPages;
    };

    CMainMenu(QMainWindow& window, const CLanguage& language, const SParts& parts);

    /// Builds all menus in the current language.
    void Rebuild();

Q_SIGNALS:
    void PageWanted(CWorkbenchPage* pPage);
    void LanguageWanted(enLanguage language);

private:
    QMenu* NewMenu(const QString& strTitle);
    void BuildProject();
    void BuildEdit();
    void BuildSenders();
    void BuildView();
    void BuildLanguages();
    void BuildHelp();
    void FillRecentFiles(QMenu* pMenu);
    void ShowKeys();
    void ShowAbout();

    QMainWindow& m_window;
    const CLanguage& m_language;
    const SParts m_parts;
};

#endif // WORKBENCH_MAINMENU_H
