#include "workbench/colour/ChartEditor.h"

CChartEditor::CChartEditor(CChromaticityDlgWnd& chart, QObject* pParent)
    : QObject(pParent)
    , m_chart(chart)
{}

bool CChartEditor::Change(const QString& strText, const std::function<bool()>& funcChange)
{
    const ColourGroups::Groups groupsBefore = ColourGroups::Take(m_chart);
    if (!funcChange()) {
        ColourGroups::Restore(m_chart, groupsBefore);
        return false;
    }
    Q_EMIT StepBegan(strText);
    AnnounceChange(groupsBefore);
    Q_EMIT StepEnded();
    return true;
}

void CChartEditor::AnnounceChange(const ColourGroups::Groups& groupsBefore)
{
    if (!ColourGroups::AreSame(groupsBefore, ColourGroups::Take(m_chart)))
        Q_EMIT Changed();
}

void CChartEditor::BeginDrag()
{
    // A drag whose end was never reported, because its window closed, ends here.
    EndDrag();
    m_groupsBeforeDrag = ColourGroups::Take(m_chart);
    Q_EMIT StepBegan(tr("拖动"));
}

void CChartEditor::EndDrag()
{
    if (!m_groupsBeforeDrag)
        return;
    const ColourGroups::Groups groupsBefore = *m_groupsBeforeDrag;
    m_groupsBeforeDrag.reset();
    AnnounceChange(groupsBefore);
    Q_EMIT StepEnded();
}
