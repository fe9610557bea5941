#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "tests/addressing/AddressDialogSupport.h"
#include "tests/support/Controls.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/RecordingHost.h"

#include <QMenu>
#include <QNetworkInterface>
#include <QPushButton>
#include <QtTest>

using namespace AddressDialogSupport;

namespace {

const QStringList c_listWrites = List({"AddSpecifiedIP", "SpecifiedIPsSave"});

/// A host whose processors are found by address.
void UseAddresses(CRecordingHost& host)
{
    host.configData.nDetectStrategy = 2;
    host.senderLogic.bIPAddressMode = true;
}

} // namespace

class TestCustomAddProcessorDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheHostIsAskedWithFalseAsThirdArgument();
    void RowsAndSizeFollowTheHost_data();
    void RowsAndSizeFollowTheHost();
    void TheHostIsAskedInOrder();
    void TheNumberStartsAtThree();
    void TheNumberIsClampedWhereTheLimitIsLower();
    void TheMisspeltSelectorStays();
    void ThePortMenuOffersNineValues();
    void ThePortTextIsTheCurrentProcessorsAndTheCountThatOfProcessorZero();
    void OkTakesTheChosenPorts();
    void WithoutThePortRowThePortsStayThoseOfProcessorZero();
    void AnotherStrategyShowsNoAddressAndWritesNothing();
    void TheProposalIsTheFirstFreeAddressAfterALocalOne();
    void TheProposalDoesNotAskTheLogicForNetworks();
    void TheProposalCountsFromLoopbackWithoutOtherAddresses();
    void TheProposalFollowsTheRealInterfaces();
    void OkStoresTheRunAndSaves();
    void AnAddressInUseIsRefused();
    void ARefusalKeepsTheDialogOpenAndTheChoice();
    void AFullListStoresNothingSavesAndCloses();
    void AListOf253TakesTwoOfFive();
    void CancelWritesNothing();
    void AnotherIdDoesNothing();
    void TheHandlerIsReachedThroughTheMetaObject();
    void ClosingByTheTitleBarWritesNothing();
    void BeforeTheHostIsThereTheDialogFaults();
};

void TestCustomAddProcessorDlg::RowsAndSizeFollowTheHost_data()
{
    QTest::addColumn<int>("added");
    QTest::addColumn<bool>("addresses");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QStringList>("captions");
    QTest::newRow("ports and addresses")
        << 0 << true << QSize(340, 175) << List({"主控数量", "输出口数量", "起始IP地址"});
    QTest::newRow("ports") << 0 << false << QSize(260, 145) << List({"主控数量", "输出口数量"});
    QTest::newRow("addresses") << 1 << true << QSize(340, 145) << List({"主控数量", "起始IP地址"});
    QTest::newRow("neither") << 1 << false << QSize(260, 95) << List({"主控数量"});
}

void TestCustomAddProcessorDlg::RowsAndSizeFollowTheHost()
{
    QFETCH(int, added);
    QFETCH(bool, addresses);
    CRecordingHost host;
    host.senderLogic.nAddedSenderCount = added;
    if (addresses)
        UseAddresses(host);
    const CLocalAddressScript local({"10.0.0.5"});
    CCustomAddProcessorDlg dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("自定义添加主控"));
    QCOMPARE(dialog.focusPolicy(), Qt::ClickFocus);
    QTEST(dialog.size(), "size");
    QTEST(Captions(dialog), "captions");
}

void TestCustomAddProcessorDlg::TheHostIsAskedInOrder()
{
    CRecordingHost host;
    UseAddresses(host);
    const CLocalAddressScript local({"10.0.0.5"});
    const CCustomAddProcessorDlg dialog(nullptr);
    QCOMPARE(host.record.All(), List({"GetAddedSenderCount()", "GetSender(0)", "GetDetectStrategy()",
                                      "IsIPAddressMode()", "IsIPAddressMode()", "GetSenderCountLimit(true)",
                                      "GetCurrentSender()", "IsIPHasError(10.0.0.6, null, false)"}));
}

void TestCustomAddProcessorDlg::TheNumberStartsAtThree()
{
    const CRecordingHost host;
    CCustomAddProcessorDlg dialog(nullptr);
    const auto* pSpinBox = &Control<CCustomSpinBox>(dialog, "count");
    QCOMPARE(pSpinBox->size(), QSize(60, 24));
    QCOMPARE(pSpinBox->value(), 3.0);
    QCOMPARE(pSpinBox->minimum(), 1.0);
    QCOMPARE(pSpinBox->maximum(), 255.0);
    QCOMPARE(dialog.GetCount(), 3);
}

void TestCustomAddProcessorDlg::TheNumberIsClampedWhereTheLimitIsLower()
{
    CRecordingHost host;
    host.runtimeData.nSenderCountLimit = 2;
    const CCustomAddProcessorDlg dialog(nullptr);
    QCOMPARE(Control<CCustomSpinBox>(dialog, "count").value(), 2.0);
}

void TestCustomAddProcessorDlg::TheMisspeltSelectorStays()
{
    const CRecordingHost host;
    const CCustomAddProcessorDlg dialog(nullptr);
    QVERIFY(Control<CCustomSpinBox>(dialog, "count").styleSheet().contains(QStringLiteral("QSpinxBox")));
}

void TestCustomAddProcessorDlg::ThePortMenuOffersNineValues()
{
    const CRecordingHost host;
    const CCustomAddProcessorDlg dialog(nullptr);
    QStringList listValues;
    for (const QAction* pAction : Control<CCustomComboBox>(dialog, "ports").menu()->actions())
        listValues.append(pAction->text());
    QCOMPARE(listValues, List({"2", "4", "6", "8", "12", "16", "20", "32", "80"}));
    QCOMPARE(Control<CCustomComboBox>(dialog, "ports").size(), QSize(60, 24));
}

void TestCustomAddProcessorDlg::ThePortTextIsTheCurrentProcessorsAndTheCountThatOfProcessorZero()
{
    CRecordingHost host;
    host.projectData.nCurSenderIndex = 4;
    host.projectData.sender.nOutputPortCount = 16;
    host.projectData.senderFirst.nOutputPortCount = 8;
    const CCustomAddProcessorDlg dialog(nullptr);
    QCOMPARE(Control<CCustomComboBox>(dialog, "ports").text(), QStringLiteral("16"));
    QCOMPARE(dialog.GetPortCount(), 8);
}

void TestCustomAddProcessorDlg::OkTakesTheChosenPorts()
{
    const CRecordingHost host;
    CCustomAddProcessorDlg dialog(nullptr);
    Control<CCustomComboBox>(dialog, "ports").menu()->actions().at(7)->trigger();
    QTest::mouseClick(&Control<QPushButton>(dialog, "ok"), Qt::LeftButton);
    QCOMPARE(dialog.GetPortCount(), 32);
    QCOMPARE(dialog.result(), 1);
}

void TestCustomAddProcessorDlg::WithoutThePortRowThePortsStayThoseOfProcessorZero()
{
    CRecordingHost host;
    host.senderLogic.nAddedSenderCount = 2;
    host.projectData.sender.nOutputPortCount = 20;
    CCustomAddProcessorDlg dialog(nullptr);
    QVERIFY(dialog.findChild<CCustomComboBox*>() == nullptr);
    dialog.ActionSlots(0);
    QCOMPARE(dialog.GetPortCount(), 20);
}

void TestCustomAddProcessorDlg::AnotherStrategyShowsNoAddressAndWritesNothing()
{
    CRecordingHost host;
    UseAddresses(host);
    host.configData.nDetectStrategy = 1;
    CCustomAddProcessorDlg dialog(nullptr);
    QVERIFY(AddressFields(dialog).isEmpty());
    dialog.ActionSlots(0);
    QCOMPARE(host.record.Only(c_listWrites), QStringList());
    QCOMPARE(dialog.result(), 1);
}

void TestCustomAddProcessorDlg::TheProposalIsTheFirstFreeAddressAfterALocalOne()
{
    CRecordingHost host;
    UseAddresses(host);
    host.configData.listStored = List({"10.0.0.6()", "10.0.0.7()"});
    const CLocalAddressScript local({"127.0.0.1", "::1", "10.0.0.5", "192.168.1.1"});
    const CCustomAddProcessorDlg dialog(nullptr);
    QCOMPARE(Addresses(dialog), List({"10.0.0.8"}));
    QCOMPARE(AddressFields(dialog).first()->size(), QSize(180, 25));
}

void TestCustomAddProcessorDlg::TheProposalDoesNotAskTheLogicForNetworks()
{
    CRecordingHost host;
    UseAddresses(host);
    host.senderLogic.listDetected = {0x0101A8C0U};
    const CLocalAddressScript local({"10.0.0.5"});
    const CCustomAddProcessorDlg dialog(nullptr);
    QCOMPARE(Addresses(dialog), List({"10.0.0.6"}));
}

void TestCustomAddProcessorDlg::TheProposalCountsFromLoopbackWithoutOtherAddresses()
{
    CRecordingHost host;
    UseAddresses(host);
    const CLocalAddressScript local({"127.0.0.1"});
    const CCustomAddProcessorDlg dialog(nullptr);
    QCOMPARE(Addresses(dialog), List({"127.0.0.2"}));
}

void TestCustomAddProcessorDlg::TheProposalFollowsTheRealInterfaces()
{
    CRecordingHost host;
    UseAddresses(host);
    const CCustomAddProcessorDlg dialog(nullptr);
    quint32 nBase = QHostAddress(QHostAddress::LocalHost).toIPv4Address();
    for (const QHostAddress& address : QNetworkInterface::allAddresses()) {
        if (address == QHostAddress(QHostAddress::LocalHost) || address.toIPv4Address() == 0)
            continue;
        nBase = address.toIPv4Address();
        break;
    }
    // Nothing is in the list, so the next address is free; behind .255 it is in another network.
    if ((nBase & 255U) != 255U)
        QCOMPARE(Addresses(dialog), QStringList{QHostAddress(nBase + 1).toString()});
}

void TestCustomAddProcessorDlg::OkStoresTheRunAndSaves()
{
    CRecordingHost host;
    UseAddresses(host);
    const CLocalAddressScript local({"10.0.0.253"});
    CCustomAddProcessorDlg dialog(nullptr);
    QTest::mouseClick(&Control<QPushButton>(dialog, "ok"), Qt::LeftButton);
    QCOMPARE(host.record.Only(c_listWrites),
             List({"AddSpecifiedIP(\"10.0.0.254\", \"\")", "AddSpecifiedIP(\"10.0.0.255\", \"\")",
                   "AddSpecifiedIP(\"10.0.1.1\", \"\")", "SpecifiedIPsSave()"}));
    QCOMPARE(dialog.result(), 1);
}

void TestCustomAddProcessorDlg::AnAddressInUseIsRefused()
{
    CRecordingHost host;
    UseAddresses(host);
    const CLocalAddressScript local({"10.0.0.5"});
    CCustomAddProcessorDlg dialog(nullptr);
    host.configData.listStored = List({"10.0.0.6()"});
    CModalAnswers answers;
    answers.Plan(1);
    QVERIFY(!dialog.CheckIPAddress());
    QCOMPARE(answers.Texts(), List({"IP地址已被使用。"}));
}

void TestCustomAddProcessorDlg::ARefusalKeepsTheDialogOpenAndTheChoice()
{
    CRecordingHost host;
    UseAddresses(host);
    const CLocalAddressScript local({"10.0.0.5"});
    CCustomAddProcessorDlg dialog(nullptr);
    dialog.show();
    Control<CCustomSpinBox>(dialog, "count").setValue(9);
    AddressFields(dialog).first()->setText(QString());
    CModalAnswers answers;
    answers.Plan(1);
    QTest::mouseClick(&Control<QPushButton>(dialog, "ok"), Qt::LeftButton);
    QCOMPARE(answers.Texts(), List({"IP地址不合理。"}));
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.GetCount(), 9);
    QCOMPARE(host.record.Only(c_listWrites), QStringList());
}

void TestCustomAddProcessorDlg::AFullListStoresNothingSavesAndCloses()
{
    CRecordingHost host;
    UseAddresses(host);
    host.configData.listStored = FilledList(255);
    const CLocalAddressScript local({"10.0.0.5"});
    CCustomAddProcessorDlg dialog(nullptr);
    dialog.ActionSlots(0);
    QCOMPARE(host.record.Only(c_listWrites), List({"SpecifiedIPsSave()"}));
    QCOMPARE(dialog.result(), 1);
}

void TestCustomAddProcessorDlg::AListOf253TakesTwoOfFive()
{
    CRecordingHost host;
    UseAddresses(host);
    host.configData.listStored = FilledList(253);
    const CLocalAddressScript local({"10.0.0.5"});
    CCustomAddProcessorDlg dialog(nullptr);
    Control<CCustomSpinBox>(dialog, "count").setValue(5);
    dialog.ActionSlots(0);
    QCOMPARE(host.configData.listStored.size(), 255);
    QCOMPARE(dialog.GetCount(), 5);
}

void TestCustomAddProcessorDlg::CancelWritesNothing()
{
    CRecordingHost host;
    UseAddresses(host);
    const CLocalAddressScript local({"10.0.0.5"});
    CCustomAddProcessorDlg dialog(nullptr);
    QTest::mouseClick(&Control<QPushButton>(dialog, "cancel"), Qt::LeftButton);
    QCOMPARE(host.record.Only(c_listWrites), QStringList());
    QCOMPARE(dialog.result(), 0);
}

void TestCustomAddProcessorDlg::AnotherIdDoesNothing()
{
    const CRecordingHost host;
    CCustomAddProcessorDlg dialog(nullptr);
    dialog.show();
    dialog.ActionSlots(7);
    QVERIFY(dialog.isVisible());
}

void TestCustomAddProcessorDlg::TheHandlerIsReachedThroughTheMetaObject()
{
    const CRecordingHost host;
    CCustomAddProcessorDlg dialog(nullptr);
    QVERIFY(QMetaObject::invokeMethod(&dialog, "ActionSlots", Q_ARG(int, 0)));
    QCOMPARE(dialog.result(), 1);
}

void TestCustomAddProcessorDlg::ClosingByTheTitleBarWritesNothing()
{
    CRecordingHost host;
    UseAddresses(host);
    const CLocalAddressScript local({"10.0.0.5"});
    CCustomAddProcessorDlg dialog(nullptr);
    dialog.show();
    dialog.close();
    QCOMPARE(host.record.Only(c_listWrites), QStringList());
    QCOMPARE(dialog.result(), 0);
}

void TestCustomAddProcessorDlg::BeforeTheHostIsThereTheDialogFaults()
{
    const SDeath death = RunToDeath([] { const CCustomAddProcessorDlg dialog(nullptr); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("g_pSenderLogic != nullptr"), death.strOutput.constData());
}

void TestCustomAddProcessorDlg::TheHostIsAskedWithFalseAsThirdArgument()
{
    CRecordingHost host;
    UseAddresses(host);
    const CLocalAddressScript local({"10.0.0.5"});
    CCustomAddProcessorDlg dialog(nullptr);
    dialog.ActionSlots(0);
    const QStringList listQuestions = host.record.Only({QStringLiteral("IsIPHasError")});
    QVERIFY(!listQuestions.filter(QStringLiteral("code")).isEmpty());
    QVERIFY(!listQuestions.filter(QStringLiteral("null")).isEmpty());
    QCOMPARE(listQuestions.filter(QStringLiteral(", false)")), listQuestions);
}

QTEST_MAIN(TestCustomAddProcessorDlg)
#include "TestCustomAddProcessorDlg.moc"
