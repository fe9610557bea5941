#include "SenderModuleDialog/colour/NearestRowSearch.h"

#include <algorithm>
#include <cmath>

namespace {

/// What the walk begins with, and above which a row neither improves nor ends it.
constexpr float c_fStartDistance = 10.0F;

/// Largest coordinate of a point that blocks are skipped for; no distance reaches the start distance there.
constexpr double c_dReach = 4.0;

/// The largest gap of floats relative to their size, with the errors of the distances in double on top.
constexpr double c_dLargestGap = 0x1p-23 * (1.0 + 0x1p-26);

/// Covers the roundings of the block test, in units of (u, v): ten times what they can come to.
constexpr double c_dSlack = 1e-12;

float RoundedDistance(double dU, double dV, QPointF uvPoint)
{
    const double dDeltaU = uvPoint.x() - dU;
    const double dDeltaV = uvPoint.y() - dV;
    return float(std::sqrt(dDeltaU * dDeltaU + dDeltaV * dDeltaV));
}

} // namespace

SNearestRow WalkToNearestRow(QPointF uvPoint, const sCIE1931* pRows, int nCount)
{
    SNearestRow result;
    float fBest = c_fStartDistance;
    for (int i = 0; i < nCount; ++i) {
        const float fDistance = RoundedDistance(pRows[i].dU, pRows[i].dV, uvPoint);
        if (fDistance < fBest) {
            result.nNearest = i;
            result.bImproved = true;
            fBest = fDistance;
        } else if (fDistance < c_fStartDistance) {
            result.nStop = i;
            break;
        }
    }
    return result;
}

CNearestRowSearch::CNearestRowSearch(const QVector<sCIE1931>& vecRows)
    : m_vecRows(vecRows)
{
    m_vecPoints.reserve(vecRows.size());
    for (const sCIE1931& row : vecRows)
        m_vecPoints.append({row.dU, row.dV});
    for (std::size_t i = 0; i < c_arrShift.size(); ++i) {
        const int nRows = 1 << c_arrShift[i];
        m_arrBlocks[i].reserve(LastRow() / nRows + 1);
        for (int nFirst = 0; nFirst < LastRow(); nFirst += nRows)
            m_arrBlocks[i].append(MakeBlock(nFirst, std::min(nFirst + nRows, LastRow())));
    }
}

SNearestRow CNearestRowSearch::Find(QPointF uvPoint) const
{
    // Written so that NaN goes to the walk as well.
    if (!(std::abs(uvPoint.x()) <= c_dReach && std::abs(uvPoint.y()) <= c_dReach))
        return WalkToNearestRow(uvPoint, m_vecRows.constData(), m_vecRows.size());

    const int nLast = LastRow();
    int nRow = 0;
    float fBest = Distance(nRow, uvPoint);
    while (nRow < nLast) {
        const int nProven = ProvenEnd(nRow, uvPoint);
        if (nProven != nRow) {
            nRow = nProven;
            fBest = Distance(nRow, uvPoint);
            continue;
        }
        const float fDistance = Distance(nRow + 1, uvPoint);
        if (!(fDistance < fBest))
            return {nRow, true, nRow + 1};
        ++nRow;
        fBest = fDistance;
    }
    return {nRow, true, -1};
}

CNearestRowSearch::SBlock CNearestRowSearch::MakeBlock(int nFirst, int nLast) const
{
    const SPoint first = m_vecPoints[nFirst];
    const SPoint last = m_vecPoints[nLast];
    const double dLength = std::hypot(last.dU - first.dU, last.dV - first.dV);
    const double dTU = (last.dU - first.dU) / dLength;
    const double dTV = (last.dV - first.dV) / dLength;

    double dShortest = dLength;
    double dSlope = 0.0;
    double dLead = 0.0;
    for (int i = nFirst + 1; i <= nLast; ++i) {
        const SPoint from = m_vecPoints[i - 1];
        const SPoint to = m_vecPoints[i];
        const double dCU = to.dU - from.dU;
        const double dCV = to.dV - from.dV;
        const double dAlong = dCU * dTU + dCV * dTV;
        const double dAcross = dCV * dTU - dCU * dTV;
        const double dMiddleU = 0.5 * (from.dU + to.dU) - first.dU;
        const double dMiddleV = 0.5 * (from.dV + to.dV) - first.dV;
        dShortest = std::min(dShortest, dAlong);
        dSlope = std::max(dSlope, std::abs(dAcross) / dAlong);
        dLead = std::max(dLead, (dMiddleU * dCU + dMiddleV * dCV) / dAlong);
    }
    const double dScale = dShortest / c_dLargestGap;
    return {dTU * dScale, dTV * dScale, dSlope, (dLead + c_dSlack) * dScale};
}

bool CNearestRowSearch::Falls(const SBlock& block, int nFirst, QPointF uvPoint) const
{
    const SPoint first = m_vecPoints[nFirst];
    const double dU = uvPoint.x() - first.dU;
    const double dV = uvPoint.y() - first.dV;
    const double dAlong = dU * block.dAlongU + dV * block.dAlongV;
    const double dAcross = dV * block.dAlongU - dU * block.dAlongV;
    return dAlong - block.dSlope * std::abs(dAcross) - (dU * dU + dV * dV) > block.dLead;
}

/// The end of the largest block from this row on over which the distances provably fall, or the row itself.
int CNearestRowSearch::ProvenEnd(int nRow, QPointF uvPoint) const
{
    for (std::size_t i = 0; i < c_arrShift.size(); ++i) {
        const int nRows = 1 << c_arrShift[i];
        if (nRow % nRows == 0 && Falls(m_arrBlocks[i][nRow >> c_arrShift[i]], nRow, uvPoint))
            return std::min(nRow + nRows, LastRow());
    }
    return nRow;
}

float CNearestRowSearch::Distance(int nRow, QPointF uvPoint) const
{
    return RoundedDistance(m_vecPoints[nRow].dU, m_vecPoints[nRow].dV, uvPoint);
}
