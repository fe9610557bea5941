#ifndef WORKBENCH_COLOUR_POINTREADOUT_H
#define WORKBENCH_COLOUR_POINTREADOUT_H

#include <QString>

class CChromaticityDlgWnd;

/// What the mouse is on, in one line: the chart's own tips have no room for it in every shape of the chart.
namespace PointReadout {

/// The group's point under the mouse or being dragged with its chromaticity, a white's colour temperature
/// too; else the chromaticity under the mouse, empty outside the locus.
QString Of(const CChromaticityDlgWnd& chart);

/// The same of one point; empty for a group or a point that is not there.
QString OfPoint(const CChromaticityDlgWnd& chart, int nGroup, int nPoint);

} // namespace PointReadout

#endif // WORKBENCH_COLOUR_POINTREADOUT_H
