#include "SenderModuleDialog/colour/CCT2ColorCoord.h"

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/colour/DaylightLocus.h"
#include "SenderModuleDialog/colour/NearestRowSearch.h"

#include <algorithm>
#include <cmath>

namespace {

/// The source that the faults of this class name.
constexpr const char* c_szSource = "CCT2ColorCoord";

/// The D65 white point and its nominal temperature, which the conversions snap onto each other.
constexpr float c_fD65CCT = 6500.0F;
constexpr double c_dD65X = 0.3127000033855438;  ///< the widening of the float 0.3127
constexpr double c_dD65Y = 0.32899999618530273; ///< the widening of the float 0.329

/// How near to D65 in kelvin, x and y the snap takes hold: the float 1e-5.
constexpr float c_fSnapTolerance = 9.999999747378752e-06F;

/// Kelvin times mired.
constexpr float c_fMiredKelvin = 1000000.0F;

/// Kelvin from one table row to the next.
constexpr int c_nTableStep = 5;

/// Where the lines of constant n meet: McCamy's epicentre.
constexpr float c_fEpicentreX = 0.332F;
constexpr float c_fEpicentreY = 0.1858F;
constexpr double c_dEpicentreY = 0.1858000010251999; ///< the widening of the float

/// Coefficients of the cubic from n to kelvin.
constexpr double c_dCubic = 437.0;
constexpr double c_dSquare = 3601.0;
constexpr float c_fLinear = 6831.0F;
constexpr double c_dConstant = 5517.0;

/// Coefficients of its derivative.
constexpr double c_dSlopeSquare = 1311.0;
constexpr double c_dSlopeLinear = 7202.0;

/// Roots of the derivative: a maximum of about 7982.94 K and a minimum of about 1749.38 K.
constexpr float c_fFirstCrest = -4.274552345275879F;
constexpr float c_fSecondCrest = -1.2189642190933228F;

/// First step of the search beyond the turning points.
constexpr double c_dSearchStep = 0.01;

/// Slices of the search area in a root scan.
constexpr float c_fScanDivision = 20.0F;

/// Width of n at which a bisection ends.
constexpr double c_dBisectionWidth = 1e-06;

/// The table of every object, and the search that is prepared for it.
struct SStandardTable
{
    QVector<sCIE1931> vecRows;
    CNearestRowSearch search;
};

float MiredOf(int nCCT)
{
    return 1.0F / float(nCCT) * c_fMiredKelvin;
}

QVector<sCIE1931> MakeRows()
{
    QVector<sCIE1931> vecRows;
    vecRows.reserve((DaylightLocus::c_nHighestCCT - DaylightLocus::c_nLowestCCT) / c_nTableStep + 1);
    for (int nCCT = DaylightLocus::c_nLowestCCT; nCCT <= DaylightLocus::c_nHighestCCT; nCCT += c_nTableStep) {
        const CPointEx<float> point = DaylightLocus::PointOfTemperature(float(nCCT));
        const QPointF uv = DaylightLocus::ToUV(double(point.x), double(point.y));
        vecRows.append({MiredOf(nCCT), nCCT, double(point.x), double(point.y), uv.x(), uv.y()});
    }
    return vecRows;
}

/// Lives as long as the process: objects of a host may convert while statics are being destroyed.
const SStandardTable& StandardTable()
{
    static const SStandardTable& s_table = *[] {
        const QVector<sCIE1931> vecRows = MakeRows();
        return new SStandardTable{vecRows, CNearestRowSearch(vecRows)};
    }();
    return s_table;
}

double Distance(QPointF uvPoint, double dU, double dV)
{
    const double dDeltaU = uvPoint.x() - dU;
    const double dDeltaV = uvPoint.y() - dV;
    return std::sqrt(dDeltaU * dDeltaU + dDeltaV * dDeltaV);
}

/// d^2 / l with the roundings of the triangular solution.
float SquareOver(double dDistance, float fLength)
{
    const double dRounded = double(float(dDistance));
    return float(dRounded * dRounded / double(fLength));
}

/// n * 0.1858 + 0.332: what n * y + x is on the line of constant n.
double LineOf(float fN)
{
    return double(fN * c_fEpicentreY + c_fEpicentreX);
}

bool IsInUnit(double dValue)
{
    return 0.0 < dValue && dValue < 1.0;
}

/// Whether n of the point lies in the interval, cross-multiplied by 0.1858 - y, which is not 0.
bool IsInArea(const SFloatArea& area, QPointF xy)
{
    const double dAtMin = double(area.fMin) * xy.y() + xy.x();
    const double dAtMax = double(area.fMax) * xy.y() + xy.x();
    if (c_dEpicentreY < xy.y() && xy.y() < 1.0)
        return dAtMin < LineOf(area.fMin) && IsInUnit(xy.x()) && LineOf(area.fMax) < dAtMax;
    if (0.0 < xy.y() && xy.y() < c_dEpicentreY)
        return LineOf(area.fMin) < dAtMin && IsInUnit(xy.x()) && dAtMax < LineOf(area.fMax);
    return false;
}

bool IsNear(double dValue, double dTarget)
{
    return std::abs(dValue - dTarget) < double(c_fSnapTolerance);
}

} // namespace

CCCT2ColorCoord::CCCT2ColorCoord()
    : CCCT2ColorCoord(Solved())
{}

CCCT2ColorCoord::CCCT2ColorCoord(EnSolve)
{
    CalcColorGamut();
    ColorCoordTables();
}

/// What every constructed object is a copy of; the copies share the data until one is written to.
const CCCT2ColorCoord& CCCT2ColorCoord::Solved()
{
    static const CCCT2ColorCoord& s_solved = *new CCCT2ColorCoord(enSolve);
    return s_solved;
}

bool CCCT2ColorCoord::CCTtoColorCoord(float fCCT, QPointF* pColorCoord, bool bExact) const
{
    if (!DaylightLocus::IsInRange(fCCT))
        return false;
    QPointF& out = Deref(pColorCoord, "pColorCoord != nullptr");
    if (!bExact && std::abs(fCCT - c_fD65CCT) < c_fSnapTolerance) {
        out = QPointF(c_dD65X, c_dD65Y);
        return true;
    }
    const CPointEx<float> point = DaylightLocus::PointOfTemperature(fCCT);
    out = QPointF(double(point.x), double(point.y));
    return true;
}

bool CCCT2ColorCoord::isCCTInRange(float fCCT) const
{
    return DaylightLocus::IsInRange(fCCT);
}

bool CCCT2ColorCoord::TriangAlgCalcRelativeCCT(QPointF xyColorCoord, float* pCCT, bool bExact) const
{
    if (!isCoordInArea(xyColorCoord))
        return false;
    Require(!m_sColorCoordTables.isEmpty(), "!m_sColorCoordTables.isEmpty()",
            {"TriangAlgCalcRelativeCCT", c_szSource, 61});
    QPointF uv;
    ColorCoordXYtoUV(xyColorCoord, &uv);
    sCIE1931 arrPair[2];
    // The gate guarantees that x and y are positive. The smallest doubles may still round to 0 in u and
    // v, which is as good a place to walk from as any, so the public search with its check is left out.
    FindPair(uv, arrPair);

    float& fCCT = Deref(pCCT, "pCCT != nullptr");
    fCCT = c_fMiredKelvin / TriangCalUrd(uv, arrPair);
    if (!DaylightLocus::IsInRange(fCCT))
        return false;
    if (!bExact && IsNear(xyColorCoord.x(), c_dD65X) && IsNear(xyColorCoord.y(), c_dD65Y))
        fCCT = c_fD65CCT;
    return true;
}

bool CCCT2ColorCoord::isCoordInArea(QPointF const& xyColorCoord) const
{
    return std::any_of(m_vecCoordAreas.cbegin(), m_vecCoordAreas.cend(),
                       [&xyColorCoord](const SFloatArea& area) { return IsInArea(area, xyColorCoord); });
}

void CCCT2ColorCoord::ColorCoordXYtoUV(QPointF xyColorCoord, QPointF* pUVColorCoord) const
{
    Deref(pUVColorCoord, "pUVColorCoord != nullptr") =
        DaylightLocus::ToUV(xyColorCoord.x(), xyColorCoord.y());
}

bool CCCT2ColorCoord::SearchNearestTwoPoint(QPointF uvcolorCoord, sCIE1931* NearTwoColorCoord) const
{
    Require(uvcolorCoord.x() > 0 && uvcolorCoord.y() > 0, "uvcolorCoord.x() > 0 && uvcolorCoord .y() > 0",
            {"SearchNearestTwoPoint", c_szSource, 362});
    FindPair(uvcolorCoord, &Deref(NearTwoColorCoord, "NearTwoColorCoord != nullptr"));
    return true;
}

void CCCT2ColorCoord::FindPair(QPointF uvcolorCoord, sCIE1931* pPair) const
{
    const sCIE1931* const pRows = m_sColorCoordTables.constData();
    const int nCount = int(m_sColorCoordTables.size());
    const bool bStandard = m_pSearch != nullptr && m_pSearch->IsFor(m_sColorCoordTables);
    const SNearestRow end =
        bStandard ? m_pSearch->Find(uvcolorCoord) : WalkToNearestRow(uvcolorCoord, pRows, nCount);

    pPair[0] = end.bImproved ? pRows[end.nNearest] : sCIE1931();
    pPair[1] = end.nStop >= 0 ? pRows[end.nStop] : sCIE1931();
    if (end.nNearest != 0 && end.nNearest != nCount - 1)
        pPair[0] = pRows[end.nNearest - 1];
}

float CCCT2ColorCoord::TriangCalUrd(QPointF uvcolorCoord, sCIE1931* NearTwoColorCoord) const
{
    Require(NearTwoColorCoord != nullptr, "NearTwoColorCoord != nullptr", {"TriangCalUrd", c_szSource, 402});
    const sCIE1931& first = NearTwoColorCoord[0];
    const sCIE1931& second = NearTwoColorCoord[1];
    const float fLength = float(Distance({first.dU, first.dV}, second.dU, second.dV));
    const float fA = SquareOver(Distance(uvcolorCoord, first.dU, first.dV), fLength);
    const float fB = SquareOver(Distance(uvcolorCoord, second.dU, second.dV), fLength);
    return (second.fUrd - first.fUrd) * (fA / (fB + fA)) + first.fUrd;
}

float CCCT2ColorCoord::CalcUrd(int nCCT) const
{
    return MiredOf(nCCT);
}

void CCCT2ColorCoord::ColorCoordTables()
{
    m_sColorCoordTables = StandardTable().vecRows;
    m_pSearch = &StandardTable().search;
}

void CCCT2ColorCoord::CalcColorGamut()
{
    QVector<float> vecFirst;
    AreaSolve(float(DaylightLocus::c_nLowestCCT));
    CalDivArea(vecFirst, float(DaylightLocus::c_nLowestCCT));

    // The search area is kept on purpose: at 25000 K the cubic has one sign at both turning points, so
    // nothing is appended, and only the second bound moves out.
    m_vecCrest.clear();
    m_vecRoots.clear();
    QVector<float> vecSecond;
    AreaSolve(float(DaylightLocus::c_nHighestCCT));
    CalDivArea(vecSecond, float(DaylightLocus::c_nHighestCCT));

    QVector<float> vecBounds = vecFirst + vecSecond;
    std::stable_sort(vecBounds.begin(), vecBounds.end());
    for (int i = 1; i < vecBounds.size(); ++i) {
        const float fMiddle = (vecBounds[i - 1] + vecBounds[i]) * 0.5F;
        const bool bBetween = Solvef(fMiddle, float(DaylightLocus::c_nLowestCCT)) > 0.0F &&
                              Solvef(fMiddle, float(DaylightLocus::c_nHighestCCT)) < 0.0F;
        if (bBetween)
            m_vecCoordAreas.append({vecBounds[i - 1], vecBounds[i]});
    }
}

bool CCCT2ColorCoord::AreaSolve(float fTargetCCT)
{
    SolveCrest();
    if (Solvef(m_vecCrest[0], fTargetCCT) * Solvef(m_vecCrest[1], fTargetCCT) < 0.0F)
        m_vecSearchArea << m_vecCrest[0] << m_vecCrest[1];
    for (int i = 0; i < 2; ++i) {
        if (!isSearchNewArea(i + 1, fTargetCCT))
            continue;
        Require(i < m_vecSearchArea.size(), "i < m_vecSearchArea.size()");
        const float fStep = float(i == 0 ? -c_dSearchStep : c_dSearchStep);
        SearchNewArea(m_vecCrest[i], fStep, &m_vecSearchArea[i], fTargetCCT);
    }
    return true;
}

void CCCT2ColorCoord::CalDivArea(QVector<float>& vecRoots, float fTargetCCT)
{
    Require(m_vecSearchArea.size() >= 2, "m_vecSearchArea.size() >= 2");
    float fLow = m_vecSearchArea[0];
    const float fEnd = m_vecSearchArea[1];
    const float fSlice = (fEnd - fLow) / c_fScanDivision;
    while (fLow < fEnd) {
        const float fHigh = std::min(fLow + fSlice, fEnd);
        Require(fHigh > fLow, "fHigh > fLow");
        const float fSigns = Solvef(fHigh, fTargetCCT) * Solvef(fLow, fTargetCCT);
        if (fSigns <= 0.0F) {
            const float fRoot = fSigns < 0.0F ? Bisect(fLow, fHigh, fTargetCCT) : (fLow + fHigh) * 0.5F;
            m_vecRoots.append(fRoot);
            vecRoots.append(fRoot);
        }
        fLow = fHigh;
    }
}

/// The root between two places of different sign: the middle of the last round.
float CCCT2ColorCoord::Bisect(float fLow, float fHigh, float fTargetCCT) const
{
    for (;;) {
        const float fMiddle = (fLow + fHigh) * 0.5F;
        const float fValue = Solvef(fMiddle, fTargetCCT);
        if (double(fHigh) - double(fLow) <= c_dBisectionWidth || fValue == 0.0F)
            return fMiddle;
        // Far from 0 neighbouring floats are farther apart than the width, so nothing is left to halve.
        if (fMiddle <= fLow || fHigh <= fMiddle)
            return fMiddle;
        if (Solvef(fLow, fTargetCCT) * fValue < 0.0F)
            fHigh = fMiddle;
        else
            fLow = fMiddle;
    }
}

bool CCCT2ColorCoord::SolveCrest()
{
    m_vecCrest << c_fFirstCrest << c_fSecondCrest;
    return true;
}

float CCCT2ColorCoord::Solvef(float fN, float fTargetCCT) const
{
    // The linear product is single precision, everything else double; n * n is exact and n^3 rounds once.
    const double dN = double(fN);
    const double dSquare = dN * dN;
    const double dCCT = double(fN * c_fLinear) + dSquare * c_dSquare + dSquare * dN * c_dCubic + c_dConstant;
    return float(dCCT - double(fTargetCCT));
}

float CCCT2ColorCoord::Solveff(float fN) const
{
    const double dN = double(fN);
    return float(dN * c_dSlopeLinear + dN * dN * c_dSlopeSquare + double(c_fLinear));
}

bool CCCT2ColorCoord::isSearchNewArea(int nWhich, float fTargetCCT) const
{
    Require(nWhich == 1 || nWhich == 2, "nWhich == 1 || nWhich == 2");
    Require(m_vecCrest.size() >= 2, "m_vecCrest.size() >= 2");
    const float fMiddle = (m_vecCrest[0] + m_vecCrest[1]) * 0.5F;
    const float fValue = Solvef(m_vecCrest[nWhich - 1], fTargetCCT);
    const float fSlope =
        fMiddle * float(c_dSlopeLinear) + fMiddle * fMiddle * float(c_dSlopeSquare) + c_fLinear;
    const bool bFalls = fSlope <= 0.0F;
    return bFalls == (nWhich == 1) ? fValue > 0.0F : fValue < 0.0F;
}

void CCCT2ColorCoord::SearchNewArea(float fStart, float fStep, float* pOut, float fTargetCCT) const
{
    Require(fStep != 0.0F, "fStep != 0");
    const float fAtStart = Solvef(fStart, fTargetCCT);
    float fPlace = fStart;
    do {
        fPlace = fStart + fStep;
        fStep = fStep + fStep;
        Require(std::isfinite(fPlace), "std::isfinite(fPlace)");
    } while (!(Solvef(fPlace, fTargetCCT) * fAtStart < 0.0F));
    Deref(pOut, "pOut != nullptr") = fPlace;
}
