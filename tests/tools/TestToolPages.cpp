#include "tests/tools/ToolRun.h"

#include <QTemporaryDir>

/// The manual page and the shells' completions that the tool writes of itself.
class TestToolPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheManualTellsOfEverySubcommand();
    void TheManualIsFormattedWithoutAWarning();
    void BashCompletes_data();
    void BashCompletes();
    void ZshTakesTheCompletion();
    void AnUnknownShellIsRejected();

private:
    /// Saves what a run printed.
    /// @return the file's name, empty when the run failed
    QString Saved(const QByteArrayList& listWords) const;

    QTemporaryDir m_folder;
};

namespace {

struct SProgramRun
{
    int nStatus = -1;
    QByteArray output;
    QByteArray errors;
};

SProgramRun RunProgram(const QString& strProgram, const QStringList& listArguments)
{
    QProcess process;
    process.start(strProgram, listArguments);
    SProgramRun run;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit)
        run.nStatus = process.exitCode();
    run.output = process.readAllStandardOutput();
    run.errors = process.readAllStandardError();
    return run;
}

/// The subcommands of the help.
QByteArrayList Subcommands()
{
    QByteArrayList listNames;
    for (const QByteArray& line : RunTool({"help"}).output.split('\n')) {
        if (line.startsWith("  "))
            listNames += line.trimmed().split(' ').constFirst();
    }
    return listNames;
}

} // namespace

QString TestToolPages::Saved(const QByteArrayList& listWords) const
{
    const SToolRun run = RunTool(listWords);
    QFile file(m_folder.filePath(QString::fromLatin1(listWords.join('-'))));
    if (run.nStatus != 0 || !file.open(QIODevice::WriteOnly) || file.write(run.output) != run.output.size())
        return {};
    return file.fileName();
}

void TestToolPages::TheManualTellsOfEverySubcommand()
{
    const QByteArray manual = RunTool({"manual"}).output;
    QVERIFY(Subcommands().size() >= 9);
    for (const QByteArray& name : Subcommands())
        QVERIFY2(manual.contains(".SS \"" + name + " [options]"), name.constData());
}

void TestToolPages::TheManualIsFormattedWithoutAWarning()
{
    const QString strFile = Saved({"manual"});
    QVERIFY(!strFile.isEmpty());
    const SProgramRun run =
        RunProgram(QStringLiteral("groff"), {QStringLiteral("-man"), QStringLiteral("-ww"),
                                             QStringLiteral("-Tutf8"), QStringLiteral("-P-cbou"), strFile});
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.errors, QByteArray());
    QVERIFY(run.output.contains("--format"));
}

void TestToolPages::BashCompletes_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QByteArray>("offers");
    QTest::newRow("a subcommand") << QStringLiteral("sender-tool sta") << QByteArray("standards");
    QTest::newRow("help") << QStringLiteral("sender-tool hel") << QByteArray("help");
    QTest::newRow("the subcommand to explain")
        << QStringLiteral("sender-tool help loc") << QByteArray("locus");
    QTest::newRow("an option") << QStringLiteral("sender-tool chart --back") << QByteArray("--background");
    QTest::newRow("another subcommand's option")
        << QStringLiteral("sender-tool locus --back") << QByteArray();
    QTest::newRow("a value") << QStringLiteral("sender-tool edid --format j") << QByteArray("json");
    QTest::newRow("another subcommand's value")
        << QStringLiteral("sender-tool chart --format s") << QByteArray("svg");
}

void TestToolPages::BashCompletes()
{
    QFETCH(QString, words);
    const QString strFile = Saved({"completion", "bash"});
    QVERIFY(!strFile.isEmpty());
    const QString strScript =
        QStringLiteral(". '%1'; COMP_WORDS=(%2); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); "
                       "_sender_tool; echo \"${COMPREPLY[@]}\"")
            .arg(strFile, words);
    const SProgramRun run = RunProgram(QStringLiteral("bash"), {QStringLiteral("-c"), strScript});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    QTEST(run.output.trimmed(), "offers");
}

void TestToolPages::ZshTakesTheCompletion()
{
    const QString strFile = Saved({"completion", "zsh"});
    QVERIFY(!strFile.isEmpty());
    const SProgramRun run = RunProgram(QStringLiteral("zsh"), {QStringLiteral("-n"), strFile});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
}

void TestToolPages::AnUnknownShellIsRejected()
{
    VERIFY_BAD_INPUT(RunTool({"completion", "fish"}),
                     "no completion for the shell 'fish'; give one of: bash, zsh");
}

QTEST_GUILESS_MAIN(TestToolPages)
#include "TestToolPages.moc"
