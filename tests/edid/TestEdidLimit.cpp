#include "SenderModuleDialog/edid/EdidLimit.h"

#include <QtTest>

#include <limits>

/// The values by which the host judges a resolution.
class TestEdidLimit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void MaxAreaByRate_data();
    void MaxAreaByRate();
    void PixelClock_data();
    void PixelClock();
    void OnlyTheOneTextIsANotice();
};

void TestEdidLimit::MaxAreaByRate_data()
{
    constexpr int c_nMax = std::numeric_limits<int>::max();
    QTest::addColumn<int>("area60");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("expected");
    QTest::newRow("23.976") << 2304000 << 0 << 5765760;
    QTest::newRow("24") << 2304000 << 1 << 5760000;
    QTest::newRow("25") << 2304000 << 2 << 5529600;
    QTest::newRow("29.97") << 2304000 << 3 << 4612608;
    QTest::newRow("30") << 2304000 << 4 << 4608000;
    QTest::newRow("50") << 2304000 << 5 << 2764800;
    QTest::newRow("59.94") << 2304000 << 6 << 2306304;
    QTest::newRow("60") << 2304000 << 7 << 2304000;
    QTest::newRow("120") << 2304000 << 8 << 1152000;
    QTest::newRow("144 is the same for every sender") << 9000000 << 9 << 2304000;
    QTest::newRow("240 is the same for every sender") << 9000000 << 10 << 2304000;
    QTest::newRow("beyond the table") << 9000000 << 11 << 2304000;
    QTest::newRow("below the table") << 9000000 << -1 << 2304000;
    QTest::newRow("144 with no area at all") << 0 << 9 << 2304000;
    QTest::newRow("23.976 multiplies in double and cuts at the end") << 999 << 0 << 2499;
    QTest::newRow("24 cuts the half") << 3 << 1 << 7;
    QTest::newRow("25 cuts the fraction") << 3 << 2 << 7;
    QTest::newRow("29.97 divides first, in integers") << 999 << 3 << 1001;
    QTest::newRow("50 cuts the fraction") << 3 << 5 << 3;
    QTest::newRow("59.94 divides first, in integers") << 1999 << 6 << 1001;
    QTest::newRow("120 of an odd area is cut towards zero") << 7 << 8 << 3;
    QTest::newRow("120 of a negative odd area is cut towards zero") << -7 << 8 << -3;
    QTest::newRow("23.976 of the largest int") << c_nMax << 0 << c_nMax;
    QTest::newRow("24 of the largest int") << c_nMax << 1 << c_nMax;
    QTest::newRow("25 of the largest int") << c_nMax << 2 << c_nMax;
    QTest::newRow("29.97 of the largest int") << c_nMax << 3 << c_nMax;
    QTest::newRow("30 of the largest int") << c_nMax << 4 << c_nMax;
    QTest::newRow("50 of the largest int") << c_nMax << 5 << c_nMax;
    QTest::newRow("59.94 of the largest int") << c_nMax << 6 << c_nMax;
    QTest::newRow("30 of the smallest int")
        << std::numeric_limits<int>::min() << 4 << std::numeric_limits<int>::min();
}

void TestEdidLimit::MaxAreaByRate()
{
    QFETCH(int, area60);
    QFETCH(int, index);
    QFETCH(int, expected);
    QCOMPARE(EdidLimit::MaxAreaByRate(area60, index), expected);
}

void TestEdidLimit::PixelClock_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("standard");
    QTest::addColumn<int>("expected");
    const QSize size1080(1920, 1080);
    QTest::newRow("60 Hz takes the fixed timing: 2200 x 1125") << size1080 << 7 << 0 << 148;
    QTest::newRow("60 Hz takes it for both standards") << size1080 << 7 << 1 << 148;
    QTest::newRow("50 Hz has the blanking of the 60 Hz row") << size1080 << 5 << 1 << 123;
    QTest::newRow("59.94 calculates reduced blanking: 2080 x 1111") << size1080 << 6 << 0 << 138;
    QTest::newRow("59.94 calculates normal blanking: 2576 x 1120") << size1080 << 6 << 1 << 172;
    QTest::newRow("23.976 has no rate for the clock") << size1080 << 0 << 0 << 0;
    QTest::newRow("24 has no rate for the clock") << size1080 << 1 << 0 << 0;
    QTest::newRow("25 has no rate for the clock") << size1080 << 2 << 1 << 0;
    QTest::newRow("144 has no rate for the clock") << size1080 << 9 << 0 << 0;
    QTest::newRow("240 has no rate for the clock") << size1080 << 10 << 1 << 0;
    QTest::newRow("no row has no rate") << size1080 << 11 << 0 << 0;
    QTest::newRow("an unlisted size, reduced: (4000 + 160) x (2000 + 57) x 60")
        << QSize(4000, 2000) << 7 << 0 << 513;
    constexpr int c_nMax = std::numeric_limits<int>::max();
    QTest::newRow("beyond every clock") << QSize(c_nMax, c_nMax) << 8 << 0 << c_nMax;
}

void TestEdidLimit::PixelClock()
{
    QFETCH(QSize, size);
    QFETCH(int, index);
    QFETCH(int, standard);
    QFETCH(int, expected);
    QCOMPARE(EdidLimit::PixelClockMHz(size, index, standard), expected);
}

void TestEdidLimit::OnlyTheOneTextIsANotice()
{
    QVERIFY(EdidLimit::IsNotice(QStringLiteral("已使用DisplayID 1.3扩展块")));
    QVERIFY(!EdidLimit::IsNotice(QStringLiteral("已使用DisplayID 1.3扩展块。")));
    QVERIFY(!EdidLimit::IsNotice(QString()));
}

QTEST_GUILESS_MAIN(TestEdidLimit)
#include "TestEdidLimit.moc"
