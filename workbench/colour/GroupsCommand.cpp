#include "workbench/colour/GroupsCommand.h"

#include <utility>

CGroupsCommand::CGroupsCommand(CChromaticityDlgWnd& chart, const QString& strText,
                               ColourGroups::Groups groupsBefore, ColourGroups::Groups groupsAfter)
    : QUndoCommand(strText)
    , m_chart(chart)
    , m_groupsBefore(std::move(groupsBefore))
    , m_groupsAfter(std::move(groupsAfter))
{}

void CGroupsCommand::undo()
{
    ColourGroups::Restore(m_chart, m_groupsBefore);
}

void CGroupsCommand::redo()
{
    ColourGroups::Restore(m_chart, m_groupsAfter);
}
