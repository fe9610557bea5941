#include "tools/DiffCommand.h"

#include "instruments/edid/Difference.h"
#include "tools/Arguments.h"
#include "tools/EdidInput.h"
#include "tools/Output.h"
#include "tools/Report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int c_nStatusDifferent = 1;

QString Offset(int nOffset)
{
    return nOffset < 0 ? QStringLiteral("----")
                       : QStringLiteral("%1").arg(nOffset, 4, 16, QLatin1Char('0')).toUpper();
}

QString Byte(int nByte)
{
    return nByte < 0 ? QStringLiteral("--")
                     : QStringLiteral("%1").arg(nByte, 2, 16, QLatin1Char('0')).toUpper();
}

QString Value(int nOffset, const QString& strValue)
{
    return nOffset < 0 ? QStringLiteral("(not there)") : strValue;
}

QByteArray Text(const QByteArray& first, const QByteArray& second)
{
    QString strText;
    for (const Edid::SFieldDifference& field : Edid::FieldDifferences(first, second))
        strText +=
            QStringLiteral("%1 %2  %3: %4 -> %5\n")
                .arg(Offset(field.nFirstOffset), Offset(field.nSecondOffset), field.strPath,
                     Value(field.nFirstOffset, field.strFirst), Value(field.nSecondOffset, field.strSecond));
    for (const Edid::SByteDifference& byte : Edid::ByteDifferences(first, second))
        strText += QStringLiteral("byte %1: %2 -> %3\n")
                       .arg(Offset(byte.nOffset), Byte(byte.nFirst), Byte(byte.nSecond));
    return strText.toUtf8();
}

QJsonValue OrNull(int nNumber)
{
    return nNumber < 0 ? QJsonValue() : QJsonValue(nNumber);
}

QByteArray Json(const QByteArray& first, const QByteArray& second)
{
    QJsonArray fields;
    for (const Edid::SFieldDifference& field : Edid::FieldDifferences(first, second))
        fields.append(QJsonObject{
            {QStringLiteral("path"), field.strPath},
            {QStringLiteral("firstOffset"), OrNull(field.nFirstOffset)},
            {QStringLiteral("secondOffset"), OrNull(field.nSecondOffset)},
            {QStringLiteral("first"), field.nFirstOffset < 0 ? QJsonValue() : QJsonValue(field.strFirst)},
            {QStringLiteral("second"), field.nSecondOffset < 0 ? QJsonValue() : QJsonValue(field.strSecond)},
        });
    QJsonArray bytes;
    for (const Edid::SByteDifference& byte : Edid::ByteDifferences(first, second))
        bytes.append(QJsonObject{
            {QStringLiteral("offset"), byte.nOffset},
            {QStringLiteral("first"), OrNull(byte.nFirst)},
            {QStringLiteral("second"), OrNull(byte.nSecond)},
        });
    return QJsonDocument(QJsonObject{{QStringLiteral("fields"), fields}, {QStringLiteral("bytes"), bytes}})
        .toJson();
}

void Run(const CArguments& arguments)
{
    const QString strDisplay = arguments.Value("display");
    const QByteArray first = EdidInput::ReadOne(arguments.Positional().at(0), strDisplay).edid.bytes;
    const QByteArray second = EdidInput::ReadOne(arguments.Positional().at(1), strDisplay).edid.bytes;
    Output::ToStandardOutput(arguments.Has("json") ? Json(first, second) : Text(first, second));
    if (first != second)
        Report::SetStatus(c_nStatusDifferent);
}

} // namespace

SSubcommand DiffSubcommand()
{
    return {
        "diff",
        "A B",
        2,
        2,
        "compare two EDIDs by field and by byte",
        "Each line tells the offsets in both, the field and both values; the bytes follow. The status is 0\n"
        "when both are the same, 1 when they are different, 2 when one cannot be read. The files are as\n"
        "'sender-tool explain' takes them.\n",
        {
            {"display", 0, "NAME", "the EDID of this display, where a file has several"},
            {"json", 0, nullptr, "print a JSON object"},
        },
        enApplication::enCore,
        &Run,
    };
}
