#include "tools/EditCommand.h"

#include "instruments/edid/Editing.h"
#include "instruments/edid/Writing.h"
#include "tools/Arguments.h"
#include "tools/EdidInput.h"
#include "tools/Output.h"
#include "tools/Report.h"

#include <algorithm>
#include <iterator>

namespace {

/// One `FIELD=VALUE`.
void Set(QByteArray& edid, const QString& strAssignment)
{
    const int nEquals = int(strAssignment.indexOf(QLatin1Char('=')));
    if (nEquals < 0)
        throw CToolError(QStringLiteral("'%1' is no assignment; write FIELD=VALUE, for example name=Lobby")
                             .arg(strAssignment));
    const QString strKey = strAssignment.left(nEquals);
    const QString strError = Edid::SetValue(edid, strKey, strAssignment.mid(nEquals + 1));
    if (!strError.isEmpty())
        throw CToolError(QStringLiteral("%1: %2").arg(strKey, strError));
}

/// In the order in which they are given; what makes the bytes right comes last.
void Change(QByteArray& edid, const CArguments& arguments)
{
    if (arguments.Has("drop-extensions"))
        Edid::DropExtensions(edid);
    for (const SGivenOption& option : arguments.Given())
        if (option.strName == QLatin1String("set"))
            Set(edid, option.strValue);
    if (arguments.Has("fix"))
        Edid::Fix(edid);
}

QByteArray Binary(const QByteArray& edid)
{
    return edid;
}

QByteArray CSource(const QByteArray& edid)
{
    return Edid::CForm(edid, QStringLiteral("EDID"));
}

struct SForm
{
    const char* szName;
    QByteArray (*pWrite)(const QByteArray& edid);
};

constexpr SForm c_arrForms[] = {
    {"hex", &Edid::HexForm}, {"bin", &Binary}, {"c", &CSource}, {"json", &Edid::JsonForm}};

QByteArray Written(const QByteArray& edid, const QString& strFormat)
{
    const auto HasName = [&](const SForm& form) { return strFormat == QLatin1String(form.szName); };
    const SForm* pForm = std::find_if(std::begin(c_arrForms), std::end(c_arrForms), HasName);
    if (pForm == std::end(c_arrForms))
        throw CToolError(
            QStringLiteral("unknown format '%1'; give one of: hex, bin, c, json").arg(strFormat));
    return pForm->pWrite(edid);
}

void Run(const CArguments& arguments)
{
    QByteArray edid =
        EdidInput::ReadOne(arguments.Positional().constFirst(), arguments.Value("display")).edid.bytes;
    Change(edid, arguments);
    Output::To(arguments.Value("output"), Written(edid, arguments.Value("format", QStringLiteral("hex"))));
}

} // namespace

SSubcommand EditSubcommand()
{
    return {
        "edit",
        "FILE",
        1,
        1,
        "change an EDID, or write it in another form",
        "FIELD is name, serial-text or text (1 to 13 characters), maker (three letters), product, serial\n"
        "(numbers), date (2026 or 2026W12), size (WIDTHxHEIGHT in centimetres, also of the first timing),\n"
        "gamma, primaries (a standard such as sRGB, or x,y;x,y;x,y;x,y of red, green, blue and white), mode\n"
        "(WIDTHxHEIGHT@RATE, the first timing), range (auto, or VMIN-VMAX,HMIN-HMAX,CLOCK in Hz, kHz, MHz).\n"
        "What is not asked for stays bit for bit; a checksum that was right is kept right. What the format\n"
        "cannot hold is refused. FILE is as 'sender-tool explain' takes it.\n",
        {
            {"set", 's', "FIELD=VALUE", "set a field; may be given several times"},
            {"fix", 0, nullptr, "make header, extension count and checksums right"},
            {"drop-extensions", 0, nullptr, "keep the base block alone"},
            {"display", 0, "NAME", "the EDID of this display, where a file has several"},
            {"output", 'o', "FILE", "write to FILE instead of standard output, whole or not at all"},
            {"format", 0, "FORMAT", "hex (default), bin, c or json", "hex bin c json"},
        },
        enApplication::enCore,
        &Run,
    };
}
