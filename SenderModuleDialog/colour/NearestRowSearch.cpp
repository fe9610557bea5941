#include "SenderModuleDialog/colour/NearestRowSearch.h"

#include "SenderModuleDialog/Fault.h"

#include <QtAlgorithms>

#include <algorithm>
#include <cmath>
#include <limits>

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

/// Writes one of the numbers that are held in pairs.
template <class TPairs>
void Set(TPairs& arrPairs, std::size_t nIndex, double dValue)
{
    arrPairs[nIndex / 2][nIndex % 2] = dValue;
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
        m_arrLevels[i].resize(LastRow() / (nRows * c_nTogether) + 1);
        for (int nFirst = 0; nFirst < LastRow(); nFirst += nRows) {
            const int nBlock = nFirst / nRows;
            AddBlock(nFirst, std::min(nFirst + nRows, LastRow()), m_arrLevels[i][nBlock / c_nTogether],
                     std::size_t(nBlock % c_nTogether));
        }
    }
}

SNearestRow CNearestRowSearch::Find(QPointF uvPoint) const
{
    // Written so that NaN goes to the walk as well.
    if (!(std::abs(uvPoint.x()) <= c_dReach && std::abs(uvPoint.y()) <= c_dReach))
        return WalkToNearestRow(uvPoint, m_vecRows.constData(), int(m_vecRows.size()));

    const int nLast = LastRow();
    const int nFinest = 1 << c_arrShift.back();
    int nRow = ProvenEnd(0, uvPoint);
    while (nRow < nLast) {
        const int nEnd = std::min(nRow - nRow % nFinest + nFinest, nLast);
        float fBest = Distance(nRow, uvPoint);
        for (; nRow < nEnd; ++nRow) {
            const float fDistance = Distance(nRow + 1, uvPoint);
            if (!(fDistance < fBest))
                return {nRow, true, nRow + 1};
            fBest = fDistance;
        }
        nRow = ProvenEnd(nRow, uvPoint);
    }
    return {nLast, true, -1};
}

CNearestRowSearch::SBlocks::SBlocks()
{
    for (std::size_t i = 0; i < c_nTogether; ++i)
        Set(arrLead, i, std::numeric_limits<double>::infinity());
}

void CNearestRowSearch::AddBlock(int nFirst, int nLast, SBlocks& blocks, std::size_t nBlock) const
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
    Require(dShortest > 0.0, "dShortest > 0");

    const double dScale = dShortest / c_dLargestGap;
    Set(blocks.arrFirstU, nBlock, first.dU);
    Set(blocks.arrFirstV, nBlock, first.dV);
    Set(blocks.arrAlongU, nBlock, dTU * dScale);
    Set(blocks.arrAlongV, nBlock, dTV * dScale);
    Set(blocks.arrSlope, nBlock, dSlope);
    Set(blocks.arrLead, nBlock, (dLead + c_dSlack) * dScale);
}

/// One bit for each block, set where (2) holds.
inline unsigned int CNearestRowSearch::Falling(const SBlocks& blocks, QPointF uvPoint)
{
    const CDoublePair pairU = {uvPoint.x(), uvPoint.x()};
    const CDoublePair pairV = {uvPoint.y(), uvPoint.y()};
    CBitsPair bits = {0, 0};
    CBitsPair bitsOfPair = {1, 2};
    for (std::size_t i = 0; i < c_nPairs; ++i) {
        const CDoublePair u = pairU - blocks.arrFirstU[i];
        const CDoublePair v = pairV - blocks.arrFirstV[i];
        const CDoublePair along = u * blocks.arrAlongU[i] + v * blocks.arrAlongV[i];
        const CDoublePair across = v * blocks.arrAlongU[i] - u * blocks.arrAlongV[i];
        const CDoublePair acrossSize = across < 0.0 ? -across : across;
        bits |= (along - blocks.arrSlope[i] * acrossSize - (u * u + v * v) > blocks.arrLead[i]) & bitsOfPair;
        bitsOfPair <<= 2;
    }
    return unsigned(bits[0] | bits[1]);
}

/// A row up to which the distances provably fall from this one on: over the coarse blocks as far as they
/// hold, then over the middle ones, then over the fine ones.
int CNearestRowSearch::ProvenEnd(int nRow, QPointF uvPoint) const
{
    for (std::size_t i = 0; i < c_arrShift.size(); ++i) {
        const int nRows = 1 << c_arrShift[i];
        if (nRow % nRows != 0)
            continue;
        const int nBlock = nRow / nRows;
        const SBlocks& blocks = m_arrLevels[i][nBlock / c_nTogether];
        const unsigned int nFalling = Falling(blocks, uvPoint) >> (nBlock % c_nTogether);
        nRow = std::min(nRow + nRows * int(qCountTrailingZeroBits(~nFalling)), LastRow());
    }
    return nRow;
}

float CNearestRowSearch::Distance(int nRow, QPointF uvPoint) const
{
    return RoundedDistance(m_vecPoints[nRow].dU, m_vecPoints[nRow].dV, uvPoint);
}
