#include "tools/StandardsCommand.h"

#include "SenderModuleDialog/colour/ColourStandards.h"
#include "instruments/colour/StandardNames.h"
#include "tools/Arguments.h"
#include "tools/Output.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int c_nNameColumn = 10;  ///< width of the column of names
constexpr int c_nPointColumn = 14; ///< width of a column of chromaticities

/// A coordinate as it is written in the table, without the digits that single precision adds.
QString Written(float fCoordinate)
{
    return QString::number(fCoordinate);
}

QString PointText(const CPointEx<float>& pt)
{
    return Written(pt.x) + QLatin1Char(',') + Written(pt.y);
}

QString Line(const SColourStandard& standard)
{
    QString strLine = QString::fromLatin1(standard.szName).leftJustified(c_nNameColumn);
    for (const CPointEx<float>& pt : {standard.ptRed, standard.ptGreen, standard.ptBlue, standard.ptWhite})
        strLine += PointText(pt).leftJustified(c_nPointColumn);
    return (strLine + OtherNames(standard).join(QStringLiteral(", "))).trimmed() + QLatin1Char('\n');
}

QByteArray Text()
{
    QString strText = QStringLiteral("Name").leftJustified(c_nNameColumn);
    for (const char* szHeading : {"Red", "Green", "Blue", "White"})
        strText += QString::fromLatin1(szHeading).leftJustified(c_nPointColumn);
    strText += QStringLiteral("Other names\n");
    for (const SColourStandard& standard : c_arrColourStandards)
        strText += Line(standard);
    return strText.toLatin1();
}

QJsonArray PointJson(const CPointEx<float>& pt)
{
    return {Written(pt.x).toDouble(), Written(pt.y).toDouble()};
}

QByteArray Json()
{
    QJsonArray arrStandards;
    for (const SColourStandard& standard : c_arrColourStandards)
        arrStandards.append(QJsonObject{
            {QStringLiteral("name"), QString::fromLatin1(standard.szName)},
            {QStringLiteral("otherNames"), QJsonArray::fromStringList(OtherNames(standard))},
            {QStringLiteral("red"), PointJson(standard.ptRed)},
            {QStringLiteral("green"), PointJson(standard.ptGreen)},
            {QStringLiteral("blue"), PointJson(standard.ptBlue)},
            {QStringLiteral("white"), PointJson(standard.ptWhite)},
        });
    return QJsonDocument(arrStandards).toJson();
}

void Run(const CArguments& arguments)
{
    Output::ToStandardOutput(arguments.Has("json") ? Json() : Text());
}

} // namespace

SSubcommand StandardsSubcommand()
{
    return {
        "standards",
        "",
        0,
        0,
        "list the standard colour spaces",
        "The names are those that the other subcommands take. Case, blanks and punctuation in a name make "
        "no\n"
        "difference: DCI-P3, dci p3 and DCIP3 are one. Some chromaticities differ from the published ones:\n"
        "they are those that senders are set up with.\n",
        {
            {"json", 0, nullptr, "print a JSON array"},
        },
        enApplication::enCore,
        &Run,
    };
}
