#include "workbench/edid/FieldDelegate.h"

#include "instruments/edid/FieldEditing.h"
#include "workbench/edid/EdidColours.h"
#include "workbench/edid/EdidDocument.h"
#include "workbench/edid/EdidWords.h"
#include "workbench/edid/FieldModel.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

bool EndsEntry(const QEvent* pEvent)
{
    if (pEvent->type() != QEvent::KeyPress)
        return false;
    const int nKey = static_cast<const QKeyEvent*>(pEvent)->key();
    return nKey == Qt::Key_Return || nKey == Qt::Key_Enter || nKey == Qt::Key_Tab || nKey == Qt::Key_Backtab;
}

} // namespace

CFieldDelegate::CFieldDelegate(CFieldModel& model, QObject* pParent)
    : QStyledItemDelegate(pParent)
    , m_model(model)
{}

QWidget* CFieldDelegate::createEditor(QWidget* pParent, const QStyleOptionViewItem&,
                                      const QModelIndex& index) const
{
    m_indexEdited = index;
    const Edid::SField& field = m_model.Document().Fields()[std::size_t(m_model.FieldOf(index))];
    if (!Edid::HasChoices(field)) {
        auto* pLine = new QLineEdit(pParent);
        pLine->setFrame(false);
        pLine->setAccessibleName(EdidWords::Label(field));
        return pLine;
    }
    auto* pChoices = new QComboBox(pParent);
    pChoices->setAccessibleName(EdidWords::Label(field));
    for (const EdidWords::SChoice& choice : EdidWords::Choices(field))
        pChoices->addItem(choice.strName, QString::number(choice.nRaw));
    // A choice by the mouse is complete.
    connect(pChoices, QOverload<int>::of(&QComboBox::activated), this, [this, pChoices] {
        auto* pSelf = const_cast<CFieldDelegate*>(this);
        Q_EMIT pSelf->commitData(pChoices);
        Q_EMIT pSelf->closeEditor(pChoices);
    });
    return pChoices;
}

void CFieldDelegate::setEditorData(QWidget* pEditor, const QModelIndex& index) const
{
    const QString strValue = index.data(Qt::EditRole).toString();
    if (auto* pChoices = qobject_cast<QComboBox*>(pEditor))
        pChoices->setCurrentIndex(pChoices->findData(strValue));
    else if (auto* pLine = qobject_cast<QLineEdit*>(pEditor))
        pLine->setText(strValue);
}

void CFieldDelegate::setModelData(QWidget* pEditor, QAbstractItemModel* pModel,
                                  const QModelIndex& index) const
{
    if (auto* pChoices = qobject_cast<QComboBox*>(pEditor))
        pModel->setData(index, pChoices->currentData());
    else if (auto* pLine = qobject_cast<QLineEdit*>(pEditor))
        pModel->setData(index, pLine->text());
}

bool CFieldDelegate::IsRefused(QWidget* pEditor)
{
    auto* pLine = qobject_cast<QLineEdit*>(pEditor);
    const int nField = m_model.FieldOf(m_indexEdited);
    if (pLine == nullptr || nField < 0)
        return false;
    const QString strRefusal = m_model.Document().Refusal(nField, pLine->text());
    if (strRefusal.isEmpty())
        return false;
    QPalette palette = pLine->palette();
    palette.setColor(QPalette::Text, EdidColours::c_clrRefused);
    pLine->setPalette(palette);
    pLine->setToolTip(strRefusal);
    Q_EMIT Refused(strRefusal);
    return true;
}

bool CFieldDelegate::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (EndsEntry(pEvent) && IsRefused(qobject_cast<QWidget*>(pWatched)))
        return true;
    return QStyledItemDelegate::eventFilter(pWatched, pEvent);
}
