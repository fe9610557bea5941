#include "tests/tools/ToolRun.h"

namespace {

QJsonObject TimingOf(const QByteArrayList& listWords)
{
    return JsonOf(RunTool(QByteArrayList{"timing", "--json"} + listWords));
}

QVector<int> AxisOf(const QJsonObject& object, const char* szAxis)
{
    const QJsonObject axis = object.value(QLatin1String(szAxis)).toObject();
    return {axis.value(QLatin1String("active")).toInt(),
            axis.value(QLatin1String("blank")).toInt(),
            axis.value(QLatin1String("frontPorch")).toInt(),
            axis.value(QLatin1String("sync")).toInt(),
            axis.value(QLatin1String("backPorch")).toInt(),
            axis.value(QLatin1String("total")).toInt(),
            axis.value(QLatin1String("syncPositive")).toBool() ? 1 : 0};
}

} // namespace

class TestTimingCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AnotherStandardTellsItsDifference();
    void AllStandardsAreCompared();
    void WhatAStandardDoesNotHaveIsAnError();
    void TheTextIsExact();
    void TheJsonHoldsTheBlanking_data();
    void TheJsonHoldsTheBlanking();
    void TheActualRateIsThatOfTheStoredClock_data();
    void TheActualRateIsThatOfTheStoredClock();
    void TheModelineIsWhatXorgReads_data();
    void TheModelineIsWhatXorgReads();
    void ACutClockIsSaid();
    void ALargeModeIsNoReasonToWarn();
    void BadModesAreRejected();
};

void TestTimingCommand::TheTextIsExact()
{
    const SToolRun run = RunTool({"timing", "1920x1080@59.94"});
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(
        run.output,
        QByteArray(
            "Mode         1920x1080 at 59.94 Hz, progressive, reduced blanking\n"
            "Horizontal   1920 active + 160 blank (48 front porch, 32 sync, 80 back porch) = 2080 pixels\n"
            "Vertical     1080 active + 31 blank (3 front porch, 5 sync, 23 back porch) = 1111 lines\n"
            "Sync         +hsync -vsync\n"
            "Pixel clock  138.51 MHz stored, 138.514147 MHz wanted\n"
            "Line rate    66.591 kHz\n"
            "Frame rate   59.9382 Hz actual, 59.94 Hz wanted\n"
            "Modeline \"1920x1080_59.94\"  138.51  1920 1968 2000 2080  1080 1083 1088 1111 "
            "+hsync -vsync\n"));
}

void TestTimingCommand::TheJsonHoldsTheBlanking_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QVector<int>>("horizontal");
    QTest::addColumn<QVector<int>>("vertical");
    QTest::newRow("reduced") << QByteArrayList{"1920x1080@60"} << QVector<int>{1920, 160, 48, 32, 80, 2080, 1}
                             << QVector<int>{1080, 31, 3, 5, 23, 1111, 0};
    QTest::newRow("normal") << QByteArrayList{"1920x1080@60", "--normal"}
                            << QVector<int>{1920, 656, 128, 200, 328, 2576, 0}
                            << QVector<int>{1080, 40, 3, 5, 32, 1120, 1};
    QTest::newRow("normal with margins")
        << QByteArrayList{"1920x1080@60", "--normal", "--margins"}
        << QVector<int>{1920, 672, 128, 208, 336, 2592, 0} << QVector<int>{1080, 42, 3, 5, 34, 1122, 1};
    QTest::newRow("normal, interlaced")
        << QByteArrayList{"1920x1080@60", "--normal", "--interlaced"}
        << QVector<int>{1920, 512, 64, 192, 256, 2432, 0} << QVector<int>{1080, 22, 3, 5, 14, 1102, 1};
    QTest::newRow("the width stays the caller's")
        << QByteArrayList{"1366x768@60"} << QVector<int>{1366, 160, 48, 32, 80, 1526, 1}
        << QVector<int>{768, 22, 3, 10, 9, 790, 0};
}

void TestTimingCommand::TheJsonHoldsTheBlanking()
{
    QFETCH(QByteArrayList, words);
    const QJsonObject object = TimingOf(words);
    QTEST(AxisOf(object, "horizontal"), "horizontal");
    QTEST(AxisOf(object, "vertical"), "vertical");
    QCOMPARE(object.value(QLatin1String("reducedBlanking")).toBool(), !words.contains("--normal"));
    QCOMPARE(object.value(QLatin1String("interlaced")).toBool(), words.contains("--interlaced"));
    QCOMPARE(object.value(QLatin1String("margins")).toBool(), words.contains("--margins"));
}

void TestTimingCommand::TheActualRateIsThatOfTheStoredClock_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<double>("wantedClock");
    QTest::addColumn<double>("storedClock");
    QTest::addColumn<double>("total");
    QTest::newRow("60") << QByteArray("1920x1080@60") << 138652800.0 << 138650000.0 << 2080.0 * 1111.0;
    QTest::newRow("59.94") << QByteArray("1920x1080@59.94") << 2080.0 * 1111.0 * 59.94 << 138510000.0
                           << 2080.0 * 1111.0;
    QTest::newRow("29.97") << QByteArray("1920x1080@29.97") << 2080.0 * 1096.0 * 29.97 << 68320000.0
                           << 2080.0 * 1096.0;
    QTest::newRow("23.976") << QByteArray("1920x1080@23.976") << 2080.0 * 1094.0 * 23.976 << 54550000.0
                            << 2080.0 * 1094.0;
}

void TestTimingCommand::TheActualRateIsThatOfTheStoredClock()
{
    QFETCH(QByteArray, mode);
    QFETCH(double, storedClock);
    QFETCH(double, total);
    const QJsonObject object = TimingOf({mode});
    QTEST(object.value(QLatin1String("wantedClockHz")).toDouble(), "wantedClock");
    QCOMPARE(object.value(QLatin1String("storedClockHz")).toDouble(), storedClock);
    QCOMPARE(object.value(QLatin1String("actualRateHz")).toDouble(), storedClock / total);
    QCOMPARE(object.value(QLatin1String("lineRateHz")).toDouble(), storedClock / 2080.0);
    QCOMPARE(object.value(QLatin1String("wantedRateHz")).toDouble(), mode.split('@').constLast().toDouble());
}

void TestTimingCommand::TheModelineIsWhatXorgReads_data()
{
    QTest::addColumn<QByteArrayList>("words");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("reduced") << QByteArrayList{"1920x1080@60"}
                             << QByteArray("Modeline \"1920x1080_60.00\"  138.65  1920 1968 2000 2080  1080 "
                                           "1083 1088 1111 +hsync -vsync");
    QTest::newRow("normal") << QByteArrayList{"1280x1024@60", "--normal"}
                            << QByteArray("Modeline \"1280x1024_60.00\"  109.19  1280 1360 1496 1712  1024 "
                                          "1027 1034 1063 -hsync +vsync");
    QTest::newRow("interlaced") << QByteArrayList{"1920x1080@60", "--normal", "--interlaced"}
                                << QByteArray(
                                       "Modeline \"1920x1080_60.00\"  160.80  1920 1984 2176 2432  1080 1083 "
                                       "1088 1102 interlace -hsync +vsync");
    QTest::newRow("the clock is whole where the block cuts it")
        << QByteArrayList{"3840x2160@120"}
        << QByteArray("Modeline \"3840x2160_120.00\"  1097.76  3840 3888 3920 4000  2160 2163 2168 2287 "
                      "+hsync -vsync");
}

void TestTimingCommand::TheModelineIsWhatXorgReads()
{
    QFETCH(QByteArrayList, words);
    QTEST(TimingOf(words).value(QLatin1String("modeline")).toString().toLatin1(), "expected");
}

void TestTimingCommand::ACutClockIsSaid()
{
    const SToolRun run = RunTool({"timing", "3840x2160@120"});
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.errors,
             QByteArray("sender-tool timing: warning: the pixel clock of 1097.76 MHz is above 655.35 MHz; "
                        "its low 16 bits are stored: 442.40 MHz\n"));
}

void TestTimingCommand::ALargeModeIsNoReasonToWarn()
{
    QCOMPARE(RunTool({"timing", "5000x2000@60"}).errors, QByteArray());
}

void TestTimingCommand::BadModesAreRejected()
{
    VERIFY_BAD_INPUT(RunTool({"timing", "1920x1080"}), "'1920x1080' is not a video mode");
    VERIFY_BAD_INPUT(RunTool({"timing", "1920x1080@-1", "--normal"}), "the rate -1 is out of range");
}

void TestTimingCommand::AnotherStandardTellsItsDifference()
{
    const SToolRun run = RunTool({"timing", "1920x1080@60", "--standard", "cea"});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    QVERIFY2(run.output.contains("Pixel clock  148.500 MHz\n"), run.output.constData());
    QVERIFY2(run.output.contains("Difference   +120 pixels, +14 lines, +9.850 MHz\n"),
             run.output.constData());
    const QJsonObject object = JsonOf(RunTool({"timing", "1920x1080@60", "--standard", "cvt-rb2", "--json"}));
    QCOMPARE(object.value(QStringLiteral("clockHz")).toDouble(), 133320000.0);
    QCOMPARE(object.value(QStringLiteral("linesMore")).toInt(), 0);
}

void TestTimingCommand::AllStandardsAreCompared()
{
    const SToolRun run = RunTool({"timing", "3072x1728@60", "--compare"});
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.output.count('\n'), 8);
    for (const char* szLine :
         {"ours     3232x", "cvt-rb3  3152x", "dmt      has no such mode\n", "gtf      "})
        QVERIFY2(run.output.contains(szLine), run.output.constData());
}

void TestTimingCommand::WhatAStandardDoesNotHaveIsAnError()
{
    VERIFY_BAD_INPUT(RunTool({"timing", "3072x1728@60", "--standard", "dmt"}),
                     "the standard dmt has no timing for 3072x1728 at 60 Hz; try --compare");
    VERIFY_BAD_INPUT(RunTool({"timing", "3072x1728@60", "--standard", "vga"}),
                     "unknown standard 'vga'; give one of: cvt");
}

QTEST_GUILESS_MAIN(TestTimingCommand)
#include "TestTimingCommand.moc"
