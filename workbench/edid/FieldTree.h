#ifndef WORKBENCH_EDID_FIELDTREE_H
#define WORKBENCH_EDID_FIELDTREE_H

#include <QTreeView>

class CFieldModel;

/// The tree of fields. Enter, F2 and a double click edit a value; when the fields become others, the place of
/// the current one stays.
class CFieldTree : public QTreeView
{
    Q_OBJECT

public:
    explicit CFieldTree(CFieldModel& model, QWidget* pParent = nullptr);

    /// Makes a row current and shows it.
    void ShowRow(const QModelIndex& index);
    /// Shows or hides the values of the EDID that the fields are compared with.
    void ShowOther(bool bShown);

Q_SIGNALS:
    /// Another row is current.
    void CurrentMoved();
    /// A value was refused: what is wrong and what to write.
    void Refused(const QString& strText);

protected:
    void keyPressEvent(QKeyEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    bool EditRow(const QModelIndex& index);
    void KeepPlace();
    void RestorePlace();
    void Unfold(const QModelIndex& parent);
    void FitNames();

    CFieldModel& m_model;
    int m_nKeptByte = -1; ///< first byte of the current row, over a reset
};

#endif // WORKBENCH_EDID_FIELDTREE_H
