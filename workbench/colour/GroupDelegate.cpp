#include "workbench/colour/GroupDelegate.h"

#include "workbench/colour/GroupModel.h"

#include <QComboBox>

QWidget* CGroupDelegate::createEditor(QWidget* pParent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    if (index.row() != CGroupModel::enMode)
        return QStyledItemDelegate::createEditor(pParent, option, index);
    auto* pModes = new QComboBox(pParent);
    pModes->addItems({QStringLiteral("RGB"), QStringLiteral("CMY")});
    // A choice takes effect at once, not only when the cell is left.
    connect(pModes, QOverload<int>::of(&QComboBox::activated), this, [this, pModes] {
        auto* pThis = const_cast<CGroupDelegate*>(this);
        Q_EMIT pThis->commitData(pModes);
        Q_EMIT pThis->closeEditor(pModes);
    });
    return pModes;
}

void CGroupDelegate::setEditorData(QWidget* pEditor, const QModelIndex& index) const
{
    if (auto* pModes = qobject_cast<QComboBox*>(pEditor))
        pModes->setCurrentText(index.data(Qt::EditRole).toString());
    else
        QStyledItemDelegate::setEditorData(pEditor, index);
}

void CGroupDelegate::setModelData(QWidget* pEditor, QAbstractItemModel* pModel,
                                  const QModelIndex& index) const
{
    if (auto* pModes = qobject_cast<QComboBox*>(pEditor))
        pModel->setData(index, pModes->currentText(), Qt::EditRole);
    else
        QStyledItemDelegate::setModelData(pEditor, pModel, index);
}
