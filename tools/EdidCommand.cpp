#include "tools/EdidCommand.h"

#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "tools/Arguments.h"
#include "tools/EdidFormat.h"
#include "tools/Output.h"
#include "tools/Report.h"
#include "tools/StoredMode.h"

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

void Run(const CArguments& arguments)
{
    const SVideoMode mode = ParseVideoMode(arguments.Positional().constFirst());
    const QString strFormat = arguments.Value("format", EdidFormat::Names().constFirst());
    Output::To(arguments.Value("output"), EdidFormat::Format(strFormat, Block(mode), mode));
    for (const QString& strCut : StoredInBlock(mode).BlockCuts())
        Report::Warning(strCut);
}

} // namespace

SSubcommand EdidSubcommand()
{
    return {
        "edid",
        "WIDTHxHEIGHT@RATE",
        1,
        1,
        "build the 128-byte EDID block of a mode",
        "RATE may have a fraction, for example 59.94. The mode gets reduced blanking. What the block\n"
        "cannot hold is cut and said on standard error, one line each.\n",
        {
            {"output", 'o', "FILE", "write to FILE instead of standard output, whole or not at all"},
            {"format", 0, "FORMAT", "hex (default), bin, c or json", "hex bin c json"},
        },
        enApplication::enCore,
        &Run,
    };
}
