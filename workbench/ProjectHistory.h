#ifndef WORKBENCH_PROJECTHISTORY_H
#define WORKBENCH_PROJECTHISTORY_H

#include "workbench/ProjectSnapshot.h"

#include <QObject>
#include <QUndoStack>

class CWorkbenchPage;
class QAction;
struct SProjectChange;

/// The undoable steps of the project. It watches the project itself, so that every edit can be undone,
/// whoever makes it: a page, the tree, or a dialog of the library that writes records in place. Another
/// project starts without steps.
class CProjectHistory : public QObject
{
    Q_OBJECT

public:
    explicit CProjectHistory(QObject* pParent = nullptr);
    ~CProjectHistory() override;

    /// Makes each step that a page announces one step of the history.
    void Follow(CWorkbenchPage& page);
    /// What changes until `EndStep` is one step. Steps nest: the outermost one counts.
    /// @param strText what the step does
    /// @param strMerge a step continues the one before it when both have the same text here
    void BeginStep(const QString& strText, const QString& strMerge = QString());
    void EndStep();
    /// The next step does not continue the one before it.
    void Settle() { ++m_nEntry; }

    /// Takes a step back or forward; not in the middle of a step.
    /// @{
    void Undo();
    void Redo();
    /// @}
    /// Actions for a menu, with their keys; the text names the step.
    /// @{
    QAction* UndoAction() { return m_pUndo; }
    QAction* RedoAction() { return m_pRedo; }
    void Retranslate();
    /// @}
    const QUndoStack& Steps() const { return m_steps; }

    /// Puts the project back to a snapshot.
    void Restore(const CProjectSnapshot& snapshot);

Q_SIGNALS:
    /// A step was taken back or forward, and this has changed by it.
    void Restored(const SProjectChange& change);
    /// One line for the status bar.
    void Reported(const QString& strText);

private:
    QAction* CreateAction(void (CProjectHistory::*pTake)());
    void StartOver();
    void Record(const SProjectChange& change);
    void Push();

    QUndoStack m_steps;
    QAction* m_pUndo = nullptr;
    QAction* m_pRedo = nullptr;
    CProjectSnapshot m_before;  ///< as the current step found it
    CProjectSnapshot m_present; ///< as it was last announced
    QString m_strText;          ///< of the current step
    QString m_strMerge;
    int m_nOpenSteps = 0;
    bool m_bChanged = false;   ///< by the current step
    bool m_bReplaced = false;  ///< the next announcement is that of another project
    bool m_bRestoring = false; ///< the announcement comes from undo or redo
    int m_nEntry = 0;          ///< number of the field entry that steps of the same text belong to
};

#endif // WORKBENCH_PROJECTHISTORY_H
