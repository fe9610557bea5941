#include "SenderModuleDialog/chart/paint/CctCurve.h"

#include "SenderModuleDialog/colour/CCT2ColorCoord.h"

#include <cmath>

namespace {

/// The part of the daylight locus that the curve shows, kelvin.
constexpr int c_nFirstTemperature = 4000;
constexpr int c_nLastTemperature = 15000;
constexpr int c_nTemperatureStep = 10;

/// Length of a tick, pixels.
constexpr float c_fTickLength = 5.0F;

QPointF ChromaticityOf(const CCCT2ColorCoord& cct, int nTemperature)
{
    QPointF ptChromaticity;
    cct.CCTtoColorCoord(float(nTemperature), &ptChromaticity, false);
    return ptChromaticity;
}

/// A tick stands across the curve, towards lower x and y. Intentional: its x part is divided by the root a
/// second time, which gives the ticks their slant.
QPointF TickEnd(QPointF ptFoot, QPointF ptNext)
{
    const float fSlope = float(-(ptFoot.x() - ptNext.x()) / (ptFoot.y() - ptNext.y()));
    const float fRoot = std::sqrt(fSlope * fSlope + 1.0F);
    return {ptFoot.x() - double(c_fTickLength / fRoot / fRoot), ptFoot.y() - double(c_fTickLength / fRoot)};
}

} // namespace

CCctCurve::CCctCurve(const CCCT2ColorCoord& cct)
{
    for (int nTemperature = c_nFirstTemperature; nTemperature <= c_nLastTemperature;
         nTemperature += c_nTemperatureStep)
        m_vecChromaticities.push_back(ChromaticityOf(cct, nTemperature));
    for (std::size_t i = 0; i < c_arrTickTemperatures.size(); ++i) {
        m_tickPoints[i] = {ChromaticityOf(cct, c_arrTickTemperatures[i]),
                           ChromaticityOf(cct, c_arrTickTemperatures[i] + c_nTemperatureStep)};
    }
}

void CCctCurve::SetMapping(const CChartMapping& mapping)
{
    if (m_mapping == mapping)
        return;
    m_mapping = mapping;
    m_path = QPainterPath(mapping.ToPixel(m_vecChromaticities.front()));
    for (std::size_t i = 1; i < m_vecChromaticities.size(); ++i)
        m_path.lineTo(mapping.ToPixel(m_vecChromaticities[i]));
    for (std::size_t i = 0; i < m_ticks.size(); ++i) {
        const QPointF ptFoot = mapping.ToPixel(m_tickPoints[i].ptFoot);
        m_ticks[i] = {c_arrTickTemperatures[i], ptFoot,
                      TickEnd(ptFoot, mapping.ToPixel(m_tickPoints[i].ptNext))};
    }
}
