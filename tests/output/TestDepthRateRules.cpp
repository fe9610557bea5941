#include "SenderModuleDialog/output/DepthRateRules.h"
#include "tests/support/DeathTest.h"

#include <QtTest>

#include <cmath>

class TestDepthRateRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RateOf_data();
    void RateOf();
    void DepthOf_data();
    void DepthOf();
    void DepthMode();
    void AnotherDepthHasNoMode();
    void IsExemptRateOffered_data();
    void IsExemptRateOffered();
    void OfferDepths_data();
    void OfferDepths();
    void LimitMessage_data();
    void LimitMessage();
    void IsBelowInput_data();
    void IsBelowInput();
};

void TestDepthRateRules::RateOf_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nRate");
    QTest::newRow("50 Hz") << QStringLiteral("50Hz") << 50;
    QTest::newRow("60 Hz") << QStringLiteral("60Hz") << 60;
    QTest::newRow("120 Hz") << QStringLiteral("120Hz") << 120;
    QTest::newRow("240 Hz") << QStringLiteral("240Hz") << 240;
    QTest::newRow("a rate that the menu lacks") << QStringLiteral("30Hz") << -1;
    QTest::newRow("a depth") << QStringLiteral("8bit") << -1;
    QTest::newRow("nothing") << QString() << -1;
}

void TestDepthRateRules::RateOf()
{
    QFETCH(QString, strText);
    QTEST(DepthRateRules::RateOf(strText).value_or(-1), "nRate");
}

void TestDepthRateRules::DepthOf_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nDepth");
    QTest::newRow("8 bit") << QStringLiteral("8bit") << 8;
    QTest::newRow("10 bit") << QStringLiteral("10bit") << 10;
    QTest::newRow("12 bit") << QStringLiteral("12bit") << 12;
    QTest::newRow("a depth that the menu lacks") << QStringLiteral("16bit") << -1;
    QTest::newRow("a rate") << QStringLiteral("60Hz") << -1;
    QTest::newRow("with a blank") << QStringLiteral("8 bit") << -1;
}

void TestDepthRateRules::DepthOf()
{
    QFETCH(QString, strText);
    QTEST(DepthRateRules::DepthOf(strText).value_or(-1), "nDepth");
}

void TestDepthRateRules::DepthMode()
{
    QCOMPARE(DepthRateRules::DepthMode(8), 0);
    QCOMPARE(DepthRateRules::DepthMode(10), 1);
    QCOMPARE(DepthRateRules::DepthMode(12), 2);
}

void TestDepthRateRules::AnotherDepthHasNoMode()
{
    QVERIFY(RunToDeath([] { DepthRateRules::DepthMode(16); }).bAborted);
}

void TestDepthRateRules::IsExemptRateOffered_data()
{
    QTest::addColumn<bool>("bVideoProcessor");
    QTest::addColumn<int>("nSenderType");
    QTest::addColumn<bool>("bOffered");
    QTest::newRow("a video processor of type 38 has none") << true << 38 << false;
    QTest::newRow("a video processor of type 37") << true << 37 << true;
    QTest::newRow("a video processor of type 39") << true << 39 << true;
    QTest::newRow("type 38 that is no video processor") << false << 38 << true;
}

void TestDepthRateRules::IsExemptRateOffered()
{
    QFETCH(bool, bVideoProcessor);
    QFETCH(int, nSenderType);
    QTEST(DepthRateRules::IsExemptRateOffered(bVideoProcessor, nSenderType), "bOffered");
}

void TestDepthRateRules::OfferDepths_data()
{
    QTest::addColumn<bool>("bSupport10Bit");
    QTest::addColumn<bool>("bSupport12Bit");
    QTest::addColumn<bool>("bOffer10Bit");
    QTest::addColumn<bool>("bOffer12Bit");
    QTest::newRow("neither") << false << false << false << false;
    QTest::newRow("10 bit") << true << false << true << false;
    QTest::newRow("12 bit brings 10 bit with it") << false << true << true << true;
    QTest::newRow("both") << true << true << true << true;
}

void TestDepthRateRules::OfferDepths()
{
    QFETCH(bool, bSupport10Bit);
    QFETCH(bool, bSupport12Bit);
    const DepthRateRules::SDepthOffer offer = DepthRateRules::OfferDepths(bSupport10Bit, bSupport12Bit);
    QTEST(offer.b10Bit, "bOffer10Bit");
    QTEST(offer.b12Bit, "bOffer12Bit");
}

void TestDepthRateRules::LimitMessage_data()
{
    QTest::addColumn<unsigned int>("nFlags");
    QTest::addColumn<int>("nSenderType");
    QTest::addColumn<QString>("strText");
    const QString strArea260 = QStringLiteral("输出视频区域不能超过260万像素。");
    const QString strArea888 = QStringLiteral("输出视频区域不能超过888万像素。");
    const QString strEdid260 = QStringLiteral("EDID的输出面积不能超过260W。");
    const QString strEdid888 = QStringLiteral("EDID的输出面积不能超过888W。");
    const QString strDvi1 = QStringLiteral("DVI1~4的点数和不能超过888万。");
    const QString strDvi5 = QStringLiteral("DVI5~8的点数和不能超过888万。");
    const QString strPort = QStringLiteral("输出口带载面积不能超过655360。");
    for (const int nType : {16, 24, 31, 63}) {
        QTest::addRow("area, type %d", nType) << 0x800U << nType << strArea260;
        QTest::addRow("EDID area, type %d", nType) << 0x10000000U << nType << strEdid260;
        QTest::addRow("DVI 1 to 4, type %d", nType) << 0x1000U << nType << strDvi1;
        QTest::addRow("DVI 5 to 8, type %d", nType) << 0x2000U << nType << strDvi5;
        QTest::addRow("port, type %d", nType) << 0x8000000U << nType << strPort;
    }
    for (const int nType : {0, 15, 17, 30, 32, 62, 64}) {
        QTest::addRow("area, type %d", nType) << 0x800U << nType << strArea888;
        QTest::addRow("EDID area, type %d", nType) << 0x10000000U << nType << strEdid888;
    }
    QTest::newRow("no flag") << 0U << 16 << QString();
    QTest::newRow("unknown flags alone") << ~0x18003800U << 16 << QString();
    QTest::newRow("the area comes first") << ~0U << 16 << strArea260;
    QTest::newRow("DVI 1 to 4 comes second") << 0x18003000U << 16 << strDvi1;
    QTest::newRow("DVI 5 to 8 comes third") << 0x18002000U << 16 << strDvi5;
    QTest::newRow("the port comes fourth") << 0x18000000U << 16 << strPort;
}

void TestDepthRateRules::LimitMessage()
{
    QFETCH(unsigned int, nFlags);
    QFETCH(int, nSenderType);
    QTEST(QString::fromUtf8(DepthRateRules::LimitMessage(nFlags, nSenderType)), "strText");
}

void TestDepthRateRules::IsBelowInput_data()
{
    QTest::addColumn<int>("nRate");
    QTest::addColumn<float>("fInputRate");
    QTest::addColumn<bool>("bBelow");
    QTest::newRow("equal") << 60 << 60.0F << false;
    QTest::newRow("just above") << 60 << std::nextafter(60.0F, 61.0F) << true;
    QTest::newRow("below") << 60 << 59.94F << false;
    QTest::newRow("no rate") << 50 << 0.0F << false;
    QTest::newRow("negative") << 50 << -1.0F << false;
    QTest::newRow("not a number") << 50 << std::nanf("") << false;
}

void TestDepthRateRules::IsBelowInput()
{
    QFETCH(int, nRate);
    QFETCH(float, fInputRate);
    QTEST(DepthRateRules::IsBelowInput(nRate, fInputRate), "bBelow");
}

QTEST_GUILESS_MAIN(TestDepthRateRules)
#include "TestDepthRateRules.moc"
