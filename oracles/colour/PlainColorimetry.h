#ifndef ORACLES_COLOUR_PLAINCOLORIMETRY_H
#define ORACLES_COLOUR_PLAINCOLORIMETRY_H

#include "SenderModuleDialog/colour/CIE1931Row.h"
#include "host/CommonClass/PointEx.h"

#include <QPointF>
#include <QVector>

#include <cmath>
#include <vector>

/// @file
/// The colorimetry as plain procedures, step by step and without any short cut: what the library's
/// conversions are compared with to the last bit, and timed against. Nothing here calls the library.

namespace PlainColorimetry {

/// The daylight locus with the cube taken by `pow`, and the snap of 6500 K onto D65.
inline bool TemperatureToPoint(float fCCT, QPointF* pOut, bool bExact)
{
    if (!(4000.0F <= fCCT && fCCT <= 25000.0F))
        return false;
    const double dT = double(fCCT);
    const double dR3 = 1000000000.0 / std::pow(dT, 3.0);
    const double dR2 = 1000000.0 / (dT * dT);
    const double dR1 = 1000.0 / dT;
    double dX = 0.0;
    if (fCCT >= 7000.0F)
        dX = dR1 * 0.24748 + dR2 * 1.9018 + dR3 * -2.0064 + 0.23704;
    else
        dX = dR1 * 0.09911 + dR2 * 2.9678 + dR3 * -4.607 + 0.244063;
    const float fX = float(dX);
    const double dWideX = double(fX);
    const float fY = float(dWideX * 2.87 + dWideX * dWideX * -3.0 + -0.275);
    *pOut = QPointF(double(fX), double(fY));
    if (!bExact && std::fabs(fCCT - 6500.0F) < 9.999999747378752e-06F)
        *pOut = QPointF(0.3127000033855438, 0.32899999618530273);
    return true;
}

/// All rows of the temperature table.
inline std::vector<sCIE1931> MakeRows()
{
    std::vector<sCIE1931> vecRows;
    for (int nCCT = 4000; nCCT <= 25000; nCCT += 5) {
        QPointF pt;
        TemperatureToPoint(float(nCCT), &pt, true);
        const double dDivisor = 12.0 * pt.y() - 2.0 * pt.x() + 3.0;
        vecRows.push_back({1.0F / float(nCCT) * 1000000.0F, nCCT, pt.x(), pt.y(), 4.0 * pt.x() / dDivisor,
                           6.0 * pt.y() / dDivisor});
    }
    return vecRows;
}

inline bool IsInArea(float fLow, float fHigh, QPointF xy)
{
    const double dX = xy.x();
    const double dY = xy.y();
    const double dLineLow = double(fLow * 0.1858F + 0.332F);
    const double dLineHigh = double(fHigh * 0.1858F + 0.332F);
    if (0.1858000010251999 < dY && dY < 1.0 && double(fLow) * dY + dX < dLineLow && 0.0 < dX && dX < 1.0 &&
        dLineHigh < double(fHigh) * dY + dX)
        return true;
    return 0.0 < dY && dY < 0.1858000010251999 && dLineLow < double(fLow) * dY + dX && 0.0 < dX && dX < 1.0 &&
           double(fHigh) * dY + dX < dLineHigh;
}

/// The gate, with the solved intervals written out.
inline bool IsInGate(QPointF xy)
{
    return IsInArea(-5.52452803F, -2.46035194F, xy) || IsInArea(-0.25539455F, 1.48337674F, xy);
}

inline double Distance(QPointF ptA, double dU, double dV)
{
    return std::sqrt((ptA.x() - dU) * (ptA.x() - dU) + (ptA.y() - dV) * (ptA.y() - dV));
}

/// The walk from the first row to the first one that does not improve.
inline void SearchPair(const std::vector<sCIE1931>& vecRows, QPointF uv, sCIE1931* pPair)
{
    pPair[0] = sCIE1931();
    pPair[1] = sCIE1931();
    float fBest = 10.0F;
    std::size_t nIndex = 0;
    for (std::size_t i = 0; i < vecRows.size(); ++i) {
        const float fDistance = float(Distance(uv, vecRows[i].dU, vecRows[i].dV));
        if (fDistance < fBest) {
            pPair[0] = vecRows[i];
            fBest = fDistance;
            nIndex = i;
        } else if (fDistance < 10.0F) {
            pPair[1] = vecRows[i];
            break;
        }
    }
    if (nIndex != 0 && nIndex != vecRows.size() - 1)
        pPair[0] = vecRows[nIndex - 1];
}

inline float InterpolateUrd(QPointF uv, const sCIE1931* pPair)
{
    const float fLength = float(Distance(QPointF(pPair[0].dU, pPair[0].dV), pPair[1].dU, pPair[1].dV));
    const double dFirst = double(float(Distance(uv, pPair[0].dU, pPair[0].dV)));
    const double dSecond = double(float(Distance(uv, pPair[1].dU, pPair[1].dV)));
    const float fA = float(dFirst * dFirst / double(fLength));
    const float fB = float(dSecond * dSecond / double(fLength));
    return (pPair[1].fUrd - pPair[0].fUrd) * (fA / (fB + fA)) + pPair[0].fUrd;
}

/// Chromaticity to temperature; writes the pair of rows that it came from as well.
inline bool PointToTemperature(const std::vector<sCIE1931>& vecRows, QPointF xy, float* pCCT, bool bExact,
                               sCIE1931* pPair)
{
    if (!IsInGate(xy))
        return false;
    const double dDivisor = 12.0 * xy.y() - 2.0 * xy.x() + 3.0;
    const QPointF uv(4.0 * xy.x() / dDivisor, 6.0 * xy.y() / dDivisor);
    SearchPair(vecRows, uv, pPair);
    *pCCT = 1000000.0F / InterpolateUrd(uv, pPair);
    if (!(4000.0F <= *pCCT && *pCCT <= 25000.0F))
        return false;
    if (!bExact && std::fabs(xy.x() - 0.3127000033855438) < double(9.999999747378752e-06F) &&
        std::fabs(xy.y() - 0.32899999618530273) < double(9.999999747378752e-06F))
        *pCCT = 6500.0F;
    return true;
}

/// Whether a point lies in an outline: every vertex first, then every edge.
inline bool Contains(const QVector<QPointF>& vecOutline, QPointF pt)
{
    const float fX = float(pt.x());
    const float fY = float(pt.y());
    for (const QPointF& vertex : vecOutline) {
        if (std::fabs(fX - float(vertex.x())) < 0.0001F && std::fabs(fY - float(vertex.y())) < 0.0001F)
            return true;
    }
    bool bInside = false;
    for (int i = 0, j = int(vecOutline.size()) - 1; i < vecOutline.size(); j = i++) {
        const CPointEx<float> a(float(vecOutline[i].x()), float(vecOutline[i].y()));
        const CPointEx<float> b(float(vecOutline[j].x()), float(vecOutline[j].y()));
        if (((a.y < fY && fY <= b.y) || (fY <= a.y && b.y < fY)) && (a.x <= fX || b.x <= fX) &&
            (b.x - a.x) * ((fY - a.y) / (b.y - a.y)) + a.x < fX)
            bInside = !bInside;
    }
    return bInside;
}

} // namespace PlainColorimetry

#endif // ORACLES_COLOUR_PLAINCOLORIMETRY_H
