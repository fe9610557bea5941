#ifndef WORKBENCH_COLOUR_PROJECTCOLOURS_H
#define WORKBENCH_COLOUR_PROJECTCOLOURS_H

#include "workbench/colour/ColourGroups.h"

#include <QObject>
#include <QPolygonF>

#include <optional>

class CChartView;
struct SProjectColour;

/// Keeps groups and feasible region of a chart in the project: each change goes into the project, and another
/// project brings its own. State equal to what was loaded counts as unchanged.
class CProjectColours : public QObject
{
    Q_OBJECT

public:
    explicit CProjectColours(CChartView& view, QObject* pParent = nullptr);

    /// Shows the project's groups and region, or the defaults of a chart.
    void Load();
    /// Stores the chart's groups and region in the project.
    void Store();
    /// The same as a step of its own, after a change of the region.
    void StoreRegion();

Q_SIGNALS:
    void Loaded();
    /// What changes from now until `StepEnded` is one step.
    void StepBegan(const QString& strText);
    void StepEnded();

private:
    void Show(const ColourGroups::Groups& groups, const QPolygonF& region, bool bRegionOn);
    /// Undo and redo bring back the project's colours: the chart follows.
    void FollowProject();
    SProjectColour Present() const;
    bool IsShown(const ColourGroups::Groups& groups, const QPolygonF& region, bool bRegionOn) const;

    CChartView& m_view;
    ColourGroups::Groups m_groupsLoaded;
    QPolygonF m_regionLoaded;
    bool m_bRegionOnLoaded = false;
    bool m_bInProject = false; ///< the project held them when they were loaded
    bool m_bBusy = false;      ///< the change comes from here
};

#endif // WORKBENCH_COLOUR_PROJECTCOLOURS_H
