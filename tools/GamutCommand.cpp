#include "tools/GamutCommand.h"

#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "instruments/colour/Gamut.h"
#include "tools/Arguments.h"
#include "tools/Chromaticity.h"
#include "tools/Output.h"
#include "tools/Report.h"

namespace {

constexpr double c_dPerCent = 100.0;
constexpr int c_nDecimals = 2;

/// What no ratio is: the calculation leaves it where the gamut to be covered has no area.
constexpr float c_fNoRatio = -1.0F;

QString Wanted(const CArguments& arguments, const char* szOption)
{
    if (!arguments.Has(szOption))
        throw CToolError(
            QStringLiteral("--%1 is missing; give both gamuts, for example --of Rec2020 --by DCIP3")
                .arg(QString::fromLatin1(szOption)));
    return arguments.Value(szOption);
}

SGamut ToDouble(const std::vector<CPointEx<float>>& vecTriangle)
{
    const auto Double = [](CPointEx<float> pt) { return SChromaticity{double(pt.x), double(pt.y)}; };
    return {Double(vecTriangle[0]), Double(vecTriangle[1]), Double(vecTriangle[2])};
}

/// The part of area in the x,y plane, as the chart tells it.
double RatioInXy(std::vector<CPointEx<float>> vecOf, std::vector<CPointEx<float>> vecBy, const QString& strOf)
{
    float fRatio = c_fNoRatio;
    CCalcChromaRatio().CalcChromaRatio(vecBy, vecOf, fRatio);
    if (fRatio == c_fNoRatio)
        throw CToolError(
            QStringLiteral("gamut '%1' has no area, so nothing can cover a part of it").arg(strOf));
    return double(fRatio);
}

/// The part of area in the u',v' plane.
double RatioInUcs(const std::vector<CPointEx<float>>& vecOf, const std::vector<CPointEx<float>>& vecBy,
                  const QString& strOf, const QString& strBy)
{
    const auto coverage = Gamut::CoverageOf(enDiagram::enUcs, ToDouble(vecOf), ToDouble(vecBy));
    if (!coverage)
        throw CToolError(QStringLiteral("gamuts '%1' and '%2' cannot be compared: %3")
                             .arg(strOf, strBy, QString::fromLatin1(ColourFaultText(coverage.Fault()))));
    return coverage->dCovered;
}

void Run(const CArguments& arguments)
{
    const QString strOf = Wanted(arguments, "of");
    const QString strBy = Wanted(arguments, "by");
    const std::vector<CPointEx<float>> vecOf = ParseGamut(strOf);
    const std::vector<CPointEx<float>> vecBy = ParseGamut(strBy);
    const double dRatio =
        arguments.Has("uv") ? RatioInUcs(vecOf, vecBy, strOf, strBy) : RatioInXy(vecOf, vecBy, strOf);
    Output::ToStandardOutput(
        QStringLiteral("%1 %\n").arg(dRatio * c_dPerCent, 0, 'f', c_nDecimals).toLatin1());
}

} // namespace

SSubcommand GamutSubcommand()
{
    return {
        "gamut",
        "",
        0,
        0,
        "tell how much of one gamut another covers, in per cent",
        "GAMUT is the name of a standard, see 'sender-tool standards', or three chromaticities (CIE 1931) "
        "as\n"
        "x,y;x,y;x,y, quoted for the shell. Both must be given. The part is one of area in the x,y plane, "
        "or\n"
        "in the u',v' plane of CIE 1976.\n",
        {
            {"of", 0, "GAMUT", "the gamut that is to be covered"},
            {"by", 0, "GAMUT", "the gamut that covers it"},
            {"uv", 0, nullptr, "compare areas in the u',v' plane of CIE 1976"},
        },
        enApplication::enCore,
        &Run,
    };
}
