#include "workbench/SenderActions.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/AddSenderDialog.h"
#include "workbench/ProjectHistory.h"
#include "workbench/SenderTree.h"

#include <QAction>
#include <QMenu>

namespace {

CProjectDocument& Document()
{
    return CSimulator::Instance().Document();
}

} // namespace

CSenderActions::CSenderActions(CSenderTree& tree, CProjectHistory& history, QObject* pParent)
    : QObject(pParent)
    , m_tree(tree)
    , m_history(history)
{
    m_pEdit = CreateAction("edit", {Qt::Key_Return, Qt::Key_Enter}, &CSenderActions::EditCurrent);
    m_pRename = CreateAction("rename", {Qt::Key_F2}, &CSenderActions::RenameCurrent);
    m_pAdd = CreateAction("add", {Qt::Key_Insert}, &CSenderActions::Add);
    m_pRemove = CreateAction("remove", {QKeySequence::Delete}, &CSenderActions::RemoveSelected);
    m_tree.setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(&m_tree, &QTreeWidget::itemDoubleClicked, this, &CSenderActions::EditCurrent);
    connect(&m_tree, &QTreeWidget::itemSelectionChanged, this, &CSenderActions::EnableActions);
    connect(&m_tree, &CSenderTree::SelectionMoved, this, &CSenderActions::EnableActions);
    connect(&m_tree, &CSenderTree::Renamed, this, &CSenderActions::Rename);
    Retranslate();
    EnableActions();
}

QAction* CSenderActions::CreateAction(const char* szName, const QList<QKeySequence>& listKeys,
                                      void (CSenderActions::*pAction)())
{
    auto* pResult = new QAction(this);
    pResult->setObjectName(QString::fromLatin1(szName));
    pResult->setShortcuts(listKeys);
    pResult->setShortcutContext(Qt::WidgetShortcut);
    connect(pResult, &QAction::triggered, this, pAction);
    m_tree.addAction(pResult);
    return pResult;
}

void CSenderActions::AddTo(QMenu* pMenu) const
{
    pMenu->addActions({m_pAdd, m_pEdit, m_pRename, m_pRemove});
}

void CSenderActions::Retranslate()
{
    m_pEdit->setText(tr("编辑(&E)..."));
    m_pRename->setText(tr("重命名(&M)"));
    m_pAdd->setText(tr("添加(&A)..."));
    m_pRemove->setText(tr("删除所选的发送器(&D)"));
}

void CSenderActions::EnableActions()
{
    const SSelection selection = m_tree.Selection();
    m_pEdit->setEnabled(selection.HasSender());
    m_pRename->setEnabled(selection.HasSender() && !selection.HasInput());
    m_pRemove->setEnabled(!m_tree.SelectedSenders().isEmpty());
}

void CSenderActions::EditCurrent()
{
    if (m_tree.Selection().HasInput())
        Q_EMIT EdidWanted();
    else
        RenameCurrent();
}

void CSenderActions::RenameCurrent()
{
    m_tree.EditCurrentName();
}

void CSenderActions::Rename(int nSender, const QString& strName)
{
    m_history.BeginStep(tr("重命名发送器"));
    Document().Change([&](SSimulatedProject& project) { project.FindSender(nSender)->strName = strName; });
    m_history.EndStep();
}

void CSenderActions::Add()
{
    CAddSenderDialog dialog(&m_tree);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const int nFirst = int(Document().Project().listSenders.size());
    m_history.BeginStep(tr("添加发送器"));
    const int nAdded = Document().AddSenders(dialog.Type(), dialog.Count());
    m_history.EndStep();
    m_tree.Select({nFirst, -1});
    Q_EMIT Reported(
        nAdded < dialog.Count()
            ? tr("已添加 %1 个发送器，共要求 %2 个：工程的编号已用完。").arg(nAdded).arg(dialog.Count())
            : tr("已添加 %1 个发送器。").arg(nAdded));
}

void CSenderActions::RemoveSelected()
{
    const QList<int> listSenders = m_tree.SelectedSenders();
    if (listSenders.isEmpty())
        return;
    m_history.BeginStep(tr("删除 %1 个发送器").arg(listSenders.size()));
    Document().RemoveSenders(listSenders);
    m_history.EndStep();
    Q_EMIT Reported(tr("已删除 %1 个发送器。").arg(listSenders.size()));
}
