#include "tests/tools/ToolRun.h"

class TestToolFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void HelpGoesToStandardOutput_data();
    void HelpGoesToStandardOutput();
    void TheHelpListsEverySubcommand();
    void TheVersionIsPrinted();
    void BadCommandLinesAreOneLineAndStatus2_data();
    void BadCommandLinesAreOneLineAndStatus2();
    void OptionsAreUnderstoodInEveryForm_data();
    void OptionsAreUnderstoodInEveryForm();
    void TheLastOfTwoOptionsCounts();
    void AnErrorStaysOneLineWhateverIsInTheArgument();
    void AFullStandardOutputIsAnError();
};

void TestToolFrame::HelpGoesToStandardOutput_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("tool") << QByteArrayList{"--help"} << QByteArray("Usage: sender-tool SUBCOMMAND ");
    QTest::newRow("tool, short") << QByteArrayList{"-h"} << QByteArray("Usage: sender-tool SUBCOMMAND ");
    QTest::newRow("edid") << QByteArrayList{"edid", "--help"}
                          << QByteArray("Usage: sender-tool edid [options] WIDTHx");
    QTest::newRow("timing") << QByteArrayList{"timing", "-h"}
                            << QByteArray("Usage: sender-tool timing [options] WIDTHx");
    QTest::newRow("help as a word") << QByteArrayList{"help"} << QByteArray("Usage: sender-tool SUBCOMMAND ");
    QTest::newRow("help of a subcommand")
        << QByteArrayList{"help", "timing"} << QByteArray("Usage: sender-tool timing [options] WIDTHx");
    QTest::newRow("help wins over what is wrong")
        << QByteArrayList{"edid", "bad", "--bad", "--help"} << QByteArray("Usage: sender-tool edid");
}

void TestToolFrame::HelpGoesToStandardOutput()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, begin);
    const SToolRun run = RunTool(words);
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.output.left(begin.size()), begin);
}

void TestToolFrame::TheHelpListsEverySubcommand()
{
    const SToolRun run = RunTool({"--help"});
    for (const char* szName : {"  edid ", "  timing ", "  cct ", "  gamut ", "  locus ", "  standards ",
                               "  matrix ", "  wall ", "  chart "})
        QVERIFY2(run.output.contains(szName), run.output.constData());
}

void TestToolFrame::TheVersionIsPrinted()
{
    const SToolRun run = RunTool({"--version"});
    QCOMPARE(run.nStatus, 0);
    QVERIFY2(run.output.startsWith("sender-tool 1."), run.output.constData());
}

void TestToolFrame::BadCommandLinesAreOneLineAndStatus2_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArrayList{} << QByteArray("no subcommand; give one of: edid, timing");
    QTest::newRow("empty word") << QByteArrayList{""}
                                << QByteArray("no subcommand; give one of: edid, timing");
    QTest::newRow("unknown subcommand")
        << QByteArrayList{"edot"} << QByteArray("unknown subcommand 'edot'; give one of: edid");
    QTest::newRow("help of an unknown subcommand")
        << QByteArrayList{"help", "edot"} << QByteArray("unknown subcommand 'edot'; give one of: edid");
    QTest::newRow("option before the subcommand")
        << QByteArrayList{"--json", "edid"} << QByteArray("unknown subcommand '--json'");
    QTest::newRow("no argument") << QByteArrayList{"edid"}
                                 << QByteArray("missing argument: WIDTHxHEIGHT@RATE");
    QTest::newRow("surplus argument")
        << QByteArrayList{"locus", "2x2@2"} << QByteArray("surplus argument '2x2@2'");
    QTest::newRow("unknown long option")
        << QByteArrayList{"edid", "1x1@1", "--jason"} << QByteArray("unknown option '--jason'");
    QTest::newRow("unknown short option")
        << QByteArrayList{"edid", "1x1@1", "-x"} << QByteArray("unknown option '-x'");
    QTest::newRow("option of another subcommand")
        << QByteArrayList{"edid", "1x1@1", "--normal"} << QByteArray("unknown option '--normal'");
    QTest::newRow("missing value") << QByteArrayList{"edid", "1x1@1", "--format"}
                                   << QByteArray("option --format needs a value: FORMAT");
    QTest::newRow("value for a flag")
        << QByteArrayList{"timing", "1x1@1", "--json=yes"} << QByteArray("option --json takes no value");
    QTest::newRow("flags are not joined")
        << QByteArrayList{"locus", "-"} << QByteArray("surplus argument '-'");
    QTest::newRow("after -- all is positional")
        << QByteArrayList{"edid", "--", "--help"} << QByteArray("'--help' is not a video mode");
}

void TestToolFrame::BadCommandLinesAreOneLineAndStatus2()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, text);
    const SToolRun run = RunTool(words);
    VERIFY_BAD_INPUT(run, text);
    QVERIFY2(run.errors.startsWith("sender-tool"), run.errors.constData());
}

void TestToolFrame::OptionsAreUnderstoodInEveryForm_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::newRow("value in the next word") << QByteArrayList{"edid", "1920x1080@60", "--format", "json"};
    QTest::newRow("value after an equals sign") << QByteArrayList{"edid", "1920x1080@60", "--format=json"};
    QTest::newRow("option before the argument") << QByteArrayList{"edid", "--format", "json", "1920x1080@60"};
    QTest::newRow("short option to a device")
        << QByteArrayList{"edid", "--format=json", "1920x1080@60", "-o", "/dev/stdout"};
    QTest::newRow("short option, joined")
        << QByteArrayList{"edid", "--format=json", "1920x1080@60", "-o/dev/stdout"};
    QTest::newRow("a dash is standard output")
        << QByteArrayList{"edid", "--format=json", "1920x1080@60", "-o", "-"};
    QTest::newRow("argument after --") << QByteArrayList{"edid", "--format=json", "--", "1920x1080@60"};
}

void TestToolFrame::OptionsAreUnderstoodInEveryForm()
{
    QFETCH(QByteArrayList, words);
    const SToolRun run = RunTool(words);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    QVERIFY2(run.output.startsWith('{'), run.output.constData());
}

void TestToolFrame::TheLastOfTwoOptionsCounts()
{
    const SToolRun run = RunTool({"edid", "1920x1080@60", "--format=bin", "--format=json"});
    QCOMPARE(run.nStatus, 0);
    QVERIFY2(run.output.startsWith('{'), run.output.constData());
}

void TestToolFrame::AnErrorStaysOneLineWhateverIsInTheArgument()
{
    VERIFY_BAD_INPUT(RunTool({"edid", "1920x1080\n@60\t\x1b[31m"}),
                     "'1920x1080?@60??[31m' is not a video mode");
}

void TestToolFrame::AFullStandardOutputIsAnError()
{
    QProcess process;
    process.setStandardOutputFile(QStringLiteral("/dev/full"));
    process.start(QStringLiteral(SENDER_TOOL), {QStringLiteral("edid"), QStringLiteral("1920x1080@60")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 2);
    const QByteArray errors = process.readAllStandardError();
    QCOMPARE(errors.count('\n'), 1);
    QVERIFY2(errors.contains("cannot write to standard output"), errors.constData());
}

QTEST_GUILESS_MAIN(TestToolFrame)
#include "TestToolFrame.moc"
