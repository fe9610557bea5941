#include "SenderModuleDialog/edid/EdidCommit.h"

#include <QtTest>

#include <cstring>

/// The records that the EDID dialog writes, and the wait for the device.
class TestEdidCommit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheBasicRecordHoldsSizeAndRateAlone();
    void TheFullRecordByteByByte();
    void ASizeBeyond16BitsIsCut();
    void ConnectByte_data();
    void ConnectByte();
    void DeviceWait_data();
    void DeviceWait();
};

void TestEdidCommit::TheBasicRecordHoldsSizeAndRateAlone()
{
    const SEdidSetting setting = EdidCommit::BasicSetting(QSize(1920, 1080), 60);
    const unsigned char arrExpected[12] = {0, 60, 0, 0, 0x80, 0x07, 0x38, 0x04, 0, 0, 0, 0};
    QCOMPARE(std::memcmp(&setting, arrExpected, sizeof arrExpected), 0);
}

void TestEdidCommit::TheFullRecordByteByByte()
{
    EdidCommit::SChoice choice;
    choice.size = QSize(0x1234, 0x0567);
    choice.byRate = 24;
    choice.bFractional = true;
    choice.byFormatFlags = 0x24;
    choice.byTimingStandard = 1;
    choice.byConnectPC = 1;
    const SEdidSetting setting = EdidCommit::FullSetting(choice);
    const unsigned char arrExpected[12] = {0, 24, 1, 0, 0x34, 0x12, 0x67, 0x05, 0x24, 1, 1, 0};
    QCOMPARE(std::memcmp(&setting, arrExpected, sizeof arrExpected), 0);
}

void TestEdidCommit::ASizeBeyond16BitsIsCut()
{
    const SEdidSetting setting = EdidCommit::BasicSetting(QSize(70000, -1), 60);
    QCOMPARE(int(setting.wWidth), 65535);
    QCOMPARE(int(setting.wHeight), 0);
}

void TestEdidCommit::ConnectByte_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("always");
    QTest::addColumn<int>("expected");
    QTest::newRow("checked: 0") << true << false << 0;
    QTest::newRow("not checked: 1") << false << false << 1;
    QTest::newRow("checked, sender that always has it: 1") << true << true << 1;
    QTest::newRow("not checked, sender that always has it: 1") << false << true << 1;
}

void TestEdidCommit::ConnectByte()
{
    QFETCH(bool, checked);
    QFETCH(bool, always);
    QFETCH(int, expected);
    QCOMPARE(int(EdidCommit::ConnectByte(checked, always)), expected);
}

void TestEdidCommit::DeviceWait_data()
{
    QTest::addColumn<int>("senderType");
    QTest::addColumn<unsigned int>("microseconds");
    QTest::newRow("any sender") << 16 << 120000U;
    QTest::newRow("21 stores slowly") << 21 << 200000U;
    QTest::newRow("54 stores slowly") << 54 << 200000U;
}

void TestEdidCommit::DeviceWait()
{
    QFETCH(int, senderType);
    QTEST(EdidCommit::DeviceWait(senderType), "microseconds");
}

QTEST_APPLESS_MAIN(TestEdidCommit)
#include "TestEdidCommit.moc"
