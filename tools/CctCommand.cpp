#include "tools/CctCommand.h"

#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "instruments/colour/PlanckianLocus.h"
#include "tools/Arguments.h"
#include "tools/Chromaticity.h"
#include "tools/Output.h"
#include "tools/Report.h"

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

QString TemperatureText(const QString& strPoint, bool bExact)
{
    const QPointF pt = ParseChromaticity(strPoint);
    const auto correlated = PlanckianLocus::TemperatureOf({pt.x(), pt.y()});
    float fCCT = 0.0F;
    if (!CCCT2ColorCoord().TriangAlgCalcRelativeCCT(pt, &fCCT, bExact))
        ThrowOutOfRange(strPoint, correlated);
    const QString strDaylight = KelvinText(double(fCCT));
    return strDaylight + QLatin1Char('\n') + NamedTemperatures(strDaylight, correlated);
}

void Run(const CArguments& arguments)
{
    const QString strValue = arguments.Positional().constFirst();
    const bool bExact = arguments.Has("exact");
    const bool bPoint = strValue.contains(QLatin1Char(','));
    const QString strText = bPoint ? TemperatureText(strValue, bExact) : PointText(strValue, bExact);
    Output::ToStandardOutput(strText.toLatin1() + '\n');
}

} // namespace

SSubcommand CctSubcommand()
{
    return {
        "cct",
        "KELVIN|X,Y",
        1,
        1,
        "turn a colour temperature into a chromaticity, or back",
        "KELVIN, from 4000 to 25000, gives the chromaticity x,y of daylight of that temperature (CIE 1931).\n"
        "X,Y gives the temperature of the nearest daylight, which must lie in the same range, in the first\n"
        "line; then the correlated colour temperature on the Planckian locus, from 1000 to 20000, and the\n"
        "distance Duv from that locus, positive toward green. 6500 K and the D65 point 0.3127,0.3290 give\n"
        "each other.\n",
        {
            {"exact", 0, nullptr, "calculate also at 6500 K and D65"},
        },
        enApplication::enCore,
        &Run,
    };
}
