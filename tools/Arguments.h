#ifndef TOOLS_ARGUMENTS_H
#define TOOLS_ARGUMENTS_H

#include "tools/Subcommand.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

/// An option as it was given.
struct SGivenOption
{
    QString strName; ///< long name, without its dashes
    QString strValue;
};

/// The command line of one subcommand, parsed: `--name VALUE`, `--name=VALUE`, `-n VALUE`, `-nVALUE`, flags,
/// and positional arguments in any order. `--` ends the options. What begins with a dash and a digit is a
/// negative number, so a positional argument. The last of an option given twice counts.
class CArguments
{
public:
    /// Parses what follows the subcommand's name. Throws `CToolError` for unknown options, missing or surplus
    /// values, and a wrong number of positional arguments.
    CArguments(const SSubcommand& subcommand, const QStringList& listWords);

    /// Whether `--help` was given; then nothing else has been looked at.
    bool IsHelpWanted() const { return m_bHelp; }
    /// Whether an option was given.
    bool Has(const char* szOption) const;
    /// The value of an option, the default when it was not given.
    QString Value(const char* szOption, const QString& strDefault = QString()) const;
    /// Every option that was given, in order and with repeats: for options that may be given several times.
    const QVector<SGivenOption>& Given() const { return m_vecGiven; }
    /// The positional arguments, in order.
    const QStringList& Positional() const { return m_listPositional; }

private:
    void Parse(const SSubcommand& subcommand, QStringList listWords);
    void ParseLong(const SSubcommand& subcommand, const QString& strWord, QStringList& listRest);
    void ParseShort(const SSubcommand& subcommand, const QString& strWord, QStringList& listRest);
    void Take(const SSubcommand& subcommand, const SOption& option, const std::optional<QString>& attached,
              QStringList& listRest);
    void CheckCount(const SSubcommand& subcommand) const;

    bool m_bHelp = false;
    QHash<QString, QString> m_mapValues;
    QVector<SGivenOption> m_vecGiven;
    QStringList m_listPositional;
};

/// The text of `sender-tool NAME --help`.
QString HelpText(const SSubcommand& subcommand);

#endif // TOOLS_ARGUMENTS_H
