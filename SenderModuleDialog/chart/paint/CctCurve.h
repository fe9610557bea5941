#ifndef SENDERMODULEDIALOG_CHART_PAINT_CCTCURVE_H
#define SENDERMODULEDIALOG_CHART_PAINT_CCTCURVE_H

#include "SenderModuleDialog/chart/ChartMapping.h"

#include <QPainterPath>
#include <QPointF>

#include <array>
#include <optional>
#include <vector>

class CCCT2ColorCoord;

/// The curve of colour temperatures from 4000 K to 15000 K by 10 K, in chromaticities, and as a path in
/// widget pixels. The chromaticities are found once; the path is kept until the mapping changes.
class CCctCurve
{
public:
    /// A temperature that has a tick on the curve.
    struct STick
    {
        int nTemperature; ///< kelvin
        QPointF ptFoot;   ///< on the curve, in widget pixels
        QPointF ptEnd;
    };
    static constexpr std::array<int, 3> c_arrTickTemperatures = {4000, 6500, 12000};

    explicit CCctCurve(const CCCT2ColorCoord& cct);

    /// Sets the mapping of the path and the ticks.
    void SetMapping(const CChartMapping& mapping);
    const QPainterPath& Path() const { return m_path; }
    const std::array<STick, c_arrTickTemperatures.size()>& Ticks() const { return m_ticks; }

private:
    struct STickPoints
    {
        QPointF ptFoot;
        QPointF ptNext; ///< the next temperature's point, for the direction
    };

    std::vector<QPointF> m_vecChromaticities;
    std::array<STickPoints, c_arrTickTemperatures.size()> m_tickPoints;
    std::optional<CChartMapping> m_mapping;
    QPainterPath m_path;
    std::array<STick, c_arrTickTemperatures.size()> m_ticks{};
};

#endif // SENDERMODULEDIALOG_CHART_PAINT_CCTCURVE_H
