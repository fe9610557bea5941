#ifndef WORKBENCH_COLOUR_POINTREADOUT_H
#define WORKBENCH_COLOUR_POINTREADOUT_H

#include <QString>

class CChromaticityDlgWnd;

/// What is under the mouse, in one line: not every shape of the chart has room for its own tips.
namespace PointReadout {

/// The group's point under the mouse or being dragged with its chromaticity, a white's colour temperature
/// too; else the chromaticity under the mouse, empty outside the locus.
QString Of(const CChromaticityDlgWnd& chart);

/// The same for one point; empty for a group or a point that does not exist.
QString OfPoint(const CChromaticityDlgWnd& chart, int nGroup, int nPoint);

} // namespace PointReadout

#endif // WORKBENCH_COLOUR_POINTREADOUT_H
