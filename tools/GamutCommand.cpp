#include "tools/GamutCommand.h"

#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
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

void Run(const CArguments& arguments)
{
    const QString strOf = Wanted(arguments, "of");
    const QString strBy = Wanted(arguments, "by");
    std::vector<CPointEx<float>> vecOf = ParseGamut(strOf);
    std::vector<CPointEx<float>> vecBy = ParseGamut(strBy);
    float fRatio = c_fNoRatio;
    CCalcChromaRatio().CalcChromaRatio(vecBy, vecOf, fRatio);
    if (fRatio == c_fNoRatio)
        throw CToolError(
            QStringLiteral("gamut '%1' has no area, so nothing can cover a part of it").arg(strOf));
    Output::ToStandardOutput(
        QStringLiteral("%1 %\n").arg(double(fRatio) * c_dPerCent, 0, 'f', c_nDecimals).toLatin1());
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
        "x,y;x,y;x,y, quoted for the shell. Both must be given. The part is one of area in the x,y plane.\n",
        {
            {"of", 0, "GAMUT", "the gamut that is to be covered"},
            {"by", 0, "GAMUT", "the gamut that covers it"},
        },
        enApplication::enCore,
        &Run,
    };
}
