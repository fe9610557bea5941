#ifndef WORKBENCH_COLOUR_CHARTEXPORT_H
#define WORKBENCH_COLOUR_CHARTEXPORT_H

#include "workbench/colour/FeasibleRegion.h"
#include "workbench/colour/PictureSize.h"

#include <QImage>
#include <QString>

class CChromaticityDlgWnd;

/// Pictures of a chart with its contents, with the region and the standard's name over it, but without what
/// follows the mouse: no cross hair, no tips, no enlarged dot.
namespace ChartExport {

/// The size that a chart has on its screen.
SPictureSize ScreenSize(const CChromaticityDlgWnd& chart);

QImage Picture(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region, const SPictureSize& size);

/// Writes the picture as PNG, whole or not at all.
/// @return empty when it was written, else why not
QString SavePng(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region, const SPictureSize& size,
                const QString& strFile);

/// Writes the chart as SVG, whole or not at all. Lines and texts stay lines and texts; the coloured bitmap
/// goes in as a picture.
/// @param size pixels of the layout
/// @return empty when it was written, else why not
QString SaveSvg(const CChromaticityDlgWnd& chart, const CFeasibleRegion& region, QSize size,
                const QString& strFile);

} // namespace ChartExport

#endif // WORKBENCH_COLOUR_CHARTEXPORT_H
