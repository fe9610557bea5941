#include "tools/Arguments.h"
#include "tools/Output.h"
#include "tools/Report.h"
#include "tools/Subcommand.h"

#include <QApplication>
#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>

namespace {

constexpr int c_nBadInput = 2;

constexpr int c_nSummaryColumn = 12; ///< where the summaries of the help begin

using Subcommands = std::vector<SSubcommand>;

const SSubcommand* Find(const Subcommands& vecSubcommands, const char* szName)
{
    const auto HasName = [=](const SSubcommand& subcommand) {
        return std::strcmp(subcommand.szName, szName) == 0;
    };
    const auto it = std::find_if(vecSubcommands.begin(), vecSubcommands.end(), HasName);
    return it == vecSubcommands.end() ? nullptr : &*it;
}

/// Drops Qt's environment warnings, such as a missing runtime folder: standard error is for the
/// tool's own lines.
void KeepSevere(QtMsgType type, const QMessageLogContext& /*context*/, const QString& strText)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(strText));
}

/// The application gets the program's name alone: every other word is the subcommand's.
std::unique_ptr<QCoreApplication> CreateApplication(enApplication application, char** ppArguments)
{
    static int s_nProgramNameAlone = 1;
    if (application == enApplication::enCore)
        return std::make_unique<QCoreApplication>(s_nProgramNameAlone, ppArguments);
    qInstallMessageHandler(&KeepSevere);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QApplication>(s_nProgramNameAlone, ppArguments);
}

QStringList Words(int nCount, char** ppArguments)
{
    QStringList listWords;
    std::transform(ppArguments, ppArguments + nCount, std::back_inserter(listWords),
                   [](const char* szWord) { return QString::fromLocal8Bit(szWord); });
    return listWords;
}

QStringList Names(const Subcommands& vecSubcommands)
{
    QStringList listNames;
    for (const SSubcommand& subcommand : vecSubcommands)
        listNames += QString::fromLatin1(subcommand.szName);
    return listNames;
}

QString ToolHelp(const Subcommands& vecSubcommands)
{
    QString strHelp = QStringLiteral("Usage: sender-tool SUBCOMMAND [options] arguments\n\nSubcommands:\n");
    for (const SSubcommand& subcommand : vecSubcommands)
        strHelp += QStringLiteral("  %1 %2\n")
                       .arg(QString::fromLatin1(subcommand.szName).leftJustified(c_nSummaryColumn),
                            QString::fromLatin1(subcommand.szSummary));
    return strHelp +
           QStringLiteral(
               "\n'sender-tool help SUBCOMMAND' explains one; 'sender-tool --version' tells the version.\n"
               "Bad input ends with status 2 and one line on standard error.\n");
}

void RunSubcommand(const SSubcommand& subcommand, const QStringList& listWords)
{
    Report::SetSpeaker(QStringLiteral("sender-tool %1").arg(QString::fromLatin1(subcommand.szName)));
    const CArguments arguments(subcommand, listWords);
    if (arguments.IsHelpWanted())
        Output::ToStandardOutput(HelpText(subcommand).toUtf8());
    else
        subcommand.pRun(arguments);
}

[[noreturn]] void ThrowNoSubcommand(const Subcommands& vecSubcommands, const QString& strWord)
{
    const QString strWrong = strWord.isEmpty() ? QStringLiteral("no subcommand")
                                               : QStringLiteral("unknown subcommand '%1'").arg(strWord);
    throw CToolError(QStringLiteral("%1; give one of: %2; see 'sender-tool --help'")
                         .arg(strWrong, Names(vecSubcommands).join(QStringLiteral(", "))));
}

/// `help`, or `help SUBCOMMAND`.
void PrintHelp(const Subcommands& vecSubcommands, const QString& strName)
{
    if (strName.isEmpty())
        return Output::ToStandardOutput(ToolHelp(vecSubcommands).toUtf8());
    const SSubcommand* const pSubcommand = Find(vecSubcommands, qPrintable(strName));
    if (pSubcommand == nullptr)
        ThrowNoSubcommand(vecSubcommands, strName);
    Output::ToStandardOutput(HelpText(*pSubcommand).toUtf8());
}

/// The first word where it is not a subcommand.
void RunWithoutSubcommand(const Subcommands& vecSubcommands, const QStringList& listWords)
{
    const QString strWord = listWords.value(0);
    if (strWord == QLatin1String("--help") || strWord == QLatin1String("-h"))
        return PrintHelp(vecSubcommands, QString());
    if (strWord == QLatin1String("help"))
        return PrintHelp(vecSubcommands, listWords.value(1));
    if (strWord == QLatin1String("--version"))
        return Output::ToStandardOutput("sender-tool " SENDER_TOOL_VERSION "\n");
    ThrowNoSubcommand(vecSubcommands, strWord);
}

void Run(int nCount, char** ppArguments)
{
    const Subcommands vecSubcommands = AllSubcommands();
    const SSubcommand* pSubcommand = nCount > 1 ? Find(vecSubcommands, ppArguments[1]) : nullptr;
    const auto application = CreateApplication(
        pSubcommand != nullptr ? pSubcommand->application : enApplication::enCore, ppArguments);
    const QStringList listWords = Words(nCount, ppArguments);
    if (pSubcommand != nullptr)
        RunSubcommand(*pSubcommand, listWords.mid(2));
    else
        RunWithoutSubcommand(vecSubcommands, listWords.mid(1));
}

} // namespace

int main(int argc, char** argv)
{
    try {
        Run(argc, argv);
        return Report::Status();
    } catch (const CToolError& error) {
        Report::Error(error.Text());
        return c_nBadInput;
    }
}
