#ifndef SENDERMODULEDIALOG_COLOUR_CCT2COLORCOORD_H
#define SENDERMODULEDIALOG_COLOUR_CCT2COLORCOORD_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "SenderModuleDialog/colour/CIE1931Row.h"

#include <QPointF>
#include <QVector>

class CNearestRowSearch;

/// Converts between correlated colour temperature and CIE 1931 chromaticity, from 4000 K to 25000 K.
///
/// Temperature to chromaticity is the closed formula of the CIE daylight locus (CIE 15). Chromaticity to
/// temperature is a gate and a table search: the gate is built from a cubic in n = (x - 0.332) / (0.1858 - y)
/// of the form that McCamy gave (Color Research and Application 17, 1992), and the table holds the daylight
/// locus in steps of 5 K in CIE 1960 (u, v). The two directions are not exact inverses: they agree
/// within the step.
///
/// A constructed object is only read by the conversions, so several threads may convert with it at once, as
/// long as none runs the solving operations (`AreaSolve` and below).
class SENDERMODULEDIALOG_EXPORT CCCT2ColorCoord
{
public:
    /// Solves the gate and fills the table. Both are the same for every object and are computed for
    /// the first.
    CCCT2ColorCoord();

    /// @name Conversions
    /// With `bExact` false, 6500 K and the D65 point (0.3127, 0.329) stand for each other within 1e-5.
    /// @{

    /// Temperature in kelvin to chromaticity. False outside 4000 to 25000, and `pColorCoord` is not written.
    bool CCTtoColorCoord(float fCCT, QPointF* pColorCoord, bool bExact) const;

    /// Whether a temperature lies in 4000 to 25000 kelvin, both ends included.
    bool isCCTInRange(float fCCT) const;

    /// Chromaticity to temperature in kelvin. False outside the gate, and `pCCT` is not written. Inside it
    /// `pCCT` is written, and the result is whether the temperature lies in 4000 to 25000. Faults without
    /// a table.
    bool TriangAlgCalcRelativeCCT(QPointF xyColorCoord, float* pCCT, bool bExact) const;

    /// The gate: whether n lies in one of the intervals, 0 < x < 1, 0 < y < 1, and y is not at the epicentre.
    bool isCoordInArea(QPointF const& xyColorCoord) const;
    /// @}

    /// @name Steps of the conversion to temperature
    /// @{

    /// CIE 1960 (u, v) of (x, y): u = 4x/d and v = 6y/d with d = 12y - 2x + 3. Finite unless d is 0.
    void ColorCoordXYtoUV(QPointF xyColorCoord, QPointF* pUVColorCoord) const;

    /// Writes two rows that lie around (u, v) to `NearTwoColorCoord[0]` and `[1]` and returns true. The table
    /// is walked from its first row to the first one whose single-precision distance does not fall; inside
    /// the table the rows are the neighbours of the last row that fell. A row that was not found is all
    /// zeros. Faults unless u and v are positive.
    bool SearchNearestTwoPoint(QPointF uvcolorCoord, sCIE1931* NearTwoColorCoord) const;

    /// Reciprocal temperature in mired at (u, v) between two rows, by the squares of the distances.
    /// Faults on null.
    float TriangCalUrd(QPointF uvcolorCoord, sCIE1931* NearTwoColorCoord) const;

    /// 1000000 / T in single precision: mired of kelvin.
    float CalcUrd(int nCCT) const;
    /// @}

    /// @name Construction
    /// The constructor has run these; they add to what is there.
    /// @{

    /// Fills the table: 4000 K to 25000 K in steps of 5 K.
    void ColorCoordTables();

    /// Solves the gate for 4000 K and 25000 K and appends the intervals of n between them.
    void CalcColorGamut();

    /// Finds the n range that the root scan of one temperature covers; always true.
    bool AreaSolve(float fTargetCCT);

    /// Appends the roots of `Solvef` in the search area to `vecRoots`. Faults without a search area.
    void CalDivArea(QVector<float>& vecRoots, float fTargetCCT);

    /// Appends the turning points of the cubic; always true.
    bool SolveCrest();

    /// The cubic at n minus a temperature: 437 n^3 + 3601 n^2 + 6831 n + 5517 - target.
    float Solvef(float fN, float fTargetCCT) const;

    /// The cubic's derivative at n: 1311 n^2 + 7202 n + 6831.
    float Solveff(float fN) const;

    /// Whether a root lies farther out than turning point `nWhich`, 1 or 2; faults on another number.
    bool isSearchNewArea(int nWhich, float fTargetCCT) const;

    /// Doubles the step away from `fStart` until the cubic has changed its sign, and writes that place to
    /// `pOut`. Faults where no step can change it.
    void SearchNewArea(float fStart, float fStep, float* pOut, float fTargetCCT) const;
    /// @}

protected:
    QVector<sCIE1931> m_sReserveTables;    ///< stays empty
    QVector<sCIE1931> m_sColorCoordTables; ///< rising in temperature
    QVector<float> m_vecCrest;             ///< the cubic's turning points, while solving
    QVector<float> m_vecSearchArea;        ///< bounds of n for the root scan
    QVector<float> m_vecRoots;             ///< roots of the last scan
    QVector<SFloatArea> m_vecCoordAreas;   ///< the gate: intervals of n

private:
    enum EnSolve
    {
        enSolve
    };
    explicit CCCT2ColorCoord(EnSolve);
    static const CCCT2ColorCoord& Solved();
    void FindPair(QPointF uvcolorCoord, sCIE1931* pPair) const;
    float Bisect(float fLow, float fHigh, float fTargetCCT) const;

    const CNearestRowSearch* m_pSearch =
        nullptr; ///< shared by all objects; for the table of `ColorCoordTables`
};

#endif // SENDERMODULEDIALOG_COLOUR_CCT2COLORCOORD_H
