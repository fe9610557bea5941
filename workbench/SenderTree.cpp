#include "workbench/SenderTree.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/ModeText.h"

#include <QHeaderView>
#include <QSignalBlocker>

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
    enSenderRole = Qt::UserRole,
    enInterfaceRole
};

SSelection SelectionOf(const QTreeWidgetItem* pItem)
{
    if (pItem == nullptr)
        return {};
    return {pItem->data(enName, enSenderRole).toInt(), pItem->data(enName, enInterfaceRole).toInt()};
}

QTreeWidgetItem* NewItem(const SSelection& selection)
{
    auto* pItem = new QTreeWidgetItem;
    pItem->setData(enName, enSenderRole, selection.nSender);
    pItem->setData(enName, enInterfaceRole, selection.nInterfaceId);
    return pItem;
}

/// What a person should know of a sender at a glance.
QString SenderState(const SSimulatedSender& sender)
{
    QStringList listStates;
    if (sender.faults.nEdidWriteResult != 0 || sender.faults.bBasicEdidFails)
        listStates.append(CSenderTree::tr("写入失败"));
    if (sender.faults.nWriteDelay > 0)
        listStates.append(CSenderTree::tr("慢"));
    return listStates.isEmpty() ? CSenderTree::tr("正常") : listStates.join(CSenderTree::tr("，"));
}

void ShowSender(QTreeWidgetItem* pItem, const SSimulatedSender& sender)
{
    pItem->setText(enName, sender.strName);
    pItem->setText(enType, QString::number(sender.capability.nType));
    pItem->setText(enState, SenderState(sender));
}

void ShowInput(QTreeWidgetItem* pItem, const SSimulatedInput& input)
{
    pItem->setText(enName, input.strName);
    pItem->setText(enType, QString::number(input.nInterfaceId));
    pItem->setText(enState, input.setting ? ModeText::Of(*input.setting) : CSenderTree::tr("没有设置"));
}

} // namespace

CSenderTree::CSenderTree(QWidget* pParent)
    : QTreeWidget(pParent)
{
    setColumnCount(enColumnCount);
    setAlternatingRowColors(true);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setStretchLastSection(true);
    Retranslate();
    connect(&CSimulator::Instance(), &CSimulator::OnProjectReplaced, this, [this] {
        Rebuild();
        Select({CSimulator::Instance().Project().nCurSender, -1});
    });
    connect(&CSimulator::Instance(), &CSimulator::OnProjectChanged, this, &CSenderTree::Refresh);
    connect(this, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* pItem) { Q_EMIT SelectionMoved(SelectionOf(pItem)); });
    Rebuild();
}

SSelection CSenderTree::Selection() const
{
    return SelectionOf(currentItem());
}

QTreeWidgetItem* CSenderTree::Find(const SSelection& selection) const
{
    QTreeWidgetItem* pSender = topLevelItem(selection.nSender);
    if (pSender == nullptr || !selection.HasInput())
        return pSender;
    for (int i = 0; i < pSender->childCount(); ++i)
        if (SelectionOf(pSender->child(i)).nInterfaceId == selection.nInterfaceId)
            return pSender->child(i);
    return pSender;
}

void CSenderTree::Select(const SSelection& selection)
{
    QTreeWidgetItem* pItem = Find(selection);
    setCurrentItem(pItem == nullptr ? topLevelItem(0) : pItem);
}

void CSenderTree::Retranslate()
{
    setHeaderLabels({tr("发送器"), tr("类型"), tr("状态")});
    Refresh();
}

void CSenderTree::Rebuild()
{
    {
        const QSignalBlocker blocker(this);
        clear();
        int nSender = 0;
        for (const SSimulatedSender& sender : CSimulator::Instance().Project().listSenders) {
            QTreeWidgetItem* pSender = NewItem({nSender, -1});
            addTopLevelItem(pSender);
            for (const SSimulatedInput& input : sender.listInputs)
                pSender->addChild(NewItem({nSender, input.nInterfaceId}));
            ++nSender;
        }
        expandAll();
    }
    Refresh();
}

bool CSenderTree::HasProjectShape() const
{
    const auto& listSenders = CSimulator::Instance().Project().listSenders;
    if (topLevelItemCount() != int(listSenders.size()))
        return false;
    for (int i = 0; i < topLevelItemCount(); ++i)
        if (topLevelItem(i)->childCount() != int(listSenders[std::size_t(i)].listInputs.size()))
            return false;
    return true;
}

void CSenderTree::Refresh()
{
    if (!HasProjectShape()) {
        const SSelection selection = Selection();
        Rebuild();
        Select(selection);
        return;
    }
    const auto& listSenders = CSimulator::Instance().Project().listSenders;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const SSimulatedSender& sender = listSenders[std::size_t(i)];
        ShowSender(topLevelItem(i), sender);
        for (int j = 0; j < topLevelItem(i)->childCount(); ++j)
            ShowInput(topLevelItem(i)->child(j), sender.listInputs[std::size_t(j)]);
    }
}
