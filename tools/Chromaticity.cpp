#include "tools/Chromaticity.h"

#include "SenderModuleDialog/colour/ColourStandards.h"
#include "SenderModuleDialog/geometry/Line.h"
#include "instruments/colour/StandardNames.h"
#include "instruments/colour/WhitePoint.h"
#include "tools/Report.h"

#include <QStringList>

#include <cmath>

namespace {

constexpr int c_nCorners = 3;

/// The smallest area of a gamut, in the x,y plane: below it the coverage is not calculated.
constexpr double c_dLeastArea = double(c_fGeometryEpsilon);

bool IsCoordinate(double dValue)
{
    return 0.0 <= dValue && dValue <= 1.0;
}

std::vector<CPointEx<float>> ParseTriangle(const QString& strGamut)
{
    // Counted first: a surplus or a missing point is the likelier slip.
    const int nPoints = int(strGamut.count(QLatin1Char(';'))) + 1;
    if (nPoints != c_nCorners)
        throw CToolError(QStringLiteral("gamut '%1' has %2 points; write three as x,y;x,y;x,y")
                             .arg(strGamut)
                             .arg(nPoints));
    std::vector<CPointEx<float>> vecTriangle = ParseChromaticities(strGamut);
    if (!HasArea(vecTriangle))
        throw CToolError(
            QStringLiteral("gamut '%1' has no area; give the corners of a triangle").arg(strGamut));
    return vecTriangle;
}

} // namespace

double ParseNumber(const QString& strNumber, const char* szWhat)
{
    bool bOk = false;
    const double dValue = strNumber.toDouble(&bOk);
    if (!bOk || !std::isfinite(dValue))
        throw CToolError(QStringLiteral("'%1' is not a %2").arg(strNumber, QString::fromLatin1(szWhat)));
    return dValue;
}

QPointF ParseChromaticity(const QString& strPoint)
{
    const QStringList listNumbers = strPoint.split(QLatin1Char(','));
    if (listNumbers.size() != 2)
        throw CToolError(
            QStringLiteral("'%1' is not a chromaticity; write x,y, for example 0.3127,0.3290").arg(strPoint));
    const QPointF pt(ParseNumber(listNumbers[0].trimmed(), "coordinate"),
                     ParseNumber(listNumbers[1].trimmed(), "coordinate"));
    if (!IsCoordinate(pt.x()) || !IsCoordinate(pt.y()))
        throw CToolError(QStringLiteral("chromaticity '%1': x and y must be from 0 to 1").arg(strPoint));
    return pt;
}

std::vector<CPointEx<float>> ParseChromaticities(const QString& strPoints)
{
    std::vector<CPointEx<float>> vecPoints;
    for (const QString& strPoint : strPoints.split(QLatin1Char(';'))) {
        const QPointF pt = ParseChromaticity(strPoint);
        vecPoints.emplace_back(float(pt.x()), float(pt.y()));
    }
    return vecPoints;
}

SChromaticity ParseWhite(const QString& strWhite)
{
    if (strWhite.contains(QLatin1Char(','))) {
        const QPointF pt = ParseChromaticity(strWhite);
        return {pt.x(), pt.y()};
    }
    QStringList listNames;
    for (const SWhitePoint& white : c_arrWhitePoints) {
        listNames += QString::fromLatin1(white.szName);
        if (strWhite.compare(listNames.constLast(), Qt::CaseInsensitive) == 0)
            return white.xy;
    }
    throw CToolError(QStringLiteral("'%1' is not a white point; write x,y or one of: %2")
                         .arg(strWhite, listNames.join(QStringLiteral(", "))));
}

bool HasArea(const std::vector<CPointEx<float>>& vecTriangle)
{
    const CPointEx<float>& ptFirst = vecTriangle[0];
    const CPointEx<float>& ptSecond = vecTriangle[1];
    const CPointEx<float>& ptThird = vecTriangle[2];
    const double dCross = (double(ptSecond.x) - double(ptFirst.x)) * (double(ptThird.y) - double(ptFirst.y)) -
                          (double(ptSecond.y) - double(ptFirst.y)) * (double(ptThird.x) - double(ptFirst.x));
    return std::abs(dCross) / 2.0 >= c_dLeastArea;
}

std::vector<CPointEx<float>> ParseGamut(const QString& strGamut)
{
    if (const SColourStandard* const pStandard = FindColourStandard(strGamut))
        return {pStandard->ptRed, pStandard->ptGreen, pStandard->ptBlue};
    if (!strGamut.contains(QLatin1Char(',')))
        throw CToolError(QStringLiteral("'%1' is not a gamut; write x,y;x,y;x,y or one of: %2")
                             .arg(strGamut, StandardLabels()));
    return ParseTriangle(strGamut);
}
