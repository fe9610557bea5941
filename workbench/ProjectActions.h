#ifndef WORKBENCH_PROJECTACTIONS_H
#define WORKBENCH_PROJECTACTIONS_H

#include "workbench/RecentFiles.h"

#include <QObject>

#include <functional>

class QSettings;
class QWidget;

/// Opens, saves and starts projects on behalf of a window: asks before unsaved changes are lost, reports what
/// went wrong, and remembers the recent files.
class CProjectActions : public QObject
{
    Q_OBJECT

public:
    /// @param pWindow parent of questions and messages
    CProjectActions(QWidget* pWindow, QSettings& settings);

    /// @name What a menu offers
    /// Each asks about unsaved changes first where they would be lost.
    /// @return false when the operator cancelled or it failed
    /// @{
    bool NewDemo();
    bool NewCatalogue();
    bool NewEmpty();
    bool ChooseAndOpen();
    bool Open(const QString& strFile);
    bool Save();
    bool ChooseAndSave();
    /// @}

    /// Saves to a file without asking for one.
    bool SaveAs(const QString& strFile);
    /// Asks what to do with unsaved changes.
    /// @return false when the operator wants to stay
    bool MayLeave();
    /// Opens the last project; starts a new one when there is none.
    void OpenLast();

    CRecentFiles& RecentFiles() { return m_recentFiles; }

Q_SIGNALS:
    /// One line for the status bar.
    void Reported(const QString& strText);

private:
    bool StartNew(const std::function<void()>& funcStart);
    bool OpenWithoutAsking(const QString& strFile);
    void Tell(const QString& strText);

    QWidget* m_pWindow;
    CRecentFiles m_recentFiles;
};

#endif // WORKBENCH_PROJECTACTIONS_H
