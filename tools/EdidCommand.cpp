#include "tools/EdidCommand.h"

#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "instruments/edid/BlockCuts.h"
#include "instruments/edid/Conforming.h"
#include "tools/Arguments.h"
#include "tools/EdidFormat.h"
#include "tools/Output.h"
#include "tools/Report.h"
#include "tools/StoredMode.h"
#include "tools/Values.h"

#include <climits>

namespace {

QByteArray Block(const SVideoMode& mode)
{
    CEDIDRaw edid;
    edid.ChangeWH(mode.nWidth, mode.nHeight, mode.fRate);
    return QByteArray(reinterpret_cast<const char*>(&edid), sizeof edid);
}

CStoredMode StoredInBlock(const SVideoMode& mode)
{
    tagSBlankTiming blank = {};
    CEDIDRaw().CalCVTtiming(mode.nWidth, mode.nHeight, mode.fRate, 0, 1, 0, &blank);
    return {mode, blank};
}

/// Width and height in whole centimetres, as `60x34`.
void ParseSize(const QString& strSize, Edid::SConformRequest& request)
{
    const QStringList listNumbers = strSize.split(QLatin1Char('x'), Qt::KeepEmptyParts, Qt::CaseInsensitive);
    bool bWidth = false;
    bool bHeight = false;
    request.nWidthCm = listNumbers.value(0).toInt(&bWidth);
    request.nHeightCm = listNumbers.value(1).toInt(&bHeight);
    if (!bWidth || !bHeight || listNumbers.size() != 2)
        throw CToolError(
            QStringLiteral("'%1' is no size; write WIDTHxHEIGHT in centimetres, for example 60x34")
                .arg(strSize));
}

/// A block that any computer accepts, or two.
QByteArray ConformingBlocks(const CArguments& arguments, const SVideoMode& mode)
{
    Edid::SConformRequest request = {mode.nWidth, mode.nHeight, mode.fRate, QStringLiteral("LED"), {}, 0, 0};
    request.strMaker = arguments.Value("maker", request.strMaker);
    request.strName = arguments.Value("name");
    if (arguments.Has("name") && request.strName.isEmpty())
        throw CToolError(QStringLiteral("the name is empty; give 1 to 13 characters"));
    if (arguments.Has("size-cm"))
        ParseSize(arguments.Value("size-cm"), request);
    const Edid::SConformResult result = Edid::MakeConforming(request);
    if (!result.strError.isEmpty())
        throw CToolError(QStringLiteral("%1: %2").arg(DescribeVideoMode(mode), result.strError));
    return result.edid;
}

/// What only a conforming block takes.
void RejectConformOptions(const CArguments& arguments)
{
    for (const char* szOption : {"maker", "name", "size-cm"})
        if (arguments.Has(szOption))
            throw CToolError(
                QStringLiteral("option --%1 needs --conform").arg(QString::fromLatin1(szOption)));
}

/// The EDID that the options ask for.
QByteArray EdidOf(const CArguments& arguments, const SVideoMode& mode)
{
    return arguments.Has("conform") ? ConformingBlocks(arguments, mode) : Block(mode);
}

/// What the block of a mode cannot hold; a conforming one holds everything.
QStringList Cuts(const CArguments& arguments, const SVideoMode& mode)
{
    return arguments.Has("conform") ? QStringList() : Edid::BlockCuts(StoredInBlock(mode).InBlock());
}

void RunOne(const CArguments& arguments, const QString& strFormat)
{
    const SVideoMode mode = ParseVideoMode(arguments.Positional().constFirst());
    const QByteArray edid = EdidOf(arguments, mode);
    Output::To(arguments.Value("output"), EdidFormat::Format(strFormat, edid, mode));
    for (const QString& strCut : Cuts(arguments, mode))
        Report::Warning(strCut);
}

void RunMany(const CArguments& arguments, const QString& strFormat)
{
    QStringList listWarnings;
    const QByteArray lines = Values::Lines(Values::Of(arguments), [&](const QString& strMode) {
        const SVideoMode mode = ParseVideoMode(strMode);
        for (const QString& strCut : Cuts(arguments, mode))
            listWarnings += QStringLiteral("mode '%1': %2").arg(strMode, strCut);
        return EdidFormat::Line(strFormat, EdidOf(arguments, mode), mode);
    });
    Output::To(arguments.Value("output"), lines);
    for (const QString& strWarning : listWarnings)
        Report::Warning(strWarning);
}

void Run(const CArguments& arguments)
{
    if (!arguments.Has("conform"))
        RejectConformOptions(arguments);
    const QString strFormat = arguments.Value("format", EdidFormat::Names().constFirst());
    if (Values::AreMany(arguments))
        RunMany(arguments, strFormat);
    else
        RunOne(arguments, strFormat);
}

} // namespace

SSubcommand EdidSubcommand()
{
    return {
        "edid",
        "WIDTHxHEIGHT@RATE...",
        1,
        INT_MAX,
        "build the 128-byte EDID block of a mode",
        "RATE may have a fraction, for example 59.94. The mode gets reduced blanking. What the block\n"
        "cannot hold is cut and said on standard error, one line each.\n"
        "\n"
        "--conform makes an EDID that any computer accepts instead: letters for the maker, a terminated "
        "name,\n"
        "range limits that contain the mode. A mode wider or higher than 4095, or with a clock above\n"
        "655.35 MHz, gets a second block, DisplayID; the base block then offers 1920x1080 at 60 Hz.\n"
        "\n"
        "Several modes give a line each, in the formats hex and json; '-' stands for the lines of standard\n"
        "input.\n",
        {
            {"output", 'o', "FILE", "write to FILE instead of standard output, whole or not at all"},
            {"conform", 0, nullptr, "make an EDID that any computer accepts"},
            {"maker", 0, "LETTERS", "the maker's three letters, LED without this option; with --conform"},
            {"name", 0, "NAME", "the display's name, at most 13 characters; with --conform"},
            {"size-cm", 0, "WIDTHxHEIGHT", "the display's size in centimetres; with --conform"},
            {"format", 0, "FORMAT", "hex (default), bin, c or json", "hex bin c json"},
        },
        enApplication::enCore,
        &Run,
    };
}
