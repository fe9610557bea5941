#include "SenderModuleDialog/edid/EdidModel.h"
#include "host/HardwareSupport/EdidSetting.h"

#include <QtTest>

/// The model of the EDID dialog, without a window.
class TestEdidModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ASettingGivesTheChoices_data();
    void ASettingGivesTheChoices();
    void AResolutionIsFoundByItsIndex();
    void ATypedSizeIsJudgedWhereNothingIsListed();
    void ARateOutsideTheTableShowsNoText();
    void TheFormatIsNeverShown();
    void TheStandardIsShownBySenderType();
};

namespace {

SEdidModel Model(int nInterface = 1)
{
    SEdidModel model(nInterface, false);
    model.limit.listResolution = {QSize(1280, 720), QSize(1920, 1080)};
    model.limit.nMaxArea = 2304000;
    return model;
}

SEdidSetting Setting(QSize size, quint8 byRate, quint8 byFractional)
{
    SEdidSetting setting;
    setting.wWidth = quint16(size.width());
    setting.wHeight = quint16(size.height());
    setting.byRate = byRate;
    setting.byFractional = byFractional;
    setting.byFormatFlags = 0x24; // 10 bit, YCBCR 4:4:4
    setting.byTimingStandard = 1;
    setting.byConnectPC = 1;
    return setting;
}

} // namespace

void TestEdidModel::ASettingGivesTheChoices_data()
{
    QTest::addColumn<int>("interface");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("fractional");
    QTest::addColumn<int>("resolutionIndex");
    QTest::addColumn<int>("rateIndex");
    QTest::newRow("listed") << 1 << QSize(1920, 1080) << 60 << 1 << 2 << 6;
    QTest::newRow("custom") << 1 << QSize(1000, 500) << 50 << 0 << 0 << 5;
    QTest::newRow("132 has no custom size") << 132 << QSize(1000, 500) << 50 << 0 << 4 << 5;
    QTest::newRow("an unknown rate is 60") << 1 << QSize(1280, 720) << 48 << 0 << 1 << 7;
}

void TestEdidModel::ASettingGivesTheChoices()
{
    QFETCH(int, interface);
    QFETCH(QSize, size);
    QFETCH(int, rate);
    QFETCH(int, fractional);
    SEdidModel model = Model(interface);
    model.Read(Setting(size, quint8(rate), quint8(fractional)));
    QTEST(model.nResolutionIndex, "resolutionIndex");
    QTEST(model.nRateIndex, "rateIndex");
    QCOMPARE(model.sizeCustom, size);
    QCOMPARE(model.nDepthIndex, 1);
    QCOMPARE(model.nFormatIndex, 1);
    QCOMPARE(int(model.byTimingStandard), 1);
    QCOMPARE(int(model.byConnectPC), 1);
}

void TestEdidModel::AResolutionIsFoundByItsIndex()
{
    SEdidModel model = Model();
    model.sizeCustom = QSize(1000, 500);
    QCOMPARE(model.ResolutionAt(0).value(), QSize(1000, 500));
    QCOMPARE(model.ResolutionAt(2).value(), QSize(1920, 1080));
    QVERIFY(!model.ResolutionAt(-1).has_value());
    QVERIFY(!model.ResolutionAt(3).has_value());
}

void TestEdidModel::ATypedSizeIsJudgedWhereNothingIsListed()
{
    SEdidModel model = Model();
    const QSize sizeTyped(1200, 600);
    QCOMPARE(model.JudgedSize(sizeTyped), sizeTyped);
    model.nResolutionIndex = 1;
    QCOMPARE(model.JudgedSize(sizeTyped), QSize(1280, 720));
    model.nResolutionIndex = 3;
    QCOMPARE(model.JudgedSize(sizeTyped), sizeTyped);
}

void TestEdidModel::ARateOutsideTheTableShowsNoText()
{
    SEdidModel model = Model();
    model.nRateIndex = 8;
    QCOMPARE(model.RateRow().text.value(), QStringLiteral("120"));
    model.nRateIndex = 11;
    QVERIFY(!model.RateRow().text.has_value());
    QVERIFY(model.RateRow().bVisible);
}

void TestEdidModel::TheFormatIsNeverShown()
{
    SEdidModel model = Model();
    model.nFormatIndex = 2;
    QCOMPARE(model.FormatRow().text.value(), QStringLiteral("YCBCR 4:2:2"));
    QVERIFY(!model.FormatRow().bVisible);
}

void TestEdidModel::TheStandardIsShownBySenderType()
{
    SEdidModel model = Model();
    model.nSenderType = 16;
    QVERIFY(model.StandardRow().bVisible);
    model.nSenderType = 18;
    QVERIFY(!model.StandardRow().bVisible);
    model.byTimingStandard = 200;
    QCOMPARE(model.StandardRow().text.value(), QString());
}

QTEST_MAIN(TestEdidModel)
#include "TestEdidModel.moc"
