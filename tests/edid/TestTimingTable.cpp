#include "SenderModuleDialog/edid/TimingTable.h"
#include "SenderModuleDialog/edid/VideoTiming.h"

#include <QVector>
#include <QtTest>

#include <climits>

namespace {

constexpr int c_nNone = -1;

} // namespace

/// The fixed timings, and which mode has one.
class TestTimingTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TimingDataHoldsTheFixedTimings_data();
    void TimingDataHoldsTheFixedTimings();
    void TheRowIsFound_data();
    void TheRowIsFound();
    void OtherModesHaveNoRow_data();
    void OtherModesHaveNoRow();
};

void TestTimingTable::TimingDataHoldsTheFixedTimings_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QVector<int>>("expected");
    const QVector<QVector<int>> rows = {
        {800, 256, 40, 128, 0, 600, 28, 1, 4, 0, 3},    {1024, 320, 24, 136, 0, 768, 38, 3, 6, 0, 0},
        {1280, 520, 96, 112, 0, 960, 40, 1, 3, 0, 3},   {1280, 408, 48, 112, 0, 1024, 42, 1, 3, 0, 3},
        {1366, 426, 70, 143, 0, 768, 30, 3, 3, 0, 3},   {1400, 464, 88, 144, 0, 1050, 39, 3, 4, 0, 2},
        {1440, 464, 80, 152, 0, 900, 34, 3, 6, 0, 2},   {1600, 200, 24, 80, 0, 900, 100, 1, 3, 0, 3},
        {1680, 560, 104, 176, 0, 1050, 39, 3, 6, 0, 2}, {1920, 280, 88, 44, 0, 1080, 45, 4, 5, 0, 3},
        {1920, 160, 48, 32, 0, 1200, 35, 3, 6, 0, 1},   {2048, 202, 26, 80, 0, 1152, 48, 1, 3, 0, 3},
        {800, 160, 48, 32, 0, 600, 36, 3, 4, 0, 1},
    };
    for (int nId = 0; nId < rows.size(); ++nId)
        QTest::addRow("row %d, %dx%d", nId, rows[nId][0], rows[nId][5]) << nId << rows[nId];
}

void TestTimingTable::TimingDataHoldsTheFixedTimings()
{
    QFETCH(int, id);
    const STimingData& row = timingData[id];
    const QVector<int> actual = {row.wWidth,     row.wHBlank,    row.wHFrontPorch, row.wHSync,
                                 row.wReserved1, row.wHeight,    row.wVBlank,      row.wVFrontPorch,
                                 row.wVSync,     row.wReserved2, row.wSyncFlag};
    QTEST(actual, "expected");
}

void TestTimingTable::TheRowIsFound_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("expected");

    const auto Add = [](int nWidth, int nHeight, int nRate, int nId) {
        QTest::addRow("%dx%d at %d Hz", nWidth, nHeight, nRate) << nWidth << nHeight << nRate << nId;
    };
    Add(800, 600, 60, 0);
    Add(800, 600, 120, 12);
    for (const int nRate : {50, 60}) {
        Add(1024, 768, nRate, 1);
        Add(1280, 960, nRate, 2);
        Add(1280, 1024, nRate, 3);
        Add(1366, 768, nRate, 4);
        Add(1440, 900, nRate, 6);
        Add(1400, 1050, nRate, 5);
        Add(1600, 900, nRate, 7);
        Add(1680, 1050, nRate, 8);
        Add(1920, 1080, nRate, 9);
        Add(1920, 1200, nRate, 10);
        Add(2048, 1152, nRate, 11);
    }
}

void TestTimingTable::TheRowIsFound()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, rate);
    QTEST(TimingTable::Find(width, height, rate).value_or(c_nNone), "expected");
}

void TestTimingTable::OtherModesHaveNoRow_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("rate");
    QTest::newRow("59.94 Hz arrives as 59") << 1920 << 1080 << 59;
    QTest::newRow("800x600 has no 50 Hz, unlike the others") << 800 << 600 << 50;
    QTest::newRow("only 800x600 has 120 Hz") << 1024 << 768 << 120;
    QTest::newRow("neighbouring rate") << 1920 << 1080 << 61;
    QTest::newRow("neighbouring width") << 1919 << 1080 << 60;
    QTest::newRow("neighbouring height") << 1920 << 1081 << 60;
    QTest::newRow("sides swapped") << 1080 << 1920 << 60;
    QTest::newRow("all zero") << 0 << 0 << 0;
    QTest::newRow("listed size at rate 0") << 800 << 600 << 0;
    QTest::newRow("listed size at a negative rate") << 1920 << 1080 << -60;
    QTest::newRow("largest") << INT_MAX << INT_MAX << INT_MAX;
    QTest::newRow("lowest") << INT_MIN << INT_MIN << INT_MIN;
    QTest::newRow("a width that is 1920 in 16 bits") << 65536 + 1920 << 1080 << 60;
}

void TestTimingTable::OtherModesHaveNoRow()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, rate);
    QCOMPARE(TimingTable::Find(width, height, rate).value_or(c_nNone), c_nNone);
}

QTEST_APPLESS_MAIN(TestTimingTable)
#include "TestTimingTable.moc"
