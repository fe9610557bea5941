#include "tests/tools/ToolRun.h"

#include <QJsonArray>
#include <QTemporaryDir>

/// `sender-tool wall`, on the wall that the documents show and on files of its own.
class TestWallCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void TheDocumentedWallIsAnalysed();
    void TheOddModulesAreNamed();
    void JsonHoldsAMatrixForEachModule();
    void StandardAndWhiteAreTaken();
    void AWhiteThatNoModuleReachesIsTold();
    void BadInputIsOneLine_data();
    void BadInputIsOneLine();

private:
    QByteArray Save(const char* szName, const QByteArray& content)
    {
        QFile file(m_folder.filePath(QString::fromLatin1(szName)));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", szName);
        return file.fileName().toUtf8();
    }

    QTemporaryDir m_folder;
    QByteArray m_wall; ///< the file of the documented wall
};

void TestWallCommand::initTestCase()
{
    QProcess script;
    script.start(QStringLiteral(SENDER_MAKE_WALL), QStringList());
    QVERIFY(script.waitForFinished());
    m_wall = Save("wall.csv", script.readAllStandardOutput());
}

void TestWallCommand::TheDocumentedWallIsAnalysed()
{
    const SToolRun run = RunTool({"wall", m_wall, "--standard", "DCIP3"});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    QVERIFY(run.output.startsWith("Modules         64, of which 2 odd\n"));
    for (const char* szTerm :
         {"\nMean  ", "\nWhite's CCT  ", "\nFarthest u'v'  ", "\nLuminance  ", "\nCommon gamut  ",
          "\nCommon white  ", "\nCoverage  ", "\nStandard        DCIP3", "\nDrive matrix  "})
        QVERIFY2(run.output.contains(szTerm), szTerm);
}

void TestWallCommand::TheOddModulesAreNamed()
{
    const QByteArray output = RunTool({"wall", m_wall}).output;
    QVERIFY(output.contains("\nOdd modules     D6 "));
    QVERIFY(output.contains("\n                F4 "));
    QVERIFY(output.contains("(colour and luminance)"));
}

void TestWallCommand::JsonHoldsAMatrixForEachModule()
{
    const QJsonObject json = JsonOf(RunTool({"wall", m_wall, "--json"}));
    const QJsonArray modules = json[QStringLiteral("modules")].toArray();
    QCOMPARE(modules.size(), 64);
    int nOdd = 0;
    for (const QJsonValue& module : modules) {
        QCOMPARE(module[QStringLiteral("matrix")].toArray().size(), 3);
        nOdd +=
            module[QStringLiteral("oddColour")].toBool() || module[QStringLiteral("oddLuminance")].toBool();
    }
    QCOMPARE(nOdd, 2);
    QCOMPARE(json[QStringLiteral("coverage")].toObject().size(), 8);
    QVERIFY(json[QStringLiteral("common")][QStringLiteral("level")].toDouble() > 500.0);
}

void TestWallCommand::StandardAndWhiteAreTaken()
{
    const QJsonObject json =
        JsonOf(RunTool({"wall", m_wall, "--standard", "BT.2020", "--white", "D50", "--json"}));
    const QJsonValue standard = json[QStringLiteral("standard")];
    QCOMPARE(standard[QStringLiteral("name")].toString(), QStringLiteral("Rec2020"));
    QCOMPARE(standard[QStringLiteral("white")].toArray()[0].toDouble(), 0.34567);
    QVERIFY(standard[QStringLiteral("clipped")].toDouble() > 0.0);
}

void TestWallCommand::AWhiteThatNoModuleReachesIsTold()
{
    const SToolRun run = RunTool({"wall", m_wall, "--white", "0.70,0.29"});
    QCOMPARE(run.nStatus, 0);
    QVERIFY(run.output.contains("\nCommon gamut    none: the white lies outside the gamut\n"));
}

void TestWallCommand::BadInputIsOneLine_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("text");
    const QByteArray heading = "module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY\n";
    const QByteArray good = Save("good.csv", heading + "1,0.69,0.305,240,0.19,0.72,800,0.14,0.055,75\n");
    QTest::newRow("no file") << QByteArrayList{} << QByteArray("missing argument: FILE.csv");
    QTest::newRow("a file that is not there")
        << QByteArrayList{"/nowhere/wall.csv"} << QByteArray("cannot read '/nowhere/wall.csv'");
    QTest::newRow("a folder") << QByteArrayList{"/"} << QByteArray("cannot read '/'");
    QTest::newRow("a wrong number")
        << QByteArrayList{Save("bad.csv", heading + "1,0.69,0.3o5,240,0.19,0.72,800,0.14,0.055,75\n")}
        << QByteArray("bad.csv', line 2, column 3: '0.3o5' is not a number");
    QTest::newRow("unknown standard")
        << QByteArrayList{good, "--standard", "SECAM"} << QByteArray("unknown standard 'SECAM'");
    QTest::newRow("unknown white") << QByteArrayList{good, "--white", "D99"}
                                   << QByteArray("'D99' is not a white point");
}

void TestWallCommand::BadInputIsOneLine()
{
    QFETCH(QByteArrayList, words);
    QFETCH(QByteArray, text);
    VERIFY_BAD_INPUT(RunTool(QByteArrayList{"wall"} + words), text);
}

QTEST_GUILESS_MAIN(TestWallCommand)
#include "TestWallCommand.moc"
