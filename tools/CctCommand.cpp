#include "tools/CctCommand.h"

#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "tools/Arguments.h"
#include "tools/Chromaticity.h"
#include "tools/Output.h"
#include "tools/Report.h"

namespace {

constexpr int c_nCoordinateDecimals = 7; ///< what single precision tells apart between 0.25 and 0.5
constexpr int c_nKelvinDecimals = 2;

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

QString TemperatureText(const QString& strPoint, bool bExact)
{
    float fCCT = 0.0F;
    if (!CCCT2ColorCoord().TriangAlgCalcRelativeCCT(ParseChromaticity(strPoint), &fCCT, bExact))
        throw CToolError(
            QStringLiteral(
                "chromaticity '%1' is out of range; its temperature is not from 4000 to 25000 kelvin")
                .arg(strPoint));
    return QStringLiteral("%1 K").arg(double(fCCT), 0, 'f', c_nKelvinDecimals);
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
        "X,Y gives the correlated colour temperature, which must lie in the same range. 6500 K and the D65\n"
        "point 0.3127,0.3290 give each other.\n",
        {
            {"exact", 0, nullptr, "calculate also at 6500 K and D65"},
        },
        enApplication::enCore,
        &Run,
    };
}
