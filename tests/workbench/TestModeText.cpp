#include "workbench/ModeText.h"

#include <QtTest>

class TestModeText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AModeReads_data();
    void AModeReads();
};

void TestModeText::AModeReads_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<bool>("fractional");
    QTest::addColumn<QString>("expected");
    QTest::newRow("integer") << 60 << false << "1920 × 1080 @ 60 Hz";
    QTest::newRow("59.94") << 60 << true << "1920 × 1080 @ 59.94 Hz";
    QTest::newRow("29.97") << 30 << true << "1920 × 1080 @ 29.97 Hz";
    QTest::newRow("23.976") << 24 << true << "1920 × 1080 @ 23.976 Hz";
    QTest::newRow("three digits") << 240 << false << "1920 × 1080 @ 240 Hz";
}

void TestModeText::AModeReads()
{
    QFETCH(int, rate);
    QFETCH(bool, fractional);
    SEdidSetting setting;
    setting.wWidth = 1920;
    setting.wHeight = 1080;
    setting.byRate = quint8(rate);
    setting.byFractional = fractional ? 1 : 0;
    QTEST(ModeText::Of(setting), "expected");
}

QTEST_APPLESS_MAIN(TestModeText)
#include "TestModeText.moc"
