#ifndef WORKBENCH_SENDERTREE_H
#define WORKBENCH_SENDERTREE_H

#include "workbench/WorkbenchPage.h"

#include <QTreeWidget>

struct SProjectChange;

/// The senders of the simulated project with their inputs: name, type code or interface id, state. It updates
/// what changed and leaves the other rows alone.
class CSenderTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit CSenderTree(QWidget* pParent = nullptr);

    SSelection Selection() const;
    /// Selects a sender or input; if it does not exist, selects the first sender.
    void Select(const SSelection& selection);
    /// Puts all texts into the current language.
    void Retranslate();

Q_SIGNALS:
    void SelectionMoved(const SSelection& selection);

private:
    void Rebuild();
    void Take(const SProjectChange& change);
    void TakeList();
    void InsertMissing();
    void FitAllColumns();
    void FitColumns(const QTreeWidgetItem* pSender);
    QTreeWidgetItem* Find(const SSelection& selection) const;
};

#endif // WORKBENCH_SENDERTREE_H
