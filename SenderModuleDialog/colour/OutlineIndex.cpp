#include "SenderModuleDialog/colour/OutlineIndex.h"

#include "SenderModuleDialog/geometry/EvenOdd.h"
#include "SenderModuleDialog/geometry/PointPrecision.h"

#include <algorithm>
#include <cmath>

namespace {

/// How far a vertex is listed up and down: the reach, with room for the rounding of the difference.
constexpr float c_fListedReach = 2.0F * c_fVertexReach;

} // namespace

bool OutlineTest::IsAtVertex(CPointEx<float> pt, CPointEx<float> ptVertex)
{
    return IsWithin(pt, ptVertex, c_fVertexReach);
}

bool OutlineTest::Contains(const QVector<QPointF>& vecOutline, QPointF pt)
{
    if (vecOutline.isEmpty())
        return false;
    const CPointEx<float> ptRounded = Narrowed(pt);
    CPointEx<float> ptBefore = Narrowed(vecOutline.last());
    bool bInside = false;
    for (const QPointF& ptOutline : vecOutline) {
        const CPointEx<float> ptVertex = Narrowed(ptOutline);
        if (IsAtVertex(ptRounded, ptVertex))
            return true;
        if (IsEdgeLeftOf(ptRounded, ptVertex, ptBefore))
            bInside = !bInside;
        ptBefore = ptVertex;
    }
    return bInside;
}

COutlineIndex::COutlineIndex(const QVector<QPointF>& vecOutline)
{
    m_vecPoints.reserve(vecOutline.size());
    for (const QPointF& pt : vecOutline)
        m_vecPoints.append(Narrowed(pt));
    const auto bounds =
        std::minmax_element(m_vecPoints.cbegin(), m_vecPoints.cend(),
                            [](CPointEx<float> ptA, CPointEx<float> ptB) { return ptA.y < ptB.y; });
    m_fLowest = bounds.first->y - c_fListedReach;
    m_fHighest = bounds.second->y + c_fListedReach;
    m_fBandsPerUnit = float(c_nBands) / (m_fHighest - m_fLowest);
    for (int nBand = 0; nBand < c_nBands; ++nBand) {
        m_arrFirst[std::size_t(nBand)] = int(m_vecListed.size());
        for (int i = 0; i < m_vecPoints.size(); ++i) {
            if (IsInBand(i, nBand))
                m_vecListed.append(i);
        }
    }
    m_arrFirst.back() = int(m_vecListed.size());
}

bool COutlineIndex::Contains(QPointF pt) const
{
    const CPointEx<float> ptRounded = Narrowed(pt);
    // Written so that NaN is outside as well.
    if (!(m_fLowest <= ptRounded.y && ptRounded.y <= m_fHighest))
        return false;
    const std::size_t nBand = std::size_t(BandOf(ptRounded.y));
    bool bInside = false;
    for (int i = m_arrFirst[nBand]; i < m_arrFirst[nBand + 1]; ++i) {
        const int nVertex = m_vecListed[i];
        const CPointEx<float> ptVertex = m_vecPoints[nVertex];
        if (OutlineTest::IsAtVertex(ptRounded, ptVertex))
            return true;
        const CPointEx<float> ptBefore = nVertex == 0 ? m_vecPoints.last() : m_vecPoints[nVertex - 1];
        if (IsEdgeLeftOf(ptRounded, ptVertex, ptBefore))
            bInside = !bInside;
    }
    return bInside;
}

/// The band of a height from the lowest to the highest.
int COutlineIndex::BandOf(float fY) const
{
    return std::min(int((fY - m_fLowest) * m_fBandsPerUnit), c_nBands - 1);
}

bool COutlineIndex::IsInBand(int nVertex, int nBand) const
{
    const float fY = m_vecPoints[nVertex].y;
    const float fBeforeY = (nVertex == 0 ? m_vecPoints.last() : m_vecPoints[nVertex - 1]).y;
    const int nFirst = BandOf(std::max(std::min(fY - c_fListedReach, fBeforeY), m_fLowest));
    const int nLast = BandOf(std::min(std::max(fY + c_fListedReach, fBeforeY), m_fHighest));
    return nFirst <= nBand && nBand <= nLast;
}
