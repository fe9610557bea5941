#ifndef WORKBENCH_COLOUR_CHARTEXPORT_H
#define WORKBENCH_COLOUR_CHARTEXPORT_H

#include "workbench/colour/FeasibleRegion.h"

#include <QImage>
#include <QString>

class CChromaticityDlgWnd;

/// Pictures of a chart as it stands, with the region and the standard's name over it, but without what
/// follows the mouse: no cross hair, no tips, no enlarged dot.
namespace ChartExport {

/// A picture in the chart's size.
/// @param dRatio pixels of the picture for each of the chart's
QImage Picture(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region, double dRatio);

/// Writes the picture as PNG, whole or not at all.
/// @return empty when it was written, else why not
QString SavePng(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region, double dRatio,
                const QString& strFile);

/// Writes the chart as SVG, whole or not at all. Lines and texts stay lines and texts; the coloured bitmap
/// goes in as a picture.
/// @return empty when it was written, else why not
QString SaveSvg(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region, const QString& strFile);

} // namespace ChartExport

#endif // WORKBENCH_COLOUR_CHARTEXPORT_H
