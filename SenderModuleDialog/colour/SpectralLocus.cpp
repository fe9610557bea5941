#include "SenderModuleDialog/colour/SpectralLocus.h"

#include "SenderModuleDialog/colour/CIE1931Observer.h"
#include "SenderModuleDialog/geometry/PointPrecision.h"
#include "SenderModuleDialog/geometry/Polygon.h"
#include "host/CommonClass/PointEx.h"

#include <iterator>

namespace {

/// Least y that counts as a colour: the float 1e-5.
constexpr float c_fLeastY = 9.999999747378752e-06F;

/// Moves `pt` to the chromaticity of a row. A row without one leaves it where the row before put it.
void MoveTo(const SObserverRow& row, CPointEx<float>& pt)
{
    const float fX = float(row.dX);
    const float fY = float(row.dY);
    const float fZ = float(row.dZ);
    if (!(fX >= 0.0F && fY > 0.0F && fZ >= 0.0F))
        return;
    const float fSum = fY + fX + fZ;
    const CPointEx<float> ptRow(fX / fSum, fY / fSum);
    if (ptRow.y > 1.0F || ptRow.y <= c_fLeastY || ptRow.x >= 1.0F || ptRow.x < 0.0F)
        return;
    pt = ptRow;
}

} // namespace

QVector<QPointF> SpectralLocus::Points()
{
    QVector<QPointF> vecPoints;
    vecPoints.reserve(int(std::size(c_arrObserver)));
    CPointEx<float> pt;
    for (const SObserverRow& row : c_arrObserver) {
        MoveTo(row, pt);
        vecPoints.append(Widened(pt));
    }
    return vecPoints;
}

QVector<QPointF> SpectralLocus::Outline()
{
    CPolygon polygon(Points());
    polygon.GrahamScan();
    return polygon;
}
