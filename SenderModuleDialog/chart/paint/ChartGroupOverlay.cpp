#include "SenderModuleDialog/chart/paint/ChartGroupOverlay.h"

#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/chart/ChromaPalette.h"
#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "SenderModuleDialog/geometry/PointPrecision.h"
#include "host/OrviControl/CustomDialog.h"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace {

using ChartOverlay::DotRadii;
using ChartOverlay::SChartFrame;
using ChartOverlay::SHeldPoint;

/// A held dot is larger, one that may not be moved smaller.
constexpr float c_fHeldFactor = 1.5F;
constexpr float c_fFixedFactor = 0.8F;
constexpr qreal c_dDotRim = 2.0;
constexpr qreal c_dWhiteDotRim = 3.0;

/// Fill of the three colour dots, by point index.
constexpr Qt::GlobalColor c_arrDotColorsRgb[] = {Qt::red, Qt::green, Qt::blue};
constexpr Qt::GlobalColor c_arrDotColorsCmy[] = {Qt::cyan, Qt::magenta, Qt::yellow};

/// The legend's font, places and lines.
constexpr float c_fLegendFontDivisor = 50.0F;
constexpr int c_nLegendHeightDivisor = 12; ///< of the widget, down to the first row
constexpr double c_dLegendIndent = 30.0;   ///< pixels, like the next four; multiplied by the text ratio
constexpr double c_dLegendTextX = 20.0;
constexpr double c_dLegendTextY = 5.0;
constexpr double c_dLegendSample = 15.0;
constexpr double c_dLegendRowGap = 10.0;
constexpr qreal c_dLegendLineWidth = 2.0;
constexpr qreal c_dLegendDash = 2.0;
constexpr int c_nRedByteMax = 255;

/// The legend's two walks: one measures, one draws. Intentional: they call the output colour
/// space by two names, which have the same length.
enum enLegendWalk
{
    enMeasureWalk,
    enDrawWalk
};
constexpr const char* c_szOutputSpace[] = {
    QT_TRANSLATE_NOOP("CCustomDialog", "输出色彩空间"),
    QT_TRANSLATE_NOOP("CCustomDialog", "输出颜色空间"),
};

constexpr int c_nNoRatio = -1;
constexpr float c_fPercent = 100.0F;

QColor ColorOf(const SChromaGroupInfo& group)
{
    return QColor(group.nColorR, group.nColorG, group.nColorB);
}

bool IsHeld(const SHeldPoint& held, int nKey)
{
    return held.nGroup >= 0 && held.nGroup == nKey;
}

/// While a point of the group is held, the other radii keep what they had: together with the factor of fixed
/// points those shrink from paint to paint until the drag ends. Intentional: operators know it.
void SetRadii(DotRadii& radii, float fRadius, const SHeldPoint& held, int nKey)
{
    if (!IsHeld(held, nKey))
        radii.fill(fRadius);
    else if (IsChromaPoint(held.nPoint))
        radii[std::size_t(held.nPoint)] = c_fHeldFactor * fRadius;
}

void ShrinkFixedPoints(DotRadii& radii, const SChromaGroupInfo& group)
{
    for (int i = 0; i < c_nChromaPointCount; ++i) {
        if (!IsPointMovable(group, i))
            radii[std::size_t(i)] *= c_fFixedFactor;
    }
}

void TakePaletteColor(SChromaGroupInfo& group, int nPainted)
{
    const int nIndex = PaletteIndex(nPainted);
    group.nColorR = g_colorRed[nIndex];
    group.nColorG = g_colorGreen[nIndex];
    group.nColorB = g_colorBlue[nIndex];
}

void DrawTriangle(QPainter& painter, QPointF ptA, QPointF ptB, QPointF ptC)
{
    painter.drawLine(ptA, ptB);
    painter.drawLine(ptB, ptC);
    painter.drawLine(ptC, ptA);
}

void DrawGroupLines(QPainter& painter, const CChartMapping& mapping, const SChromaGroupInfo& group)
{
    painter.setPen(QPen(ColorOf(group), double(group.fPenWidth), Qt::PenStyle(group.nPenStyle)));
    const QPointF pt0 = mapping.ToPixel(group.ptRed);
    const QPointF pt1 = mapping.ToPixel(group.ptGreen);
    const QPointF pt2 = mapping.ToPixel(group.ptBlue);
    if (group.bRgbMode)
        DrawTriangle(painter, pt0, pt1, pt2);
    else
        DrawTriangle(painter, pt1 + pt2 - pt0, pt2 + pt0 - pt1, pt1 + pt0 - pt2);
}

/// Keeps the other side, start + size - 1, within the range of int for a place beyond all pixels. The size of
/// a dot that has shrunk is 0 or below.
int DiscStart(double dStart, int nSize)
{
    using Limits = std::numeric_limits<int>;
    const int nFirst = nSize > 0 ? Limits::min() : Limits::min() + 1 - nSize;
    const int nLast = nSize > 0 ? Limits::max() - nSize : Limits::max();
    return std::clamp(SaturateTo<int>(dStart), nFirst, nLast);
}

void DrawDisc(QPainter& painter, QPointF ptCorner, int nSize)
{
    painter.drawEllipse(QRect(DiscStart(ptCorner.x(), nSize), DiscStart(ptCorner.y(), nSize), nSize, nSize));
}

void DrawColourDot(QPainter& painter, QPointF pt, float fRadius)
{
    const double dRadius = double(fRadius);
    DrawDisc(painter, pt - QPointF(dRadius, dRadius), SaturateTo<int>(2.0F * fRadius));
}

void DrawColourDots(QPainter& painter, const SChartFrame& frame, const SChromaGroupInfo& group,
                    const DotRadii& radii)
{
    const QPen penMovable(Qt::white, c_dDotRim);
    const QPen penFixed(Qt::lightGray, c_dDotRim);
    const Qt::GlobalColor* const pColors = group.bRgbMode ? c_arrDotColorsRgb : c_arrDotColorsCmy;
    for (int i = enRedPoint; i <= enBluePoint; ++i) {
        const SChromaPointFields& fields = c_arrChromaPointFields[std::size_t(i)];
        if (!(group.*fields.pShowDot))
            continue;
        painter.setPen(group.*fields.pMove ? penMovable : penFixed);
        painter.setBrush(QBrush(pColors[i]));
        DrawColourDot(painter, frame.mapping.ToPixel(group.*fields.pPoint), radii[std::size_t(i)]);
    }
}

/// A disc in single precision, by its corner's offset and its size.
void DrawWhiteDisc(QPainter& painter, CPointEx<float> pt, float fOffset, float fSize)
{
    DrawDisc(painter, QPointF(double(pt.x - fOffset), double(pt.y - fOffset)), SaturateTo<int>(fSize));
}

/// A disc in the group's colour with a white one in it. Its rim is white whether or not the point may
/// be moved.
void DrawWhiteDot(QPainter& painter, const SChartFrame& frame, const SChromaGroupInfo& group, float fRadius)
{
    const QPointF ptPixel = frame.mapping.ToPixel(group.ptWhite);
    const CPointEx<float> pt = Narrowed(ptPixel);
    painter.setPen(QPen(Qt::white, c_dWhiteDotRim));
    painter.setBrush(ColorOf(group));
    DrawWhiteDisc(painter, pt, fRadius + 1.0F, 2.0F * (fRadius + 1.0F));
    painter.setPen(Qt::white);
    painter.setBrush(Qt::white);
    DrawWhiteDisc(painter, pt, (fRadius - 1.0F) / 2.0F, fRadius - 1.0F);
}

std::vector<CPointEx<float>> StoredTriangle(const SChromaGroupInfo& group)
{
    return {group.ptRed, group.ptGreen, group.ptBlue};
}

QString OutputSpaceText(ChromaGroups& mapGroups, enLegendWalk walk)
{
    QString strName = CCustomDialog::tr(c_szOutputSpace[walk]);
    const int nRatio = ChartOverlay::CalcRatio(mapGroups);
    if (nRatio < 0)
        return strName;
    return QStringLiteral("%1, %2% %3").arg(strName).arg(nRatio).arg(CCustomDialog::tr("被覆盖"));
}

QString NoteText(ChromaGroups& mapGroups, int nKey, const SChromaGroupInfo& group, enLegendWalk walk)
{
    if (nKey == enScreenColorSpace)
        return CCustomDialog::tr("屏幕颜色空间（校正后）");
    return nKey == enOutputColorSpace ? OutputSpaceText(mapGroups, walk) : group.strName;
}

/// Calls an action with the text of each group that has a note. Asking for the coverage may put an empty
/// entry into the map behind the group; the walk then meets it.
template <class TAction>
void ForEachNote(ChromaGroups& mapGroups, enLegendWalk walk, SSourcePlace place, TAction action)
{
    for (auto it = mapGroups.begin(); it != mapGroups.end(); ++it) {
        const SChromaGroupInfo& group = Deref(it.value(), "it.value() != nullptr", place);
        if (group.bShowNote)
            action(group, NoteText(mapGroups, it.key(), group, walk));
    }
}

int WidestNote(ChromaGroups& mapGroups, const QFont& font, SSourcePlace place)
{
    const QFontMetrics metrics(font);
    int nWidest = 0;
    ForEachNote(mapGroups, enMeasureWalk, place, [&](const SChromaGroupInfo&, const QString& strText) {
        nWidest = std::max(nWidest, metrics.boundingRect(strText).width());
    });
    return nWidest;
}

/// Solid for a red byte of 0 or 255, else dashed. Intentional: the red byte alone decides.
QPen SamplePen(const SChromaGroupInfo& group)
{
    QPen pen(ColorOf(group), c_dLegendLineWidth);
    if (group.nColorR != 0 && group.nColorR != c_nRedByteMax) {
        pen.setStyle(Qt::DashLine);
        pen.setDashPattern({c_dLegendDash, c_dLegendDash});
    }
    return pen;
}

} // namespace

namespace ChartOverlay {

void DrawGroups(QPainter& painter, const SChartFrame& frame, const ChromaGroups& mapGroups,
                const SHeldPoint& held, DotRadii& radii)
{
    int nPainted = 0;
    for (auto it = mapGroups.constBegin(); it != mapGroups.constEnd() && it.value() != nullptr; ++it) {
        SChromaGroupInfo& group = *it.value();
        SetRadii(radii, frame.mapping.DotRadius(), held, it.key());
        if (!group.bVisible)
            continue;
        ShrinkFixedPoints(radii, group);
        if (!group.bOwnColor)
            TakePaletteColor(group, nPainted);
        DrawGroupLines(painter, frame.mapping, group);
        DrawColourDots(painter, frame, group, radii);
        if (group.bShowWhiteDot)
            DrawWhiteDot(painter, frame, group, radii[enWhitePoint]);
        ++nPainted;
    }
}

int CalcRatio(ChromaGroups& mapGroups)
{
    // The index operator leaves an empty entry for a missing key: a host adds both groups or neither.
    const SChromaGroupInfo* const pScreen = mapGroups[enScreenColorSpace];
    const SChromaGroupInfo* const pOutput = mapGroups[enOutputColorSpace];
    if (pScreen == nullptr || pOutput == nullptr || !pScreen->bVisible || !pOutput->bVisible)
        return c_nNoRatio;
    std::vector<CPointEx<float>> vecScreen = StoredTriangle(*pScreen);
    std::vector<CPointEx<float>> vecOutput = StoredTriangle(*pOutput);
    // An output space without area leaves the ratio unwritten.
    float fRatio = 0.0F;
    CCalcChromaRatio().CalcChromaRatio(vecScreen, vecOutput, fRatio);
    return SaturateTo<int>(std::round(fRatio * c_fPercent));
}

void DrawLegend(QPainter& painter, const SChartFrame& frame, ChromaGroups& mapGroups, float fTextRatio,
                int nWidgetHeight, SSourcePlace place)
{
    const int nFontSize = SaturateTo<int>(frame.mapping.Scale() / c_fLegendFontDivisor);
    const QFont font(frame.strFontFamily, nFontSize, ChartOverlay::c_nFontWeight, false);
    painter.setFont(font);

    const double dRatio = double(fTextRatio);
    const int nWidest = WidestNote(mapGroups, font, place);
    const double dX = c_dChartAxisSpanX * double(frame.mapping.Scale()) + double(frame.mapping.MarginX()) -
                      nWidest - c_dLegendIndent * dRatio;
    const int nFirstRow = (nWidgetHeight - 1) / c_nLegendHeightDivisor;
    double dY = nFirstRow;
    ForEachNote(mapGroups, enDrawWalk, place, [&](const SChromaGroupInfo& group, const QString& strText) {
        if (strText.isEmpty())
            return;
        painter.setPen(Qt::white);
        const QPointF ptText(dX + c_dLegendTextX * dRatio, dY + c_dLegendTextY * dRatio);
        painter.drawText(ptText, strText);
        painter.setPen(SamplePen(group));
        const int nY = SaturateTo<int>(dY);
        painter.drawLine(SaturateTo<int>(dX - c_dLegendSample * dRatio), nY,
                         SaturateTo<int>(dX + c_dLegendSample * dRatio), nY);
        dY += nFontSize + c_dLegendRowGap * dRatio;
    });
}

} // namespace ChartOverlay
