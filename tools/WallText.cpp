#include "tools/WallText.h"

#include "tools/ColourJson.h"

#include <QJsonDocument>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

constexpr int c_nTermColumn = 16; ///< where what is told begins
constexpr int c_nNameColumn = 12;
constexpr int c_nNumberColumn = 11;
constexpr double c_dPerCent = 100.0;

constexpr const char* c_arrColourNames[c_nWallColours] = {"red", "green", "blue", "white"};

QString Line(const char* szTerm, const QString& strText)
{
    return QString::fromLatin1(szTerm).leftJustified(c_nTermColumn) + strText + QLatin1Char('\n');
}

QString PointText(SChromaticity xy)
{
    return QStringLiteral("%1,%2").arg(xy.dX, 0, 'f', 4).arg(xy.dY, 0, 'f', 4);
}

QString LuminanceText(double dLuminance)
{
    return QStringLiteral("%1 cd/m2").arg(dLuminance, 0, 'f', 1);
}

QString SignedPerCent(double dPart)
{
    const QString strSign = dPart < 0.0 ? QString() : QStringLiteral("+");
    return QStringLiteral("%1%2 %").arg(strSign).arg(dPart * c_dPerCent, 0, 'f', 1);
}

QString PerCent(double dPart)
{
    return QStringLiteral("%1 %").arg(dPart * c_dPerCent, 0, 'f', 2);
}

QString FaultLine(const char* szTerm, enColourFault fault)
{
    return Line(szTerm, QStringLiteral("none: %1").arg(QString::fromLatin1(ColourFaultText(fault))));
}

QString MeanText(const ModuleWall::SSpread& spread)
{
    QString strText;
    for (std::size_t i = 0; i < c_nWallColours; ++i)
        strText += Line(i == 0 ? "Mean" : "", QString::fromLatin1(c_arrColourNames[i]).leftJustified(6) +
                                                  PointText(spread.arrMean[i].xy) + QStringLiteral("  ") +
                                                  LuminanceText(spread.arrMean[i].dLuminance));
    return strText;
}

QString TemperatureText(const CColourResult<PlanckianLocus::STemperature>& temperature)
{
    if (!temperature)
        return FaultLine("White's CCT", temperature.Fault());
    return Line("White's CCT", QStringLiteral("%1 K on the Planckian locus, Duv %2%3")
                                   .arg(temperature->dKelvin, 0, 'f', 0)
                                   .arg(temperature->dDuv < 0.0 ? QString() : QStringLiteral("+"))
                                   .arg(temperature->dDuv, 0, 'f', 4));
}

QString SpreadText(const Modules& modules, const ModuleWall::SSpread& spread)
{
    const auto itUcs =
        std::max_element(spread.vecModules.begin(), spread.vecModules.end(),
                         [](const auto& a, const auto& b) { return a.worst.dUcs < b.worst.dUcs; });
    const auto itLuminance = std::max_element(
        spread.vecModules.begin(), spread.vecModules.end(), [](const auto& a, const auto& b) {
            return std::abs(a.worst.dLuminance) < std::abs(b.worst.dLuminance);
        });
    const auto NameOf = [&](auto it) { return modules[std::size_t(it - spread.vecModules.begin())].strName; };
    return Line("Farthest u'v'", QStringLiteral("%1 from the mean, module %2; odd above %3")
                                     .arg(itUcs->worst.dUcs, 0, 'f', 4)
                                     .arg(NameOf(itUcs))
                                     .arg(spread.limit.dUcs, 0, 'f', 4)) +
           Line("Luminance", QStringLiteral("%1 from the mean, module %2; odd above %3")
                                 .arg(SignedPerCent(itLuminance->worst.dLuminance), NameOf(itLuminance),
                                      SignedPerCent(spread.limit.dLuminance)));
}

QString OddText(const ModuleWall::SModuleSpread& module)
{
    if (module.bOddColour && module.bOddLuminance)
        return QStringLiteral("colour and luminance");
    return module.bOddColour ? QStringLiteral("colour") : QStringLiteral("luminance");
}

QString OddModulesText(const Modules& modules, const ModuleWall::SSpread& spread)
{
    QString strText;
    for (std::size_t i = 0; i < modules.size(); ++i) {
        const ModuleWall::SModuleSpread& module = spread.vecModules[i];
        if (module.IsOdd())
            strText += Line(strText.isEmpty() ? "Odd modules" : "",
                            modules[i].strName.leftJustified(c_nNameColumn) +
                                QStringLiteral("u'v' %1  luminance %2  (%3)")
                                    .arg(module.worst.dUcs, 0, 'f', 4)
                                    .arg(SignedPerCent(module.worst.dLuminance), OddText(module)));
    }
    return strText;
}

QString CommonText(const Modules& modules, const CColourResult<ModuleWall::SCommon>& common)
{
    if (!common)
        return FaultLine("Common gamut", common.Fault());
    const char* const szChannel = c_arrColourNames[std::size_t(common->limitingChannel)];
    return Line("Common gamut", QStringLiteral("red %1  green %2  blue %3")
                                    .arg(PointText(common->gamut.red), PointText(common->gamut.green),
                                         PointText(common->gamut.blue))) +
           Line("Common white",
                QStringLiteral("%1 at %2, limited by %3 of module %4")
                    .arg(PointText(common->white), LuminanceText(common->dLevel),
                         QString::fromLatin1(szChannel), modules[common->nLimitingModule].strName));
}

QString Number(const QString& strNumber)
{
    return strNumber.rightJustified(c_nNumberColumn);
}

QString CoverageText(const SWallAnalysis& analysis)
{
    QString strText = Line(
        "Coverage", QStringLiteral("            mean x,y  mean u'v'") +
                        (analysis.commonCoverage ? QStringLiteral(" common x,y common u'v'") : QString()));
    for (std::size_t i = 0; i < Gamut::c_nStandards; ++i) {
        const Gamut::SStandardCoverage& mean = analysis.arrMeanCoverage[i];
        QString strLine = QString::fromLatin1(mean.szName).leftJustified(9) +
                          Number(PerCent(mean.xy.dCovered)) + Number(PerCent(mean.ucs.dCovered));
        if (analysis.commonCoverage)
            strLine += Number(PerCent((*analysis.commonCoverage)[i].xy.dCovered)) + QLatin1Char(' ') +
                       Number(PerCent((*analysis.commonCoverage)[i].ucs.dCovered));
        strText += Line("", strLine);
    }
    return strText;
}

QString FitText(const CColourResult<SStandardFit>& fit)
{
    if (!fit)
        return FaultLine("Standard", fit.Fault());
    QString strText =
        Line("Standard", QStringLiteral("%1, white %2 up to %3, limited by %4; %5 of the colours clip")
                             .arg(QString::fromLatin1(fit->szName), PointText(fit->white),
                                  LuminanceText(fit->greatest.dLevel),
                                  QString::fromLatin1(c_arrColourNames[std::size_t(fit->greatest.limit)]),
                                  PerCent(fit->clip.dClipped)));
    for (std::size_t nRow = 0; nRow < 3; ++nRow) {
        QString strRow;
        for (const double dElement : fit->drive.Row(nRow))
            strRow += Number(QString::number(dElement, 'f', 5));
        strText += Line(nRow == 0 ? "Drive matrix" : "", strRow);
    }
    return strText;
}

QJsonObject CoverageJson(const std::array<Gamut::SStandardCoverage, Gamut::c_nStandards>& arrCoverages)
{
    QJsonObject object;
    for (const Gamut::SStandardCoverage& coverage : arrCoverages)
        object.insert(QString::fromLatin1(coverage.szName),
                      QJsonObject{{QStringLiteral("xy"), coverage.xy.dCovered},
                                  {QStringLiteral("uv"), coverage.ucs.dCovered},
                                  {QStringLiteral("areaRatioXy"), coverage.xy.dAreaRatio},
                                  {QStringLiteral("areaRatioUv"), coverage.ucs.dAreaRatio}});
    return object;
}

QJsonObject DifferenceJson(const ModuleWall::SDifference& difference)
{
    return {{QStringLiteral("uv"), difference.dUcs}, {QStringLiteral("luminance"), difference.dLuminance}};
}

QJsonObject ModuleJson(const SModule& module, const ModuleWall::SModuleSpread& spread)
{
    QJsonObject object = {{QStringLiteral("name"), module.strName},
                          {QStringLiteral("oddColour"), spread.bOddColour},
                          {QStringLiteral("oddLuminance"), spread.bOddLuminance},
                          {QStringLiteral("worst"), DifferenceJson(spread.worst)}};
    for (std::size_t i = 0; i < c_nWallColours; ++i)
        object.insert(QString::fromLatin1(c_arrColourNames[i]), DifferenceJson(spread.arrColours[i]));
    return object;
}

QJsonObject CommonJson(const Modules& modules, const ModuleWall::SCommon& common)
{
    QJsonArray arrIntersection;
    for (const SPlace& place : common.intersection)
        arrIntersection.append(QJsonArray{place.dX, place.dY});
    return {{QStringLiteral("intersection"), arrIntersection},
            {QStringLiteral("red"), ColourJson::Of(common.gamut.red)},
            {QStringLiteral("green"), ColourJson::Of(common.gamut.green)},
            {QStringLiteral("blue"), ColourJson::Of(common.gamut.blue)},
            {QStringLiteral("white"), ColourJson::Of(common.white)},
            {QStringLiteral("level"), common.dLevel},
            {QStringLiteral("limitingModule"), modules[common.nLimitingModule].strName},
            {QStringLiteral("limitingChannel"),
             QString::fromLatin1(c_arrColourNames[std::size_t(common.limitingChannel)])}};
}

QJsonObject FitJson(const SStandardFit& fit)
{
    return {{QStringLiteral("name"), QString::fromLatin1(fit.szName)},
            {QStringLiteral("white"), ColourJson::Of(fit.white)},
            {QStringLiteral("level"), fit.greatest.dLevel},
            {QStringLiteral("driveMatrix"), ColourJson::Of(fit.drive)},
            {QStringLiteral("clipped"), fit.clip.dClipped},
            {QStringLiteral("below"), fit.clip.dBelow},
            {QStringLiteral("above"), fit.clip.dAbove}};
}

QJsonObject MeanJson(const ModuleWall::SSpread& spread)
{
    QJsonObject object;
    for (std::size_t i = 0; i < c_nWallColours; ++i)
        object.insert(QString::fromLatin1(c_arrColourNames[i]), ColourJson::Of(spread.arrMean[i]));
    return object;
}

QJsonArray ModulesJson(const Modules& modules, const SWallAnalysis& analysis)
{
    QJsonArray arrModules;
    for (std::size_t i = 0; i < modules.size(); ++i) {
        QJsonObject object = ModuleJson(modules[i], analysis.spread.vecModules[i]);
        if (analysis.common)
            object.insert(QStringLiteral("matrix"), ColourJson::Of(analysis.common->vecMatrices[i]));
        arrModules.append(object);
    }
    return arrModules;
}

/// A value that could not be calculated is null.
template <class T, class TFunction>
QJsonValue OrNull(const T& result, TFunction funcJson)
{
    return result ? QJsonValue(funcJson(*result)) : QJsonValue();
}

} // namespace

QByteArray WallText::Text(const Modules& modules, const SWallAnalysis& analysis)
{
    const QString strCount =
        QStringLiteral("%1, of which %2 odd").arg(modules.size()).arg(analysis.spread.OddCount());
    const QString strText = Line("Modules", strCount) + MeanText(analysis.spread) +
                            TemperatureText(analysis.temperature) + SpreadText(modules, analysis.spread) +
                            OddModulesText(modules, analysis.spread) + CommonText(modules, analysis.common) +
                            CoverageText(analysis) + FitText(analysis.fit);
    return strText.toUtf8();
}

QByteArray WallText::Json(const Modules& modules, const SWallAnalysis& analysis)
{
    const QJsonObject object = {
        {QStringLiteral("mean"), MeanJson(analysis.spread)},
        {QStringLiteral("limit"), DifferenceJson(analysis.spread.limit)},
        {QStringLiteral("temperature"), OrNull(analysis.temperature,
                                               [](const PlanckianLocus::STemperature& temperature) {
                                                   return QJsonObject{
                                                       {QStringLiteral("kelvin"), temperature.dKelvin},
                                                       {QStringLiteral("duv"), temperature.dDuv}};
                                               })},
        {QStringLiteral("coverage"), CoverageJson(analysis.arrMeanCoverage)},
        {QStringLiteral("commonCoverage"), OrNull(analysis.commonCoverage, &CoverageJson)},
        {QStringLiteral("common"),
         OrNull(analysis.common,
                [&modules](const ModuleWall::SCommon& common) { return CommonJson(modules, common); })},
        {QStringLiteral("standard"), OrNull(analysis.fit, &FitJson)},
        {QStringLiteral("modules"), ModulesJson(modules, analysis)},
    };
    return QJsonDocument(object).toJson();
}
