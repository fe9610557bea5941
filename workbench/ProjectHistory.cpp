#include "workbench/ProjectHistory.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/WorkbenchPage.h"

#include <QAction>
#include <QScopedValueRollback>

#include <utility>

namespace {

constexpr int c_nMaxSteps = 200;

/// A change of the project that was already made, as the project before and after it.
class CProjectStep final : public QUndoCommand
{
public:
    CProjectStep(CProjectHistory& history, const QString& strText, QString strMerge, CProjectSnapshot before,
                 CProjectSnapshot after)
        : QUndoCommand(strText)
        , m_history(history)
        , m_strMerge(std::move(strMerge))
        , m_before(std::move(before))
        , m_after(std::move(after))
    {}

    void undo() override { m_history.Restore(m_before); }

    void redo() override
    {
        if (std::exchange(m_bMade, false))
            return;
        m_history.Restore(m_after);
    }

    int id() const override { return m_strMerge.isEmpty() ? -1 : 0; }

    bool mergeWith(const QUndoCommand* pNext) override
    {
        const auto* pStep = static_cast<const CProjectStep*>(pNext);
        if (pStep->m_strMerge != m_strMerge)
            return false;
        m_after = pStep->m_after;
        return true;
    }

private:
    CProjectHistory& m_history;
    QString m_strMerge;
    CProjectSnapshot m_before;
    CProjectSnapshot m_after;
    bool m_bMade = true; ///< the stack repeats a command when it takes it
};

} // namespace

CProjectHistory::CProjectHistory(QObject* pParent)
    : QObject(pParent)
    , m_pUndo(CreateAction(&CProjectHistory::Undo))
    , m_pRedo(CreateAction(&CProjectHistory::Redo))
    , m_before(CSimulator::Instance().Project())
    , m_present(m_before)
{
    m_steps.setUndoLimit(c_nMaxSteps);
    m_pUndo->setObjectName(QStringLiteral("undo"));
    m_pUndo->setShortcut(QKeySequence::Undo);
    m_pRedo->setObjectName(QStringLiteral("redo"));
    // Both keys that people know, whatever the desktop says.
    m_pRedo->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl+Shift+Z")), QKeySequence(QStringLiteral("Ctrl+Y"))});
    connect(&m_steps, &QUndoStack::indexChanged, this, &CProjectHistory::Retranslate);
    CProjectDocument& document = CSimulator::Instance().Document();
    connect(&document, &CProjectDocument::OnProjectReplaced, this, &CProjectHistory::StartOver);
    connect(&document, &CProjectDocument::OnProjectChanged, this, &CProjectHistory::Record);
    Retranslate();
}

CProjectHistory::~CProjectHistory()
{
    // The stack is destroyed last and would emit signals when the actions are gone.
    m_steps.disconnect(this);
}

QAction* CProjectHistory::CreateAction(void (CProjectHistory::*pTake)())
{
    auto* pAction = new QAction(this);
    connect(pAction, &QAction::triggered, this, pTake);
    return pAction;
}

void CProjectHistory::Retranslate()
{
    m_pUndo->setEnabled(m_steps.canUndo());
    m_pUndo->setText(tr("撤销(&U)：%1").arg(m_steps.undoText()));
    m_pRedo->setEnabled(m_steps.canRedo());
    m_pRedo->setText(tr("重做(&R)：%1").arg(m_steps.redoText()));
    if (!m_steps.canUndo())
        m_pUndo->setText(tr("撤销(&U)"));
    if (!m_steps.canRedo())
        m_pRedo->setText(tr("重做(&R)"));
}

void CProjectHistory::Follow(CWorkbenchPage& page)
{
    connect(&page, &CWorkbenchPage::StepBegan, this, &CProjectHistory::BeginStep);
    connect(&page, &CWorkbenchPage::StepEnded, this, &CProjectHistory::EndStep);
}

void CProjectHistory::BeginStep(const QString& strText, const QString& strMerge)
{
    if (m_nOpenSteps++ > 0)
        return;
    m_strText = strText;
    m_strMerge = strMerge.isEmpty() ? strMerge : QStringLiteral("%1 %2").arg(m_nEntry).arg(strMerge);
}

void CProjectHistory::EndStep()
{
    if (m_nOpenSteps == 1)
        CSimulator::Instance().Document().NoticeChanges();
    if (m_nOpenSteps == 0 || --m_nOpenSteps > 0)
        return;
    if (std::exchange(m_bChanged, false))
        Push();
    m_strText.clear();
    m_strMerge.clear();
}

void CProjectHistory::StartOver()
{
    m_steps.clear();
    m_present = CProjectSnapshot(CSimulator::Instance().Project());
    m_before = m_present;
    m_bChanged = false;
    m_bReplaced = true;
}

void CProjectHistory::Record(const SProjectChange& change)
{
    // Another choice of sender alone is no step.
    if (!change.ConcernsFile() || std::exchange(m_bReplaced, false))
        return;
    m_present = m_present.Next(CSimulator::Instance().Project(), change);
    if (m_bRestoring) {
        m_before = m_present;
        Q_EMIT Restored(change);
        return;
    }
    if (m_nOpenSteps > 0)
        m_bChanged = true;
    else
        Push();
}

void CProjectHistory::Push()
{
    const QString strText = m_strText.isEmpty() ? tr("更改工程") : m_strText;
    m_steps.push(new CProjectStep(*this, strText, m_strMerge, m_before, m_present));
    m_before = m_present;
}

void CProjectHistory::Restore(const CProjectSnapshot& snapshot)
{
    const QScopedValueRollback<bool> restoring(m_bRestoring, true);
    CSimulator::Instance().Document().Change(
        [&snapshot](SSimulatedProject& project) { project = snapshot.Project(); });
}

void CProjectHistory::Undo()
{
    if (m_nOpenSteps > 0 || !m_steps.canUndo())
        return;
    const QString strText = m_steps.undoText();
    Settle();
    m_steps.undo();
    Q_EMIT Reported(tr("已撤销：%1").arg(strText));
}

void CProjectHistory::Redo()
{
    if (m_nOpenSteps > 0 || !m_steps.canRedo())
        return;
    const QString strText = m_steps.redoText();
    Settle();
    m_steps.redo();
    Q_EMIT Reported(tr("已重做：%1").arg(strText));
}
