#ifndef WORKBENCH_COLOUR_GROUPSCOMMAND_H
#define WORKBENCH_COLOUR_GROUPSCOMMAND_H

#include "workbench/colour/ColourGroups.h"

#include <QUndoCommand>

/// A change of a chart's groups that was already made: stores all groups before and after it. Groups are few
/// and small, so one kind of command serves every change.
class CGroupsCommand : public QUndoCommand
{
public:
    CGroupsCommand(CChromaticityDlgWnd& chart, const QString& strText, ColourGroups::Groups groupsBefore,
                   ColourGroups::Groups groupsAfter);

    void undo() override;
    void redo() override;

private:
    CChromaticityDlgWnd& m_chart;
    ColourGroups::Groups m_groupsBefore;
    ColourGroups::Groups m_groupsAfter;
};

#endif // WORKBENCH_COLOUR_GROUPSCOMMAND_H
