#ifndef WORKBENCH_JOURNALDOCK_H
#define WORKBENCH_JOURNALDOCK_H

#include <QDockWidget>
#include <QModelIndexList>

class CJournalFilter;
class QAction;
class QCheckBox;
class QLineEdit;
class QPushButton;
class QTableView;

/// Shows the host calls in order: filtered by text and kind, repeated reads once with their count, and copied
/// to the clipboard as lines.
class CJournalDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit CJournalDock(QWidget* pParent = nullptr);

    /// Puts all texts into the current language.
    void Retranslate();
    /// The calls shown, one per line.
    QString ShownLines() const;
    /// Shows only calls that contain the text.
    void SetFilterText(const QString& strText);

private:
    QWidget* CreateBar();
    QWidget* CreateTable();
    void CopySelected();
    QString Lines(const QModelIndexList& listRows) const;

    CJournalFilter* m_pFilter = nullptr;
    QLineEdit* m_pText = nullptr;
    QCheckBox* m_pReads = nullptr;
    QCheckBox* m_pFold = nullptr;
    QPushButton* m_pCopy = nullptr;
    QPushButton* m_pClear = nullptr;
    QTableView* m_pTable = nullptr;
    QAction* m_pCopyAction = nullptr;
};

#endif // WORKBENCH_JOURNALDOCK_H
