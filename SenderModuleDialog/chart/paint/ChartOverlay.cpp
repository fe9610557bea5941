#include "SenderModuleDialog/chart/paint/ChartOverlay.h"

#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/chart/paint/CctCurve.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPen>
#include <QTextOption>

#include <cmath>

namespace {

/// Weight of the labels of the colour temperatures: below 0 stands for normal.
constexpr int c_nCctFontWeight = -1;

/// A font's point size is the scale over one of these.
constexpr float c_fTipsFontDivisor = 40.0F;
constexpr float c_fCctFontDivisor = 50.0F;
constexpr float c_fStandardFontDivisor = 30.0F;

/// Outline of the locus.
constexpr QColor c_colorBorder(200, 200, 200);
constexpr qreal c_dBorderWidth = 2.0;

/// Grid: a line for each tenth of the axes, which reach to x 0.8 and y 0.9.
constexpr int c_nHorizontalLines = 10;
constexpr int c_nVerticalLines = 9;
constexpr double c_dLinesPerUnit = 10.0;
constexpr int c_nGridFontPixels = 10;
constexpr int c_nGridLabelAlpha = 120;
constexpr int c_nWhiteByte = 255;
/// Where the labels stand beside their lines: parts of the scale, and pixels.
constexpr double c_dLabelLeftDivisor = 30.0;
constexpr double c_dLabelShiftDivisor = 50.0;
constexpr double c_dLabelDrop = 10.0;

/// Tips: the lower right corner of the chart, in quarters and sixths of it.
constexpr int c_nTipsQuarters = 3;
constexpr int c_nTipsSixths = 5;
constexpr double c_dTipsWidthDivisor = 5.0;
constexpr double c_dTipsHeight = 1.5;             ///< in font sizes
constexpr int c_nTipsRowPitch = 2;                ///< in font sizes
constexpr double c_dTipsTemperatureWidth = 0.125; ///< in scales
constexpr int c_nTipsDecimals = 4;
/// The rows are lower than a line of text: cut at their boxes they would lose its lowest pixels.
constexpr int c_nTipsRowFlags = Qt::AlignCenter | Qt::TextDontClip;

/// Colour temperature in the tips: close to D65 by this part of each coordinate it is 6500 K without a
/// search. The part is the single-precision number.
constexpr double c_dNearD65 = double(0.025F);
/// The temperature is filled up to this width with this character, in front of the digits. Intentional:
/// hosts rely on the text.
constexpr int c_nTemperatureWidth = 102;
constexpr QChar c_charTemperatureFill(0x02);

/// Cross hair.
constexpr QColor c_colorCross(255, 240, 240, 240);

/// Box of a tick's label, in font sizes.
constexpr double c_dCctLabelWidth = 4.0;
constexpr double c_dCctLabelHeight = 2.0;

/// Box of the standard's name: thirds and ninths of the widget.
constexpr int c_nStandardThirds = 3;
constexpr int c_nStandardNinths = 9;
constexpr double c_dStandardWidthDivisor = 5.0;
constexpr qreal c_dStandardLineWidth = 1.5;

int FontSize(const CChartMapping& mapping, float fDivisor)
{
    return SaturateTo<int>(mapping.Scale() / fDivisor);
}

QFont ChartFont(const QString& strFamily, int nPointSize)
{
    return QFont(strFamily, nPointSize, ChartOverlay::c_nFontWeight, false);
}

void DrawGridLine(QPainter& painter, const QPen& penLine, const QLineF& line)
{
    painter.setPen(penLine);
    painter.drawLine(line);
}

void DrawGridLabel(QPainter& painter, const QPen& penLabel, QPointF pt, int nTenth)
{
    painter.setPen(penLabel);
    painter.drawText(pt, QStringLiteral(".%1").arg(nTenth));
}

QString CoordinateText(const QString& strForm, double dCoordinate)
{
    return strForm.arg(dCoordinate, 0, 'f', c_nTipsDecimals);
}

bool IsNearD65(double dCoordinate, double dD65)
{
    return std::abs(dCoordinate - dD65) < c_dNearD65 * dD65;
}

} // namespace

namespace ChartOverlay {

void DrawBorder(QPainter& painter, const QPointF* pBoundary, int nCount)
{
    painter.setPen(QPen(c_colorBorder, c_dBorderWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(pBoundary, nCount, Qt::OddEvenFill);
}

void DrawGrid(QPainter& painter, const SChartFrame& frame, int nGridAlpha)
{
    QFont font = painter.font();
    font.setPixelSize(c_nGridFontPixels);
    font.setFamily(frame.strFontFamily);
    painter.setFont(font);
    // An alpha out of range makes the colour invalid, and the lines with it.
    const QPen penLine(QColor(c_nWhiteByte, c_nWhiteByte, c_nWhiteByte, nGridAlpha), 1.0);
    const QPen penLabel(QColor(c_nWhiteByte, c_nWhiteByte, c_nWhiteByte, c_nGridLabelAlpha), 1.0);

    const double dScale = double(frame.mapping.Scale());
    const double dLeft = double(frame.mapping.MarginX());
    const double dBaseline = frame.mapping.Baseline();
    for (int i = 0; i < c_nHorizontalLines; ++i) {
        const double dY = dBaseline - dScale * i / c_dLinesPerUnit;
        DrawGridLine(painter, penLine, QLineF(dLeft, dY, dLeft + c_dChartAxisSpanX * dScale, dY));
        const QPointF ptLabel(dLeft - dScale / c_dLabelLeftDivisor,
                              dY - dScale / c_dLabelShiftDivisor + c_dLabelDrop);
        DrawGridLabel(painter, penLabel, ptLabel, i);
    }
    const double dLabelY = double(frame.mapping.Height()) - 0.5 * double(frame.mapping.MarginY());
    for (int i = 0; i < c_nVerticalLines; ++i) {
        const double dX = dLeft + dScale * i / c_dLinesPerUnit;
        DrawGridLine(painter, penLine, QLineF(dX, dBaseline, dX, dBaseline - c_dChartAxisSpanY * dScale));
        DrawGridLabel(painter, penLabel, QPointF(dX - dScale / c_dLabelShiftDivisor, dLabelY), i);
    }
}

void DrawTips(QPainter& painter, const SChartFrame& frame, const STips& tips)
{
    const int nFontSize = FontSize(frame.mapping, c_fTipsFontDivisor);
    painter.setFont(ChartFont(frame.strFontFamily, nFontSize));
    painter.setPen(QPen(Qt::yellow, 1.0));

    const double dScale = double(frame.mapping.Scale());
    const int nLeft = frame.rcChart.right() / (c_nTipsQuarters + 1) * c_nTipsQuarters;
    const int nTop = frame.rcChart.bottom() / (c_nTipsSixths + 1) * c_nTipsSixths;
    QRectF rcRow(nLeft, nTop, dScale / c_dTipsWidthDivisor, c_dTipsHeight * nFontSize);
    painter.drawText(rcRow, c_nTipsRowFlags, CoordinateText(QStringLiteral("x : %1"), tips.ptShown.x()));
    rcRow.translate(0.0, c_nTipsRowPitch * nFontSize);
    painter.drawText(rcRow, c_nTipsRowFlags, CoordinateText(QStringLiteral("y : %1"), tips.ptShown.y()));
    if (!tips.bShowTemperature)
        return;
    rcRow.translate(0.0, c_nTipsRowPitch * nFontSize);
    painter.drawText(rcRow, c_nTipsRowFlags, QStringLiteral("CCT:"));
    const QRectF rcValue(rcRow.right() + nFontSize, rcRow.top(), c_dTipsTemperatureWidth * dScale,
                         rcRow.height());
    painter.drawText(rcValue, tips.strTemperature, QTextOption());
}

QString TemperatureText(QPointF ptChromaticity, QPointF ptD65, const CCCT2ColorCoord& cct)
{
    if (IsNearD65(ptChromaticity.x(), ptD65.x()) && IsNearD65(ptChromaticity.y(), ptD65.y()))
        return QStringLiteral("6500K\n");
    float fTemperature = 0.0F;
    if (!cct.TriangAlgCalcRelativeCCT(ptChromaticity, &fTemperature, false))
        return QStringLiteral("- -!");
    return QStringLiteral("%1K").arg(QString::number(double(fTemperature)), c_nTemperatureWidth,
                                     c_charTemperatureFill);
}

void DrawCross(QPainter& painter, const SChartFrame& frame, QPoint pt)
{
    painter.setPen(QPen(c_colorCross, 1.0));
    painter.drawLine(QLine(0, pt.y(), frame.rcChart.width(), pt.y()));
    painter.drawLine(QLine(pt.x(), 0, pt.x(), frame.rcChart.height()));
}

void DrawCctCurve(QPainter& painter, const SChartFrame& frame, CCctCurve& curve)
{
    curve.SetMapping(frame.mapping);
    const QPen penCurve(Qt::black, 1.0);
    painter.setPen(penCurve);
    painter.drawPath(curve.Path());
    for (const CCctCurve::STick& tick : curve.Ticks()) {
        painter.setPen(penCurve);
        painter.drawLine(QLineF(tick.ptFoot, tick.ptEnd));
        DrawCctLabel(painter, frame, tick.ptFoot, tick.nTemperature);
    }
}

void DrawCctLabel(QPainter& painter, const SChartFrame& frame, QPointF pt, int nTemperature)
{
    const int nFontSize = FontSize(frame.mapping, c_fCctFontDivisor);
    painter.setFont(QFont(frame.strFontFamily, nFontSize, c_nCctFontWeight, false));
    painter.setPen(Qt::black);
    const int nIndent = nFontSize / 2;
    const QRectF rcLabel(pt.x() + nIndent, pt.y(), c_dCctLabelWidth * nFontSize,
                         c_dCctLabelHeight * nFontSize);
    painter.drawText(rcLabel, QString::number(nTemperature), QTextOption());
}

QRectF StandardBox(const CChartMapping& mapping, QSize sizeWidget)
{
    const int nFontSize = FontSize(mapping, c_fStandardFontDivisor);
    const int nLeft = (sizeWidget.width() - 1) / c_nStandardThirds * 2;
    const int nTop = (sizeWidget.height() - 1) / c_nStandardNinths * 2;
    return {double(nLeft), nTop + 0.5 * nFontSize, double(mapping.Scale()) / c_dStandardWidthDivisor,
            double(nFontSize)};
}

void DrawStandardLabel(QPainter& painter, const SChartFrame& frame, const QRectF& rcBox,
                       const QString& strLabel)
{
    painter.setFont(ChartFont(frame.strFontFamily, FontSize(frame.mapping, c_fStandardFontDivisor)));
    painter.setPen(Qt::red);
    // The box is lower than a line of text: cut at it, the name would lose two thirds of its height.
    painter.drawText(rcBox, Qt::TextDontClip, strLabel);
}

void DrawStandardLine(QPainter& painter, const QRectF& rcBox, QPointF ptFrom)
{
    painter.setPen(QPen(Qt::blue, c_dStandardLineWidth));
    painter.drawLine(ptFrom, QPointF(rcBox.left(), rcBox.center().y()));
}

} // namespace ChartOverlay
