#ifndef WORKBENCH_SENDERTREE_H
#define WORKBENCH_SENDERTREE_H

#include "workbench/WorkbenchPage.h"

#include <QTreeWidget>

struct SProjectChange;

/// The senders of the simulated project with their inputs: name, what it is, state. It updates what changed
/// and leaves the other rows alone. Several rows can be selected; the current one is shown on the pages.
class CSenderTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit CSenderTree(QWidget* pParent = nullptr);

    /// The current row.
    SSelection Selection() const;
    /// Indices of the senders whose own rows are selected, ascending.
    QList<int> SelectedSenders() const;
    /// Opens the editor of the current sender's name.
    void EditCurrentName();
    /// Selects a sender or input; if it does not exist, selects the first sender.
    void Select(const SSelection& selection);
    /// Puts all texts into the current language.
    void Retranslate();

Q_SIGNALS:
    void SelectionMoved(const SSelection& selection);
    /// A name was typed over that of a sender.
    void Renamed(int nSender, const QString& strName);

private:
    void Rebuild();
    void TakeName(QTreeWidgetItem* pItem, int nColumn);
    void Take(const SProjectChange& change);
    void TakeList();
    void InsertMissing();
    void FitAllColumns();
    void FitColumns(const QTreeWidgetItem* pSender);
    QTreeWidgetItem* Find(const SSelection& selection) const;
};

#endif // WORKBENCH_SENDERTREE_H
