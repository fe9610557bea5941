#include "workbench/SenderTree.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/ModeText.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>

namespace {

enum enColumn
{
    enName,
    enType,
    enState,
    enColumnCount
};

/// What an item stands for.
enum enRole
{
    enIdRole = Qt::UserRole, ///< id of a sender
    enInterfaceRole          ///< interface id of an input
};

int SenderId(const QTreeWidgetItem* pItem)
{
    return pItem->data(enName, enIdRole).toInt();
}

/// What the operator should see of a sender at a glance.
QString SenderState(const SSimulatedSender& sender)
{
    QStringList listStates;
    if (sender.faults.nEdidWriteResult != 0 || sender.faults.bBasicEdidFails)
        listStates.append(CSenderTree::tr("写入失败"));
    if (sender.faults.nWriteDelay > 0)
        listStates.append(CSenderTree::tr("慢"));
    return listStates.isEmpty() ? CSenderTree::tr("正常") : listStates.join(CSenderTree::tr("，"));
}

void ShowInput(QTreeWidgetItem* pItem, const SSimulatedInput& input)
{
    pItem->setText(enName, input.strName);
    pItem->setText(enType, CSenderTree::tr("接口 %1").arg(input.nInterfaceId));
    pItem->setText(enState, input.setting ? ModeText::Of(*input.setting) : CSenderTree::tr("没有设置"));
}

QTreeWidgetItem* NewInput(const SSimulatedInput& input)
{
    auto* pItem = new QTreeWidgetItem;
    pItem->setData(enName, enInterfaceRole, input.nInterfaceId);
    return pItem;
}

bool HasInputsOf(const QTreeWidgetItem* pItem, const SSimulatedSender& sender)
{
    if (pItem->childCount() != int(sender.listInputs.size()))
        return false;
    for (int i = 0; i < pItem->childCount(); ++i)
        if (pItem->child(i)->data(enName, enInterfaceRole).toInt() !=
            sender.listInputs[std::size_t(i)].nInterfaceId)
            return false;
    return true;
}

void TakeInputs(QTreeWidgetItem* pItem, const SSimulatedSender& sender)
{
    qDeleteAll(pItem->takeChildren());
    QList<QTreeWidgetItem*> listInputs;
    for (const SSimulatedInput& input : sender.listInputs)
        listInputs.append(NewInput(input));
    pItem->addChildren(listInputs);
}

void ShowSender(QTreeWidgetItem* pItem, const SSimulatedSender& sender)
{
    if (!HasInputsOf(pItem, sender))
        TakeInputs(pItem, sender);
    pItem->setText(enName, sender.strName);
    pItem->setText(enType, CSenderTree::tr("类型 %1").arg(sender.capability.nType));
    pItem->setText(enState, SenderState(sender));
    for (int i = 0; i < pItem->childCount(); ++i)
        ShowInput(pItem->child(i), sender.listInputs[std::size_t(i)]);
}

/// An item is filled before a view sees it: otherwise the view would measure and paint each text.
QTreeWidgetItem* NewSender(const SSimulatedSender& sender)
{
    auto* pItem = new QTreeWidgetItem;
    pItem->setData(enName, enIdRole, sender.nId);
    pItem->setFlags(pItem->flags() | Qt::ItemIsEditable);
    ShowSender(pItem, sender);
    return pItem;
}

const std::deque<SSimulatedSender>& Senders()
{
    return CSimulator::Instance().Project().listSenders;
}

} // namespace

CSenderTree::CSenderTree(QWidget* pParent)
    : QTreeWidget(pParent)
{
    setColumnCount(enColumnCount);
    setAlternatingRowColors(true);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    // Names alone can be edited, and a double click means another thing on an input.
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setExpandsOnDoubleClick(false);
    header()->setStretchLastSection(true);
    connect(&CSimulator::Instance().Document(), &CProjectDocument::OnProjectReplaced, this, [this] {
        Rebuild();
        Select({CSimulator::Instance().Project().nCurSender, -1});
    });
    connect(&CSimulator::Instance().Document(), &CProjectDocument::OnProjectChanged, this,
            &CSenderTree::Take);
    connect(this, &QTreeWidget::itemChanged, this, &CSenderTree::TakeName);
    connect(this, &QTreeWidget::currentItemChanged, this, [this] { Q_EMIT SelectionMoved(Selection()); });
    Rebuild();
    Retranslate();
}

SSelection CSenderTree::Selection() const
{
    QTreeWidgetItem* pItem = currentItem();
    if (pItem == nullptr)
        return {};
    if (pItem->parent() == nullptr)
        return {indexOfTopLevelItem(pItem), -1};
    return {indexOfTopLevelItem(pItem->parent()), pItem->data(enName, enInterfaceRole).toInt()};
}

QList<int> CSenderTree::SelectedSenders() const
{
    QList<int> listSenders;
    for (const QTreeWidgetItem* pItem : selectedItems())
        if (pItem->parent() == nullptr)
            listSenders.append(indexOfTopLevelItem(const_cast<QTreeWidgetItem*>(pItem)));
    std::sort(listSenders.begin(), listSenders.end());
    return listSenders;
}

void CSenderTree::EditCurrentName()
{
    QTreeWidgetItem* pItem = currentItem();
    if (pItem != nullptr && pItem->parent() == nullptr)
        // Unlike `editItem`, it does not complain where the row is being edited already.
        edit(indexFromItem(pItem, enName), AllEditTriggers, nullptr);
}

/// Only the editor makes an item differ from the project.
void CSenderTree::TakeName(QTreeWidgetItem* pItem, int nColumn)
{
    if (pItem->parent() != nullptr || nColumn != enName)
        return;
    const int nSender = indexOfTopLevelItem(pItem);
    const SSimulatedSender* pSender = CSimulator::Instance().Project().FindSender(nSender);
    if (pSender == nullptr || pSender->nId != SenderId(pItem) || pItem->text(enName) == pSender->strName)
        return;
    const QString strName = pItem->text(enName).trimmed();
    if (strName.isEmpty() || strName == pSender->strName)
        ShowSender(pItem, *pSender);
    else
        Q_EMIT Renamed(nSender, strName);
}

QTreeWidgetItem* CSenderTree::Find(const SSelection& selection) const
{
    QTreeWidgetItem* pSender = topLevelItem(selection.nSender);
    if (pSender == nullptr || !selection.HasInput())
        return pSender;
    for (int i = 0; i < pSender->childCount(); ++i)
        if (pSender->child(i)->data(enName, enInterfaceRole).toInt() == selection.nInterfaceId)
            return pSender->child(i);
    return pSender;
}

void CSenderTree::Select(const SSelection& selection)
{
    QTreeWidgetItem* pItem = Find(selection);
    setCurrentItem(pItem == nullptr ? topLevelItem(0) : pItem, enName,
                   QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void CSenderTree::Retranslate()
{
    setAccessibleName(tr("发送器和输入"));
    setHeaderLabels({tr("发送器"), tr("类型或接口"), tr("状态")});
    for (int i = 0; i < topLevelItemCount(); ++i)
        ShowSender(topLevelItem(i), Senders()[std::size_t(i)]);
    FitAllColumns();
}

void CSenderTree::Rebuild()
{
    const QSignalBlocker blocker(this);
    clear();
    InsertMissing();
    FitAllColumns();
}

void CSenderTree::Take(const SProjectChange& change)
{
    if (change.bSenderList) {
        TakeList();
        Q_EMIT SelectionMoved(Selection());
    }
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (!change.setSenderIds.contains(SenderId(topLevelItem(i))))
            continue;
        ShowSender(topLevelItem(i), Senders()[std::size_t(i)]);
        FitColumns(topLevelItem(i));
    }
}

void CSenderTree::TakeList()
{
    const QSignalBlocker blocker(this);
    QSet<int> setIds;
    for (const SSimulatedSender& sender : Senders())
        setIds.insert(sender.nId);
    const int nSelected = Selection().nSender;
    const bool bSelectedStays = nSelected >= 0 && setIds.contains(SenderId(topLevelItem(nSelected)));
    for (int i = topLevelItemCount() - 1; i >= 0; --i)
        if (!setIds.contains(SenderId(topLevelItem(i))))
            delete takeTopLevelItem(i);
    InsertMissing();
    // The sender after a removed one takes over its index, so the selection moves to it.
    if (!bSelectedStays)
        Select({std::min(nSelected, topLevelItemCount() - 1), -1});
}

void CSenderTree::InsertMissing()
{
    QList<QTreeWidgetItem*> listNew;
    int nRow = 0;
    const auto InsertNew = [&] {
        insertTopLevelItems(nRow, listNew);
        for (QTreeWidgetItem* pItem : qAsConst(listNew))
            pItem->setExpanded(true);
        nRow += int(listNew.size());
        listNew.clear();
    };
    for (const SSimulatedSender& sender : Senders()) {
        if (nRow >= topLevelItemCount() || SenderId(topLevelItem(nRow)) != sender.nId) {
            listNew.append(NewSender(sender));
            continue;
        }
        InsertNew();
        ++nRow;
    }
    InsertNew();
}

void CSenderTree::FitAllColumns()
{
    for (int nColumn = 0; nColumn < enState; ++nColumn)
        resizeColumnToContents(nColumn);
}

/// Columns grow with their contents and otherwise keep the width that the operator set.
void CSenderTree::FitColumns(const QTreeWidgetItem* pSender)
{
    const auto Fit = [this](const QModelIndex& index, int nIndentation) {
        const int nWidth = sizeHintForIndex(index).width() + nIndentation;
        if (nWidth > columnWidth(index.column()))
            setColumnWidth(index.column(), nWidth);
    };
    const QModelIndex indexSender = indexFromItem(pSender);
    for (int nColumn = 0; nColumn < enState; ++nColumn) {
        const int nStep = nColumn == enName ? indentation() : 0;
        Fit(indexSender.siblingAtColumn(nColumn), nStep);
        for (int i = 0; i < pSender->childCount(); ++i)
            Fit(model()->index(i, nColumn, indexSender), 2 * nStep);
    }
}
