#include "tools/CheckCommand.h"

#include "instruments/edid/Rules.h"
#include "tools/Arguments.h"
#include "tools/EdidInput.h"
#include "tools/Output.h"
#include "tools/Report.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <climits>

namespace {

constexpr int c_nStatusErrors = 1;

using Findings = std::vector<Edid::SFinding>;

Findings FindingsOf(const QByteArray& edid)
{
    Findings vecFindings;
    Edid::Check(reinterpret_cast<const quint8*>(edid.constData()), int(edid.size()),
                {QDate::currentDate().year()}, vecFindings);
    return vecFindings;
}

QString SeverityText(Edid::enRule rule)
{
    const bool bError = Edid::RuleOf(rule).severity == Edid::enSeverity::enError;
    return bError ? QStringLiteral("error") : QStringLiteral("warning");
}

QString NameText(Edid::enRule rule)
{
    return QString::fromLatin1(Edid::RuleOf(rule).szName);
}

/// `FILE: error 007F range.clock: what is wrong; what to do`.
QString Line(const QString& strTitle, const Edid::SFinding& finding)
{
    return QStringLiteral("%1: %2 %3 %4: %5; %6\n")
        .arg(strTitle, SeverityText(finding.rule),
             QStringLiteral("%1").arg(finding.nOffset, 4, 16, QLatin1Char('0')).toUpper(),
             NameText(finding.rule), Edid::WrongText(finding), Edid::RemedyText(finding));
}

QJsonObject FindingJson(const Edid::SFinding& finding)
{
    return {
        {QStringLiteral("rule"), NameText(finding.rule)},
        {QStringLiteral("severity"), SeverityText(finding.rule)},
        {QStringLiteral("offset"), finding.nOffset},
        {QStringLiteral("size"), finding.nSize},
        {QStringLiteral("wrong"), Edid::WrongText(finding)},
        {QStringLiteral("remedy"), Edid::RemedyText(finding)},
    };
}

struct SVerdict
{
    QString strText;
    QJsonArray edids;
    bool bErrors = false;
};

SVerdict Judge(const QVector<EdidInput::SSource>& vecSources)
{
    SVerdict verdict;
    for (const EdidInput::SSource& source : vecSources) {
        const Findings vecFindings = FindingsOf(source.edid.bytes);
        verdict.bErrors |= Edid::HasErrors(vecFindings);
        QJsonArray findings;
        for (const Edid::SFinding& finding : vecFindings) {
            verdict.strText += Line(source.Title(), finding);
            findings.append(FindingJson(finding));
        }
        verdict.edids.append(QJsonObject{
            {QStringLiteral("file"), source.strFile},
            {QStringLiteral("name"), source.edid.strName},
            {QStringLiteral("findings"), findings},
        });
    }
    return verdict;
}

QJsonArray RulesJson()
{
    QJsonArray rules;
    for (int i = 0; i < int(Edid::enRule::enCount); ++i) {
        const auto rule = Edid::enRule(i);
        rules.append(QJsonObject{
            {QStringLiteral("rule"), NameText(rule)},
            {QStringLiteral("severity"), SeverityText(rule)},
            {QStringLiteral("wrong"), QString::fromLatin1(Edid::RuleOf(rule).szWrong)},
            {QStringLiteral("remedy"), QString::fromLatin1(Edid::RuleOf(rule).szRemedy)},
        });
    }
    return rules;
}

QString RulesText()
{
    constexpr int c_nNameColumn = 24;
    constexpr int c_nSeverityColumn = 9;
    QString strText;
    for (int i = 0; i < int(Edid::enRule::enCount); ++i) {
        const auto rule = Edid::enRule(i);
        strText += QStringLiteral("%1%2%3; %4\n")
                       .arg(NameText(rule).leftJustified(c_nNameColumn),
                            SeverityText(rule).leftJustified(c_nSeverityColumn),
                            QString::fromLatin1(Edid::RuleOf(rule).szWrong),
                            QString::fromLatin1(Edid::RuleOf(rule).szRemedy));
    }
    return strText;
}

QByteArray JsonObject(const char* szKey, const QJsonArray& values)
{
    return QJsonDocument(QJsonObject{{QString::fromLatin1(szKey), values}}).toJson();
}

void Run(const CArguments& arguments)
{
    const bool bJson = arguments.Has("json");
    if (arguments.Has("rules")) {
        Output::ToStandardOutput(bJson ? JsonObject("rules", RulesJson()) : RulesText().toUtf8());
        return;
    }
    if (arguments.Positional().isEmpty())
        throw CToolError(QStringLiteral("missing argument: FILE...; see 'sender-tool check --help'"));
    const SVerdict verdict = Judge(EdidInput::ReadAll(arguments));
    Output::ToStandardOutput(bJson ? JsonObject("edids", verdict.edids) : verdict.strText.toUtf8());
    if (verdict.bErrors)
        Report::SetStatus(c_nStatusErrors);
}

} // namespace

SSubcommand CheckSubcommand()
{
    return {
        "check",
        "FILE...",
        0,
        INT_MAX,
        "find what is wrong with an EDID",
        "Each line tells the severity, the offset, the rule, what is wrong and what to do. The status is 0\n"
        "without an error, 1 with errors, 2 when a file cannot be read; warnings alone are no error. FILE "
        "is\n"
        "as 'sender-tool explain' takes it.\n",
        {
            {"rules", 0, nullptr, "list every rule instead"},
            {"display", 0, "NAME", "only the EDID of this display, where a file has several"},
            {"json", 0, nullptr, "print a JSON object"},
        },
        enApplication::enCore,
        &Run,
    };
}
