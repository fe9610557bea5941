#include "tools/MatrixCommand.h"

#include "instruments/colour/StandardGamut.h"
#include "instruments/colour/StandardNames.h"
#include "instruments/colour/WallAnalysis.h"
#include "instruments/colour/WhitePoint.h"
#include "tools/Arguments.h"
#include "tools/Chromaticity.h"
#include "tools/ColourJson.h"
#include "tools/Output.h"
#include "tools/Report.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int c_nDecimals = 7;
constexpr int c_nColumn = 12; ///< width of a number
constexpr double c_dPerCent = 100.0;

/// A gamut with its white.
struct SSource
{
    SGamut gamut;
    SChromaticity white;
};

/// A standard brings its decimals and its white; three chromaticities have D65.
SSource ParseSource(const QString& strGamut)
{
    if (const SColourStandard* const pStandard = FindColourStandard(strGamut))
        return {StandardGamut::Primaries(*pStandard), StandardGamut::White(*pStandard)};
    const std::vector<CPointEx<float>> vecPoints = ParseGamut(strGamut);
    return {{StandardGamut::Decimal(vecPoints[0]), StandardGamut::Decimal(vecPoints[1]),
             StandardGamut::Decimal(vecPoints[2])},
            c_arrWhitePoints[0].xy};
}

CColourMatrix ToXyz(const QString& strGamut, const SSource& source)
{
    const auto matrix = Primaries::SourceToXyz(source.gamut, source.white, 1.0);
    if (!matrix)
        throw CToolError(QStringLiteral("gamut '%1' has no matrix: %2")
                             .arg(strGamut, QString::fromLatin1(ColourFaultText(matrix.Fault()))));
    return *matrix;
}

/// What is printed: the matrix, and between two gamuts what it clips.
struct SAnswer
{
    CColourMatrix matrix;
    std::optional<Primaries::SClipShare> clip;
};

SAnswer AnswerTo(const CArguments& arguments)
{
    const QString strFrom = arguments.Positional().constFirst();
    SSource from = ParseSource(strFrom);
    if (arguments.Has("white"))
        from.white = ParseWhite(arguments.Value("white"));
    const CColourMatrix toXyz = ToXyz(strFrom, from);
    if (!arguments.Has("to"))
        return {arguments.Has("inverse") ? toXyz.Inverse() : toXyz, std::nullopt};
    // Both show the same white, so that white stays white.
    const QString strTo = arguments.Value("to");
    const CColourMatrix between = ToXyz(strTo, {ParseSource(strTo).gamut, from.white}).Inverse() * toXyz;
    if (arguments.Has("inverse"))
        return {between.Inverse(), Primaries::ClipShare(between.Inverse(), c_nClipSteps)};
    return {between, Primaries::ClipShare(between, c_nClipSteps)};
}

QByteArray Text(const SAnswer& answer)
{
    QString strText;
    for (std::size_t nRow = 0; nRow < 3; ++nRow) {
        for (const double dElement : answer.matrix.Row(nRow))
            strText += QString::number(dElement, 'f', c_nDecimals).rightJustified(c_nColumn);
        strText += QLatin1Char('\n');
    }
    if (answer.clip)
        strText += QStringLiteral("%1 % of the colours lie outside\n")
                       .arg(answer.clip->dClipped * c_dPerCent, 0, 'f', 2);
    return strText.toLatin1();
}

QByteArray Json(const SAnswer& answer)
{
    QJsonObject object = {{QStringLiteral("matrix"), ColourJson::Of(answer.matrix)}};
    if (answer.clip)
        object.insert(QStringLiteral("clipped"), answer.clip->dClipped);
    return QJsonDocument(object).toJson();
}

void Run(const CArguments& arguments)
{
    const SAnswer answer = AnswerTo(arguments);
    Output::ToStandardOutput(arguments.Has("json") ? Json(answer) : Text(answer));
}

} // namespace

SSubcommand MatrixSubcommand()
{
    return {
        "matrix",
        "GAMUT",
        1,
        1,
        "print the matrix from linear light of a gamut to XYZ or to another gamut",
        "GAMUT is the name of a standard, see 'sender-tool standards', or three chromaticities (CIE 1931) "
        "as\n"
        "x,y;x,y;x,y, quoted for the shell. Rows are X, Y and Z, or red, green and blue of the other gamut;\n"
        "columns are red, green and blue. White has Y = 1 (SMPTE RP 177).\n",
        {
            {"to", 0, "GAMUT", "give values of this gamut, with the same white, instead of XYZ"},
            {"white", 0, "WHITE", "the white: x,y, D65, D50, D55, D75, A, E or DCI; default the standard's"},
            {"inverse", 0, nullptr, "print the inverse"},
            {"json", 0, nullptr, "print JSON with every digit"},
        },
        enApplication::enCore,
        &Run,
    };
}
