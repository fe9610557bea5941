#include "tools/Chromaticity.h"

#include "SenderModuleDialog/colour/ColourStandards.h"
#include "SenderModuleDialog/geometry/Line.h"
#include "instruments/colour/WhitePoint.h"
#include "tools/Report.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

namespace {

constexpr int c_nCorners = 3;

/// The smallest area of a gamut, in the x,y plane: below it the coverage is not calculated.
constexpr double c_dLeastArea = double(c_fGeometryEpsilon);

/// Another name of a standard colour space.
struct SOtherName
{
    const char* szLabel; ///< as `SColourStandard::szName`
    const char* szName;
};

/// Names in use for the same primaries. Display P3 and the DCIP3 of this table both have the white D65.
constexpr SOtherName c_arrOtherNames[] = {
    {"sRGB", "IEC 61966-2-1"}, {"AdobeRGB", "Adobe RGB (1998)"},
    {"Rec601", "BT.601"},      {"Rec601", "ITU-R BT.601"},
    {"Rec709", "BT.709"},      {"Rec709", "ITU-R BT.709"},
    {"Rec2020", "BT.2020"},    {"Rec2020", "ITU-R BT.2020"},
    {"Rec2020", "BT.2100"},    {"DCIP3", "P3"},
    {"DCIP3", "Display P3"},   {"DCIP3", "P3-D65"},
};

/// A name reduced to what tells standards apart: its letters and digits, in lower case.
QString Simplified(const QString& strName)
{
    QString strSimplified;
    std::copy_if(strName.begin(), strName.end(), std::back_inserter(strSimplified),
                 [](QChar ch) { return ch.isLetterOrNumber(); });
    return strSimplified.toLower();
}

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

const SColourStandard* FindStandard(const QString& strName)
{
    const QString strWanted = Simplified(strName);
    const auto HasName = [&strWanted](const SColourStandard& standard) {
        const QStringList listNames = OtherNames(standard) + QStringList{QLatin1String(standard.szName)};
        return std::any_of(listNames.begin(), listNames.end(), [&strWanted](const QString& strOther) {
            return Simplified(strOther) == strWanted;
        });
    };
    const auto* const pEnd = std::end(c_arrColourStandards);
    const auto* const pStandard = std::find_if(std::begin(c_arrColourStandards), pEnd, HasName);
    return pStandard == pEnd ? nullptr : pStandard;
}

QStringList OtherNames(const SColourStandard& standard)
{
    QStringList listNames;
    for (const SOtherName& row : c_arrOtherNames) {
        if (std::strcmp(row.szLabel, standard.szName) == 0)
            listNames += QString::fromLatin1(row.szName);
    }
    return listNames;
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
        throw CToolError(QStringLiteral("'%1' is not a gamut; write x,y;x,y;x,y or one of: %2")
                             .arg(strGamut, StandardLabels()));
    return ParseTriangle(strGamut);
}
