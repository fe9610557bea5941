#include "tests/tools/ToolRun.h"

#include <QJsonArray>

/// `sender-tool cct`, `gamut` and `locus`.
class TestColourCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cctTurnsOneIntoTheOther_data();
    void cctTurnsOneIntoTheOther();
    void cctRejects_data();
    void cctRejects();
    void gamutTellsTheCoverage_data();
    void gamutTellsTheCoverage();
    void gamutRejects_data();
    void gamutRejects();
    void standardsListsEveryName();
    void standardsPrintsJson();
    void everyListedNameIsUnderstood();
    void locusPrintsEveryPoint_data();
    void locusPrintsEveryPoint();
    void locusPrintsJson();
    void locusRejectsTwoFormats();
};

void TestColourCommands::cctTurnsOneIntoTheOther_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("6500 K is D65") << QByteArrayList{"cct", "6500"} << QByteArray("0.3127000,0.3290000\n");
    QTest::newRow("6500 K exact") << QByteArrayList{"cct", "--exact", "6500"}
                                  << QByteArray("0.3127789,0.3291835\n");
    QTest::newRow("lowest") << QByteArrayList{"cct", "4000"} << QByteArray("0.3823436,0.3837663\n");
    QTest::newRow("D65 is 6500 K") << QByteArrayList{"cct", "0.3127,0.3290"} << QByteArray("6500.00 K\n");
    QTest::newRow("D65 exact") << QByteArrayList{"cct", "0.3127,0.3290", "--exact"}
                               << QByteArray("6505.59 K\n");
    QTest::newRow("blanks do no harm")
        << QByteArrayList{"cct", " 0.3127, 0.3290"} << QByteArray("6500.00 K\n");
}

void TestColourCommands::cctTurnsOneIntoTheOther()
{
    QFETCH(QByteArrayList, words);
    const SToolRun run = RunTool(words);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    QTEST(run.output, "output");
}

void TestColourCommands::cctRejects_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArrayList{} << QByteArray("KELVIN|X,Y");
    QTest::newRow("too low") << QByteArrayList{"3999.9"} << QByteArray("'3999.9' is out of range");
    QTest::newRow("too high") << QByteArrayList{"25000.1"} << QByteArray("'25000.1' is out of range");
    QTest::newRow("negative") << QByteArrayList{"-5"} << QByteArray("'-5' is out of range");
    QTest::newRow("a word") << QByteArrayList{"warm"} << QByteArray("'warm' is no temperature");
    QTest::newRow("not a number") << QByteArrayList{"nan"} << QByteArray("'nan' is no temperature");
    QTest::newRow("beyond the last row")
        << QByteArrayList{"0.25,0.25"} << QByteArray("'0.25,0.25' is out of range");
    QTest::newRow("outside the gate") << QByteArrayList{"0.6,0.3"} << QByteArray("'0.6,0.3' is out of range");
    QTest::newRow("three numbers") << QByteArrayList{"0.3,0.3,0.4"} << QByteArray("is no chromaticity");
    QTest::newRow("no number") << QByteArrayList{"0.3,y"} << QByteArray("'y' is no coordinate");
    QTest::newRow("above 1") << QByteArrayList{"0.3,1.5"} << QByteArray("must be from 0 to 1");
}

void TestColourCommands::cctRejects()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, text);
    VERIFY_BAD_INPUT(RunTool(QByteArrayList{"cct"} + words), text);
}

void TestColourCommands::gamutTellsTheCoverage_data()
{
    QTest::addColumn<QByteArray>("of");
    QTest::addColumn<QByteArray>("by");
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("two standards") << QByteArray("Rec2020") << QByteArray("DCIP3") << QByteArray("71.73 %\n");
    QTest::newRow("names in any case")
        << QByteArray("rec2020") << QByteArray("dcip3") << QByteArray("71.73 %\n");
    QTest::newRow("names as people write them")
        << QByteArray("ITU-R BT.2020") << QByteArray("Display P3") << QByteArray("71.73 %\n");
    QTest::newRow("dashes and dots do not matter")
        << QByteArray("Rec. 2020") << QByteArray("dci-p3") << QByteArray("71.73 %\n");
    QTest::newRow("itself") << QByteArray("NTSC") << QByteArray("NTSC") << QByteArray("100.00 %\n");
    QTest::newRow("inside the other")
        << QByteArray("0.3,0.3;0.35,0.3;0.3,0.35") << QByteArray("sRGB") << QByteArray("100.00 %\n");
    QTest::newRow("apart") << QByteArray("0.3,0.3;0.35,0.3;0.3,0.35") << QByteArray("0.8,0.1;0.9,0.1;0.8,0.2")
                           << QByteArray("0.00 %\n");
    QTest::newRow("a half") << QByteArray("0,0;1,0;0,1") << QByteArray("0,0;0.5,0;0,1")
                            << QByteArray("50.00 %\n");
}

void TestColourCommands::gamutTellsTheCoverage()
{
    QFETCH(QByteArray, of);
    QFETCH(QByteArray, by);
    const SToolRun run = RunTool({"gamut", "--of", of, "--by", by});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    QTEST(run.output, "output");
}

void TestColourCommands::gamutRejects_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("no covering gamut") << QByteArrayList{"--of", "sRGB"} << QByteArray("--by is missing");
    QTest::newRow("no covered gamut") << QByteArrayList{"--by", "sRGB"} << QByteArray("--of is missing");
    QTest::newRow("unknown name") << QByteArrayList{"--of", "sRGB", "--by", "SECAM"}
                                  << QByteArray(
                                         "'SECAM' is no gamut; write x,y;x,y;x,y or one of: sRGB, AdobeRGB");
    QTest::newRow("two points") << QByteArrayList{"--of", "sRGB", "--by", "0,0;1,0"}
                                << QByteArray("has 2 points");
    QTest::newRow("bad point") << QByteArrayList{"--of", "sRGB", "--by", "0,0;1,0;2,1"}
                               << QByteArray("must be from 0 to 1");
    QTest::newRow("no area") << QByteArrayList{"--of", "0,0;0.5,0.5;1,1", "--by", "sRGB"}
                             << QByteArray("gamut '0,0;0.5,0.5;1,1' has no area");
    QTest::newRow("no area to cover with")
        << QByteArrayList{"--of", "sRGB", "--by", "0.1,0.1;0.2,0.2;0.3,0.3"}
        << QByteArray("gamut '0.1,0.1;0.2,0.2;0.3,0.3' has no area");
}

void TestColourCommands::gamutRejects()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, text);
    VERIFY_BAD_INPUT(RunTool(QByteArrayList{"gamut"} + words), text);
}

void TestColourCommands::standardsListsEveryName()
{
    const SToolRun run = RunTool({"standards"});
    QCOMPARE(run.nStatus, 0);
    const QByteArrayList listLines = run.output.split('\n');
    QCOMPARE(listLines.size(), 10); // the heading, eight standards, and the end of the last line
    QVERIFY(listLines[0].startsWith("Name      Red "));
    QCOMPARE(listLines[7],
             QByteArray(
                 "Rec2020   0.708,0.292   0.17,0.797    0.131,0.046   0.3127,0.329  BT.2020, ITU-R BT.2020, "
                 "BT.2100"));
}

void TestColourCommands::standardsPrintsJson()
{
    const QJsonArray standards = QJsonDocument::fromJson(RunTool({"standards", "--json"}).output).array();
    QCOMPARE(standards.size(), 8);
    const QJsonObject last = standards[7].toObject();
    QCOMPARE(last[QStringLiteral("name")].toString(), QStringLiteral("DCIP3"));
    QCOMPARE(last[QStringLiteral("green")].toArray(), (QJsonArray{0.265, 0.69}));
    QCOMPARE(last[QStringLiteral("otherNames")].toArray()[1].toString(), QStringLiteral("Display P3"));
}

void TestColourCommands::everyListedNameIsUnderstood()
{
    const QJsonArray standards = QJsonDocument::fromJson(RunTool({"standards", "--json"}).output).array();
    for (const auto& standard : standards) {
        const QByteArray label = standard[QStringLiteral("name")].toString().toUtf8();
        for (const auto& name : standard[QStringLiteral("otherNames")].toArray())
            QCOMPARE(RunTool({"gamut", "--of", label, "--by", name.toString().toUtf8()}).output,
                     QByteArray("100.00 %\n"));
    }
}

void TestColourCommands::locusPrintsEveryPoint_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<int>("nLines");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("text") << QByteArrayList{"locus"} << 156 << QByteArray("0.1731009 0.0047739\n");
    QTest::newRow("csv") << QByteArrayList{"locus", "--csv"} << 157
                         << QByteArray("x,y\n0.17310094833374023,0.0047738747671246");
}

void TestColourCommands::locusPrintsEveryPoint()
{
    QFETCH(QByteArrayList, words);
    const SToolRun run = RunTool(words);
    QCOMPARE(run.nStatus, 0);
    QTEST(int(run.output.count('\n')), "nLines");
    QFETCH(QByteArray, start);
    QCOMPARE(run.output.left(start.size()), start);
}

void TestColourCommands::locusPrintsJson()
{
    const QJsonArray points = QJsonDocument::fromJson(RunTool({"locus", "--json"}).output).array();
    QCOMPARE(points.size(), 156);
    QCOMPARE(float(points[0].toArray()[1].toDouble()), 0.0047738748F);
}

void TestColourCommands::locusRejectsTwoFormats()
{
    VERIFY_BAD_INPUT(RunTool({"locus", "--csv", "--json"}), "exclude each other");
}

QTEST_GUILESS_MAIN(TestColourCommands)
#include "TestColourCommands.moc"
