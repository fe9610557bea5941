#ifndef SENDERMODULEDIALOG_CHART_PAINT_CHARTOVERLAY_H
#define SENDERMODULEDIALOG_CHART_PAINT_CHARTOVERLAY_H

#include "SenderModuleDialog/chart/ChartMapping.h"

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QString>

class CCCT2ColorCoord;
class CCctCurve;
class QPainter;

/// The layers that are painted over the chart's bitmap, one function each, from plain values. What a layer
/// sets on the painter stays set: a layer that needs a pen, a brush or a font sets it, and none relies on its
/// forerunner. Chart positions are widget pixels by the mapping, computed in double precision.
namespace ChartOverlay {

/// Weight of the fonts of tips, legend and standard.
inline constexpr int c_nFontWeight = 128;

/// What most layers need of the chart.
struct SChartFrame
{
    CChartMapping mapping;
    QRect rcChart;         ///< (0, 0) to (width - 1, height - 1)
    QString strFontFamily; ///< the host's font
};

/// The point that the tips and the cross show.
struct STips
{
    QPointF ptShown;        ///< chromaticity without negative coordinates
    bool bShowTemperature;  ///< adds the row of the colour temperature
    QString strTemperature; ///< what that row says
};

/// The outline of the locus.
/// @param pBoundary, nCount its vertices in widget pixels
void DrawBorder(QPainter& painter, const QPointF* pBoundary, int nCount);

/// The grid with its labels, a line for each tenth.
/// @param nGridAlpha alpha of the lines; the labels keep theirs
void DrawGrid(QPainter& painter, const SChartFrame& frame, int nGridAlpha);

/// The coordinates at the lower right.
void DrawTips(QPainter& painter, const SChartFrame& frame, const STips& tips);

/// The colour temperature as the tips show it: "6500K" close to D65, a sign for none, else the temperature.
QString TemperatureText(QPointF ptChromaticity, QPointF ptD65, const CCCT2ColorCoord& cct);

/// The cross hair through a widget pixel.
void DrawCross(QPainter& painter, const SChartFrame& frame, QPoint pt);

/// The curve of colour temperatures with its ticks and their labels.
void DrawCctCurve(QPainter& painter, const SChartFrame& frame, CCctCurve& curve);

/// The label of one tick.
/// @param pt the tick's foot on the curve, in widget pixels
void DrawCctLabel(QPainter& painter, const SChartFrame& frame, QPointF pt, int nTemperature);

/// @name The name of a group's standard in a box, and a line from the box to the group
/// @{

/// @param sizeWidget the widget's true size
QRectF StandardBox(const CChartMapping& mapping, QSize sizeWidget);
void DrawStandardLabel(QPainter& painter, const SChartFrame& frame, const QRectF& rcBox,
                       const QString& strLabel);
/// @param ptFrom in widget pixels
void DrawStandardLine(QPainter& painter, const QRectF& rcBox, QPointF ptFrom);
/// @}

} // namespace ChartOverlay

#endif // SENDERMODULEDIALOG_CHART_PAINT_CHARTOVERLAY_H
