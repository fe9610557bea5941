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

Q_SIGNALS:
    void Loaded();

private:
    SProjectColour Present() const;
    bool IsAsLoaded() const;

    CChartView& m_view;
    ColourGroups::Groups m_groupsLoaded;
    QPolygonF m_regionLoaded;
    bool m_bRegionOnLoaded = false;
    bool m_bInProject = false; ///< the project held them when they were loaded
    bool m_bLoading = false;
};

#endif // WORKBENCH_COLOUR_PROJECTCOLOURS_H
