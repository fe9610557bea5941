#include "SenderModuleDialog/addressing/IPAddressRules.h"
#include "tests/addressing/AddressDialogSupport.h"

#include <QMap>
#include <QtTest>

using namespace IPAddressRules;
using AddressDialogSupport::List;

namespace {

/// A verdict by table; each call is noted.
class CScriptedVerdict
{
public:
    explicit CScriptedVerdict(QMap<QString, unsigned int> mapCodes)
        : m_mapCodes(std::move(mapCodes))
    {}

    bool operator()(unsigned int nIP, unsigned int* pCode)
    {
        const QString strIP = AddressText(nIP);
        listAsked.append(strIP);
        if (!m_mapCodes.contains(strIP))
            return false;
        *pCode = m_mapCodes.value(strIP);
        return true;
    }

    QStringList listAsked;

private:
    QMap<QString, unsigned int> m_mapCodes;
};

QString Text(const char* szText)
{
    return QString::fromUtf8(szText);
}

QList<QHostAddress> Addresses(const QStringList& listTexts)
{
    QList<QHostAddress> listAddresses;
    for (const QString& strText : listTexts)
        listAddresses.append(QHostAddress(strText));
    return listAddresses;
}

struct SNamedPath
{
    const char* szName;
    SPath path;
};

const SNamedPath c_arrSinglePaths[] = {
    {"by hand", c_pathCheckIPAddress},
    {"batch", c_pathCustomAdd},
    {"modify", c_pathModify},
};

const QString c_strOwn = Text("输入的IP地址和本机电脑的IP地址相同，会导致网络连接探测失败，是否继续？");
const QString c_strUnreasonable = Text("IP地址不合理。");

} // namespace

Q_DECLARE_METATYPE(SPath)

class TestIPAddressRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachCodeHasItsMessageOnEachPath_data();
    void EachCodeHasItsMessageOnEachPath();
    void AnAddressOfThisComputerIsAskedAbout_data();
    void AnAddressOfThisComputerIsAskedAbout();
    void AnEmptyTextIsUnreasonableAndTheHostIsNotAsked_data();
    void AnEmptyTextIsUnreasonableAndTheHostIsNotAsked();
    void AnIncompleteTextGoesToTheHostAsValueZero();
    void AnUnknownCode_data();
    void AnUnknownCode();
    void TheOldAddressMayBeKept_data();
    void TheOldAddressMayBeKept();
    void TheOldAddressIsComparedAsText();
    void EqualRowsAreRefusedBeforeTheHostIsAsked();
    void TwoEmptyRowsCountAsEqual();
    void OneEmptyRowGoesToTheHostAsValueZero();
    void OfSeveralRowsTheFirstCodeByPriorityIsTold();
    void RowsAreAskedAboutOnceAndThenRefused();
    void RowsReadTheCodeAndNotTheResult();
    void MoreThanFiveRowsAreJudgedLikeFive();
    void TheFirstLocalAddress_data();
    void TheFirstLocalAddress();
    void TheLastLocalAddressInAKnownNetwork_data();
    void TheLastLocalAddressInAKnownNetwork();
    void DetectedAddressesHaveTheirFirstOctetInTheLowByte();
    void AnEntryIsTakenApart_data();
    void AnEntryIsTakenApart();
    void AnEntryWithoutANameIsShownWithItsLastOctet_data();
    void AnEntryWithoutANameIsShownWithItsLastOctet();
};

void TestIPAddressRules::EachCodeHasItsMessageOnEachPath_data()
{
    struct SRow
    {
        const char* szName;
        unsigned int nCode;
        const char* szText;
    };
    const SRow arrRows[] = {
        {"in use", 0xE0832001, "IP地址已被使用。"},
        {"begins with 0", 0xE0832002, "IP地址不能以0开头。"},
        {"gateway", 0xE0832003, "IP地址与默认网关相同。"},
        {"broadcast", 0xE0832004, "IP地址是广播地址。"},
        {"unreasonable", 0xE0832005, "IP地址不合理。"},
    };
    QTest::addColumn<SPath>("path");
    QTest::addColumn<unsigned int>("code");
    QTest::addColumn<QString>("expected");
    for (const SRow& row : arrRows) {
        for (const SNamedPath& named : c_arrSinglePaths)
            QTest::addRow("%s, %s", row.szName, named.szName) << named.path << row.nCode << Text(row.szText);
        QTest::addRow("%s, rows", row.szName) << c_pathRows << row.nCode << Text(row.szText);
    }
}

void TestIPAddressRules::EachCodeHasItsMessageOnEachPath()
{
    QFETCH(SPath, path);
    QFETCH(unsigned int, code);
    QFETCH(QString, expected);
    CScriptedVerdict verdict({{QStringLiteral("10.0.0.1"), code}});
    const SJudgement judgement = Judge(path, List({"10.0.0.1"}), QString(), std::ref(verdict));
    QVERIFY(judgement.szQuestion == nullptr);
    QCOMPARE(Text(judgement.szRefusal), expected);
}

void TestIPAddressRules::AnAddressOfThisComputerIsAskedAbout_data()
{
    QTest::addColumn<SPath>("path");
    for (const SNamedPath& named : c_arrSinglePaths)
        QTest::newRow(named.szName) << named.path;
    QTest::newRow("rows") << c_pathRows;
}

void TestIPAddressRules::AnAddressOfThisComputerIsAskedAbout()
{
    QFETCH(SPath, path);
    CScriptedVerdict verdict({{QStringLiteral("10.0.0.1"), 0xE0832000}});
    const SJudgement judgement = Judge(path, List({"10.0.0.1"}), QString(), std::ref(verdict));
    QCOMPARE(Text(judgement.szQuestion), c_strOwn);
    QVERIFY(judgement.szRefusal == nullptr);
}

void TestIPAddressRules::AnEmptyTextIsUnreasonableAndTheHostIsNotAsked_data()
{
    QTest::addColumn<SPath>("path");
    for (const SNamedPath& named : c_arrSinglePaths)
        QTest::newRow(named.szName) << named.path;
}

void TestIPAddressRules::AnEmptyTextIsUnreasonableAndTheHostIsNotAsked()
{
    QFETCH(SPath, path);
    CScriptedVerdict verdict({});
    const SJudgement judgement = Judge(path, {QString()}, QString(), std::ref(verdict));
    QCOMPARE(Text(judgement.szRefusal), c_strUnreasonable);
    QCOMPARE(verdict.listAsked, QStringList());
}

void TestIPAddressRules::AnIncompleteTextGoesToTheHostAsValueZero()
{
    CScriptedVerdict verdict({});
    QVERIFY(Judge(c_pathCheckIPAddress, List({"10..1"}), QString(), std::ref(verdict)).IsAccepted());
    QCOMPARE(verdict.listAsked, List({"0.0.0.0"}));
}

void TestIPAddressRules::AnUnknownCode_data()
{
    QTest::addColumn<SPath>("path");
    QTest::addColumn<bool>("refused");
    for (const SNamedPath& named : c_arrSinglePaths)
        QTest::addRow("is unreasonable, %s", named.szName) << named.path << true;
    QTest::newRow("is no error among rows") << c_pathRows << false;
}

void TestIPAddressRules::AnUnknownCode()
{
    QFETCH(SPath, path);
    QFETCH(bool, refused);
    CScriptedVerdict verdict({{QStringLiteral("10.0.0.1"), 0x12345678}});
    const SJudgement judgement = Judge(path, List({"10.0.0.1"}), QString(), std::ref(verdict));
    QCOMPARE(Text(judgement.szRefusal), refused ? c_strUnreasonable : QString());
}

void TestIPAddressRules::TheOldAddressMayBeKept_data()
{
    QTest::addColumn<SPath>("path");
    QTest::addColumn<bool>("kept");
    QTest::newRow("modify") << c_pathModify << true;
    QTest::newRow("batch") << c_pathCustomAdd << true;
    QTest::newRow("by hand: not") << c_pathCheckIPAddress << false;
    QTest::newRow("rows: not") << c_pathRows << false;
}

void TestIPAddressRules::TheOldAddressMayBeKept()
{
    QFETCH(SPath, path);
    QFETCH(bool, kept);
    CScriptedVerdict verdict({{QStringLiteral("10.0.0.1"), 0xE0832001}});
    const SJudgement judgement =
        Judge(path, List({"10.0.0.1"}), QStringLiteral("10.0.0.1"), std::ref(verdict));
    QCOMPARE(judgement.IsAccepted(), kept);
}

void TestIPAddressRules::TheOldAddressIsComparedAsText()
{
    CScriptedVerdict verdict({{QStringLiteral("10.0.0.1"), 0xE0832001}});
    QVERIFY(!Judge(c_pathModify, List({"10.0.0.01"}), QStringLiteral("10.0.0.1"), std::ref(verdict))
                 .IsAccepted());
}

void TestIPAddressRules::EqualRowsAreRefusedBeforeTheHostIsAsked()
{
    CScriptedVerdict verdict({});
    const SJudgement judgement =
        Judge(c_pathRows, List({"10.0.0.1", "10.0.0.2", "10.0.0.1"}), QString(), std::ref(verdict));
    QCOMPARE(Text(judgement.szRefusal), Text("存在重复的IP地址。"));
    QCOMPARE(verdict.listAsked, QStringList());
}

void TestIPAddressRules::TwoEmptyRowsCountAsEqual()
{
    CScriptedVerdict verdict({});
    const SJudgement judgement = Judge(c_pathRows, {QString(), QString()}, QString(), std::ref(verdict));
    QCOMPARE(Text(judgement.szRefusal), Text("存在重复的IP地址。"));
}

void TestIPAddressRules::OneEmptyRowGoesToTheHostAsValueZero()
{
    CScriptedVerdict verdict({});
    QVERIFY(Judge(c_pathRows, {QString()}, QString(), std::ref(verdict)).IsAccepted());
    QCOMPARE(verdict.listAsked, List({"0.0.0.0"}));
}

void TestIPAddressRules::OfSeveralRowsTheFirstCodeByPriorityIsTold()
{
    CScriptedVerdict verdict({{QStringLiteral("10.0.0.1"), 0xE0832005},
                              {QStringLiteral("10.0.0.2"), 0xE0832003},
                              {QStringLiteral("10.0.0.3"), 0xE0832004}});
    const SJudgement judgement =
        Judge(c_pathRows, List({"10.0.0.1", "10.0.0.2", "10.0.0.3"}), QString(), std::ref(verdict));
    QCOMPARE(Text(judgement.szRefusal), Text("IP地址与默认网关相同。"));
}

void TestIPAddressRules::RowsAreAskedAboutOnceAndThenRefused()
{
    CScriptedVerdict verdict(
        {{QStringLiteral("10.0.0.1"), 0xE0832000}, {QStringLiteral("10.0.0.2"), 0xE0832001}});
    const SJudgement judgement =
        Judge(c_pathRows, List({"10.0.0.1", "10.0.0.2"}), QString(), std::ref(verdict));
    QCOMPARE(Text(judgement.szQuestion), c_strOwn);
    QCOMPARE(Text(judgement.szRefusal), Text("IP地址已被使用。"));
}

void TestIPAddressRules::RowsReadTheCodeAndNotTheResult()
{
    const auto funcLying = [](unsigned int, unsigned int* pCode) {
        *pCode = 0xE0832001;
        return false;
    };
    QCOMPARE(Text(Judge(c_pathRows, List({"10.0.0.1"}), QString(), funcLying).szRefusal),
             Text("IP地址已被使用。"));
    QVERIFY(Judge(c_pathModify, List({"10.0.0.1"}), QString(), funcLying).IsAccepted());
}

void TestIPAddressRules::MoreThanFiveRowsAreJudgedLikeFive()
{
    CScriptedVerdict verdict({{QStringLiteral("10.0.0.40"), 0xE0832004}});
    QStringList listRows;
    for (int i = 1; i <= 40; ++i)
        listRows.append(QStringLiteral("10.0.0.%1").arg(i));
    const SJudgement judgement = Judge(c_pathRows, listRows, QString(), std::ref(verdict));
    QCOMPARE(verdict.listAsked, listRows);
    QCOMPARE(Text(judgement.szRefusal), Text("IP地址是广播地址。"));
}

void TestIPAddressRules::TheFirstLocalAddress_data()
{
    QTest::addColumn<QStringList>("local");
    QTest::addColumn<QString>("expected");
    QTest::newRow("loopback and IPv6 are passed over")
        << List({"127.0.0.1", "::1", "fe80::1", "192.168.1.5", "10.0.0.7"}) << "192.168.1.5";
    QTest::newRow("none but loopback") << List({"127.0.0.1", "::1"}) << "127.0.0.1";
    QTest::newRow("none at all") << QStringList() << "127.0.0.1";
}

void TestIPAddressRules::TheFirstLocalAddress()
{
    QFETCH(QStringList, local);
    QFETCH(QString, expected);
    QCOMPARE(AddressText(FirstLocalAddress(Addresses(local))), expected);
}

void TestIPAddressRules::TheLastLocalAddressInAKnownNetwork_data()
{
    QTest::addColumn<QStringList>("local");
    QTest::addColumn<QString>("expected");
    QTest::newRow("of several the last") << List({"192.168.1.5", "10.0.0.7", "192.168.1.9"}) << "192.168.1.9";
    QTest::newRow("another network is passed over") << List({"192.168.1.5", "10.0.0.7"}) << "192.168.1.5";
    QTest::newRow("none in a known network") << List({"10.0.0.7"}) << "127.0.0.1";
}

void TestIPAddressRules::TheLastLocalAddressInAKnownNetwork()
{
    QFETCH(QStringList, local);
    QFETCH(QString, expected);
    const Networks networks = {AddressValue(QStringLiteral("192.168.1.0")),
                               AddressValue(QStringLiteral("172.16.0.0"))};
    QCOMPARE(AddressText(LastLocalAddressIn(networks, Addresses(local))), expected);
}

void TestIPAddressRules::DetectedAddressesHaveTheirFirstOctetInTheLowByte()
{
    const Networks networks = NetworksOf({0x0901A8C0U, 0x0A01A8C0U, 0x0500000AU});
    QCOMPARE(networks, (Networks{AddressValue(QStringLiteral("192.168.1.0")),
                                 AddressValue(QStringLiteral("10.0.0.0"))}));
}

void TestIPAddressRules::AnEntryIsTakenApart_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("name");
    QTest::newRow("with a name") << "10.0.0.1(Stage)"
                                 << "10.0.0.1"
                                 << "Stage";
    QTest::newRow("without a name") << "10.0.0.1()"
                                    << "10.0.0.1"
                                    << "";
    QTest::newRow("a name with parentheses ends at the first one") << "10.0.0.1(a(b)c)"
                                                                   << "10.0.0.1"
                                                                   << "a(b";
    QTest::newRow("without parentheses it is all address") << "10.0.0.1"
                                                           << "10.0.0.1"
                                                           << "10.0.0.1";
    QTest::newRow("without a closing one the name is the rest") << "10.0.0.1(Stage"
                                                                << "10.0.0.1"
                                                                << "Stage";
    QTest::newRow("empty") << ""
                           << ""
                           << "";
}

void TestIPAddressRules::AnEntryIsTakenApart()
{
    QFETCH(QString, entry);
    QFETCH(QString, address);
    QFETCH(QString, name);
    const SEntry parts = SplitEntry(entry);
    QCOMPARE(parts.strAddress, address);
    QCOMPARE(parts.strName, name);
}

void TestIPAddressRules::AnEntryWithoutANameIsShownWithItsLastOctet_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no name") << "192.168.1.17()"
                             << "192.168.1.17(IP17)";
    QTest::newRow("a name stays") << "192.168.1.17(Stage)"
                                  << "192.168.1.17(Stage)";
    QTest::newRow("no parentheses stay away") << "192.168.1.17"
                                              << "192.168.1.17";
    QTest::newRow("empty") << ""
                           << "";
}

void TestIPAddressRules::AnEntryWithoutANameIsShownWithItsLastOctet()
{
    QFETCH(QString, entry);
    QFETCH(QString, expected);
    QCOMPARE(EntryWithDefaultName(entry), expected);
}

QTEST_APPLESS_MAIN(TestIPAddressRules)
#include "TestIPAddressRules.moc"
