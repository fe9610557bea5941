#ifndef SENDERMODULEDIALOG_CHART_CHARTMAPPING_H
#define SENDERMODULEDIALOG_CHART_CHARTMAPPING_H

#include "host/CommonClass/PointEx.h"

#include <QPointF>

#include <algorithm>

/// How far the chart's x axis reaches, in units of chromaticity.
inline constexpr double c_dChartAxisSpanX = 0.8;
/// How far the chart's y axis reaches, in units of chromaticity.
inline constexpr double c_dChartAxisSpanY = 0.9;

/// The chart's mapping between chromaticities and widget pixels, both directions. The chart's y axis points
/// up and the widget's down; x runs from 0 to 0.8 and y from 0 to 0.9. Everything that is painted over the
/// bitmap, hit or dragged goes through it, in double precision from the chart's single-precision scale and
/// margins. Everything is inline, so a host may use what `CChromaticityDlgWnd::Mapping` returns.
class CChartMapping
{
public:
    /// @param nHeight height of the chart in pixels
    /// @param fMarginX, fMarginY left and bottom margin in pixels
    /// @param fScale pixels per unit of chromaticity
    constexpr CChartMapping(int nHeight, float fMarginX, float fMarginY, float fScale)
        : m_nHeight(nHeight)
        , m_fMarginX(fMarginX)
        , m_fMarginY(fMarginY)
        , m_fScale(fScale)
    {}

    /// The mapping of a chart of this size: a thirtieth and 10 pixels of margin, and the largest scale that
    /// shows both axes whole.
    inline static CChartMapping ForSize(int nWidth, int nHeight);

    /// The widget pixel of a chromaticity.
    inline QPointF ToPixel(QPointF ptChromaticity) const;
    /// The same for a group's point, widened to double first.
    inline QPointF ToPixel(CPointEx<float> ptChromaticity) const;

    /// The chromaticity of a widget pixel: the inverse of `ToPixel` up to a rounding. Pixels outside the axes
    /// give values outside them, also negative ones. Not finite for a scale of 0.
    inline QPointF ToChromaticity(QPointF ptPixel) const;

    /// Height in pixels at which the chromaticity y is 0.
    double Baseline() const { return double(m_nHeight) - double(m_fMarginY); }

    /// Radius in pixels of a dot that may be moved and is not held, and of the box that catches it.
    float DotRadius() const { return m_fScale / c_fDotDivisor; }

    /// Height of the chart in pixels.
    int Height() const { return m_nHeight; }
    /// Left margin in pixels: where the chromaticity x is 0.
    float MarginX() const { return m_fMarginX; }
    /// Bottom margin in pixels, from the lower side of the chart.
    float MarginY() const { return m_fMarginY; }
    /// Pixels per unit of chromaticity, the same along both axes.
    float Scale() const { return m_fScale; }

    /// The same mapping, to the last bit of every result.
    friend constexpr bool operator==(const CChartMapping& first, const CChartMapping& second)
    {
        return first.m_nHeight == second.m_nHeight && first.m_fMarginX == second.m_fMarginX &&
               first.m_fMarginY == second.m_fMarginY && first.m_fScale == second.m_fScale;
    }

private:
    /// Margins: a part of the side, and pixels on top of it so that a small chart has room for its labels.
    static constexpr float c_fMarginDivisor = 30.0F;
    static constexpr float c_fMarginPixels = 10.0F;
    /// A dot's radius is the scale over this.
    static constexpr float c_fDotDivisor = 100.0F;

    static float Margin(int nSide) { return float(nSide) / c_fMarginDivisor + c_fMarginPixels; }
    static float ScaleOfSide(int nSide, float fMargin, float fSpan)
    {
        return (float(nSide) - 2.0F * fMargin) / fSpan;
    }

    int m_nHeight;
    float m_fMarginX;
    float m_fMarginY;
    float m_fScale;
};

CChartMapping CChartMapping::ForSize(int nWidth, int nHeight)
{
    const float fMarginX = Margin(nWidth);
    const float fMarginY = Margin(nHeight);
    const float fScale = std::min(ScaleOfSide(nWidth, fMarginX, float(c_dChartAxisSpanX)),
                                  ScaleOfSide(nHeight, fMarginY, float(c_dChartAxisSpanY)));
    return {nHeight, fMarginX, fMarginY, fScale};
}

QPointF CChartMapping::ToPixel(QPointF ptChromaticity) const
{
    return {double(m_fScale) * ptChromaticity.x() + double(m_fMarginX),
            Baseline() - double(m_fScale) * ptChromaticity.y()};
}

QPointF CChartMapping::ToPixel(CPointEx<float> ptChromaticity) const
{
    return ToPixel(QPointF(double(ptChromaticity.x), double(ptChromaticity.y)));
}

QPointF CChartMapping::ToChromaticity(QPointF ptPixel) const
{
    return {(ptPixel.x() - double(m_fMarginX)) / double(m_fScale),
            (Baseline() - ptPixel.y()) / double(m_fScale)};
}

#endif // SENDERMODULEDIALOG_CHART_CHARTMAPPING_H
