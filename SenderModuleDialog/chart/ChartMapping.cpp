#include "SenderModuleDialog/chart/ChartMapping.h"

#include <algorithm>

namespace {

/// Margins: a part of the side, and pixels on top of it so that a small chart has room for its labels.
constexpr float c_fMarginDivisor = 30.0F;
constexpr float c_fMarginPixels = 10.0F;

/// How far the axes reach, in units of chromaticity.
constexpr float c_fAxisSpanX = 0.8F;
constexpr float c_fAxisSpanY = 0.9F;

float Margin(int nSide)
{
    return float(nSide) / c_fMarginDivisor + c_fMarginPixels;
}

float ScaleOfSide(int nSide, float fMargin, float fSpan)
{
    return (float(nSide) - 2.0F * fMargin) / fSpan;
}

} // namespace

CChartMapping CChartMapping::ForSize(int nWidth, int nHeight)
{
    const float fMarginX = Margin(nWidth);
    const float fMarginY = Margin(nHeight);
    const float fScale =
        std::min(ScaleOfSide(nWidth, fMarginX, c_fAxisSpanX), ScaleOfSide(nHeight, fMarginY, c_fAxisSpanY));
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
