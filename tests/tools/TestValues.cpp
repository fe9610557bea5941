#include "tests/tools/ToolRun.h"

/// Several values, as arguments or on standard input: one line of the result for each.
class TestValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SeveralValuesGiveALineEach_data();
    void SeveralValuesGiveALineEach();
    void TheLinesOfStandardInputAreValues_data();
    void TheLinesOfStandardInputAreValues();
    void EmptyLinesAreLeftOutAndStillCounted();
    void AnErrorNamesTheLine_data();
    void AnErrorNamesTheLine();
    void AnErrorAmongArgumentsNamesTheValue();
    void NothingOnStandardInputIsAnError();
    void AWarningNamesItsMode();
    void AFormOfSeveralLinesIsRefused_data();
    void AFormOfSeveralLinesIsRefused();
    void JsonObjectsAreLines_data();
    void JsonObjectsAreLines();
};

void TestValues::SeveralValuesGiveALineEach_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArrayList>("begins");
    QTest::newRow("temperatures") << QByteArrayList{"cct", "6500", "4000"}
                                  << QByteArrayList{"0.3127000,0.3290000", "0.3823436,0.3837663"};
    QTest::newRow("points") << QByteArrayList{"cct", "0.3127,0.3290", "0.31,0.33"}
                            << QByteArrayList{"6500.00 K, correlated 6504.39 K, Duv +0.00321", "66"};
    QTest::newRow("both") << QByteArrayList{"cct", "6500", "0.3127,0.3290", "--exact"}
                          << QByteArrayList{"0.3127789,0.3291835", "6505.59 K, correlated "};
    QTest::newRow("timings") << QByteArrayList{"timing", "1920x1080@60", "1280x720@50"}
                             << QByteArrayList{"Modeline \"1920x1080_60.00\"", "Modeline \"1280x720_50.00\""};
    QTest::newRow("blocks") << QByteArrayList{"edid", "1920x1080@60", "1280x720@50"}
                            << QByteArrayList{"00ffffffffffff00", "00ffffffffffff00"};
}

void TestValues::SeveralValuesGiveALineEach()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArrayList, begins);
    const SToolRun run = RunTool(words);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    const QByteArrayList listLines = run.output.split('\n');
    QCOMPARE(listLines.size(), begins.size() + 1);
    for (int i = 0; i < begins.size(); ++i)
        QVERIFY2(listLines[i].startsWith(begins[i]), listLines[i].constData());
}

void TestValues::TheLinesOfStandardInputAreValues_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("input");
    QTest::newRow("cct") << QByteArrayList{"cct"} << QByteArray("0.31,0.33\n6500");
    QTest::newRow("one line") << QByteArrayList{"cct"} << QByteArray("0.3127,0.3290\n");
    QTest::newRow("lines of Windows") << QByteArrayList{"cct"} << QByteArray("6500\r\n5000\r\n");
    QTest::newRow("timing") << QByteArrayList{"timing"} << QByteArray("1920x1080@60\n1280x720@50\n");
    QTest::newRow("edid") << QByteArrayList{"edid", "--format", "json"}
                          << QByteArray("1920x1080@60\n1280x720@50\n");
}

void TestValues::TheLinesOfStandardInputAreValues()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, input);
    QByteArrayList listValues;
    for (const QByteArray& line : input.trimmed().split('\n'))
        listValues += line.trimmed();
    const SToolRun run = RunTool(words + QByteArrayList{"-"}, input);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.output.count('\n'), listValues.size());
    if (listValues.size() > 1)
        QCOMPARE(run.output, RunTool(words + listValues).output);
}

void TestValues::EmptyLinesAreLeftOutAndStillCounted()
{
    const SToolRun run = RunTool({"cct", "-"}, "6500\n\n  \n5000\n");
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.output.count('\n'), 2);
    VERIFY_BAD_INPUT(RunTool({"cct", "-"}, "6500\n\nwarm\n"), "line 3: 'warm' is not a temperature");
}

void TestValues::AnErrorNamesTheLine_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("cct") << QByteArrayList{"cct"} << QByteArray("6500\n0.3,y\n")
                         << QByteArray("line 2: 'y' is not");
    QTest::newRow("timing") << QByteArrayList{"timing"} << QByteArray("1920x1080\n")
                            << QByteArray("line 1: '1920x1080' is not a video mode");
    QTest::newRow("edid") << QByteArrayList{"edid"} << QByteArray("1920x1080@60\n0x0@60\n")
                          << QByteArray("line 2: mode '0x0@60'");
}

void TestValues::AnErrorNamesTheLine()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, text);
    VERIFY_BAD_INPUT(RunTool(words + QByteArrayList{"-"}, input), text);
}

void TestValues::AnErrorAmongArgumentsNamesTheValue()
{
    VERIFY_BAD_INPUT(RunTool({"cct", "6500", "warm"}), "'warm' is not a temperature");
}

void TestValues::NothingOnStandardInputIsAnError()
{
    VERIFY_BAD_INPUT(RunTool({"cct", "-"}, "\n \n"), "standard input holds no values; write one a line");
}

void TestValues::AWarningNamesItsMode()
{
    const SToolRun run = RunTool({"edid", "1920x1080@60", "8192x1080@60"});
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.output.count('\n'), 2);
    QVERIFY2(run.errors.contains("warning: mode '8192x1080@60': the width 8192"), run.errors.constData());
}

void TestValues::AFormOfSeveralLinesIsRefused_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("binary") << QByteArrayList{"edid", "--format", "bin"} << QByteArray("give one mode");
    QTest::newRow("an array of C") << QByteArrayList{"edid", "--format", "c"} << QByteArray("give one mode");
    QTest::newRow("another standard")
        << QByteArrayList{"timing", "--standard", "cvt"} << QByteArray("or --json");
    QTest::newRow("all standards") << QByteArrayList{"timing", "--compare"} << QByteArray("or --json");
}

void TestValues::AFormOfSeveralLinesIsRefused()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, text);
    VERIFY_BAD_INPUT(RunTool(words + QByteArrayList{"1920x1080@60", "1280x720@50"}), text);
}

void TestValues::JsonObjectsAreLines_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::newRow("timing") << QByteArrayList{"timing", "--json"};
    QTest::newRow("timing of a standard") << QByteArrayList{"timing", "--json", "--standard", "cvt"};
    QTest::newRow("block") << QByteArrayList{"edid", "--format", "json"};
}

void TestValues::JsonObjectsAreLines()
{
    QFETCH(QByteArrayList, words);
    const QByteArrayList listModes = {"1920x1080@60", "1280x720@50"};
    const QByteArrayList listLines = RunTool(words + listModes).output.split('\n');
    QCOMPARE(listLines.size(), 3);
    for (int i = 0; i < 2; ++i)
        QCOMPARE(QJsonDocument::fromJson(listLines[i]).object(),
                 JsonOf(RunTool(words + QByteArrayList{listModes[i]})));
}

QTEST_MAIN(TestValues)
#include "TestValues.moc"
