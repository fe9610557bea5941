#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "host/OrviControl/CustomIPEdit.h"
#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/DialogOperator.h"
#include "workbench/ProjectHistory.h"
#include "workbench/addresses/AddressPage.h"

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
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

void Click(CAddressPage& page, const char* szButton)
{
    QTest::mouseClick(page.findChild<QPushButton*>(QString::fromLatin1(szButton)), Qt::LeftButton);
}

/// A list of sixteen entries, made by the batch dialog.
void MakeList(CAddressPage& page)
{
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        EnterAddress(pDialog, "192.168.1.20");
        Press(pDialog, "确定");
    });
    Click(page, "batch");
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
    void DeleteRemovesTheSelectedAddressesInOneStep();
    void AfterDeleteTheNextAddressIsSelected();
    void TheAddressIsModifiedFromTheList_data();
    void TheAddressIsModifiedFromTheList();
    void ABatchTellsWhatItAddedAndLeftOut();
    void ACancelledBatchTellsNothing();
    void TheNumberOfProcessorsBelongsToSetAddresses();
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
    Click(page, "modify");
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
        Click(page, "modify");
    }
    page.SelectRow(1);
    QSignalSpy spy(&page, &CWorkbenchPage::Reported);
    Click(page, "reset");
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
    Click(page, "byHand");
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
    Click(page, "byHand");
    QCOMPARE(spyChanged.count(), 1);
    QCOMPARE(spyChanged.first().first().value<SProjectChange>().setSenderIds.size(), 3);
}

void TestAddressPage::StartingTheDemoReplacesTheProject()
{
    CAddressPage page(Leave);
    const CDialogOperator dialogOperator([](QDialog* pDialog) { Press(pDialog, "确认"); });
    Click(page, "demo");
    QCOMPARE(int(CSimulator::Instance().Project().listSenders.size()), 1);
    QCOMPARE(CSimulator::Instance().Project().listSenders[0].capability.nType, 21);
    QVERIFY(CSimulator::Instance().Project().bDemoMode);
}

void TestAddressPage::TheDemoIsNotStartedWhenTheOperatorWantsToStay()
{
    CAddressPage page([] { return false; });
    const std::size_t nSenders = CSimulator::Instance().Project().listSenders.size();
    Click(page, "demo");
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
    const auto IsEnabled = [&page](const char* szButton) {
        return page.findChild<QPushButton*>(QString::fromLatin1(szButton))->isEnabled();
    };
    QVERIFY(!IsEnabled("modify"));
    MakeList(page);
    page.SelectRow(0);
    QVERIFY(IsEnabled("modify"));
    QVERIFY(IsEnabled("remove"));
    page.findChild<QTableView*>()->selectAll();
    QVERIFY(!IsEnabled("modify"));
    QVERIFY(IsEnabled("remove"));
}

/// The page on the screen with a list, its table focused, and the history of the project.
struct SFocusedList
{
    CAddressPage page{Leave};
    CProjectHistory history;
    QTableView* pTable = page.findChild<QTableView*>();

    SFocusedList()
    {
        history.Follow(page);
        MakeList(page);
        page.resize(800, 600);
        page.show();
        QApplication::setActiveWindow(&page);
        if (!QTest::qWaitForWindowActive(&page))
            qFatal("The page did not become active.");
        pTable->setFocus();
        page.SelectRow(0);
    }

    void Click(int nRow, Qt::KeyboardModifiers modifiers)
    {
        QTest::mouseClick(pTable->viewport(), Qt::LeftButton, modifiers,
                          pTable->visualRect(pTable->model()->index(nRow, 0)).center());
    }
};

void TestAddressPage::DeleteRemovesTheSelectedAddressesInOneStep()
{
    SFocusedList shown;
    const QStringList listBefore = Stored();
    shown.Click(1, Qt::NoModifier);
    shown.Click(3, Qt::ShiftModifier);
    shown.Click(5, Qt::ControlModifier);
    const int nSteps = shown.history.Steps().count();
    QTest::keyClick(shown.pTable, Qt::Key_Delete);
    QCOMPARE(Stored(), (QStringList{listBefore[0], listBefore[4]} + listBefore.mid(6)));
    QCOMPARE(shown.history.Steps().count(), nSteps + 1);
    shown.history.Undo();
    QCOMPARE(Stored(), listBefore);
    shown.history.Undo();
    QVERIFY(Stored().isEmpty());
    shown.history.Redo();
    QCOMPARE(Stored(), listBefore);
}

void TestAddressPage::AfterDeleteTheNextAddressIsSelected()
{
    const SFocusedList shown;
    QTest::keyClick(shown.pTable, Qt::Key_Delete);
    QTest::keyClick(shown.pTable, Qt::Key_Delete);
    QCOMPARE(Stored().first(), QStringLiteral("192.168.1.22()"));
}

void TestAddressPage::TheAddressIsModifiedFromTheList_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("Enter") << false;
    QTest::newRow("double click") << true;
}

void TestAddressPage::TheAddressIsModifiedFromTheList()
{
    QFETCH(bool, byMouse);
    SFocusedList shown;
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        EnterAddress(pDialog, "192.168.1.99");
        Press(pDialog, "确定");
    });
    // As a mouse does: the first click chooses the row.
    shown.Click(0, Qt::NoModifier);
    if (byMouse)
        QTest::mouseDClick(shown.pTable->viewport(), Qt::LeftButton, Qt::NoModifier,
                           shown.pTable->visualRect(shown.pTable->model()->index(0, 0)).center());
    else
        QTest::keyClick(shown.pTable, Qt::Key_Return);
    QCOMPARE(Stored().first(), QStringLiteral("192.168.1.99()"));
}

void TestAddressPage::ABatchTellsWhatItAddedAndLeftOut()
{
    CAddressPage page(Leave);
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        EnterAddress(pDialog, "192.168.1.5");
        Press(pDialog, "确定");
    });
    Click(page, "batch");
    const QString strReport = page.findChild<QLabel*>(QStringLiteral("report"))->text();
    QCOMPARE(strReport, QStringLiteral("已添加 16 个地址：192.168.1.5 至 192.168.1.21。 "
                                       "略过 1 个：192.168.1.10（本机的地址：需要确认）。"));
}

void TestAddressPage::ACancelledBatchTellsNothing()
{
    CAddressPage page(Leave);
    const CDialogOperator dialogOperator([](QDialog* pDialog) { pDialog->reject(); });
    Click(page, "batch");
    QVERIFY(page.findChild<QLabel*>(QStringLiteral("report"))->text().isEmpty());
}

void TestAddressPage::TheNumberOfProcessorsBelongsToSetAddresses()
{
    CAddressPage page(Leave);
    const auto* pCount = page.findChild<QSpinBox*>(QStringLiteral("count"));
    const auto* pSet = page.findChild<QPushButton*>(QStringLiteral("set"));
    const auto* pBatch = page.findChild<QPushButton*>(QStringLiteral("batch"));
    QVERIFY(qobject_cast<QGroupBox*>(pCount->parentWidget()) != nullptr);
    QCOMPARE(pSet->parentWidget(), pCount->parentWidget());
    QVERIFY(pBatch->parentWidget() != pCount->parentWidget());
}

QTEST_MAIN(TestAddressPage)
#include "TestAddressPage.moc"
