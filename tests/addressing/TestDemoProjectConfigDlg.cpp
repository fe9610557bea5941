#include "SenderModuleDialog/addressing/DemoProjectConfigDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "tests/addressing/AddressDialogSupport.h"
#include "tests/support/Controls.h"
#include "tests/support/DeathTest.h"
#include "tests/support/RecordingHost.h"

#include <QMenu>
#include <QPushButton>
#include <QtTest>

using namespace AddressDialogSupport;

namespace {

const QStringList c_listWrites = List({"SetDemoModeEnable", "SetDemoSenderType", "ApplyDemoProject"});

} // namespace

class TestDemoProjectConfigDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItLooksAsLaidOut();
    void TheMenuOffersTheSixTypesInOrder();
    void OkWithoutTouchingTheMenuTakesTheFirstType();
    void EachTypeReachesTheHostWithItsValue_data();
    void EachTypeReachesTheHostWithItsValue();
    void CancelWritesNothing();
    void AnIndexOutsideTheTableShowsNoNameAndSetsNoType_data();
    void AnIndexOutsideTheTableShowsNoNameAndSetsNoType();
    void TheHandlerIsReachedThroughTheMetaObjectInBothForms();
    void AnotherIdDoesNothing();
    void ClosingByTheTitleBarWritesNothing();
    void BeforeTheHostIsThereOkFaults();
};

void TestDemoProjectConfigDlg::ItLooksAsLaidOut()
{
    const CRecordingHost host;
    CDemoProjectConfigDlg dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("演示工程配置"));
    QCOMPARE(dialog.size(), QSize(285, 120));
    QCOMPARE(dialog.findChild<CCustomLabel*>()->text(), QStringLiteral("主控类型"));
    QCOMPARE(dialog.findChild<CCustomLabel*>()->size(), QSize(90, 24));
    QCOMPARE(int(dialog.findChild<CCustomLabel*>()->alignment()), 132);
    QCOMPARE(Control<CCustomComboBox>(dialog, "type").size(), QSize(160, 28));
    QCOMPARE(Control<CCustomComboBox>(dialog, "type").text(), QStringLiteral("M6K"));
    QCOMPARE(Control<QPushButton>(dialog, "ok").size(), QSize(80, 26));
    QCOMPARE(Control<QPushButton>(dialog, "cancel").size(), QSize(80, 26));
}

void TestDemoProjectConfigDlg::TheMenuOffersTheSixTypesInOrder()
{
    const CRecordingHost host;
    const CDemoProjectConfigDlg dialog(nullptr);
    const QMenu* pMenu = Control<CCustomComboBox>(dialog, "type").menu();
    QStringList listNames;
    for (const QAction* pAction : pMenu->actions())
        listNames.append(pAction->text());
    QCOMPARE(listNames, List({"M6K", "R16 PRO", "T4", "T6", "T6 PRO", "T8"}));
    QCOMPARE(pMenu->minimumWidth(), 160);
    QCOMPARE(pMenu->maximumWidth(), 160);
}

void TestDemoProjectConfigDlg::OkWithoutTouchingTheMenuTakesTheFirstType()
{
    CRecordingHost host;
    CDemoProjectConfigDlg dialog(nullptr);
    QTest::mouseClick(&Control<QPushButton>(dialog, "ok"), Qt::LeftButton);
    QCOMPARE(host.record.All(),
             QStringLiteral("SetDemoModeEnable(true)|SetDemoSenderType(21)|ApplyDemoProject()")
                 .split(QLatin1Char('|')));
    QCOMPARE(dialog.result(), 1);
}

void TestDemoProjectConfigDlg::EachTypeReachesTheHostWithItsValue_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("value");
    QTest::newRow("M6K") << 0 << "M6K" << 21;
    QTest::newRow("R16 PRO") << 1 << "R16 PRO" << 46;
    QTest::newRow("T4") << 2 << "T4" << 16;
    QTest::newRow("T6") << 3 << "T6" << 17;
    QTest::newRow("T6 PRO") << 4 << "T6 PRO" << 35;
    QTest::newRow("T8 stands apart") << 5 << "T8" << 131074;
}

void TestDemoProjectConfigDlg::EachTypeReachesTheHostWithItsValue()
{
    QFETCH(int, index);
    QFETCH(QString, name);
    QFETCH(int, value);
    CRecordingHost host;
    CDemoProjectConfigDlg dialog(nullptr);
    Control<CCustomComboBox>(dialog, "type").menu()->actions().at(index)->trigger();
    QCOMPARE(Control<CCustomComboBox>(dialog, "type").text(), name);
    QTest::mouseClick(&Control<QPushButton>(dialog, "ok"), Qt::LeftButton);
    QCOMPARE(host.projectData.nDemoSenderType, value);
}

void TestDemoProjectConfigDlg::CancelWritesNothing()
{
    CRecordingHost host;
    CDemoProjectConfigDlg dialog(nullptr);
    Control<CCustomComboBox>(dialog, "type").menu()->actions().at(3)->trigger();
    QTest::mouseClick(&Control<QPushButton>(dialog, "cancel"), Qt::LeftButton);
    QCOMPARE(host.record.All(), QStringList());
    QCOMPARE(dialog.result(), 0);
}

void TestDemoProjectConfigDlg::AnIndexOutsideTheTableShowsNoNameAndSetsNoType_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("below") << -1;
    QTest::newRow("above") << 6;
}

void TestDemoProjectConfigDlg::AnIndexOutsideTheTableShowsNoNameAndSetsNoType()
{
    QFETCH(int, index);
    CRecordingHost host;
    CDemoProjectConfigDlg dialog(nullptr);
    dialog.ControlClicked(0, index);
    QCOMPARE(Control<CCustomComboBox>(dialog, "type").text(), QString());
    dialog.ControlClicked(1);
    QCOMPARE(host.record.Only(c_listWrites), List({"SetDemoModeEnable(true)", "ApplyDemoProject()"}));
}

void TestDemoProjectConfigDlg::TheHandlerIsReachedThroughTheMetaObjectInBothForms()
{
    CRecordingHost host;
    CDemoProjectConfigDlg dialog(nullptr);
    QVERIFY(QMetaObject::invokeMethod(&dialog, "ControlClicked", Q_ARG(int, 0), Q_ARG(int, 5)));
    QVERIFY(QMetaObject::invokeMethod(&dialog, "ControlClicked", Q_ARG(int, 1)));
    QCOMPARE(host.projectData.nDemoSenderType, 131074);
}

void TestDemoProjectConfigDlg::AnotherIdDoesNothing()
{
    CRecordingHost host;
    CDemoProjectConfigDlg dialog(nullptr);
    dialog.show();
    dialog.ControlClicked(3);
    QCOMPARE(host.record.All(), QStringList());
    QVERIFY(dialog.isVisible());
}

void TestDemoProjectConfigDlg::ClosingByTheTitleBarWritesNothing()
{
    CRecordingHost host;
    CDemoProjectConfigDlg dialog(nullptr);
    dialog.show();
    dialog.close();
    QCOMPARE(host.record.All(), QStringList());
    QCOMPARE(dialog.result(), 0);
}

void TestDemoProjectConfigDlg::BeforeTheHostIsThereOkFaults()
{
    // Nothing of the host is needed until then.
    CDemoProjectConfigDlg dialog(nullptr);
    const SDeath death = RunToDeath([&] { dialog.ControlClicked(1); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("g_pProjectData != nullptr"), death.strOutput.constData());
}

QTEST_MAIN(TestDemoProjectConfigDlg)
#include "TestDemoProjectConfigDlg.moc"
