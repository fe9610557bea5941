#ifndef SENDERMODULEDIALOG_CHART_PAINT_CHARTGROUPOVERLAY_H
#define SENDERMODULEDIALOG_CHART_PAINT_CHARTGROUPOVERLAY_H

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/chart/ChromaGroupInfo.h"
#include "SenderModuleDialog/chart/paint/ChartOverlay.h"

#include <QMap>

#include <array>

class QPainter;

/// The layers that show the groups: their triangles with dots, and the legend.
namespace ChartOverlay {

/// The dots' radii in pixels, by point index. They are carried from group to group and from paint to paint.
using DotRadii = std::array<float, c_nChromaPointCount>;

/// The point that is held in a drag.
struct SHeldPoint
{
    int nGroup = -1; ///< -1 for none
    int nPoint = enNoPoint;
};

/// The groups' triangles and dots, in key order up to the first empty entry. A group without a colour of its
/// own takes one from the palette, which is written into it.
void DrawGroups(QPainter& painter, const SChartFrame& frame, const ChromaGroups& mapGroups,
                const SHeldPoint& held, DotRadii& radii);

/// How much of the output colour space the screen's covers, in whole percent; -1 unless both groups are there
/// and visible. Asking leaves an empty entry for a missing key.
int CalcRatio(ChromaGroups& mapGroups);

/// The legend: a row for each group with a note, visible or not. Every entry must hold a group.
/// @param fTextRatio factor of the spacing
/// @param nWidgetHeight the widget's true height in pixels
/// @param place what an empty entry is a fault of
void DrawLegend(QPainter& painter, const SChartFrame& frame, ChromaGroups& mapGroups, float fTextRatio,
                int nWidgetHeight, SSourcePlace place = SSourcePlace::Here());

} // namespace ChartOverlay

#endif // SENDERMODULEDIALOG_CHART_PAINT_CHARTGROUPOVERLAY_H
