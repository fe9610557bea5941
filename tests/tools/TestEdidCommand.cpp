#include "tests/tools/ToolRun.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

namespace {

const QByteArray c_hex1080p60 = "00 FF FF FF FF FF FF 00 7B DE 00 00 01 01 01 01\n"
                                "00 1B 01 03 81 00 00 78 0A C0 01 AF 50 30 B6 23\n"
                                "0D 50 54 01 00 00 01 01 01 01 01 01 01 01 01 01\n"
                                "01 01 01 01 01 01 29 36 80 A0 70 38 1F 40 30 20\n"
                                "35 00 00 00 00 00 00 1A 00 00 00 FF 00 30 30 30\n"
                                "0A 20 20 20 20 20 20 20 20 20 00 00 00 FC 00 4C\n"
                                "45 44 20 31 39 32 30 58 31 30 38 30 00 00 00 FD\n"
                                "00 17 78 1E 99 11 00 0A 20 20 20 20 20 20 00 22\n";

/// Runs the tool where a file may not hold a single byte.
const QString c_strWithoutRoom =
    QStringLiteral("trap '' XFSZ; ulimit -f 0; exec \"$0\" edid 800x600@60 -o \"$1\"");

QByteArray Block1080p60()
{
    return QByteArray::fromHex(c_hex1080p60);
}

QByteArray ContentOf(const QString& strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestEdidCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AConformingEdidHasNoFinding_data();
    void AConformingEdidHasNoFinding();
    void WhatCannotConformIsRefused();
    void TheBlockIsPrintedAsEightLinesOfHex();
    void EveryFormatHoldsTheSameBytes_data();
    void EveryFormatHoldsTheSameBytes();
    void TheJsonSaysTheModeToo();
    void FractionalRatesAreAccepted_data();
    void FractionalRatesAreAccepted();
    void BadModesAreRejected_data();
    void BadModesAreRejected();
    void AnUnknownFormatIsRejected();
    void AFileIsWrittenWhole();
    void AFileIsReplaced();
    void AnUnwritableFileIsAnError_data();
    void AnUnwritableFileIsAnError();
    void AFailedRunLeavesTheOldFileAndNothingElse();
    void AFullDeviceIsAnError();
    void ADeviceStaysADevice();
    void WhatTheFormatCutsIsSaid_data();
    void WhatTheFormatCutsIsSaid();
};

void TestEdidCommand::TheBlockIsPrintedAsEightLinesOfHex()
{
    const SToolRun run = RunTool({"edid", "1920x1080@60"});
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.output, c_hex1080p60);
}

void TestEdidCommand::EveryFormatHoldsTheSameBytes_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QByteArray>("expected");
    QByteArray source =
        "/* EDID 1.3 base block of 1920x1080 at 60 Hz */\nstatic const unsigned char edid[128] = {";
    const QByteArray block = Block1080p60();
    for (int nByte = 0; nByte < block.size(); ++nByte) {
        source += nByte % 8 == 0 ? "\n    " : " ";
        source += "0x" + block.mid(nByte, 1).toHex().toUpper() + ",";
    }
    source.chop(1);
    QTest::newRow("hex") << QByteArray("hex") << c_hex1080p60;
    QTest::newRow("bin") << QByteArray("bin") << block;
    QTest::newRow("c") << QByteArray("c") << source + "\n};\n";
}

void TestEdidCommand::EveryFormatHoldsTheSameBytes()
{
    QFETCH(QByteArray, format);
    const SToolRun run = RunTool({"edid", "1920x1080@60", "--format", format});
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.errors, QByteArray());
    QTEST(run.output, "expected");
}

void TestEdidCommand::TheJsonSaysTheModeToo()
{
    const SToolRun run = RunTool({"edid", "1920x1080@60", "--format", "json"});
    const QJsonObject object = JsonOf(run);
    QCOMPARE(object.value(QLatin1String("width")).toInt(), 1920);
    QCOMPARE(object.value(QLatin1String("height")).toInt(), 1080);
    QCOMPARE(object.value(QLatin1String("rate")).toDouble(), 60.0);
    QByteArray bytes;
    for (const QJsonValue value : object.value(QLatin1String("bytes")).toArray())
        bytes += char(value.toInt());
    QCOMPARE(bytes, Block1080p60());
}

void TestEdidCommand::FractionalRatesAreAccepted_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<int>("clock"); // units of 10 kHz: (width + 160) x (height + blank) x rate
    QTest::newRow("59.94") << QByteArray("1920x1080@59.94") << 13851;
    QTest::newRow("29.97") << QByteArray("1920x1080@29.97") << 6832;
    QTest::newRow("23.976") << QByteArray("1920x1080@23.976") << 5455;
    QTest::newRow("60.00") << QByteArray("1920x1080@60.00") << 13865;
    QTest::newRow("capital X") << QByteArray("1920X1080@60") << 13865;
    QTest::newRow("leading zeros") << QByteArray("01920x01080@060") << 13865;
}

void TestEdidCommand::FractionalRatesAreAccepted()
{
    QFETCH(QByteArray, mode);
    const SToolRun run = RunTool({"edid", mode, "--format", "bin"});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    QTEST(quint8(run.output[0x36]) | quint8(run.output[0x37]) << 8, "clock");
}

void TestEdidCommand::BadModesAreRejected_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QByteArray>("text");
    const auto NoMode = [](const char* szMode) {
        QTest::newRow(szMode) << QByteArray(szMode)
                              << QByteArray("'") + szMode +
                                     "' is not a video mode; write WIDTHxHEIGHT@RATE, for example";
    };
    const auto OutOfRange = [](const char* szMode, const char* szWhat) {
        QTest::newRow(szMode) << QByteArray(szMode)
                              << QByteArray("mode '") + szMode + "': the " + szWhat +
                                     " is out of range; it must be above 0 and at most 65535";
    };
    for (const char* szMode : {"",
                               "1920",
                               "1920x1080",
                               "1920@60",
                               "x1080@60",
                               "1920x@60",
                               "1920x1080@",
                               "1920x1080@60Hz",
                               " 1920x1080@60",
                               "1920x1080@60 ",
                               "1920 x 1080 @ 60",
                               "1920x1080x3@60",
                               "1920x1080@60@60",
                               "19.5x1080@60",
                               "1920x1080@6e1",
                               "1920x1080@.5",
                               "1920x1080@60.",
                               "1920x1080@1.2.3",
                               "1920x1080@nan",
                               "1920x1080@inf",
                               "0x780x438@60",
                               "1920x1080@60,5",
                               "+1920x1080@60"})
        NoMode(szMode);
    OutOfRange("0x1080@60", "width 0");
    OutOfRange("1920x0@60", "height 0");
    OutOfRange("1920x1080@0", "rate 0");
    OutOfRange("1920x1080@0.000", "rate 0.000");
    OutOfRange("-1920x1080@60", "width -1920");
    OutOfRange("1920x-1080@60", "height -1080");
    OutOfRange("1920x1080@-60", "rate -60");
    OutOfRange("1920x1080@-0", "rate -0");
    OutOfRange("65536x1080@60", "width 65536");
    OutOfRange("1920x65536@60", "height 65536");
    OutOfRange("1920x1080@65536", "rate 65536");
    OutOfRange("1920x1080@65535.5", "rate 65535.5");
    OutOfRange("99999999999999999999x1080@60", "width 99999999999999999999");
    OutOfRange("1920x1080@99999999999999999999999999999999999999999",
               "rate 99999999999999999999999999999999999999999");
    OutOfRange("1920x1080@0.0000000000000000000000000000000000000000000000000001",
               "rate 0.0000000000000000000000000000000000000000000000000001");
}

void TestEdidCommand::BadModesAreRejected()
{
    QFETCH(QByteArray, mode);
    QFETCH(QByteArray, text);
    VERIFY_BAD_INPUT(RunTool({"edid", mode}), text);
}

void TestEdidCommand::AnUnknownFormatIsRejected()
{
    VERIFY_BAD_INPUT(RunTool({"edid", "1920x1080@60", "--format", "xml"}),
                     "unknown format 'xml'; give one of: hex, bin, c, json");
    VERIFY_BAD_INPUT(RunTool({"edid", "1920x1080@60", "--format", ""}), "unknown format ''");
}

void TestEdidCommand::AFileIsWrittenWhole()
{
    QTemporaryDir folder;
    const QString strFile = folder.filePath(QStringLiteral("输入 1.bin"));
    const SToolRun run = RunTool({"edid", "1920x1080@60", "--format", "bin", "-o", strFile.toUtf8()});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.output, QByteArray());
    QCOMPARE(ContentOf(strFile), Block1080p60());
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TestEdidCommand::AFileIsReplaced()
{
    QTemporaryDir folder;
    const QString strFile = folder.filePath(QStringLiteral("edid.hex"));
    QCOMPARE(RunTool({"edid", "3840x2160@30", "--format", "c", "-o", strFile.toUtf8()}).nStatus, 0);
    QCOMPARE(RunTool({"edid", "1920x1080@60", "-o", strFile.toUtf8()}).nStatus, 0);
    QCOMPARE(ContentOf(strFile), c_hex1080p60);
}

void TestEdidCommand::AnUnwritableFileIsAnError_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("no such folder") << QByteArray("/nonexistent/edid.bin")
                                    << QByteArray("cannot write '/nonexistent/edid.bin': ");
    QTest::newRow("a folder") << QByteArray("/") << QByteArray("cannot write '/': ");
    QTest::newRow("no name") << QByteArray("") << QByteArray("the name of the output file is empty");
    QTest::newRow("a system that takes no files")
        << QByteArray("/proc/edid.bin") << QByteArray("cannot write '/proc/edid.bin': ");
}

void TestEdidCommand::AnUnwritableFileIsAnError()
{
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, text);
    VERIFY_BAD_INPUT(RunTool({"edid", "1920x1080@60", "-o", file}), text);
}

void TestEdidCommand::AFailedRunLeavesTheOldFileAndNothingElse()
{
    QTemporaryDir folder;
    const QString strFile = folder.filePath(QStringLiteral("edid.hex"));
    QCOMPARE(RunTool({"edid", "1920x1080@60", "-o", strFile.toUtf8()}).nStatus, 0);
    QCOMPARE(RunTool({"edid", "1920x1080@0", "-o", strFile.toUtf8()}).nStatus, 2);
    QCOMPARE(RunTool({"edid", "800x600@60", "--format", "xml", "-o", strFile.toUtf8()}).nStatus, 2);
    QCOMPARE(ContentOf(strFile), c_hex1080p60);

    // No room for a single byte: the new file is given up and the old one stays.
    QProcess process;
    process.start(QStringLiteral("sh"),
                  {QStringLiteral("-c"), c_strWithoutRoom, QStringLiteral(SENDER_TOOL), strFile});
    QVERIFY(process.waitForFinished());
    const QByteArray errors = process.readAllStandardError();
    QCOMPARE(process.exitCode(), 2);
    QCOMPARE(errors.count('\n'), 1);
    QVERIFY2(errors.contains("cannot write"), errors.constData());
    QCOMPARE(ContentOf(strFile), c_hex1080p60);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("edid.hex")});
}

void TestEdidCommand::AFullDeviceIsAnError()
{
    VERIFY_BAD_INPUT(RunTool({"edid", "1920x1080@60", "-o", "/dev/full"}), "cannot write '/dev/full': ");
}

void TestEdidCommand::ADeviceStaysADevice()
{
    const SToolRun run = RunTool({"edid", "1920x1080@60", "-o", "/dev/null"});
    QCOMPARE(run.nStatus, 0);
    QVERIFY(!QFileInfo(QStringLiteral("/dev/null")).isFile());
}

void TestEdidCommand::WhatTheFormatCutsIsSaid_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QByteArrayList>("expected");

    const auto Add = [](const char* szName, const char* szMode, const QByteArrayList& listExpected) {
        QTest::newRow(szName) << QByteArray(szMode) << listExpected;
    };
    Add("nothing is cut", "1920x1080@60", {});
    Add("170.00 MHz is what the block declares", "1920x1080@73.106", {});
    Add("above what the block declares", "1920x1080@120",
        {"the pixel clock of 285.54 MHz is above the 170.00 MHz that the block declares"});
    Add("width", "4096x8@60", {"the width 4096 needs more than 12 bits; the block holds 0"});
    Add("height", "8x4097@60", {"the height 4097 needs more than 12 bits; the block holds 1"});
    Add("name", "10000x10000@1",
        {"the width 10000 needs more than 12 bits; the block holds 1808",
         "the height 10000 needs more than 12 bits; the block holds 1808",
         "the monitor name is longer than its 13 characters; the block holds 'LED10000X1000'"});
    Add("clock", "3840x2160@120",
        {"the pixel clock of 1097.76 MHz is above 655.35 MHz; its low 16 bits are stored: 442.40 MHz",
         "the pixel clock of 1097.76 MHz is above the 170.00 MHz that the block declares"});
    Add("clock below the unit", "1x1@1",
        {"the pixel clock of 3220 Hz is below the unit of 10 kHz; 0 is stored"});
    Add("170.01 MHz is more", "1920x1080@73.11",
        {"the pixel clock of 170.01 MHz is above the 170.00 MHz that the block declares"});
    Add("blanking", "8x4095@1087",
        {"the vertical blanking 4096 needs more than 12 bits; the block holds 0",
         "the pixel clock of 1495.80 MHz is above 655.35 MHz; its low 16 bits are stored: 185.08 MHz",
         "the pixel clock of 1495.80 MHz is above the 170.00 MHz that the block declares"});
}

void TestEdidCommand::WhatTheFormatCutsIsSaid()
{
    QFETCH(QByteArray, mode);
    QFETCH(QByteArrayList, expected);
    const SToolRun run = RunTool({"edid", mode});
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.output.count('\n'), 8);
    QByteArrayList listLines = run.errors.split('\n');
    QCOMPARE(listLines.takeLast(), QByteArray());
    const QByteArray begin = "sender-tool edid: warning: ";
    for (QByteArray& line : listLines) {
        QVERIFY2(line.startsWith(begin), line.constData());
        line.remove(0, begin.size());
    }
    QCOMPARE(listLines, expected);
}

void TestEdidCommand::AConformingEdidHasNoFinding_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<int>("blocks");
    QTest::newRow("one block") << QByteArray("3072x1728@60") << 1;
    QTest::newRow("a wide wall") << QByteArray("7680x1080@60") << 2;
}

void TestEdidCommand::AConformingEdidHasNoFinding()
{
    QFETCH(QByteArray, mode);
    QFETCH(int, blocks);
    QTemporaryDir folder;
    const QByteArray file = folder.filePath(QStringLiteral("edid.bin")).toUtf8();
    const SToolRun run = RunTool({"edid", mode, "--conform", "--maker", "ABC", "--name", "Lobby", "--size-cm",
                                  "200x50", "--format", "bin", "-o", file});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(ContentOf(QString::fromUtf8(file)).size(), 128 * blocks);
    const SToolRun check = RunTool({"check", file});
    QCOMPARE(check.output, QByteArray());
    QCOMPARE(check.nStatus, 0);
}

void TestEdidCommand::WhatCannotConformIsRefused()
{
    VERIFY_BAD_INPUT(RunTool({"edid", "1920x1080@60", "--conform", "--maker", "LED1"}),
                     "the maker 'LED1' is not three letters");
    VERIFY_BAD_INPUT(RunTool({"edid", "1920x1080@60", "--conform", "--size-cm", "60"}), "'60' is no size");
    VERIFY_BAD_INPUT(RunTool({"edid", "64x64@60", "--conform"}), "64x64 at 60 Hz: the pixel clock of ");
    VERIFY_BAD_INPUT(RunTool({"edid", "1920x1080@60", "--name", "Lobby"}), "option --name needs --conform");
}

QTEST_GUILESS_MAIN(TestEdidCommand)
#include "TestEdidCommand.moc"
