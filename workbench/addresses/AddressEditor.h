#ifndef WORKBENCH_ADDRESSES_ADDRESSEDITOR_H
#define WORKBENCH_ADDRESSES_ADDRESSEDITOR_H

#include <QList>
#include <QObject>

#include <functional>

class CCustomAddProcessorDlg;
class QWidget;

/// What can be done to the list of processor addresses: with the dialogs of the library, and to entries of
/// the list. Each is one undoable step.
class CAddressEditor : public QObject
{
    Q_OBJECT

public:
    /// @param funcMayLeave asks about unsaved changes before the demo project replaces the current one;
    /// false when the operator wants to keep that project
    /// @param pWindow parent of the dialogs
    CAddressEditor(std::function<bool()> funcMayLeave, QWidget* pWindow);

    /// Adds addresses from a first one on.
    void AddBatch();
    /// Adds one address for each of several processors.
    void SetAddresses(int nCount);
    void Modify(int nRow);
    /// Puts entries back to their first addresses.
    void Reset(const QList<int>& listRows);
    void Remove(const QList<int>& listRows);
    void AddByHand();
    void StartDemo();

Q_SIGNALS:
    /// What happened, and what was left out.
    void Reported(const QString& strText);
    /// Something failed: what, why, and what to do.
    void Failed(const QString& strText);
    /// What changes in the project from now until `StepEnded` is one step.
    void StepBegan(const QString& strText);
    void StepEnded();

private:
    void RunDialog(const QString& strStep, int nFirst, int nCount);
    void TakeProcessors(const CCustomAddProcessorDlg& dialog);
    void ApplyModified();

    const std::function<bool()> m_funcMayLeave;
    QWidget* m_pWindow;
};

#endif // WORKBENCH_ADDRESSES_ADDRESSEDITOR_H
