#include "tools/CctCommand.h"

#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "instruments/colour/PlanckianLocus.h"
#include "tools/Arguments.h"
#include "tools/Chromaticity.h"
#include "tools/Output.h"
#include "tools/Report.h"
#include "tools/Values.h"

#include <climits>

namespace {

constexpr int c_nCoordinateDecimals = 7; ///< what single precision tells apart between 0.25 and 0.5
constexpr int c_nKelvinDecimals = 2;
constexpr int c_nDuvDecimals = 5;

QString PointText(const QString& strCCT, bool bExact)
{
    const double dCCT = ParseNumber(strCCT, "temperature in kelvin and no chromaticity x,y");
    QPointF pt;
    if (!CCCT2ColorCoord().CCTtoColorCoord(float(dCCT), &pt, bExact))
        throw CToolError(
            QStringLiteral("temperature '%1' is out of range; it must be from 4000 to 25000 kelvin")
                .arg(strCCT));
    return QStringLiteral("%1,%2")
        .arg(pt.x(), 0, 'f', c_nCoordinateDecimals)
        .arg(pt.y(), 0, 'f', c_nCoordinateDecimals);
}

QString DuvText(const PlanckianLocus::STemperature& temperature)
{
    const QString strSign = temperature.dDuv < 0.0 ? QString() : QStringLiteral("+");
    return strSign + QString::number(temperature.dDuv, 'f', c_nDuvDecimals);
}

QString KelvinText(double dKelvin)
{
    return QStringLiteral("%1 K").arg(dKelvin, 0, 'f', c_nKelvinDecimals);
}

[[noreturn]] void ThrowOutOfRange(const QString& strPoint,
                                  const CColourResult<PlanckianLocus::STemperature>& correlated)
{
    const QString strCorrelated = correlated ? QStringLiteral(" (correlated colour temperature %1, Duv %2)")
                                                   .arg(KelvinText(correlated->dKelvin), DuvText(*correlated))
                                             : QString();
    throw CToolError(
        QStringLiteral(
            "chromaticity '%1' is out of range; its temperature is not from 4000 to 25000 kelvin%2")
            .arg(strPoint, strCorrelated));
}

/// The temperatures after the first line, each named for the locus it lies on.
QString NamedTemperatures(const QString& strDaylight,
                          const CColourResult<PlanckianLocus::STemperature>& correlated)
{
    const QString strLines =
        QStringLiteral("Daylight temperature           %1 (nearest on the CIE daylight locus)\n")
            .arg(strDaylight);
    if (!correlated)
        return strLines + QStringLiteral("Correlated colour temperature  none: %1")
                              .arg(QString::fromLatin1(ColourFaultText(correlated.Fault())));
    return strLines +
           QStringLiteral("Correlated colour temperature  %1 (nearest on the Planckian locus, CIE 15)\n"
                          "Duv                            %2 (distance from the Planckian locus in u,v%3)")
               .arg(KelvinText(correlated->dKelvin), DuvText(*correlated),
                    correlated->IsMeaningful() ? QString() : QStringLiteral("; too far to mean much"));
}

/// The temperatures of a chromaticity.
struct STemperatures
{
    QString strDaylight;
    CColourResult<PlanckianLocus::STemperature> correlated;
};

STemperatures TemperaturesOf(const QString& strPoint, bool bExact)
{
    const QPointF pt = ParseChromaticity(strPoint);
    const auto correlated = PlanckianLocus::TemperatureOf({pt.x(), pt.y()});
    float fCCT = 0.0F;
    if (!CCCT2ColorCoord().TriangAlgCalcRelativeCCT(pt, &fCCT, bExact))
        ThrowOutOfRange(strPoint, correlated);
    return {KelvinText(double(fCCT)), correlated};
}

QString AllLines(const STemperatures& temperatures)
{
    return temperatures.strDaylight + QLatin1Char('\n') +
           NamedTemperatures(temperatures.strDaylight, temperatures.correlated);
}

/// The same in one line, which begins as the several lines do.
QString OneLine(const STemperatures& temperatures)
{
    if (!temperatures.correlated)
        return temperatures.strDaylight;
    return QStringLiteral("%1, correlated %2, Duv %3")
        .arg(temperatures.strDaylight, KelvinText(temperatures.correlated->dKelvin),
             DuvText(*temperatures.correlated));
}

using FuncText = QString (*)(const STemperatures& temperatures);

QByteArray Result(const QString& strValue, bool bExact, FuncText pTemperatureText)
{
    const bool bPoint = strValue.contains(QLatin1Char(','));
    return (bPoint ? pTemperatureText(TemperaturesOf(strValue, bExact)) : PointText(strValue, bExact))
        .toLatin1();
}

void Run(const CArguments& arguments)
{
    const bool bExact = arguments.Has("exact");
    const FuncText pTemperatureText = Values::AreMany(arguments) ? &OneLine : &AllLines;
    Output::ToStandardOutput(Values::Lines(Values::Of(arguments), [=](const QString& strValue) {
        return Result(strValue, bExact, pTemperatureText);
    }));
}

} // namespace

SSubcommand CctSubcommand()
{
    return {
        "cct",
        "KELVIN|X,Y...",
        1,
        INT_MAX,
        "turn a colour temperature into a chromaticity, or back",
        "KELVIN, from 4000 to 25000, gives the chromaticity x,y of daylight of that temperature (CIE 1931).\n"
        "X,Y gives the temperature of the nearest daylight, which must lie in the same range, in the first\n"
        "line; then the correlated colour temperature on the Planckian locus, from 1000 to 20000, and the\n"
        "distance Duv from that locus, positive toward green. 6500 K and the D65 point 0.3127,0.3290 give\n"
        "each other.\n"
        "\n"
        "Several values give one line each; '-' stands for the lines of standard input.\n",
        {
            {"exact", 0, nullptr, "calculate also at 6500 K and D65"},
        },
        enApplication::enCore,
        &Run,
    };
}
