#include "tools/CompletionCommand.h"

#include "tools/Arguments.h"
#include "tools/Output.h"
#include "tools/Report.h"

#include <QStringList>

#include <algorithm>
#include <cstring>

namespace {

QString Latin(const char* szText)
{
    return QString::fromLatin1(szText);
}

/// Words as a shell's list.
QString Joined(const QStringList& listWords)
{
    return listWords.join(QLatin1Char(' '));
}

QStringList SubcommandNames()
{
    QStringList listNames;
    for (const SSubcommand& subcommand : AllSubcommands())
        listNames += Latin(subcommand.szName);
    return listNames;
}

/// The spellings of an option: `--output`, and `-o` where it has a short name.
QStringList Spellings(const SOption& option)
{
    QStringList listSpellings = {QStringLiteral("--") + Latin(option.szName)};
    if (option.chShort != 0)
        listSpellings += QStringLiteral("-") + QLatin1Char(option.chShort);
    return listSpellings;
}

QStringList OptionWords(const SSubcommand& subcommand)
{
    QStringList listWords = {QStringLiteral("--help"), QStringLiteral("-h")};
    for (const SOption& option : subcommand.vecOptions)
        listWords += Spellings(option);
    return listWords;
}

/// A bash case for each subcommand, or for each option with choices.
QString BashOptions()
{
    QString strCases;
    for (const SSubcommand& subcommand : AllSubcommands())
        strCases += QStringLiteral("    %1) options='%2' ;;\n")
                        .arg(Latin(subcommand.szName), Joined(OptionWords(subcommand)));
    return strCases;
}

QString BashChoices()
{
    QString strCases;
    for (const SSubcommand& subcommand : AllSubcommands()) {
        for (const SOption& option : subcommand.vecOptions) {
            if (option.szChoices != nullptr)
                strCases += QStringLiteral("    %1:--%2) choices='%3' ;;\n")
                                .arg(Latin(subcommand.szName), Latin(option.szName), Latin(option.szChoices));
        }
    }
    return strCases;
}

QString Bash()
{
    return QStringLiteral(R"(# bash completion for sender-tool
_sender_tool()
{
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} command=${COMP_WORDS[1]}
    local options= choices=
    if [ "$COMP_CWORD" -eq 1 ]; then
        COMPREPLY=($(compgen -W '%1 help --help --version' -- "$word"))
        return
    fi
    if [ "$command" = help ]; then
        COMPREPLY=($(compgen -W '%1' -- "$word"))
        return
    fi
    case $command in
%2    esac
    case $command:$previous in
%3    esac
    if [ -n "$choices" ]; then
        COMPREPLY=($(compgen -W "$choices" -- "$word"))
    elif [ "${word#-}" != "$word" ]; then
        COMPREPLY=($(compgen -W "$options" -- "$word"))
    fi
}
complete -o bashdefault -o default -F _sender_tool sender-tool
)")
        .arg(Joined(SubcommandNames()), BashOptions(), BashChoices());
}

/// A text for the brackets of an entry in zsh's list of options, which stands in single quotes.
QString ZshText(const char* szText)
{
    QString strText = Latin(szText);
    strText.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    for (const char ch : {'[', ']', ':'})
        strText.replace(QLatin1Char(ch), QLatin1Char('\\') + QString(QLatin1Char(ch)));
    return strText;
}

/// What zsh offers for an option's value.
QString ZshValue(const SOption& option)
{
    if (option.szValue == nullptr)
        return {};
    if (option.szChoices != nullptr)
        return QStringLiteral(":%1:(%2)").arg(Latin(option.szValue), Latin(option.szChoices));
    return QStringLiteral(":%1:%2").arg(Latin(option.szValue), std::strcmp(option.szValue, "FILE") == 0
                                                                   ? QStringLiteral("_files")
                                                                   : QStringLiteral(" "));
}

QString ZshOptions()
{
    QString strCases;
    for (const SSubcommand& subcommand : AllSubcommands()) {
        strCases += QStringLiteral("    %1)\n        _arguments '(-)--help[this text]' \\\n")
                        .arg(Latin(subcommand.szName));
        for (const SOption& option : subcommand.vecOptions) {
            for (const QString& strSpelling : Spellings(option))
                strCases += QStringLiteral("            '*%1[%2]%3' \\\n")
                                .arg(strSpelling, ZshText(option.szHelp), ZshValue(option));
        }
        strCases += QStringLiteral("            '*:argument:_files' ;;\n");
    }
    return strCases;
}

QString ZshSubcommands()
{
    QString strLines;
    for (const SSubcommand& subcommand : AllSubcommands())
        strLines +=
            QStringLiteral("        '%1:%2'\n").arg(Latin(subcommand.szName), ZshText(subcommand.szSummary));
    return strLines;
}

QString Zsh()
{
    return QStringLiteral(R"(#compdef sender-tool
_sender_tool()
{
    local -a subcommands
    subcommands=(
%1        'help:explain a subcommand'
    )
    if (( CURRENT == 2 )); then
        _describe subcommand subcommands
        return
    fi
    local command=$words[2]
    shift words
    (( CURRENT-- ))
    case $command in
    help)
        _describe subcommand subcommands ;;
%2    esac
}
_sender_tool "$@"
)")
        .arg(ZshSubcommands(), ZshOptions());
}

/// The shells, and what each is given.
struct SShell
{
    const char* szName;
    QString (*pScript)();
};

constexpr SShell c_arrShells[] = {
    {"bash", &Bash},
    {"zsh", &Zsh},
};

void Run(const CArguments& arguments)
{
    const QString strShell = arguments.Positional().constFirst();
    const auto* const pEnd = std::end(c_arrShells);
    const auto* const pShell = std::find_if(std::begin(c_arrShells), pEnd, [&strShell](const SShell& shell) {
        return strShell == QLatin1String(shell.szName);
    });
    if (pShell == pEnd)
        throw CToolError(
            QStringLiteral("no completion for the shell '%1'; give one of: bash, zsh").arg(strShell));
    Output::ToStandardOutput(pShell->pScript().toLatin1());
}

} // namespace

SSubcommand CompletionSubcommand()
{
    return {
        "completion",
        "bash|zsh",
        1,
        1,
        "print what makes a shell complete this tool's command lines",
        "For the running bash: source <(sender-tool completion bash). The packages install both scripts.\n",
        {},
        enApplication::enCore,
        &Run,
    };
}
