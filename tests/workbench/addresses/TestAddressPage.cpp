#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "host/OrviControl/CustomIPEdit.h"
#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/DialogOperator.h"
#include "workbench/addresses/AddressPage.h"

#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QtTest>

namespace {

void EnterAddress(QDialog* pDialog, const char* szAddress)
{
    pDialog->findChild<CCustomIPEdit*>()->setText(QString::fromLatin1(szAddress));
}

bool Leave()
{
    return true;
}

QStringList Stored()
{
    return CSimulator::Instance().Project().addresses.listStored;
}

/// A list of three entries, made by the batch dialog.
void MakeList(CAddressPage& page)
{
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        EnterAddress(pDialog, "192.168.1.20");
        Press(pDialog, "确定");
    });
    page.AddBatch();
}

} // namespace

class TestAddressPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void ABatchFillsTheListUpTo16();
    void ModifyingPutsTheEntryIntoForce();
    void ResettingBringsTheFirstAddressBack();
    void AddingByHandAddsSendersAndAddresses();
    void ProcessorsAddedByHandAreAnnouncedOnce();
    void StartingTheDemoReplacesTheProject();
    void TheDemoIsNotStartedWhenTheOperatorWantsToStay();
    void TheCheckFieldSaysWhyAnAddressIsRefused_data();
    void TheCheckFieldSaysWhyAnAddressIsRefused();
    void ButtonsOfAnEntryNeedOne();
};

void TestAddressPage::initTestCase()
{
    SenderModuleDialogInit(CSimulator::Instance().Label());
    CSimulator::Instance().Addresses().SetNetworkFacts([] {
        SNetworkFacts facts;
        facts.listLocal = {{0xC0A8010A, 0xFFFFFF00, 0xC0A801FF}};
        facts.listGateways = {0xC0A80101};
        return facts;
    });
}

void TestAddressPage::init()
{
    CSimulator::Instance().Document().NewProject();
}

void TestAddressPage::ABatchFillsTheListUpTo16()
{
    CAddressPage page(Leave);
    MakeList(page);
    QCOMPARE(Stored().size(), 16);
    QCOMPARE(Stored().first(), QStringLiteral("192.168.1.20()"));
    QCOMPARE(page.findChild<QTableView*>()->model()->rowCount(), 16);
}

void TestAddressPage::ModifyingPutsTheEntryIntoForce()
{
    CAddressPage page(Leave);
    MakeList(page);
    page.SelectRow(1);
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        EnterAddress(pDialog, "192.168.1.99");
        Press(pDialog, "确定");
    });
    page.ModifySelected();
    QCOMPARE(Stored().at(1), QStringLiteral("192.168.1.99()"));
}

void TestAddressPage::ResettingBringsTheFirstAddressBack()
{
    CAddressPage page(Leave);
    MakeList(page);
    page.SelectRow(1);
    {
        const CDialogOperator dialogOperator([](QDialog* pDialog) {
            EnterAddress(pDialog, "192.168.1.99");
            Press(pDialog, "确定");
        });
        page.ModifySelected();
    }
    page.SelectRow(1);
    QSignalSpy spy(&page, &CWorkbenchPage::Reported);
    page.ResetSelected();
    QCOMPARE(Stored().at(1), QStringLiteral("192.168.1.21()"));
    QVERIFY(spy.last().first().toString().contains(QStringLiteral("192.168.1.21(IP21)")));
}

void TestAddressPage::AddingByHandAddsSendersAndAddresses()
{
    CSimulator::Instance().Document().Change([](SSimulatedProject& project) {
        project.addressing.nDetectStrategy = 2;
        project.addressing.bIPAddressMode = true;
        project.addressing.nAddedSenderCount = 0;
    });
    CAddressPage page(Leave);
    const std::size_t nBefore = CSimulator::Instance().Project().listSenders.size();
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        EnterAddress(pDialog, "192.168.1.50");
        Press(pDialog, "确定");
    });
    page.AddByHand();
    QCOMPARE(CSimulator::Instance().Project().listSenders.size(), nBefore + 3);
    QCOMPARE(Stored(), (QStringList{QStringLiteral("192.168.1.50()"), QStringLiteral("192.168.1.51()"),
                                    QStringLiteral("192.168.1.52()")}));
}

void TestAddressPage::ProcessorsAddedByHandAreAnnouncedOnce()
{
    CSimulator::Instance().Document().Change(
        [](SSimulatedProject& project) { project.addressing.bIPAddressMode = false; });
    CAddressPage page(Leave);
    QSignalSpy spyChanged(&CSimulator::Instance().Document(), &CProjectDocument::OnProjectChanged);
    const CDialogOperator dialogOperator([](QDialog* pDialog) { Press(pDialog, "确定"); });
    page.AddByHand();
    QCOMPARE(spyChanged.count(), 1);
    QCOMPARE(spyChanged.first().first().value<SProjectChange>().setSenderIds.size(), 3);
}

void TestAddressPage::StartingTheDemoReplacesTheProject()
{
    CAddressPage page(Leave);
    const CDialogOperator dialogOperator([](QDialog* pDialog) { Press(pDialog, "确认"); });
    page.StartDemo();
    QCOMPARE(int(CSimulator::Instance().Project().listSenders.size()), 1);
    QCOMPARE(CSimulator::Instance().Project().listSenders[0].capability.nType, 21);
    QVERIFY(CSimulator::Instance().Project().bDemoMode);
}

void TestAddressPage::TheDemoIsNotStartedWhenTheOperatorWantsToStay()
{
    CAddressPage page([] { return false; });
    const std::size_t nSenders = CSimulator::Instance().Project().listSenders.size();
    page.StartDemo();
    QCOMPARE(CSimulator::Instance().Project().listSenders.size(), nSenders);
}

void TestAddressPage::TheCheckFieldSaysWhyAnAddressIsRefused_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("expected");
    QTest::newRow("good") << "192.168.1.77"
                          << "可以使用";
    QTest::newRow("this computer") << "192.168.1.10"
                                   << "本机的地址：需要确认";
    QTest::newRow("gateway") << "192.168.1.1"
                             << "默认网关的地址";
    QTest::newRow("broadcast") << "192.168.1.255"
                               << "广播地址";
    QTest::newRow("first octet 0") << "0.1.2.3"
                                   << "以 0 开头";
    QTest::newRow("multicast") << "224.0.0.1"
                               << "主机不能使用的地址：组播、保留或网络地址";
    QTest::newRow("incomplete") << "192.168"
                                << "不是完整的地址";
    QTest::newRow("empty") << ""
                           << "";
}

void TestAddressPage::TheCheckFieldSaysWhyAnAddressIsRefused()
{
    QFETCH(QString, address);
    CAddressPage page(Leave);
    page.findChild<CCustomIPEdit*>()->setText(address);
    QTEST(page.ShownVerdict(), "expected");
}

void TestAddressPage::ButtonsOfAnEntryNeedOne()
{
    CAddressPage page(Leave);
    const auto funcEnabled = [&page](const char* szText) {
        for (const QPushButton* pButton : page.findChildren<QPushButton*>())
            if (pButton->text() == QString::fromUtf8(szText))
                return pButton->isEnabled();
        return false;
    };
    QVERIFY(!funcEnabled("修改..."));
    MakeList(page);
    page.SelectRow(0);
    QVERIFY(funcEnabled("修改..."));
    QVERIFY(funcEnabled("删除"));
}

QTEST_MAIN(TestAddressPage)
#include "TestAddressPage.moc"
