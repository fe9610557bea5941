#include "tools/Chromaticity.h"

#include "SenderModuleDialog/colour/ColourStandards.h"
#include "tools/Report.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr int c_nCorners = 3;

bool IsCoordinate(double dValue)
{
    return 0.0 <= dValue && dValue <= 1.0;
}

std::vector<CPointEx<float>> ParseTriangle(const QString& strGamut)
{
    // Counted first: a surplus or a missing point is the likelier slip.
    const int nPoints = strGamut.count(QLatin1Char(';')) + 1;
    if (nPoints != c_nCorners)
        throw CToolError(QStringLiteral("gamut '%1' has %2 points; write three as x,y;x,y;x,y")
                             .arg(strGamut)
                             .arg(nPoints));
    return ParseChromaticities(strGamut);
}

} // namespace

double ParseNumber(const QString& strNumber, const char* szWhat)
{
    bool bOk = false;
    const double dValue = strNumber.toDouble(&bOk);
    if (!bOk || !std::isfinite(dValue))
        throw CToolError(QStringLiteral("'%1' is no %2").arg(strNumber, QString::fromLatin1(szWhat)));
    return dValue;
}

QPointF ParseChromaticity(const QString& strPoint)
{
    const QStringList listNumbers = strPoint.split(QLatin1Char(','));
    if (listNumbers.size() != 2)
        throw CToolError(
            QStringLiteral("'%1' is no chromaticity; write x,y, for example 0.3127,0.3290").arg(strPoint));
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

const SColourStandard* FindStandard(const QString& strLabel)
{
    const auto* const pEnd = std::end(c_arrColourStandards);
    const auto* const pStandard =
        std::find_if(std::begin(c_arrColourStandards), pEnd, [&strLabel](const SColourStandard& standard) {
            return strLabel.compare(QLatin1String(standard.szName), Qt::CaseInsensitive) == 0;
        });
    return pStandard == pEnd ? nullptr : pStandard;
}

QString StandardLabels()
{
    QStringList listLabels;
    for (const SColourStandard& standard : c_arrColourStandards)
        listLabels += QString::fromLatin1(standard.szName);
    return listLabels.join(QStringLiteral(", "));
}

std::vector<CPointEx<float>> ParseGamut(const QString& strGamut)
{
    if (const SColourStandard* const pStandard = FindStandard(strGamut))
        return {pStandard->ptRed, pStandard->ptGreen, pStandard->ptBlue};
    if (!strGamut.contains(QLatin1Char(',')))
        throw CToolError(QStringLiteral("'%1' is no gamut; write x,y;x,y;x,y or one of: %2")
                             .arg(strGamut, StandardLabels()));
    return ParseTriangle(strGamut);
}
