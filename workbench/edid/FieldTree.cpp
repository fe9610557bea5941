#include "workbench/edid/FieldTree.h"

#include "workbench/edid/FieldDelegate.h"
#include "workbench/edid/FieldModel.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr int c_nIndentation = 12; ///< of a level, pixels

/// Part of the width that names take at most, beside the values and beside the values of two EDIDs.
constexpr double c_dMostOfOne = 0.55;
constexpr double c_dMostOfTwo = 0.4;

} // namespace

CFieldTree::CFieldTree(CFieldModel& model, QWidget* pParent)
    : QTreeView(pParent)
    , m_model(model)
{
    setModel(&model);
    setAlternatingRowColors(true);
    setUniformRowHeights(true);
    setIndentation(c_nIndentation);
    // The keys and the double click go to the value, whichever column is current.
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(true);
    auto* pDelegate = new CFieldDelegate(model, this);
    setItemDelegate(pDelegate);
    connect(pDelegate, &CFieldDelegate::Refused, this, &CFieldTree::Refused);
    connect(&model, &CFieldModel::Refused, this, &CFieldTree::Refused);
    connect(&model, &CFieldModel::modelAboutToBeReset, this, &CFieldTree::KeepPlace);
    connect(&model, &CFieldModel::modelReset, this, &CFieldTree::RestorePlace);
    RestorePlace();
}

void CFieldTree::ShowRow(const QModelIndex& index)
{
    setCurrentIndex(index);
    scrollTo(index);
}

void CFieldTree::ShowOther(bool bShown)
{
    setColumnHidden(CFieldModel::enOther, !bShown);
    FitNames();
}

bool CFieldTree::EditRow(const QModelIndex& index)
{
    const QModelIndex indexValue = index.siblingAtColumn(CFieldModel::enValue);
    if (!(m_model.flags(indexValue) & Qt::ItemIsEditable) || state() == EditingState)
        return false;
    edit(indexValue);
    return true;
}

void CFieldTree::keyPressEvent(QKeyEvent* pEvent)
{
    const int nKey = pEvent->key();
    const bool bEdits = nKey == Qt::Key_F2 || nKey == Qt::Key_Return || nKey == Qt::Key_Enter;
    if (bEdits && state() != EditingState && EditRow(currentIndex()))
        return;
    QTreeView::keyPressEvent(pEvent);
}

void CFieldTree::mouseDoubleClickEvent(QMouseEvent* pEvent)
{
    if (!EditRow(indexAt(pEvent->pos())))
        QTreeView::mouseDoubleClickEvent(pEvent);
}

void CFieldTree::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTreeView::currentChanged(current, previous);
    Q_EMIT CurrentMoved();
}

void CFieldTree::KeepPlace()
{
    m_nKeptByte = m_model.BytesOf(currentIndex()).value(0, -1);
}

void CFieldTree::RestorePlace()
{
    Unfold({});
    if (m_nKeptByte >= 0)
        ShowRow(m_model.IndexOfByte(m_nKeptByte));
    FitNames();
}

void CFieldTree::resizeEvent(QResizeEvent* pEvent)
{
    QTreeView::resizeEvent(pEvent);
    FitNames();
}

/// Long names leave room for the values.
void CFieldTree::FitNames()
{
    const double dMost = isColumnHidden(CFieldModel::enOther) ? c_dMostOfOne : c_dMostOfTwo;
    const int nMost = int(viewport()->width() * dMost);
    header()->resizeSection(CFieldModel::enField, std::min(sizeHintForColumn(CFieldModel::enField), nMost));
}

/// Groups that only say what is not there stay folded.
void CFieldTree::Unfold(const QModelIndex& parent)
{
    for (int nRow = 0; nRow < m_model.rowCount(parent); ++nRow) {
        const QModelIndex index = m_model.index(nRow, 0, parent);
        setExpanded(index, !m_model.IsSilentGroup(index));
        Unfold(index);
    }
}
