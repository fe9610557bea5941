#include "SenderModuleDialog/chart/solve/ChartHitTest.h"

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"

#include <cmath>

namespace {

/// The box that catches a point, edges included. The edges are whole numbers; a NaN point has a box that
/// catches nothing.
struct SHitBox
{
    float fLeft;
    float fTop;
    float fRight;
    float fBottom;

    bool Contains(QPoint pos) const
    {
        return pos.x() >= double(fLeft) && pos.x() <= double(fRight) && pos.y() >= double(fTop) &&
               pos.y() <= double(fBottom);
    }
};

/// As large as a dot that is not held, in single precision.
SHitBox BoxOf(CPointEx<float> pt, const CChartMapping& mapping)
{
    const float fRadius = mapping.DotRadius();
    const QPointF ptPixel = mapping.ToPixel(pt);
    const float fLeft = std::round(float(ptPixel.x()) - fRadius);
    const float fTop = std::round(float(ptPixel.y()) - fRadius);
    return {fLeft, fTop, std::trunc(fLeft + 2.0F * fRadius), std::trunc(fTop + 2.0F * fRadius)};
}

} // namespace

SChartHit HitTestChart(const ChromaGroups& mapGroups, const CChartMapping& mapping, QPoint pos)
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
