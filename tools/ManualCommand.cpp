#include "tools/ManualCommand.h"

#include "tools/Arguments.h"
#include "tools/Output.h"

namespace {

/// A text as troff prints it: no character of it begins a request or an escape, and a dash is the one that
/// can be copied into a shell.
QString Escaped(const char* szText)
{
    QString strText = QString::fromLatin1(szText);
    strText.replace(QLatin1Char('\\'), QLatin1String("\\e"));
    strText.replace(QLatin1Char('-'), QLatin1String("\\-"));
    if (strText.startsWith(QLatin1Char('.')) || strText.startsWith(QLatin1Char('\'')))
        strText.prepend(QLatin1String("\\&"));
    return strText;
}

QString Sentence(const char* szText)
{
    QString strText = Escaped(szText);
    strText[0] = strText[0].toUpper();
    return strText + QLatin1Char('.');
}

QString OptionText(const SOption& option)
{
    QString strTerm;
    if (option.chShort != 0)
        strTerm = QStringLiteral("\\fB\\-%1\\fR, ").arg(QLatin1Char(option.chShort));
    strTerm += QStringLiteral("\\fB\\-\\-%1\\fR").arg(Escaped(option.szName));
    if (option.szValue != nullptr)
        strTerm += QStringLiteral(" \\fI%1\\fR").arg(Escaped(option.szValue));
    return QStringLiteral(".TP\n%1\n%2\n").arg(strTerm, Sentence(option.szHelp));
}

QString SubcommandText(const SSubcommand& subcommand)
{
    QString strText =
        QStringLiteral(".SS \"%1 [options] %2\"\n%3\n")
            .arg(Escaped(subcommand.szName), Escaped(subcommand.szArguments), Sentence(subcommand.szSummary));
    for (const QString& strLine :
         QString::fromLatin1(subcommand.szDetails).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        strText += Escaped(strLine.toLatin1().constData()) + QLatin1Char('\n');
    for (const SOption& option : subcommand.vecOptions)
        strText += OptionText(option);
    return strText;
}

QString Manual()
{
    QString strText = QStringLiteral(R"(.TH SENDER\-TOOL 1 "" "SenderModuleDialog %1"
.SH NAME
sender\-tool \- EDID blocks, video timing and colorimetry for LED walls
.SH SYNOPSIS
.B sender\-tool
.I SUBCOMMAND
[options] arguments
.br
.B sender\-tool help
[\fISUBCOMMAND\fR]
.br
.B sender\-tool \-\-version
.SH SUBCOMMANDS
Every subcommand takes \fB\-\-help\fR. \fB\-\-\fR ends the options.
)")
                          .arg(QStringLiteral(SENDER_TOOL_VERSION));
    for (const SSubcommand& subcommand : AllSubcommands())
        strText += SubcommandText(subcommand);
    return strText + QStringLiteral(R"(.SH EXIT STATUS
0 for success. 2 for bad input or output that cannot be written, with one line on standard error that says what is
wrong and what to do. Where a subcommand has other statuses, its text names them.
)");
}

void Run(const CArguments& /*arguments*/)
{
    Output::ToStandardOutput(Manual().toLatin1());
}

} // namespace

SSubcommand ManualSubcommand()
{
    return {
        "manual",
        "",
        0,
        0,
        "print the manual page",
        "The page is in the format of man: 'sender-tool manual | man -l -' shows it.\n",
        {},
        enApplication::enCore,
        &Run,
    };
}
