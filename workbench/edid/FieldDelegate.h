#ifndef WORKBENCH_EDID_FIELDDELEGATE_H
#define WORKBENCH_EDID_FIELDDELEGATE_H

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

class CFieldModel;

/// Edits the value of a field: a list for what has few values, else a line. A value that is refused stays in
/// the line, with the reason, until it fits or Escape gives it up.
class CFieldDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CFieldDelegate(CFieldModel& model, QObject* pParent = nullptr);

    QWidget* createEditor(QWidget* pParent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* pEditor, const QModelIndex& index) const override;
    void setModelData(QWidget* pEditor, QAbstractItemModel* pModel, const QModelIndex& index) const override;

Q_SIGNALS:
    /// A value was refused while it was entered.
    void Refused(const QString& strText);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    bool IsRefused(QWidget* pEditor);

    CFieldModel& m_model;
    mutable QPersistentModelIndex m_indexEdited; ///< noted where the editor is made
};

#endif // WORKBENCH_EDID_FIELDDELEGATE_H
