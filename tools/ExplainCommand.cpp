#include "tools/ExplainCommand.h"

#include "instruments/edid/ExplanationText.h"
#include "instruments/edid/Writing.h"
#include "tools/Arguments.h"
#include "tools/EdidInput.h"
#include "tools/Output.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <climits>

namespace {

QByteArray Text(const QVector<EdidInput::SSource>& vecSources, const Edid::MakerNames& makerNames)
{
    QString strText;
    for (const EdidInput::SSource& source : vecSources) {
        if (vecSources.size() > 1)
            strText += QStringLiteral("%1%2:\n").arg(strText.isEmpty() ? QString() : QStringLiteral("\n"),
                                                     source.Title());
        strText += Edid::ExplanationText(source.edid.bytes, makerNames);
    }
    return strText.toUtf8();
}

QByteArray Json(const QVector<EdidInput::SSource>& vecSources, const Edid::MakerNames& makerNames)
{
    QJsonArray edids;
    for (const EdidInput::SSource& source : vecSources)
        edids.append(QJsonObject{
            {QStringLiteral("file"), source.strFile},
            {QStringLiteral("name"), source.edid.strName},
            {QStringLiteral("bytes"), Edid::BytesJson(source.edid.bytes)},
            {QStringLiteral("blocks"), Edid::ExplanationJson(source.edid.bytes, makerNames)},
        });
    return QJsonDocument(QJsonObject{{QStringLiteral("edids"), edids}}).toJson();
}

void Run(const CArguments& arguments)
{
    const QVector<EdidInput::SSource> vecSources = EdidInput::ReadAll(arguments);
    const Edid::MakerNames makerNames = EdidInput::LoadMakerNames();
    Output::ToStandardOutput(arguments.Has("json") ? Json(vecSources, makerNames)
                                                   : Text(vecSources, makerNames));
}

} // namespace

SSubcommand ExplainSubcommand()
{
    return {
        "explain",
        "FILE...",
        1,
        INT_MAX,
        "explain every field of an EDID with its bytes",
        "FILE is binary, hexadecimal text (plain, xxd, hexdump -C, a C array, edid-decode), the output of\n"
        "'xrandr --prop', or JSON of this program; '-' is standard input. Each line tells the offset, the\n"
        "bytes, the field and its value; flags that are not set are left out, but not with --json.\n",
        {
            {"display", 0, "NAME", "only the EDID of this display, where a file has several"},
            {"json", 0, nullptr, "print a JSON object with every field"},
        },
        enApplication::enCore,
        &Run,
    };
}
