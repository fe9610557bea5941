#include "SenderModuleDialog/chart/solve/LocusEdges.h"

#include "SenderModuleDialog/geometry/EvenOdd.h"
#include "SenderModuleDialog/geometry/Line.h"
#include "SenderModuleDialog/geometry/PointPrecision.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// Neighbouring edges under one box: the 156 edges of the locus make 13 blocks.
constexpr std::size_t c_nBlockEdges = 12;

constexpr float c_fInfinity = std::numeric_limits<float>::infinity();

} // namespace

CLocusEdges::CLocusEdges(const QVector<QPointF>& vecOutline)
{
    if (vecOutline.size() < c_nMinPolygonPoints)
        return;
    for (const QPointF& pt : vecOutline)
        m_vecPoints.push_back(Narrowed(pt));
    m_vecPoints.push_back(m_vecPoints.front());

    for (std::size_t i = 0; i + 1 < m_vecPoints.size(); ++i) {
        const SBox box = BoxOf(m_vecPoints[i], m_vecPoints[i + 1]);
        m_vecEdgeBoxes.push_back(box);
        if (i % c_nBlockEdges == 0)
            m_vecBlockBoxes.push_back(box);
        else
            m_vecBlockBoxes.back() = Union(m_vecBlockBoxes.back(), box);
    }
}

std::optional<CPointEx<float>> CLocusEdges::LastCrossing(CPointEx<float> ptFrom, CPointEx<float> ptTo) const
{
    const SBox box = BoxOf(ptFrom, ptTo);
    for (std::size_t nBlock = m_vecBlockBoxes.size(); nBlock-- > 0;) {
        if (AreApart(box, m_vecBlockBoxes[nBlock]))
            continue;
        const std::size_t nFirst = nBlock * c_nBlockEdges;
        for (std::size_t i = std::min(nFirst + c_nBlockEdges, m_vecEdgeBoxes.size()); i-- > nFirst;) {
            if (AreApart(box, m_vecEdgeBoxes[i]))
                continue;
            CPointEx<float> ptCrossing;
            if (CLine::GetSegmentCross(ptFrom, ptTo, m_vecPoints[i], m_vecPoints[i + 1], ptCrossing.x,
                                       ptCrossing.y))
                return ptCrossing;
        }
    }
    return std::nullopt;
}

/// A segment with a NaN coordinate gets the box of the whole plane, so that the full test decides.
CLocusEdges::SBox CLocusEdges::BoxOf(CPointEx<float> ptFirst, CPointEx<float> ptSecond)
{
    if (std::isunordered(ptFirst.x, ptSecond.x) || std::isunordered(ptFirst.y, ptSecond.y))
        return {-c_fInfinity, c_fInfinity, -c_fInfinity, c_fInfinity};
    return {std::min(ptFirst.x, ptSecond.x), std::max(ptFirst.x, ptSecond.x), std::min(ptFirst.y, ptSecond.y),
            std::max(ptFirst.y, ptSecond.y)};
}

CLocusEdges::SBox CLocusEdges::Union(const SBox& first, const SBox& second)
{
    return {std::min(first.fMinX, second.fMinX), std::max(first.fMaxX, second.fMaxX),
            std::min(first.fMinY, second.fMinY), std::max(first.fMaxY, second.fMaxY)};
}

bool CLocusEdges::AreApart(const SBox& first, const SBox& second)
{
    return first.fMinX > second.fMaxX || second.fMinX > first.fMaxX || first.fMinY > second.fMaxY ||
           second.fMinY > first.fMaxY;
}
