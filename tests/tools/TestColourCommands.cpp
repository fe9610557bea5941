#include "tests/tools/ToolRun.h"

#include <QJsonArray>

/// `sender-tool cct`, `gamut`, `matrix` and `locus`.
class TestColourCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CctTurnsOneIntoTheOther_data();
    void CctTurnsOneIntoTheOther();
    void CctTellsWhichTemperatureIsWhich();
    void CctRejects_data();
    void CctRejects();
    void GamutTellsTheCoverage_data();
    void GamutTellsTheCoverage();
    void GamutComparesInEitherPlane();
    void MatrixPrintsRows_data();
    void MatrixPrintsRows();
    void MatrixTellsWhatItClips();
    void MatrixRejects_data();
    void MatrixRejects();
    void GamutRejects_data();
    void GamutRejects();
    void StandardsListsEveryName();
    void StandardsPrintsJson();
    void EveryListedNameIsUnderstood();
    void LocusPrintsEveryPoint_data();
    void LocusPrintsEveryPoint();
    void LocusPrintsJson();
    void LocusRejectsTwoFormats();
};

void TestColourCommands::CctTurnsOneIntoTheOther_data()
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

void TestColourCommands::CctTurnsOneIntoTheOther()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, output);
    const SToolRun run = RunTool(words);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    // Programs read the first line; what follows is for people.
    QCOMPARE(run.output.left(output.size()), output);
}

void TestColourCommands::CctTellsWhichTemperatureIsWhich()
{
    const SToolRun run = RunTool({"cct", "0.3127,0.3290"});
    QCOMPARE(run.nStatus, 0);
    const QByteArrayList listLines = run.output.split('\n');
    QCOMPARE(listLines.size(), 5);
    QVERIFY(listLines[1].startsWith("Daylight temperature           6500.00 K"));
    QVERIFY(listLines[2].startsWith("Correlated colour temperature  6504.39 K"));
    QVERIFY(listLines[3].startsWith("Duv                            +0.00321"));
    QCOMPARE(RunTool({"cct", "6500"}).output.count('\n'), 1);
}

void TestColourCommands::CctRejects_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArrayList{} << QByteArray("KELVIN|X,Y");
    QTest::newRow("too low") << QByteArrayList{"3999.9"} << QByteArray("'3999.9' is out of range");
    QTest::newRow("too high") << QByteArrayList{"25000.1"} << QByteArray("'25000.1' is out of range");
    QTest::newRow("negative") << QByteArrayList{"-5"} << QByteArray("'-5' is out of range");
    QTest::newRow("a word") << QByteArrayList{"warm"} << QByteArray("'warm' is not a temperature");
    QTest::newRow("not a number") << QByteArrayList{"nan"} << QByteArray("'nan' is not a temperature");
    QTest::newRow("beyond the last row")
        << QByteArrayList{"0.25,0.25"} << QByteArray("'0.25,0.25' is out of range");
    QTest::newRow("too warm for daylight, but near a Planckian radiator")
        << QByteArrayList{"0.44758,0.40745"}
        << QByteArray("(correlated colour temperature 2855.54 K, Duv +0.0000");
    QTest::newRow("outside the gate") << QByteArrayList{"0.6,0.3"} << QByteArray("'0.6,0.3' is out of range");
    QTest::newRow("three numbers") << QByteArrayList{"0.3,0.3,0.4"} << QByteArray("is not a chromaticity");
    QTest::newRow("no number") << QByteArrayList{"0.3,y"} << QByteArray("'y' is not a coordinate");
    QTest::newRow("above 1") << QByteArrayList{"0.3,1.5"} << QByteArray("must be from 0 to 1");
}

void TestColourCommands::CctRejects()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, text);
    VERIFY_BAD_INPUT(RunTool(QByteArrayList{"cct"} + words), text);
}

void TestColourCommands::GamutTellsTheCoverage_data()
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

void TestColourCommands::GamutTellsTheCoverage()
{
    QFETCH(QByteArray, of);
    QFETCH(QByteArray, by);
    const SToolRun run = RunTool({"gamut", "--of", of, "--by", by});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    QTEST(run.output, "output");
}

void TestColourCommands::GamutComparesInEitherPlane()
{
    QCOMPARE(RunTool({"gamut", "--of", "Rec2020", "--by", "DCIP3", "--uv"}).output, QByteArray("72.85 %\n"));
    QCOMPARE(RunTool({"gamut", "--of", "NTSC", "--by", "NTSC", "--uv"}).output, QByteArray("100.00 %\n"));
    VERIFY_BAD_INPUT(RunTool({"gamut", "--of", "sRGB", "--by", "0,0;1,0;0,1", "--uv"}), "cannot be compared");
}

void TestColourCommands::MatrixPrintsRows_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("to XYZ") << QByteArrayList{"sRGB"}
                            << QByteArray("   0.4123908   0.3575843   0.1804808\n"
                                          "   0.2126390   0.7151687   0.0721923\n"
                                          "   0.0193308   0.1191948   0.9505322\n");
    QTest::newRow("to itself") << QByteArrayList{"DCIP3", "--to", "DCIP3"} << QByteArray("   1.0000000");
    QTest::newRow("from XYZ") << QByteArrayList{"sRGB", "--inverse"}
                              << QByteArray("   3.2409699  -1.5373832");
    QTest::newRow("another white") << QByteArrayList{"0.68,0.32;0.265,0.69;0.15,0.06", "--white", "DCI"}
                                   << QByteArray("   0.4451698   0.2771344   0.1722827\n");
}

void TestColourCommands::MatrixPrintsRows()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, output);
    const SToolRun run = RunTool(QByteArrayList{"matrix"} + words);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.output.left(output.size()), output);
}

void TestColourCommands::MatrixTellsWhatItClips()
{
    QVERIFY(RunTool({"matrix", "sRGB", "--to", "Rec2020"})
                .output.endsWith("0.00 % of the colours lie outside\n"));
    const QJsonObject json = JsonOf(RunTool({"matrix", "Rec2020", "--to", "sRGB", "--json"}));
    QVERIFY(json[QStringLiteral("clipped")].toDouble() > 0.5);
    QCOMPARE(json[QStringLiteral("matrix")].toArray().size(), 3);
}

void TestColourCommands::MatrixRejects_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("nothing") << QByteArrayList{} << QByteArray("GAMUT");
    QTest::newRow("no gamut") << QByteArrayList{"SECAM"} << QByteArray("'SECAM' is not a gamut");
    QTest::newRow("no white") << QByteArrayList{"sRGB", "--white", "D99"}
                              << QByteArray("'D99' is not a white point; write x,y or one of: D65, D50");
    QTest::newRow("white outside") << QByteArrayList{"sRGB", "--white", "0.7,0.29"}
                                   << QByteArray("the white lies outside the gamut");
    QTest::newRow("no colours") << QByteArrayList{"0,0;1,0;0,1"} << QByteArray("x and y must be above 0");
}

void TestColourCommands::MatrixRejects()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, text);
    VERIFY_BAD_INPUT(RunTool(QByteArrayList{"matrix"} + words), text);
}

void TestColourCommands::GamutRejects_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("no covering gamut") << QByteArrayList{"--of", "sRGB"} << QByteArray("--by is missing");
    QTest::newRow("no covered gamut") << QByteArrayList{"--by", "sRGB"} << QByteArray("--of is missing");
    QTest::newRow("unknown name")
        << QByteArrayList{"--of", "sRGB", "--by", "SECAM"}
        << QByteArray("'SECAM' is not a gamut; write x,y;x,y;x,y or one of: sRGB, AdobeRGB");
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

void TestColourCommands::GamutRejects()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, text);
    VERIFY_BAD_INPUT(RunTool(QByteArrayList{"gamut"} + words), text);
}

void TestColourCommands::StandardsListsEveryName()
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

void TestColourCommands::StandardsPrintsJson()
{
    const QJsonArray standards = QJsonDocument::fromJson(RunTool({"standards", "--json"}).output).array();
    QCOMPARE(standards.size(), 8);
    const QJsonObject last = standards[7].toObject();
    QCOMPARE(last[QStringLiteral("name")].toString(), QStringLiteral("DCIP3"));
    QCOMPARE(last[QStringLiteral("green")].toArray(), (QJsonArray{0.265, 0.69}));
    QCOMPARE(last[QStringLiteral("otherNames")].toArray()[1].toString(), QStringLiteral("Display P3"));
}

void TestColourCommands::EveryListedNameIsUnderstood()
{
    const QJsonArray standards = QJsonDocument::fromJson(RunTool({"standards", "--json"}).output).array();
    for (const auto& standard : standards) {
        const QByteArray label = standard[QStringLiteral("name")].toString().toUtf8();
        for (const auto& name : standard[QStringLiteral("otherNames")].toArray())
            QCOMPARE(RunTool({"gamut", "--of", label, "--by", name.toString().toUtf8()}).output,
                     QByteArray("100.00 %\n"));
    }
}

void TestColourCommands::LocusPrintsEveryPoint_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<int>("nLines");
    QTest::addColumn<QByteArray>("start");
    QTest::newRow("text") << QByteArrayList{"locus"} << 156 << QByteArray("0.1731009 0.0047739\n");
    QTest::newRow("csv") << QByteArrayList{"locus", "--csv"} << 157
                         << QByteArray("x,y\n0.17310094833374023,0.0047738747671246");
}

void TestColourCommands::LocusPrintsEveryPoint()
{
    QFETCH(QByteArrayList, words);
    const SToolRun run = RunTool(words);
    QCOMPARE(run.nStatus, 0);
    QTEST(int(run.output.count('\n')), "nLines");
    QFETCH(QByteArray, start);
    QCOMPARE(run.output.left(start.size()), start);
}

void TestColourCommands::LocusPrintsJson()
{
    const QJsonArray points = QJsonDocument::fromJson(RunTool({"locus", "--json"}).output).array();
    QCOMPARE(points.size(), 156);
    QCOMPARE(float(points[0].toArray()[1].toDouble()), 0.0047738748F);
}

void TestColourCommands::LocusRejectsTwoFormats()
{
    VERIFY_BAD_INPUT(RunTool({"locus", "--csv", "--json"}), "exclude each other");
}

QTEST_GUILESS_MAIN(TestColourCommands)
#include "TestColourCommands.moc"
