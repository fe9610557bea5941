#include "SenderModuleDialog/chart/ChartHitTest.h"

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/Saturate.h"
#include "SenderModuleDialog/chart/ChartGroupOverlay.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"

#include <cmath>

namespace {

// The box that catches a point, edges included.
struct SHitBox
{
    int nLeft;
    int nTop;
    int nRight;
    int nBottom;

    bool Contains(QPoint pos) const
    {
        return pos.x() >= nLeft && pos.x() <= nRight && pos.y() >= nTop && pos.y() <= nBottom;
    }
};

// As large as a dot that is not held, in single precision.
SHitBox BoxOf(CPointEx<float> pt, const CChartMapping& mapping)
{
    const float fRadius = ChartOverlay::DotRadius(mapping);
    const QPointF ptPixel = mapping.ToPixel(pt);
    const float fLeft = std::round(float(ptPixel.x()) - fRadius);
    const float fTop = std::round(float(ptPixel.y()) - fRadius);
    return {SaturateTo<int>(fLeft), SaturateTo<int>(fTop), SaturateTo<int>(fLeft + 2.0F * fRadius),
            SaturateTo<int>(fTop + 2.0F * fRadius)};
}

} // namespace

SChartHit HitTestChart(const QMap<int, SChromaGroupInfo*>& mapGroups, const CChartMapping& mapping,
                       QPoint pos)
{
    SChartHit hit;
    for (auto it = mapGroups.constBegin(); it != mapGroups.constEnd(); ++it) {
        const SChromaGroupInfo& group = Deref(it.value(), "it.value() != nullptr");
        for (int i = 0; i < c_nChromaPointCount; ++i) {
            if (!BoxOf(GroupPointOrOrigin(group, i), mapping).Contains(pos))
                continue;
            hit.bWhite = hit.bWhite || i == enWhitePoint;
            if (hit.nPoint == enNoPoint || IsPointMovable(group, i)) {
                hit.nGroup = it.key();
                hit.nPoint = i;
            }
        }
    }
    return hit;
}
