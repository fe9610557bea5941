#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "tests/addressing/AddressDialogSupport.h"
#include "tests/support/Controls.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/RecordingHost.h"

#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace AddressDialogSupport;

namespace {

constexpr int c_nBatch = -1;

QLineEdit* NameField(const QWidget& dialog)
{
    for (QLineEdit* pEdit : dialog.findChildren<QLineEdit*>())
        if (pEdit->parentWidget() == &dialog)
            return pEdit;
    return nullptr;
}

const QStringList c_listWrites =
    List({"AddSpecifiedIP", "SpecifiedIPsSave", "SetSpecifiedIPWithIndex", "SetCurSetSpecifiedIPWithIndex"});

} // namespace

class TestSetIPOfflineDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachModeHasItsTitleRowsAndSize_data();
    void EachModeHasItsTitleRowsAndSize();
    void TheOrdinalsOfTheRowsGoBeyondInt();
    void FieldsHaveTheirSizes();
    void TheNumberStartsByTheLengthOfTheList_data();
    void TheNumberStartsByTheLengthOfTheList();
    void OpeningRefreshesTheVerdictsBeforeItProposes();
    void RowsAreProposedFromTheFirstLocalAddress();
    void KnownNetworksChooseTheLocalAddress_data();
    void KnownNetworksChooseTheLocalAddress();
    void WhenEveryCandidateIsRefusedTheFieldsStayEmpty();
    void ModifyShowsTheStoredEntry_data();
    void ModifyShowsTheStoredEntry();
    void ABatchThatModifiesShowsTheStoredAddress();
    void ABatchStoresAndSaves();
    void ABatchSkipsABroadcastAddress();
    void ABatchThatModifiesMayKeepItsOldAddress();
    void ModifyReplacesTheEntryAndDoesNotSave_data();
    void ModifyReplacesTheEntryAndDoesNotSave();
    void AnAddressInUseRetypedUnchangedPasses();
    void ModifyPassesTheTextAsItWasTyped();
    void ARefusedAddressKeepsTheDialogOpenAndItsText_data();
    void ARefusedAddressKeepsTheDialogOpenAndItsText();
    void AQuestionAnsweredYesAccepts();
    void AQuestionAnsweredNoRefusesWithoutAFurtherMessage();
    void RowsAreStoredInOrderWithTheName();
    void SeveralRowsAreStoredWithoutNames();
    void NoRowsSucceedAndSave();
    void RowsThatDoNotMatchTheirCountFailInSilence();
    void RowsBeyondTheListsEndAreDroppedInSilence();
    void AFullListStoresNothingAndSaves();
    void TheQuestionComesFirstAndAfterYesTheMessage();
    void TwoEmptyRowsAreDuplicates();
    void MoreThanFiveRowsAreStoredLikeFive();
    void CancelWritesNothing();
    void AnotherIdDoesNothing();
    void TheHandlerIsReachedThroughTheMetaObject();
    void ClosingByTheTitleBarWritesNothing();
    void TheResetText_data();
    void TheResetText();
    void OperationsOfOtherModesFailInSilence();
    void BeforeTheHostIsThereTheDialogFaults();
};

void TestSetIPOfflineDlg::EachModeHasItsTitleRowsAndSize_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("set");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("captions");
    QTest::addColumn<int>("fields");
    QTest::addColumn<bool>("named");
    QTest::newRow("batch") << c_nBatch << true << "批量添加IP" << List({"添加数量", "起始IP地址"}) << 1
                           << false;
    QTest::newRow("batch that modifies")
        << c_nBatch << false << "批量添加IP" << List({"添加数量", "起始IP地址"}) << 1 << false;
    QTest::newRow("set one") << 1 << true << "设置IP地址" << List({"IP地址", "IP名称"}) << 1 << true;
    QTest::newRow("modify") << 1 << false << "修改IP地址" << List({"IP地址", "IP名称"}) << 1 << true;
    QTest::newRow("modify whatever the count")
        << 4 << false << "修改IP地址" << List({"IP地址", "IP名称"}) << 1 << true;
    QTest::newRow("set three") << 3 << true << "设置IP地址" << List({"主控 7", "主控 8", "主控 9"}) << 3
                               << false;
    QTest::newRow("set none") << 0 << true << "设置IP地址" << QStringList() << 0 << false;
    QTest::newRow("set less than none") << -2 << true << "设置IP地址" << QStringList() << 0 << false;
}

void TestSetIPOfflineDlg::EachModeHasItsTitleRowsAndSize()
{
    QFETCH(int, count);
    QFETCH(bool, set);
    const CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(7, count, set, false, nullptr);
    QTEST(dialog.windowTitle(), "title");
    QCOMPARE(dialog.size(), QSize(330, 125));
    QTEST(Captions(dialog), "captions");
    QTEST(int(AddressFields(dialog).size()), "fields");
    QTEST(NameField(dialog) != nullptr, "named");
    QCOMPARE(Control<QPushButton>(dialog, "ok").size(), QSize(80, 24));
    QCOMPARE(Control<QPushButton>(dialog, "cancel").size(), QSize(80, 24));
}

void TestSetIPOfflineDlg::TheOrdinalsOfTheRowsGoBeyondInt()
{
    const CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    const CSetIPOfflineDlg dialog(2147483647, 2, true, false, nullptr);
    QCOMPARE(Captions(dialog), List({"主控 2147483647", "主控 2147483648"}));
}

void TestSetIPOfflineDlg::FieldsHaveTheirSizes()
{
    const CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    const CSetIPOfflineDlg dialogBatch(0, c_nBatch, true, false, nullptr);
    QCOMPARE(Control<CCustomSpinBox>(dialogBatch, "count").size(), QSize(60, 24));
    QCOMPARE(AddressFields(dialogBatch).first()->size(), QSize(180, 25));
    const CSetIPOfflineDlg dialogModify(0, 1, false, false, nullptr);
    QCOMPARE(NameField(dialogModify)->size(), QSize(180, 25));
    QCOMPARE(NameField(dialogModify)->maxLength(), 64);
    QVERIFY(NameField(dialogModify)
                ->styleSheet()
                .startsWith(QStringLiteral("QLineEdit{background:rgb(31,31,31); color:white; border:1px "
                                           "solid rgb(7,7,7); border-radius: 4px;}"
                                           "QLineEdit:disabled{color:rgb(120,120,120); }")));
}

void TestSetIPOfflineDlg::TheNumberStartsByTheLengthOfTheList_data()
{
    QTest::addColumn<int>("listed");
    QTest::addColumn<int>("expected");
    QTest::addColumn<int>("maximum");
    QTest::newRow("empty") << 0 << 16 << 255;
    QTest::newRow("15") << 15 << 1 << 240;
    QTest::newRow("16") << 16 << 20 << 239;
    QTest::newRow("20") << 20 << 16 << 235;
    QTest::newRow("35") << 35 << 1 << 220;
    QTest::newRow("36") << 36 << 10 << 219;
    QTest::newRow("40") << 40 << 10 << 215;
    QTest::newRow("nearly full: the first value is clamped") << 250 << 5 << 5;
    QTest::newRow("full: the range is empty, and the box shows its lower end") << 255 << 1 << 1;
}

void TestSetIPOfflineDlg::TheNumberStartsByTheLengthOfTheList()
{
    QFETCH(int, listed);
    CRecordingHost host;
    host.configData.listStored = FilledList(listed);
    const CLocalAddressScript local({"10.0.0.5"});
    const CSetIPOfflineDlg dialog(0, c_nBatch, true, false, nullptr);
    const auto* pSpinBox = &Control<CCustomSpinBox>(dialog, "count");
    QTEST(int(pSpinBox->value()), "expected");
    QTEST(int(pSpinBox->maximum()), "maximum");
    QCOMPARE(int(pSpinBox->minimum()), 1);
}

void TestSetIPOfflineDlg::OpeningRefreshesTheVerdictsBeforeItProposes()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    const CSetIPOfflineDlg dialog(0, 1, true, false, nullptr);
    QCOMPARE(host.record.All(),
             List({"UpdateErrorIPList()", "GetDetectedIPList()", "IsIPHasError(10.0.0.6, null, false)"}));
}

void TestSetIPOfflineDlg::RowsAreProposedFromTheFirstLocalAddress()
{
    const CRecordingHost host;
    const CLocalAddressScript local({"127.0.0.1", "10.0.0.253", "192.168.1.1"});
    const CSetIPOfflineDlg dialog(0, 3, true, false, nullptr);
    QCOMPARE(Addresses(dialog), List({"10.0.0.254", "10.0.0.255", "10.0.1.2"}));
}

void TestSetIPOfflineDlg::KnownNetworksChooseTheLocalAddress_data()
{
    QTest::addColumn<unsigned int>("detected");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the last local address in a known network") << 0x1701A8C0U << "192.168.1.10";
    QTest::newRow("no local address in a known network: from loopback") << 0x010010ACU << "127.0.0.2";
}

void TestSetIPOfflineDlg::KnownNetworksChooseTheLocalAddress()
{
    QFETCH(unsigned int, detected);
    CRecordingHost host;
    host.senderLogic.listDetected = {detected};
    const CLocalAddressScript local({"10.0.0.5", "192.168.1.3", "192.168.1.9"});
    const CSetIPOfflineDlg dialog(0, c_nBatch, true, false, nullptr);
    QTEST(Addresses(dialog).first(), "expected");
}

void TestSetIPOfflineDlg::WhenEveryCandidateIsRefusedTheFieldsStayEmpty()
{
    CRecordingHost host;
    host.configData.funcVerdict = [](unsigned int) { return 0xE0832005U; };
    const CLocalAddressScript local({"10.0.0.5"});
    const CSetIPOfflineDlg dialog(0, 3, true, false, nullptr);
    QCOMPARE(Addresses(dialog), (QStringList{QString(), QString(), QString()}));
    QCOMPARE(host.record.Count(QStringLiteral("IsIPHasError")), 259);
}

void TestSetIPOfflineDlg::ModifyShowsTheStoredEntry_data()
{
    QTest::addColumn<bool>("original");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("name");
    QTest::newRow("of the original list") << true << "10.0.0.9(Left)"
                                          << "10.0.0.9"
                                          << "Left";
    QTest::newRow("of the list that is being set") << false << "10.0.0.8(Right)"
                                                   << "10.0.0.8"
                                                   << "Right";
    QTest::newRow("without a name") << false << "10.0.0.8()"
                                    << "10.0.0.8"
                                    << "";
}

void TestSetIPOfflineDlg::ModifyShowsTheStoredEntry()
{
    QFETCH(bool, original);
    QFETCH(QString, entry);
    CRecordingHost host;
    (original ? host.configData.listOriginal : host.configData.listCurSet) = QStringList{QString(), entry};
    const CLocalAddressScript local({"10.0.0.5"});
    const CSetIPOfflineDlg dialog(1, 1, false, original, nullptr);
    QTEST(Addresses(dialog).first(), "address");
    QTEST(NameField(dialog)->text(), "name");
}

void TestSetIPOfflineDlg::ABatchThatModifiesShowsTheStoredAddress()
{
    CRecordingHost host;
    host.configData.listCurSet = List({"10.0.0.8(Right)"});
    const CLocalAddressScript local({"10.0.0.5"});
    const CSetIPOfflineDlg dialog(0, c_nBatch, false, false, nullptr);
    QCOMPARE(Addresses(dialog), List({"10.0.0.8"}));
    QCOMPARE(host.record.Count(QStringLiteral("IsIPHasError")), 0);
}

void TestSetIPOfflineDlg::ABatchStoresAndSaves()
{
    CRecordingHost host;
    const CLocalAddressScript local({"192.168.0.252"});
    CSetIPOfflineDlg dialog(0, c_nBatch, true, false, nullptr);
    Control<CCustomSpinBox>(dialog, "count").setValue(5);
    QTest::mouseClick(&Control<QPushButton>(dialog, "ok"), Qt::LeftButton);
    QCOMPARE(host.record.Only(c_listWrites),
             List({"AddSpecifiedIP(\"192.168.0.253\", \"\")", "AddSpecifiedIP(\"192.168.0.254\", \"\")",
                   "AddSpecifiedIP(\"192.168.0.255\", \"\")", "AddSpecifiedIP(\"192.168.1.1\", \"\")",
                   "AddSpecifiedIP(\"192.168.1.2\", \"\")", "SpecifiedIPsSave()"}));
    QCOMPARE(dialog.result(), 1);
}

void TestSetIPOfflineDlg::ABatchSkipsABroadcastAddress()
{
    CRecordingHost host;
    host.configData.funcVerdict = [](unsigned int nIP) { return nIP == 0xC0A800FF ? 0xE0832004U : 0U; };
    const CLocalAddressScript local({"192.168.0.252"});
    CSetIPOfflineDlg dialog(0, c_nBatch, true, false, nullptr);
    Control<CCustomSpinBox>(dialog, "count").setValue(5);
    dialog.ActionSlots(0);
    QCOMPARE(host.configData.listStored,
             List({"192.168.0.253()", "192.168.0.254()", "192.168.1.1()", "192.168.1.2()", "192.168.1.3()"}));
}

void TestSetIPOfflineDlg::ABatchThatModifiesMayKeepItsOldAddress()
{
    CRecordingHost host;
    host.configData.listCurSet = List({"10.0.0.8()"});
    host.configData.listStored = List({"10.0.0.8()"});
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(0, c_nBatch, false, false, nullptr);
    Control<CCustomSpinBox>(dialog, "count").setValue(1);
    CModalAnswers answers;
    QVERIFY(dialog.DoCustomAdd());
    QCOMPARE(answers.Texts(), QStringList());
}

void TestSetIPOfflineDlg::ModifyReplacesTheEntryAndDoesNotSave_data()
{
    QTest::addColumn<bool>("original");
    QTest::addColumn<QString>("call");
    QTest::newRow("of the original list") << true << "SetSpecifiedIPWithIndex(2, \"10.0.0.77\", \"Stage\")";
    QTest::newRow("of the list that is being set")
        << false << "SetCurSetSpecifiedIPWithIndex(2, \"10.0.0.77\", \"Stage\")";
}

void TestSetIPOfflineDlg::ModifyReplacesTheEntryAndDoesNotSave()
{
    QFETCH(bool, original);
    QFETCH(QString, call);
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(2, 1, false, original, nullptr);
    AddressFields(dialog).first()->setText(QStringLiteral("10.0.0.77"));
    QTest::keyClicks(NameField(dialog), QStringLiteral("Stage"));
    QTest::mouseClick(&Control<QPushButton>(dialog, "ok"), Qt::LeftButton);
    QCOMPARE(host.record.Only(c_listWrites), QStringList{call});
    QCOMPARE(dialog.result(), 1);
}

void TestSetIPOfflineDlg::AnAddressInUseRetypedUnchangedPasses()
{
    CRecordingHost host;
    host.configData.listCurSet = List({"10.0.0.8(Right)"});
    host.configData.listStored = List({"10.0.0.8(Right)"});
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(0, 1, false, false, nullptr);
    CModalAnswers answers;
    QVERIFY(dialog.DoModify());
    QCOMPARE(answers.Texts(), QStringList());
}

void TestSetIPOfflineDlg::ModifyPassesTheTextAsItWasTyped()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(0, 1, false, false, nullptr);
    CCustomIPEdit* pField = AddressFields(dialog).first();
    pField->setText(QStringLiteral("10.0.0.7"));
    const QString strTyped = pField->text();
    QVERIFY(dialog.DoModify());
    QCOMPARE(host.record.Only(c_listWrites),
             QStringList{QStringLiteral("SetCurSetSpecifiedIPWithIndex(0, \"%1\", \"\")").arg(strTyped)});
}

void TestSetIPOfflineDlg::ARefusedAddressKeepsTheDialogOpenAndItsText_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("set");
    QTest::newRow("batch") << c_nBatch << true;
    QTest::newRow("modify") << 1 << false;
    QTest::newRow("set") << 1 << true;
}

void TestSetIPOfflineDlg::ARefusedAddressKeepsTheDialogOpenAndItsText()
{
    QFETCH(int, count);
    QFETCH(bool, set);
    CRecordingHost host;
    host.configData.funcVerdict = [](unsigned int nIP) { return nIP == 0x0A000063 ? 0xE0832003U : 0U; };
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(0, count, set, false, nullptr);
    dialog.show();
    AddressFields(dialog).first()->setText(QStringLiteral("10.0.0.99"));
    CModalAnswers answers;
    answers.Plan(1);
    QTest::mouseClick(&Control<QPushButton>(dialog, "ok"), Qt::LeftButton);
    QCOMPARE(answers.Texts(), List({"IP地址与默认网关相同。"}));
    QCOMPARE(answers.Parents().first().data(), &dialog);
    QVERIFY(dialog.isVisible());
    QCOMPARE(Addresses(dialog), List({"10.0.0.99"}));
    QCOMPARE(host.record.Only(c_listWrites), QStringList());
}

void TestSetIPOfflineDlg::AQuestionAnsweredYesAccepts()
{
    CRecordingHost host;
    host.configData.funcVerdict = [](unsigned int nIP) { return nIP == 0x0A000005 ? 0xE0832000U : 0U; };
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(0, c_nBatch, true, false, nullptr);
    Control<CCustomSpinBox>(dialog, "count").setValue(1);
    AddressFields(dialog).first()->setText(QStringLiteral("10.0.0.5"));
    CModalAnswers answers;
    answers.Plan(2);
    QVERIFY(dialog.DoCustomAdd());
    QCOMPARE(host.configData.listStored, List({"10.0.0.5()"}));
}

void TestSetIPOfflineDlg::AQuestionAnsweredNoRefusesWithoutAFurtherMessage()
{
    CRecordingHost host;
    host.configData.funcVerdict = [](unsigned int) { return 0xE0832000U; };
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(0, c_nBatch, true, false, nullptr);
    AddressFields(dialog).first()->setText(QStringLiteral("10.0.0.5"));
    CModalAnswers answers;
    answers.Plan(4);
    QVERIFY(!dialog.DoCustomAdd());
    QCOMPARE(answers.Texts().size(), 1);
    QCOMPARE(host.record.Only(c_listWrites), QStringList());
}

void TestSetIPOfflineDlg::RowsAreStoredInOrderWithTheName()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(0, 1, true, false, nullptr);
    QTest::keyClicks(NameField(dialog), QStringLiteral("Stage"));
    QTest::mouseClick(&Control<QPushButton>(dialog, "ok"), Qt::LeftButton);
    QCOMPARE(host.record.Only(c_listWrites),
             List({"AddSpecifiedIP(\"10.0.0.6\", \"Stage\")", "SpecifiedIPsSave()"}));
    QCOMPARE(dialog.result(), 1);
}

void TestSetIPOfflineDlg::SeveralRowsAreStoredWithoutNames()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(1, 2, true, false, nullptr);
    QVERIFY(dialog.DoNumAdd());
    QCOMPARE(host.record.Only(c_listWrites),
             List({"AddSpecifiedIP(\"10.0.0.6\", \"\")", "AddSpecifiedIP(\"10.0.0.7\", \"\")",
                   "SpecifiedIPsSave()"}));
}

void TestSetIPOfflineDlg::NoRowsSucceedAndSave()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(1, 0, true, false, nullptr);
    QTest::mouseClick(&Control<QPushButton>(dialog, "ok"), Qt::LeftButton);
    QCOMPARE(host.record.Only(c_listWrites), List({"SpecifiedIPsSave()"}));
    QCOMPARE(dialog.result(), 1);
}

void TestSetIPOfflineDlg::RowsThatDoNotMatchTheirCountFailInSilence()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(1, -2, true, false, nullptr);
    CModalAnswers answers;
    QVERIFY(!dialog.DoNumAdd());
    QCOMPARE(answers.Texts(), QStringList());
    QCOMPARE(host.record.Only(c_listWrites), QStringList());
}

void TestSetIPOfflineDlg::RowsBeyondTheListsEndAreDroppedInSilence()
{
    CRecordingHost host;
    host.configData.listStored = FilledList(254);
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(1, 2, true, false, nullptr);
    QVERIFY(dialog.DoNumAdd());
    QCOMPARE(host.record.Only(c_listWrites),
             List({"AddSpecifiedIP(\"10.0.0.6\", \"\")", "SpecifiedIPsSave()"}));
}

void TestSetIPOfflineDlg::AFullListStoresNothingAndSaves()
{
    CRecordingHost host;
    host.configData.listStored = FilledList(255);
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(1, 2, true, false, nullptr);
    QVERIFY(dialog.DoNumAdd());
    QCOMPARE(host.record.Only(c_listWrites), List({"SpecifiedIPsSave()"}));
}

void TestSetIPOfflineDlg::TheQuestionComesFirstAndAfterYesTheMessage()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(1, 2, true, false, nullptr);
    host.configData.funcVerdict = [](unsigned int nIP) {
        return nIP == 0x0A000006 ? 0xE0832000U : 0xE0832001U;
    };
    CModalAnswers answers;
    answers.Plan(2);
    answers.Plan(1);
    QVERIFY(!dialog.DoNumAdd());
    QCOMPARE(answers.Texts(), List({"输入的IP地址和本机电脑的IP地址相同，会导致网络连接探测失败，是否继续？",
                                    "IP地址已被使用。"}));
    QCOMPARE(host.record.Only(c_listWrites), QStringList());
}

void TestSetIPOfflineDlg::TwoEmptyRowsAreDuplicates()
{
    CRecordingHost host;
    host.configData.funcVerdict = [](unsigned int) { return 0xE0832005U; };
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(1, 2, true, false, nullptr);
    CModalAnswers answers;
    answers.Plan(1);
    QVERIFY(!dialog.DoNumAdd());
    QCOMPARE(answers.Texts(), List({"存在重复的IP地址。"}));
}

void TestSetIPOfflineDlg::MoreThanFiveRowsAreStoredLikeFive()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(1, 60, true, false, nullptr);
    QVERIFY(dialog.DoNumAdd());
    QCOMPARE(host.configData.listStored.size(), 60);
    QCOMPARE(host.configData.listStored.last(), QStringLiteral("10.0.0.65()"));
}

void TestSetIPOfflineDlg::CancelWritesNothing()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(1, 2, true, false, nullptr);
    QTest::mouseClick(&Control<QPushButton>(dialog, "cancel"), Qt::LeftButton);
    QCOMPARE(host.record.Only(c_listWrites), QStringList());
    QCOMPARE(dialog.result(), 0);
}

void TestSetIPOfflineDlg::AnotherIdDoesNothing()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(1, 2, true, false, nullptr);
    dialog.show();
    dialog.ActionSlots(2);
    QVERIFY(dialog.isVisible());
    QCOMPARE(host.record.Only(c_listWrites), QStringList());
}

void TestSetIPOfflineDlg::TheHandlerIsReachedThroughTheMetaObject()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(1, 0, true, false, nullptr);
    QVERIFY(QMetaObject::invokeMethod(&dialog, "ActionSlots", Q_ARG(int, 0)));
    QCOMPARE(host.record.Only(c_listWrites), List({"SpecifiedIPsSave()"}));
}

void TestSetIPOfflineDlg::ClosingByTheTitleBarWritesNothing()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(1, 2, true, false, nullptr);
    dialog.show();
    dialog.close();
    QCOMPARE(host.record.Only(c_listWrites), QStringList());
    QCOMPARE(dialog.result(), 0);
}

void TestSetIPOfflineDlg::TheResetText_data()
{
    QTest::addColumn<bool>("set");
    QTest::addColumn<bool>("original");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("expected");
    QTest::newRow("to set: none") << true << false << "10.0.0.8()"
                                  << "";
    QTest::newRow("of the original list: the host's") << false << true << "10.0.0.8()"
                                                      << "from the host";
    QTest::newRow("a named entry as it is") << false << false << "10.0.0.8(Right)"
                                            << "10.0.0.8(Right)";
    QTest::newRow("an unnamed entry by its last octet") << false << false << "192.168.1.17()"
                                                        << "192.168.1.17(IP17)";
}

void TestSetIPOfflineDlg::TheResetText()
{
    QFETCH(bool, set);
    QFETCH(bool, original);
    QFETCH(QString, entry);
    CRecordingHost host;
    host.configData.listCurSet = QStringList{entry};
    host.configData.listOriginal = QStringList{entry};
    host.configData.strWithName = QStringLiteral("from the host");
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialog(0, 1, set, original, nullptr);
    QTEST(dialog.GetResetStr(), "expected");
}

void TestSetIPOfflineDlg::OperationsOfOtherModesFailInSilence()
{
    CRecordingHost host;
    const CLocalAddressScript local({"10.0.0.5"});
    CSetIPOfflineDlg dialogRows(1, 2, true, false, nullptr);
    CModalAnswers answers;
    QVERIFY(!dialogRows.DoModify());
    QVERIFY(!dialogRows.DoCustomAdd());
    CSetIPOfflineDlg dialogBatch(1, c_nBatch, true, false, nullptr);
    QVERIFY(!dialogBatch.DoNumAdd());
    QCOMPARE(answers.Texts(), QStringList());
    QCOMPARE(host.record.Only(c_listWrites), QStringList());
}

void TestSetIPOfflineDlg::BeforeTheHostIsThereTheDialogFaults()
{
    const SDeath death = RunToDeath([] { const CSetIPOfflineDlg dialog(0, 1, true, false, nullptr); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("g_pConfigData != nullptr"), death.strOutput.constData());
}

QTEST_MAIN(TestSetIPOfflineDlg)
#include "TestSetIPOfflineDlg.moc"
