#include "SenderModuleDialog/addressing/AddressGenerators.h"
#include "SenderModuleDialog/addressing/IPAddressRules.h"
#include "oracles/addressing/AddressOracles.h"
#include "tests/addressing/AddressDialogSupport.h"

#include <QRandomGenerator>
#include <QSet>
#include <QtTest>

using namespace AddressGenerators;
using AddressDialogSupport::List;

namespace {

unsigned int Value(const char* szAddress)
{
    return IPAddressRules::AddressValue(QString::fromLatin1(szAddress));
}

QStringList Texts(const std::vector<unsigned int>& vecAddresses)
{
    QStringList listTexts;
    for (const unsigned int nIP : vecAddresses)
        listTexts.append(nIP == 0 ? QString() : IPAddressRules::AddressText(nIP));
    return listTexts;
}

bool NoError(unsigned int)
{
    return false;
}

bool AlwaysError(unsigned int)
{
    return true;
}

/// A predicate that knows a few bad addresses.
FuncHasError Except(const QStringList& listBad)
{
    return [listBad](unsigned int nIP) { return listBad.contains(IPAddressRules::AddressText(nIP)); };
}

std::vector<unsigned int> Batch(unsigned int nStart, int nCount, const FuncHasError& funcHasError)
{
    std::vector<unsigned int> vecStored;
    AddBatch(nStart, nCount, funcHasError, [&](unsigned int nIP) { vecStored.push_back(nIP); });
    return vecStored;
}

/// A host that reports an address as used as soon as it is stored, beside those that are bad anyway.
std::vector<unsigned int> ByHand(unsigned int nStart, int nCount, int nListed, const FuncHasError& funcBad)
{
    std::vector<unsigned int> vecStored;
    QSet<unsigned int> setStored;
    AddByHand(
        nStart, nCount, nListed, [&](unsigned int nIP) { return setStored.contains(nIP) || funcBad(nIP); },
        [&](unsigned int nIP) {
            vecStored.push_back(nIP);
            setStored.insert(nIP);
        });
    return vecStored;
}

std::vector<unsigned int> Proposals(unsigned int nBase, int nRows, const FuncHasError& funcHasError)
{
    CProposalSearch search(nBase);
    std::vector<unsigned int> vecProposals;
    vecProposals.reserve(std::size_t(nRows));
    for (int i = 0; i < nRows; ++i)
        vecProposals.push_back(search.Next(funcHasError).value_or(0));
    return vecProposals;
}

/// A predicate that answers by the address alone: the same for both sides of a comparison.
FuncHasError RandomPredicate(quint32 nSeed, quint32 nErrorsPerThousand)
{
    return [nSeed, nErrorsPerThousand](unsigned int nIP) {
        const quint32 nMixed = (nIP ^ nSeed) * 2654435761U;
        return (nMixed >> 8) % 1000 < nErrorsPerThousand;
    };
}

/// Addresses near the ends of octets, where the runs turn, and anywhere.
unsigned int RandomAddress(QRandomGenerator& random)
{
    const unsigned int nIP = random.generate();
    return random.bounded(2) == 0 ? nIP : nIP | (random.bounded(2) == 0 ? 0x000000F8U : 0x0000FFF0U);
}

} // namespace

class TestAddressGenerators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ABatchStores_data();
    void ABatchStores();
    void ABatchDoesNotAskForItsStartNorForAnAddressThatOpensANetwork();
    void ABatchSpendsAPassWhereTheThirdOctetRunsOutAndGoesOnInTheNeighbouringNetwork();
    void ABatchOfNothingStoresNothing_data();
    void ABatchOfNothingStoresNothing();
    void AddingByHandStores_data();
    void AddingByHandStores();
    void AddingByHandAsksForTheAddressThatOpensANetwork();
    void AddingByHandStoresTheSameAddressAgainWhenTheHostDoesNotSeeIt();
    void TheFirstFreeAddress_data();
    void TheFirstFreeAddress();
    void TheSearchForAFirstFreeAddressEndsWhenOneBecomesFreeLate();
    void TheSearchTriesOneAddressOfTheNextNetwork();
    void Proposals_data();
    void Proposals();
    void TheBudgetOfAttemptsIsOneForAllRows();
    void ABatchAgreesWithThePlainLoop();
    void AddingByHandAgreesWithThePlainLoop();
    void ProposalsAgreeWithThePlainLoop();
    void AddingByHandStoresNoAddressTwiceWhereTheHostAnswersTruthfully();
};

void TestAddressGenerators::ABatchStores_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("bad");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("the last octet 255 is taken like any other")
        << "192.168.0.253" << 5 << QStringList()
        << List({"192.168.0.253", "192.168.0.254", "192.168.0.255", "192.168.1.1", "192.168.1.2"});
    QTest::newRow("a broadcast address is skipped and does not count")
        << "192.168.0.253" << 5 << List({"192.168.0.255"})
        << List({"192.168.0.253", "192.168.0.254", "192.168.1.1", "192.168.1.2", "192.168.1.3"});
    QTest::newRow("addresses with an error extend the run")
        << "10.0.0.1" << 3 << List({"10.0.0.2", "10.0.0.3"}) << List({"10.0.0.1", "10.0.0.4", "10.0.0.5"});
    QTest::newRow("the start is stored though the host sees an error in it")
        << "10.0.0.1" << 1 << List({"10.0.0.1"}) << List({"10.0.0.1"});
    QTest::newRow("the address that opens a network is stored though the host sees an error in it")
        << "10.0.0.255" << 2 << List({"10.0.1.1"}) << List({"10.0.0.255", "10.0.1.1"});
}

void TestAddressGenerators::ABatchStores()
{
    QFETCH(QString, start);
    QFETCH(int, count);
    QFETCH(QStringList, bad);
    QFETCH(QStringList, expected);
    QCOMPARE(Texts(Batch(IPAddressRules::AddressValue(start), count, Except(bad))), expected);
}

void TestAddressGenerators::ABatchDoesNotAskForItsStartNorForAnAddressThatOpensANetwork()
{
    QStringList listAsked;
    Batch(Value("10.0.0.254"), 4, [&](unsigned int nIP) {
        listAsked.append(IPAddressRules::AddressText(nIP));
        return false;
    });
    QCOMPARE(listAsked, (List({"10.0.0.255", "10.0.1.2"})));
}

void TestAddressGenerators::ABatchSpendsAPassWhereTheThirdOctetRunsOutAndGoesOnInTheNeighbouringNetwork()
{
    // The pass that wraps counts but stores nothing; then 256 in the third octet sets the low bit
    // of the second octet.
    QCOMPARE(Texts(Batch(Value("10.4.255.255"), 4, NoError)),
             (List({"10.4.255.255", "10.5.0.2", "10.5.0.3"})));
}

void TestAddressGenerators::ABatchOfNothingStoresNothing_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("none") << 0;
    QTest::newRow("less than none") << -5;
}

void TestAddressGenerators::ABatchOfNothingStoresNothing()
{
    QFETCH(int, count);
    QVERIFY(Batch(Value("10.0.0.1"), count, NoError).empty());
    QVERIFY(ByHand(Value("10.0.0.1"), count, 0, NoError).empty());
}

void TestAddressGenerators::AddingByHandStores_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("listed");
    QTest::addColumn<QStringList>("bad");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("a run through the end of a network")
        << "192.168.0.254" << 4 << 0 << QStringList()
        << List({"192.168.0.254", "192.168.0.255", "192.168.1.1", "192.168.1.2"});
    QTest::newRow("addresses with an error are skipped and do not count")
        << "10.0.0.1" << 3 << 0 << List({"10.0.0.2"}) << List({"10.0.0.1", "10.0.0.3", "10.0.0.4"});
    QTest::newRow("the start is stored though the host sees an error in it")
        << "10.0.0.1" << 1 << 0 << List({"10.0.0.1"}) << List({"10.0.0.1"});
    QTest::newRow("the address that opens a network is skipped when the host sees an error in it")
        << "10.0.0.255" << 2 << 0 << List({"10.0.1.1"}) << List({"10.0.0.255", "10.0.1.2"});
    QTest::newRow("a list of 253 takes two of five")
        << "10.0.0.1" << 5 << 253 << QStringList() << List({"10.0.0.1", "10.0.0.2"});
    QTest::newRow("a list of 254 takes one") << "10.0.0.1" << 5 << 254 << QStringList() << List({"10.0.0.1"});
    QTest::newRow("the pass that wraps the third octet stores nothing")
        << "10.4.255.255" << 3 << 0 << QStringList() << List({"10.4.255.255", "10.5.0.1"});
}

void TestAddressGenerators::AddingByHandStores()
{
    QFETCH(QString, start);
    QFETCH(int, count);
    QFETCH(int, listed);
    QFETCH(QStringList, bad);
    QFETCH(QStringList, expected);
    QCOMPARE(Texts(ByHand(IPAddressRules::AddressValue(start), count, listed, Except(bad))), expected);
}

void TestAddressGenerators::AddingByHandAsksForTheAddressThatOpensANetwork()
{
    QStringList listAsked;
    AddByHand(
        Value("10.0.0.255"), 2, 0,
        [&](unsigned int nIP) {
            listAsked.append(IPAddressRules::AddressText(nIP));
            return nIP == Value("10.0.0.255");
        },
        [](unsigned int) {});
    QCOMPARE(listAsked, (List({"10.0.0.255", "10.0.1.1"})));
}

void TestAddressGenerators::AddingByHandStoresTheSameAddressAgainWhenTheHostDoesNotSeeIt()
{
    std::vector<unsigned int> vecStored;
    AddByHand(Value("10.0.0.1"), 3, 0, NoError, [&](unsigned int nIP) { vecStored.push_back(nIP); });
    QCOMPARE(Texts(vecStored), (List({"10.0.0.1", "10.0.0.1", "10.0.0.1"})));
}

void TestAddressGenerators::TheFirstFreeAddress_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QStringList>("bad");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the next one") << "192.168.1.10" << QStringList() << "192.168.1.11";
    QTest::newRow("an address with an error is skipped")
        << "192.168.1.10" << List({"192.168.1.11"}) << "192.168.1.12";
    QTest::newRow("behind .254 comes .255") << "192.168.1.254" << QStringList() << "192.168.1.255";
    QTest::newRow("behind .255 comes the next network, the base's last octet plus 1")
        << "192.168.1.254" << List({"192.168.1.255"}) << "192.168.2.255";
    QTest::newRow("behind the third octet 255 comes 1")
        << "192.168.255.254" << List({"192.168.255.255"}) << "192.168.1.255";
    QTest::newRow("from loopback") << "127.0.0.1" << QStringList() << "127.0.0.2";
}

void TestAddressGenerators::TheFirstFreeAddress()
{
    QFETCH(QString, base);
    QFETCH(QStringList, bad);
    QFETCH(QString, expected);
    const unsigned int nFree = FirstFreeAfter(IPAddressRules::AddressValue(base), Except(bad));
    QCOMPARE(IPAddressRules::AddressText(nFree), expected);
}

void TestAddressGenerators::TheSearchForAFirstFreeAddressEndsWhenOneBecomesFreeLate()
{
    constexpr int c_nLate = 100000;
    int nAsked = 0;
    const unsigned int nFree =
        FirstFreeAfter(Value("10.0.0.200"), [&](unsigned int) { return ++nAsked < c_nLate; });
    QCOMPARE(nAsked, c_nLate);
    QCOMPARE(nFree >> 16, Value("10.0.0.0") >> 16);
}

void TestAddressGenerators::TheSearchTriesOneAddressOfTheNextNetwork()
{
    QSet<unsigned int> setNext;
    int nAsked = 0;
    FirstFreeAfter(Value("10.0.0.200"), [&](unsigned int nIP) {
        if (nIP >> 8 == Value("10.0.1.0") >> 8)
            setNext.insert(nIP);
        return ++nAsked < 5000;
    });
    QCOMPARE(setNext, QSet<unsigned int>{Value("10.0.1.201")});
}

void TestAddressGenerators::Proposals_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QStringList>("bad");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("three rows through the end of a network")
        << "10.0.0.253" << 3 << QStringList() << List({"10.0.0.254", "10.0.0.255", "10.0.1.2"});
    QTest::newRow("an address with an error is skipped")
        << "10.0.0.1" << 2 << List({"10.0.0.3"}) << List({"10.0.0.2", "10.0.0.4"});
    QTest::newRow("a second octet of 255 becomes 1")
        << "10.255.3.4" << 1 << QStringList() << List({"10.1.3.5"});
    QTest::newRow("a first octet of 0 becomes 192") << "0.2.3.4" << 1 << QStringList() << List({"192.2.3.5"});
    QTest::newRow("a first octet of 255 becomes 192")
        << "255.255.3.4" << 1 << QStringList() << List({"192.1.3.5"});
    QTest::newRow("a third octet of 255 becomes 1 where the network ends")
        << "10.0.255.255" << 1 << QStringList() << List({"10.0.1.2"});
    QTest::newRow("from loopback") << "127.0.0.1" << 1 << QStringList() << List({"127.0.0.2"});
}

void TestAddressGenerators::Proposals()
{
    QFETCH(QString, base);
    QFETCH(int, rows);
    QFETCH(QStringList, bad);
    QFETCH(QStringList, expected);
    QCOMPARE(Texts(::Proposals(IPAddressRules::AddressValue(base), rows, Except(bad))), expected);
}

void TestAddressGenerators::TheBudgetOfAttemptsIsOneForAllRows()
{
    CProposalSearch search(Value("10.0.0.1"));
    int nAsked = 0;
    const auto funcCount = [&](unsigned int nIP) {
        ++nAsked;
        return AlwaysError(nIP);
    };
    QVERIFY(!search.Next(funcCount));
    QCOMPARE(nAsked, 257);
    QVERIFY(!search.Next(funcCount));
    QCOMPARE(nAsked, 258);
    QVERIFY(!search.Next(funcCount));
    QCOMPARE(nAsked, 259);
}

void TestAddressGenerators::ABatchAgreesWithThePlainLoop()
{
    QRandomGenerator random(1);
    for (int i = 0; i < 3000; ++i) {
        const unsigned int nStart = RandomAddress(random);
        const int nCount = random.bounded(1, 256);
        const FuncHasError funcHasError = RandomPredicate(random.generate(), quint32(random.bounded(900)));
        QCOMPARE(Texts(Batch(nStart, nCount, funcHasError)),
                 Texts(AddressOracles::Batch(nStart, nCount, funcHasError)));
    }
}

void TestAddressGenerators::AddingByHandAgreesWithThePlainLoop()
{
    QRandomGenerator random(2);
    for (int i = 0; i < 2000; ++i) {
        const unsigned int nStart = RandomAddress(random);
        const int nCount = random.bounded(1, 256);
        const int nListed = random.bounded(255);
        const FuncHasError funcBad = RandomPredicate(random.generate(), quint32(random.bounded(900)));
        QSet<unsigned int> setStored;
        const auto vecExpected = AddressOracles::ByHand(
            nStart, nCount, nListed,
            [&](unsigned int nIP) { return setStored.contains(nIP) || funcBad(nIP); },
            [&](unsigned int nIP) { setStored.insert(nIP); });
        QCOMPARE(Texts(ByHand(nStart, nCount, nListed, funcBad)), Texts(vecExpected));
    }
}

void TestAddressGenerators::ProposalsAgreeWithThePlainLoop()
{
    QRandomGenerator random(3);
    for (int i = 0; i < 2000; ++i) {
        const unsigned int nBase = RandomAddress(random);
        const int nRows = random.bounded(1, 20);
        const FuncHasError funcHasError = RandomPredicate(random.generate(), quint32(random.bounded(1001)));
        QCOMPARE(Texts(::Proposals(nBase, nRows, funcHasError)),
                 Texts(AddressOracles::Proposals(nBase, nRows, funcHasError)));
    }
}

void TestAddressGenerators::AddingByHandStoresNoAddressTwiceWhereTheHostAnswersTruthfully()
{
    QRandomGenerator random(4);
    for (int i = 0; i < 500; ++i) {
        const FuncHasError funcBad = RandomPredicate(random.generate(), 300);
        const std::vector<unsigned int> vecStored = ByHand(RandomAddress(random), 100, 0, funcBad);
        const QSet<unsigned int> setStored(vecStored.cbegin(), vecStored.cend());
        QCOMPARE(setStored.size(), int(vecStored.size()));
    }
}

QTEST_APPLESS_MAIN(TestAddressGenerators)
#include "TestAddressGenerators.moc"
