#include "tools/Arguments.h"

#include "tools/Report.h"

#include <algorithm>

namespace {

constexpr int c_nHelpColumn = 24; ///< where the explanations of the help begin

const QString c_strHelpLong = QStringLiteral("--help");
const QString c_strHelpShort = QStringLiteral("-h");
const QString c_strEndOfOptions = QStringLiteral("--");

QString Latin(const char* szText)
{
    return QString::fromLatin1(szText);
}

QString SeeHelp(const SSubcommand& subcommand)
{
    return QStringLiteral("see 'sender-tool %1 --help'").arg(Latin(subcommand.szName));
}

[[noreturn]] void ThrowUnknownOption(const SSubcommand& subcommand, const QString& strOption)
{
    throw CToolError(QStringLiteral("unknown option '%1'; %2").arg(strOption, SeeHelp(subcommand)));
}

template <class TPredicate>
const SOption& FindOption(const SSubcommand& subcommand, const QString& strShown, TPredicate predicate)
{
    const auto it = std::find_if(subcommand.vecOptions.begin(), subcommand.vecOptions.end(), predicate);
    if (it == subcommand.vecOptions.end())
        ThrowUnknownOption(subcommand, strShown);
    return *it;
}

bool IsPositional(const QString& strWord)
{
    if (strWord.size() < 2 || !strWord.startsWith(QLatin1Char('-')))
        return true;
    const QChar chSecond = strWord.at(1);
    return chSecond.isDigit() || chSecond == QLatin1Char('.');
}

/// The value written together with its option, or else the next word.
QString TakeValue(const SSubcommand& subcommand, const SOption& option,
                  const std::optional<QString>& attached, QStringList& listRest)
{
    if (option.szValue == nullptr) {
        if (attached)
            throw CToolError(QStringLiteral("option --%1 takes no value; %2")
                                 .arg(Latin(option.szName), SeeHelp(subcommand)));
        return {};
    }
    if (attached)
        return *attached;
    if (listRest.isEmpty())
        throw CToolError(QStringLiteral("option --%1 needs a value: %2; %3")
                             .arg(Latin(option.szName), Latin(option.szValue), SeeHelp(subcommand)));
    return listRest.takeFirst();
}

/// Whether help is asked for anywhere before the end of the options: also beside what is wrong.
bool AsksForHelp(const QStringList& listWords)
{
    const QStringList listOptions = listWords.mid(0, listWords.indexOf(c_strEndOfOptions));
    return listOptions.contains(c_strHelpLong) || listOptions.contains(c_strHelpShort);
}

QString HelpLine(const QString& strTerm, const char* szHelp)
{
    return QStringLiteral("  %1 %2\n").arg(strTerm.leftJustified(c_nHelpColumn), Latin(szHelp));
}

QString OptionTerm(const SOption& option)
{
    QString strTerm =
        option.chShort != 0 ? QStringLiteral("-%1, ").arg(QLatin1Char(option.chShort)) : QString();
    strTerm += QStringLiteral("--") + Latin(option.szName);
    if (option.szValue != nullptr)
        strTerm += QLatin1Char(' ') + Latin(option.szValue);
    return strTerm;
}

} // namespace

CArguments::CArguments(const SSubcommand& subcommand, const QStringList& listWords)
    : m_bHelp(AsksForHelp(listWords))
{
    if (m_bHelp)
        return;
    Parse(subcommand, listWords);
    CheckCount(subcommand);
}

void CArguments::Parse(const SSubcommand& subcommand, QStringList listWords)
{
    while (!listWords.isEmpty()) {
        const QString strWord = listWords.takeFirst();
        if (strWord == c_strEndOfOptions) {
            m_listPositional += listWords;
            return;
        }
        if (IsPositional(strWord))
            m_listPositional += strWord;
        else if (strWord.startsWith(QLatin1String("--")))
            ParseLong(subcommand, strWord, listWords);
        else
            ParseShort(subcommand, strWord, listWords);
    }
}

void CArguments::ParseLong(const SSubcommand& subcommand, const QString& strWord, QStringList& listRest)
{
    const QString strName = strWord.mid(2).section(QLatin1Char('='), 0, 0);
    const auto HasName = [&](const SOption& option) { return strName == QLatin1String(option.szName); };
    const SOption& option = FindOption(subcommand, QStringLiteral("--") + strName, HasName);
    std::optional<QString> attached;
    if (strWord.contains(QLatin1Char('=')))
        attached = strWord.section(QLatin1Char('='), 1);
    Take(subcommand, option, attached, listRest);
}

void CArguments::ParseShort(const SSubcommand& subcommand, const QString& strWord, QStringList& listRest)
{
    const auto HasShort = [&](const SOption& option) { return strWord.at(1) == QLatin1Char(option.chShort); };
    const SOption& option = FindOption(subcommand, strWord.left(2), HasShort);
    std::optional<QString> attached;
    if (strWord.size() > 2)
        attached = strWord.mid(2);
    Take(subcommand, option, attached, listRest);
}

void CArguments::Take(const SSubcommand& subcommand, const SOption& option,
                      const std::optional<QString>& attached, QStringList& listRest)
{
    const QString strValue = TakeValue(subcommand, option, attached, listRest);
    m_mapValues.insert(Latin(option.szName), strValue);
    m_vecGiven.append({Latin(option.szName), strValue});
}

void CArguments::CheckCount(const SSubcommand& subcommand) const
{
    if (m_listPositional.size() < subcommand.nMinArguments)
        throw CToolError(QStringLiteral("missing argument: %1; %2")
                             .arg(Latin(subcommand.szArguments), SeeHelp(subcommand)));
    if (m_listPositional.size() > subcommand.nMaxArguments)
        throw CToolError(QStringLiteral("surplus argument '%1'; %2")
                             .arg(m_listPositional.at(subcommand.nMaxArguments), SeeHelp(subcommand)));
}

bool CArguments::Has(const char* szOption) const
{
    return m_mapValues.contains(Latin(szOption));
}

QString CArguments::Value(const char* szOption, const QString& strDefault) const
{
    return m_mapValues.value(Latin(szOption), strDefault);
}

QString HelpText(const SSubcommand& subcommand)
{
    const QString strArguments = Latin(subcommand.szArguments);
    QString strHelp = QStringLiteral("Usage: sender-tool %1 [options]%2\n\n%3\n\nOptions:\n")
                          .arg(Latin(subcommand.szName),
                               strArguments.isEmpty() ? strArguments : QLatin1Char(' ') + strArguments,
                               Latin(subcommand.szSummary));
    for (const SOption& option : subcommand.vecOptions)
        strHelp += HelpLine(OptionTerm(option), option.szHelp);
    strHelp += HelpLine(QStringLiteral("-h, --help"), "this text");
    const QString strDetails = Latin(subcommand.szDetails);
    return strDetails.isEmpty() ? strHelp : strHelp + QLatin1Char('\n') + strDetails;
}
