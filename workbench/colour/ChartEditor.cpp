#include "workbench/colour/ChartEditor.h"

#include "workbench/colour/GroupsCommand.h"

namespace {

constexpr int c_nMaxSteps = 200;

} // namespace

CChartEditor::CChartEditor(CChromaticityDlgWnd& chart, QObject* pParent)
    : QObject(pParent)
    , m_chart(chart)
{
    m_steps.setUndoLimit(c_nMaxSteps);
    connect(&m_steps, &QUndoStack::indexChanged, this, &CChartEditor::Changed);
}

CChartEditor::~CChartEditor()
{
    // The undo stack is destroyed last and would emit signals when the chart may be gone.
    m_steps.disconnect(this);
}

bool CChartEditor::Change(const QString& strText, const std::function<bool()>& funcChange)
{
    const ColourGroups::Groups groupsBefore = ColourGroups::Take(m_chart);
    if (!funcChange()) {
        ColourGroups::Restore(m_chart, groupsBefore);
        return false;
    }
    Push(strText, groupsBefore);
    return true;
}

void CChartEditor::Push(const QString& strText, const ColourGroups::Groups& groupsBefore)
{
    const ColourGroups::Groups groupsAfter = ColourGroups::Take(m_chart);
    if (!ColourGroups::AreSame(groupsBefore, groupsAfter))
        m_steps.push(new CGroupsCommand(m_chart, strText, groupsBefore, groupsAfter));
}

void CChartEditor::BeginDrag()
{
    // A drag whose end was never reported, because its window closed, ends here.
    EndDrag();
    m_groupsBeforeDrag = ColourGroups::Take(m_chart);
}

void CChartEditor::EndDrag()
{
    if (!m_groupsBeforeDrag)
        return;
    const ColourGroups::Groups groupsBefore = *m_groupsBeforeDrag;
    m_groupsBeforeDrag.reset();
    Push(tr("拖动"), groupsBefore);
}

void CChartEditor::Undo()
{
    if (!IsDragging())
        m_steps.undo();
}

void CChartEditor::Redo()
{
    if (!IsDragging())
        m_steps.redo();
}
