#ifndef WORKBENCH_COLOUR_GROUPSCOMMAND_H
#define WORKBENCH_COLOUR_GROUPSCOMMAND_H

#include "workbench/colour/ColourGroups.h"

#include <QUndoCommand>

/// A change of a chart's groups that was made already: holds all of them as they were and as they became.
/// Groups are few and small, and so no change needs a command of its own kind.
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
