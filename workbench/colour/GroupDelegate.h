#ifndef WORKBENCH_COLOUR_GROUPDELEGATE_H
#define WORKBENCH_COLOUR_GROUPDELEGATE_H

#include <QStyledItemDelegate>

/// Edits the groups: the mode by a choice of two values, everything else as text.
class CGroupDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* pParent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* pEditor, const QModelIndex& index) const override;
    void setModelData(QWidget* pEditor, QAbstractItemModel* pModel, const QModelIndex& index) const override;
};

#endif // WORKBENCH_COLOUR_GROUPDELEGATE_H
