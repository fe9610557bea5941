#include "SenderModuleDialog/addressing/AddressDialogs.h"
#include "host/OrviControl/CustomIPEdit.h"
#include "host/TevraData/AddressVerdict.h"
#include "tests/addressing/AddressDialogSupport.h"
#include "tests/support/LayoutText.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/RecordingHost.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QtTest>

using namespace AddressDialogSupport;

namespace {

constexpr unsigned int c_nAddress = 0xC0A80105; // 192.168.1.5
const QString c_strAddress = QStringLiteral("192.168.1.5");

/// The buttons of a question, as the host numbers them.
enum enAnswer
{
    enYes = 2,
    enNo = 4
};

} // namespace

/// What stands between the address rules and the host: messages, verdicts, entries, and the common frame.
class TestAddressDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFineAddressIsConfirmedWithoutAMessage();
    void ARefusedAddressIsExplained();
    void AQuestionDecides_data();
    void AQuestionDecides();
    void AnErrorIsSeenWithoutItsCode();
    void AStoredAddressHasNoName();
    void AnAddressFieldHasTheCommonSize();
    void TheFrameHoldsRowsASpaceAndButtons();
};

void TestAddressDialogs::AFineAddressIsConfirmedWithoutAMessage()
{
    const CRecordingHost host;
    const CModalAnswers answers;
    QVERIFY(AddressDialogs::Confirm(nullptr, IPAddressRules::c_pathModify, {c_strAddress}, QString()));
    QCOMPARE(answers.Texts(), QStringList());
}

void TestAddressDialogs::ARefusedAddressIsExplained()
{
    CRecordingHost host;
    host.configData.funcVerdict = [](unsigned int) { return unsigned(enAddressOfGateway); };
    const CModalAnswers answers;
    QVERIFY(!AddressDialogs::Confirm(nullptr, IPAddressRules::c_pathModify, {c_strAddress}, QString()));
    QCOMPARE(answers.Texts(), List({"IP地址与默认网关相同。"}));
}

void TestAddressDialogs::AQuestionDecides_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("yes") << int(enYes) << true;
    QTest::newRow("no") << int(enNo) << false;
}

void TestAddressDialogs::AQuestionDecides()
{
    QFETCH(int, answer);
    CRecordingHost host;
    host.configData.funcVerdict = [](unsigned int) { return unsigned(enAddressOfThisComputer); };
    CModalAnswers answers;
    answers.Plan(answer);
    QTEST(AddressDialogs::Confirm(nullptr, IPAddressRules::c_pathModify, {c_strAddress}, QString()),
          "confirmed");
    QCOMPARE(answers.Texts().size(), 1);
}

void TestAddressDialogs::AnErrorIsSeenWithoutItsCode()
{
    CRecordingHost host;
    QVERIFY(!AddressDialogs::HasError(c_nAddress));
    host.configData.funcVerdict = [](unsigned int) { return unsigned(enAddressInUse); };
    QVERIFY(AddressDialogs::HasError(c_nAddress));
    QCOMPARE(host.record.All().last(), QStringLiteral("IsIPHasError(192.168.1.5, null, false)"));
}

void TestAddressDialogs::AStoredAddressHasNoName()
{
    const CRecordingHost host;
    AddressDialogs::Store(c_nAddress);
    QCOMPARE(host.record.All(), List({"AddSpecifiedIP(\"192.168.1.5\", \"\")"}));
}

void TestAddressDialogs::AnAddressFieldHasTheCommonSize()
{
    QWidget dialog;
    const CCustomIPEdit* pField = AddressDialogs::CreateAddressField(&dialog);
    QCOMPARE(pField->parentWidget(), &dialog);
    QCOMPARE(pField->size(), QSize(180, 25));
}

void TestAddressDialogs::TheFrameHoldsRowsASpaceAndButtons()
{
    QWidget dialog;
    AddressDialogs::LayOut(&dialog, new QVBoxLayout, new QHBoxLayout);
    const auto* pOuter = qobject_cast<const QBoxLayout*>(dialog.layout());
    QVERIFY(pOuter != nullptr);
    QCOMPARE(pOuter->contentsMargins(), QMargins(10, 20, 10, 20));
    QCOMPARE(LayoutText::Box(*pOuter), QStringLiteral("QVBoxLayout:0 10px:0 QHBoxLayout:0"));
}

QTEST_MAIN(TestAddressDialogs)
#include "TestAddressDialogs.moc"
