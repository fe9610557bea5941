#include "SenderModuleDialog/edid/MonitorName.h"

#include <QByteArray>
#include <QtTest>

#include <climits>
#include <cstdio>

/// The name of the display, as the C library formats it, cut to its 13 characters.
class TestMonitorName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheNameIsTheFormattedOne_data();
    void TheNameIsTheFormattedOne();
};

void TestMonitorName::TheNameIsTheFormattedOne_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("whole");
    QTest::newRow("short names have no padding behind them") << 800 << 600 << true;
    QTest::newRow("13 characters fit") << 1920 << 1080 << true;
    QTest::newRow("five digits of width take no blank") << 16384 << 1080 << true;
    QTest::newRow("the 14th character is cut") << 16384 << 10800 << false;
    QTest::newRow("zero") << 0 << 0 << true;
    QTest::newRow("negative") << -1 << -1 << true;
    QTest::newRow("largest") << INT_MAX << INT_MAX << false;
    QTest::newRow("lowest: the longest text") << INT_MIN << INT_MIN << false;
}

void TestMonitorName::TheNameIsTheFormattedOne()
{
    QFETCH(int, width);
    QFETCH(int, height);
    char szExpected[32] = {};
    std::snprintf(szExpected, sizeof szExpected, "LED%5dX%d", width, height);
    const CMonitorName name(width, height);
    QCOMPARE(QByteArray(name.begin(), int(name.end() - name.begin())), QByteArray(szExpected).left(13));
    QTEST(name.IsWhole(), "whole");
}

QTEST_APPLESS_MAIN(TestMonitorName)
#include "TestMonitorName.moc"
