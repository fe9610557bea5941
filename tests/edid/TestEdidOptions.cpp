#include "SenderModuleDialog/edid/EdidOptions.h"

#include <QtTest>

#include <set>

using EdidOptions::SDepthSupport;
using EdidOptions::SInput;

Q_DECLARE_METATYPE(SInput)
Q_DECLARE_METATYPE(SDepthSupport)
Q_DECLARE_METATYPE(std::set<int>)

namespace {

using FuncType = bool (*)(int);

/// Sender types that every set is asked about: all that exist, and some around them.
constexpr int c_nTypeEnd = 90;

/// An interface that belongs to no group.
constexpr int c_nPlainInterface = 200;

std::set<int> Members(const std::function<bool(int)>& funcHas)
{
    std::set<int> setMembers;
    for (int i = -2; i < c_nTypeEnd; ++i) {
        if (funcHas(i))
            setMembers.insert(i);
    }
    return setMembers;
}

QString Text(const std::set<int>& setNumbers)
{
    QStringList listNumbers;
    for (const int n : setNumbers)
        listNumbers.append(QString::number(n));
    return listNumbers.join(QLatin1Char(' '));
}

bool Offers(const SInput& input, int nRateIndex)
{
    const std::vector<int> vecOffered = EdidOptions::OfferedRates(input);
    return std::find(vecOffered.begin(), vecOffered.end(), nRateIndex) != vecOffered.end();
}

} // namespace

class TestEdidOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RateTable_data();
    void RateTable();
    void NoRateOutsideTheTable();
    void RateIndexOfAStoredRate_data();
    void RateIndexOfAStoredRate();
    void DepthTable_data();
    void DepthTable();
    void FormatTable_data();
    void FormatTable();
    void TimingStandardTable();
    void FlagsWithoutADepthAreTheFirst();
    void TheFirstSetBitWins();
    void StoringADepthKeepsTheOtherBits();
    void StoringNoDepthClearsTheDepthBits();
    void StoringAFormatKeepsTheLowBits();
    void StoringNoFormatLeavesTheFlagsAlone();
    void SenderTypeSet_data();
    void SenderTypeSet();
    void SenderTypesThatOfferARate_data();
    void SenderTypesThatOfferARate();
    void InterfaceGroups();
    void Type73OffersAllRatesUpTo60OnTheInterfaces16To19Only();
    void AnOrdinaryInterfaceOffers30And50And60();
    void Interface132OffersNeither30Nor50();
    void LowRateOnlyRemovesEverythingAbove50();
    void TheExtendedRecordOffers120OnTwoGroups_data();
    void TheExtendedRecordOffers120OnTwoGroups();
    void RatesAreOfferedInTableOrder();
    void OfferedDepths_data();
    void OfferedDepths();
    void OnlyAVideoProcessorIsHeldTo8Bit();
};

void TestEdidOptions::RateTable_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("rate");
    QTest::addColumn<bool>("fractional");
    QTest::addColumn<float>("clockRate");
    QTest::newRow("0") << 0 << "23.976" << 24 << true << 0.0F;
    QTest::newRow("1") << 1 << "24" << 24 << false << 0.0F;
    QTest::newRow("2") << 2 << "25" << 25 << false << 0.0F;
    QTest::newRow("3") << 3 << "29.97" << 30 << true << 29.97F;
    QTest::newRow("4") << 4 << "30" << 30 << false << 30.0F;
    QTest::newRow("5") << 5 << "50" << 50 << false << 50.0F;
    QTest::newRow("6") << 6 << "59.94" << 60 << true << 59.94F;
    QTest::newRow("7") << 7 << "60" << 60 << false << 60.0F;
    QTest::newRow("8") << 8 << "120" << 120 << false << 120.0F;
    QTest::newRow("9") << 9 << "144" << 144 << false << 0.0F;
    QTest::newRow("10") << 10 << "240" << 240 << false << 0.0F;
}

void TestEdidOptions::RateTable()
{
    QFETCH(int, index);
    QFETCH(QString, text);
    QFETCH(int, rate);
    QFETCH(bool, fractional);
    QFETCH(float, clockRate);
    const EdidOptions::SRate* pRate = EdidOptions::RateAt(index);
    QVERIFY(pRate != nullptr);
    QCOMPARE(QString::fromLatin1(pRate->szText), text);
    QCOMPARE(int(pRate->byRate), rate);
    QCOMPARE(pRate->bFractional, fractional);
    QVERIFY(pRate->fRate == clockRate);
    QVERIFY(EdidOptions::RateIndex(pRate->byRate, fractional) == index);
}

void TestEdidOptions::NoRateOutsideTheTable()
{
    QVERIFY(EdidOptions::RateAt(-1) == nullptr);
    QVERIFY(EdidOptions::RateAt(11) == nullptr);
}

void TestEdidOptions::RateIndexOfAStoredRate_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<bool>("fractional");
    QTest::addColumn<int>("index"); // -1: none
    QTest::newRow("25 has no fractional form, so the flag is ignored") << 25 << true << 2;
    QTest::newRow("50 has no fractional form, so the flag is ignored") << 50 << true << 5;
    QTest::newRow("120 has no fractional form, so the flag is ignored") << 120 << true << 8;
    QTest::newRow("144 has no fractional form, so the flag is ignored") << 144 << true << 9;
    QTest::newRow("240 has no fractional form, so the flag is ignored") << 240 << true << 10;
    QTest::newRow("48 is in no row") << 48 << false << -1;
    QTest::newRow("0 is in no row") << 0 << false << -1;
    QTest::newRow("255 is in no row") << 255 << true << -1;
}

void TestEdidOptions::RateIndexOfAStoredRate()
{
    QFETCH(int, rate);
    QFETCH(bool, fractional);
    QFETCH(int, index);
    QCOMPARE(EdidOptions::RateIndex(static_cast<unsigned char>(rate), fractional).value_or(-1), index);
}

void TestEdidOptions::DepthTable_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("menuText");
    QTest::addColumn<int>("flag");
    QTest::newRow("8") << 0 << "8 bit"
                       << "8bit" << 0x02;
    QTest::newRow("10") << 1 << "10 bit"
                        << "10bit" << 0x04;
    QTest::newRow("12") << 2 << "12 bit"
                        << "12bit" << 0x08;
}

void TestEdidOptions::DepthTable()
{
    QFETCH(int, index);
    QFETCH(QString, name);
    QFETCH(QString, menuText);
    QFETCH(int, flag);
    const EdidOptions::SDepth& depth = EdidOptions::c_arrDepths.at(std::size_t(index));
    QCOMPARE(QString::fromLatin1(depth.szName), name);
    QCOMPARE(QString::fromLatin1(depth.szMenuText), menuText);
    QCOMPARE(int(depth.byFlag), flag);
    QCOMPARE(EdidOptions::DepthIndex(depth.byFlag), index);
    unsigned char byFlags = 0;
    QVERIFY(EdidOptions::StoreDepth(index, byFlags));
    QCOMPARE(int(byFlags), flag);
}

void TestEdidOptions::FormatTable_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("flag");
    QTest::newRow("RGB") << 0 << "RGB" << 0x10;
    QTest::newRow("4:4:4") << 1 << "YCBCR 4:4:4" << 0x20;
    QTest::newRow("4:2:2") << 2 << "YCBCR 4:2:2" << 0x40;
    QTest::newRow("4:4:0") << 3 << "YCBCR 4:4:0" << 0x80;
}

void TestEdidOptions::FormatTable()
{
    QFETCH(int, index);
    QFETCH(QString, name);
    QFETCH(int, flag);
    const EdidOptions::SFormat& format = EdidOptions::c_arrFormats.at(std::size_t(index));
    QCOMPARE(QString::fromLatin1(format.szName), name);
    QCOMPARE(int(format.byFlag), flag);
    QCOMPARE(EdidOptions::FormatIndex(format.byFlag), index);
    unsigned char byFlags = 0;
    QVERIFY(EdidOptions::StoreFormat(index, byFlags));
    QCOMPARE(int(byFlags), flag);
}

void TestEdidOptions::TimingStandardTable()
{
    QCOMPARE(EdidOptions::c_arrTimingStandards.size(), std::size_t(2));
    QCOMPARE(EdidOptions::c_arrTimingStandards[0], "CVT_RB");
    QCOMPARE(EdidOptions::c_arrTimingStandards[1], "CVT");
}

void TestEdidOptions::FlagsWithoutADepthAreTheFirst()
{
    QCOMPARE(EdidOptions::DepthIndex(0xF1), 0);
    QCOMPARE(EdidOptions::FormatIndex(0x0F), 0);
}

void TestEdidOptions::TheFirstSetBitWins()
{
    QCOMPARE(EdidOptions::DepthIndex(0x0E), 0);
    QCOMPARE(EdidOptions::DepthIndex(0x0C), 1);
    QCOMPARE(EdidOptions::FormatIndex(0xF0), 0);
    QCOMPARE(EdidOptions::FormatIndex(0xE0), 1);
    QCOMPARE(EdidOptions::FormatIndex(0xC0), 2);
}

void TestEdidOptions::StoringADepthKeepsTheOtherBits()
{
    unsigned char byFlags = 0xFF;
    QVERIFY(EdidOptions::StoreDepth(1, byFlags));
    QCOMPARE(int(byFlags), 0xF5);
}

void TestEdidOptions::StoringNoDepthClearsTheDepthBits()
{
    for (const int nIndex : {-1, 3}) {
        unsigned char byFlags = 0xFF;
        QVERIFY(!EdidOptions::StoreDepth(nIndex, byFlags));
        QCOMPARE(int(byFlags), 0xF1);
    }
}

void TestEdidOptions::StoringAFormatKeepsTheLowBits()
{
    unsigned char byFlags = 0xFF;
    QVERIFY(EdidOptions::StoreFormat(2, byFlags));
    QCOMPARE(int(byFlags), 0x4F);
}

void TestEdidOptions::StoringNoFormatLeavesTheFlagsAlone()
{
    for (const int nIndex : {-1, 4}) {
        unsigned char byFlags = 0x24;
        QVERIFY(!EdidOptions::StoreFormat(nIndex, byFlags));
        QCOMPARE(int(byFlags), 0x24);
    }
}

void TestEdidOptions::SenderTypeSet_data()
{
    QTest::addColumn<std::set<int>>("actual");
    QTest::addColumn<std::set<int>>("expected");
    QTest::newRow("the timing standard is shown")
        << Members(EdidOptions::ShowsTimingStandard)
        << std::set<int>{16, 17, 19, 20, 23, 24, 26, 27, 28, 29, 30, 31, 34, 35, 36, 39, 40, 41,
                         42, 43, 44, 46, 49, 50, 51, 53, 59, 61, 62, 63, 65, 66, 68, 69, 73};
    QTest::newRow("connect to computer is shown")
        << Members(EdidOptions::ShowsConnectPC) << std::set<int>{19, 20, 24, 30, 34, 42, 43};
    QTest::newRow("the connect byte is always 1")
        << Members(EdidOptions::AlwaysWritesConnectByte) << std::set<int>{17, 26, 27, 28, 29, 36, 37};
    QTest::newRow("the device stores slowly") << Members(EdidOptions::StoresSlowly) << std::set<int>{21, 54};
}

void TestEdidOptions::SenderTypeSet()
{
    QFETCH(std::set<int>, actual);
    QFETCH(std::set<int>, expected);
    QCOMPARE(Text(actual), Text(expected));
}

void TestEdidOptions::SenderTypesThatOfferARate_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<std::set<int>>("expected");
    const std::set<int> setFilm = {51, 53, 61, 62, 63, 65, 66, 69};
    const std::set<int> setFractional = {50, 51, 53, 59, 61, 62, 63, 65, 66, 69};
    QTest::newRow("23.976") << 0 << setFilm;
    QTest::newRow("24") << 1 << setFilm;
    QTest::newRow("25") << 2 << std::set<int>{53, 62};
    QTest::newRow("29.97") << 3 << setFractional;
    QTest::newRow("59.94") << 6 << setFractional;
    QTest::newRow("120") << 8 << std::set<int>{17, 27, 28, 35, 36, 44, 46, 50, 51,
                                               53, 59, 61, 62, 63, 65, 66, 68, 69};
    QTest::newRow("144") << 9 << std::set<int>{68};
    QTest::newRow("240") << 10 << std::set<int>{68};
}

void TestEdidOptions::SenderTypesThatOfferARate()
{
    QFETCH(int, index);
    QFETCH(std::set<int>, expected);
    const std::set<int> setActual = Members([&](int nType) {
        return Offers({nType, c_nPlainInterface, false, false}, index);
    });
    QCOMPARE(Text(setActual), Text(expected));
}

void TestEdidOptions::InterfaceGroups()
{
    QCOMPARE(Text(Members(EdidOptions::IsInterface16To19)), QStringLiteral("16 17 18 19"));
    QCOMPARE(Text(Members(EdidOptions::IsInterface1To4)), QStringLiteral("1 2 3 4"));
    QVERIFY(EdidOptions::IsInterface132(132));
    QVERIFY(!EdidOptions::IsInterface132(131));
    QVERIFY(!EdidOptions::IsInterface132(133));
}

void TestEdidOptions::Type73OffersAllRatesUpTo60OnTheInterfaces16To19Only()
{
    const std::vector<int> vecAll = {0, 1, 2, 3, 4, 5, 6, 7};
    for (const int nInterfaceId : {16, 17, 18, 19})
        QCOMPARE(EdidOptions::OfferedRates({73, nInterfaceId, false, false}), vecAll);
    const std::vector<int> vecPlain = {4, 5, 7};
    for (const int nInterfaceId : {15, 20, 1})
        QCOMPARE(EdidOptions::OfferedRates({73, nInterfaceId, false, false}), vecPlain);
}

void TestEdidOptions::AnOrdinaryInterfaceOffers30And50And60()
{
    const std::vector<int> vecExpected = {4, 5, 7};
    QCOMPARE(EdidOptions::OfferedRates({16, 1, false, false}), vecExpected);
}

void TestEdidOptions::Interface132OffersNeither30Nor50()
{
    const std::vector<int> vecExpected = {7};
    QCOMPARE(EdidOptions::OfferedRates({16, 132, false, true}), vecExpected);
}

void TestEdidOptions::LowRateOnlyRemovesEverythingAbove50()
{
    const std::vector<int> vecPlain = {4, 5};
    QCOMPARE(EdidOptions::OfferedRates({16, 1, true, true}), vecPlain);
    QCOMPARE(EdidOptions::OfferedRates({68, 1, true, true}), vecPlain);
    const std::vector<int> vecLow = {0, 1, 2, 3, 4, 5};
    QCOMPARE(EdidOptions::OfferedRates({53, 1, true, true}), vecLow);
    QCOMPARE(EdidOptions::OfferedRates({73, 16, true, true}), vecLow);
}

void TestEdidOptions::TheExtendedRecordOffers120OnTwoGroups_data()
{
    QTest::addColumn<int>("interfaceId");
    QTest::addColumn<bool>("extended");
    QTest::addColumn<bool>("offered");
    for (const int nInterfaceId : {0, 1, 4, 5, 15, 16, 19, 20, 132})
        for (const bool bExtended : {false, true})
            QTest::addRow("interface %d, %s", nInterfaceId, bExtended ? "extended" : "basic")
                << nInterfaceId << bExtended
                << (bExtended &&
                    (nInterfaceId == 1 || nInterfaceId == 4 || nInterfaceId == 16 || nInterfaceId == 19));
}

void TestEdidOptions::TheExtendedRecordOffers120OnTwoGroups()
{
    QFETCH(int, interfaceId);
    QFETCH(bool, extended);
    QFETCH(bool, offered);
    QCOMPARE(Offers({16, interfaceId, false, extended}, 8), offered);
}

void TestEdidOptions::RatesAreOfferedInTableOrder()
{
    const std::vector<int> vecExpected = {0, 1, 2, 3, 4, 5, 6, 7, 8};
    QCOMPARE(EdidOptions::OfferedRates({53, 1, false, true}), vecExpected);
    const std::vector<int> vecHigh = {4, 5, 7, 8, 9, 10};
    QCOMPARE(EdidOptions::OfferedRates({68, 1, false, true}), vecHigh);
}

void TestEdidOptions::OfferedDepths_data()
{
    QTest::addColumn<SDepthSupport>("support");
    QTest::addColumn<int>("senderType");
    QTest::addColumn<int>("interfaceId");
    QTest::addColumn<int>("count");
    QTest::newRow("no video processor: all") << SDepthSupport{false, false, false} << 16 << 1 << 3;
    QTest::newRow("8 bit only") << SDepthSupport{true, false, false} << 16 << 1 << 1;
    QTest::newRow("8 bit only holds type 73 too") << SDepthSupport{true, false, false} << 73 << 16 << 1;
    QTest::newRow("10 bit") << SDepthSupport{true, true, false} << 16 << 1 << 2;
    QTest::newRow("12 bit") << SDepthSupport{true, true, true} << 16 << 1 << 3;
    QTest::newRow("12 bit alone brings 10 bit with it") << SDepthSupport{true, false, true} << 16 << 1 << 3;
    QTest::newRow("type 73 has 12 bit") << SDepthSupport{true, true, false} << 73 << 1 << 3;
    QTest::newRow("type 72 has not") << SDepthSupport{true, true, false} << 72 << 1 << 2;
    QTest::newRow("type 17 on 16 has 12 bit") << SDepthSupport{true, true, false} << 17 << 16 << 3;
    QTest::newRow("type 17 on 19 has 12 bit") << SDepthSupport{true, true, false} << 17 << 19 << 3;
    QTest::newRow("type 17 on 15 has not") << SDepthSupport{true, true, false} << 17 << 15 << 2;
    QTest::newRow("type 17 on 20 has not") << SDepthSupport{true, true, false} << 17 << 20 << 2;
    QTest::newRow("type 18 on 16 has not") << SDepthSupport{true, true, false} << 18 << 16 << 2;
}

void TestEdidOptions::OfferedDepths()
{
    QFETCH(SDepthSupport, support);
    QFETCH(int, senderType);
    QFETCH(int, interfaceId);
    QFETCH(int, count);
    QCOMPARE(EdidOptions::OfferedDepthCount(support, {senderType, interfaceId, false, false}), count);
}

void TestEdidOptions::OnlyAVideoProcessorIsHeldTo8Bit()
{
    QVERIFY(EdidOptions::HasOnly8Bit({true, false, false}));
    QVERIFY(!EdidOptions::HasOnly8Bit({false, false, false}));
    QVERIFY(!EdidOptions::HasOnly8Bit({true, true, false}));
    QVERIFY(!EdidOptions::HasOnly8Bit({true, false, true}));
}

QTEST_APPLESS_MAIN(TestEdidOptions)
#include "TestEdidOptions.moc"
