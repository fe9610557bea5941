#include "SenderModuleDialog/edid/EdidEnvironment.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomMessageBox.h"
#include "host/OrviControl/CustomProgressbar.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "tests/edid/EdidDialogHost.h"
#include "tests/support/ModalAnswers.h"

#include <QtTest>

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <numeric>

/// What OK writes, in which order it calls the host, how long it waits, and how it ends.
class TestEdidSetDlgCommit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheProgressBarCannotBeCancelled();
    void BasicWriteInOrder();
    void BasicFailureWaitsTheWholeTimeAndSpeaksAfterwards();
    void FullWriteInOrder();
    void FullFailureShowsNoBar();
    void WaitLength_data();
    void WaitLength();
    void DemoModeIsAskedOnEveryPass_data();
    void DemoModeIsAskedOnEveryPass();
    void TheBarShows2To98AtTheWaits();
    void TheBarBelongsToTheDialog();
    void TheSenderTypeOfTheWaitIsReadAnew();
    void TheDefaultWaitSleeps();
    void BasicRecordHoldsRateAndSizeAlone();
    void FullRecord_data();
    void FullRecord();
    void FormatFlagsOfTheFullRecord_data();
    void FormatFlagsOfTheFullRecord();
    void ConnectByteOfTheFullRecord_data();
    void ConnectByteOfTheFullRecord();
    void TheTypedSizeIsWrittenForCustom();
    void TheListedSizeIsWrittenForAPreset();
    void ResultOfABasicWrite_data();
    void ResultOfABasicWrite();
    void ResultIsFalseAfterAGoodFullWrite();
    void AnIndexBeyondTheResolutionsAborts();
    void ANegativeResolutionAborts();
    void ARateBeyondTheTableAborts();
    void ADepthBeyondTheTableAborts();
    void ANegativeDepthAbortsWithTheBitsCleared();
    void AFormatBeyondTheTableAbortsWithTheDepthStored();
    void TheBasicWriteLooksAtNeitherDepthNorFormat();
    void On132AShortListCannotBeWritten();
};

namespace {

/// The calls of one wait: demo mode is asked, then the thread sleeps. 97 times.
QStringList Waits(int nMicroseconds)
{
    QStringList listCalls;
    for (int i = 3; i <= 99; ++i)
        listCalls << QStringLiteral("GetDemoModeEnable()") << QStringLiteral("wait(%1)").arg(nMicroseconds);
    return listCalls;
}

/// An ended dialog: hidden, with that result.
void CompareResult(const CEdidDialog& dialog, int nResult)
{
    QCOMPARE(dialog.dlg.result(), nResult);
    QVERIFY(!dialog.dlg.isVisible());
}

/// A dialog that is still open and can be used, and a host that was asked to write nothing.
void CompareAborted(const CEdidDialog& dialog)
{
    QVERIFY(dialog.dlg.isVisible());
    QVERIFY(dialog.probe.Width().isEnabled());
    QVERIFY(dialog.probe.Height().isEnabled());
    QCOMPARE(dialog.host.record.Count(QStringLiteral("SetEdidSetting")), 0);
    QCOMPARE(dialog.host.record.Count(QStringLiteral("wait")), 0);
}

} // namespace

void TestEdidSetDlgCommit::BasicWriteInOrder()
{
    CEdidHost host;
    host.projectData.nCurSenderIndex = 3;
    CEdidDialog dialog(host, 2);
    dialog.dlg.show();
    host.record.Clear();
    QTest::mouseClick(&dialog.probe.OK(), Qt::LeftButton);
    QStringList listExpected = {
        QStringLiteral("GetCurSenderIndex()"),
        QStringLiteral("IsExtendedEdidSupported()"),
        QStringLiteral("SetEdidSetting(3, 2, {1920x1080 rate 60 fractional 0 flags 0x00 standard 0 pc 0})"),
        QStringLiteral("bar shown"),
    };
    listExpected += Waits(10000);
    listExpected +=
        QStringList{QStringLiteral("AfterEdidWritten(3)"), QStringLiteral("ApplyBasicEdid(3, 1920, 1080)"),
                    QStringLiteral("bar hidden")};
    QCOMPARE(host.record.All(), listExpected);
    CompareResult(dialog, 1);
}

void TestEdidSetDlgCommit::BasicFailureWaitsTheWholeTimeAndSpeaksAfterwards()
{
    CEdidHost host;
    host.videoSourceLogic.nWriteResult = qint64(1) << 40; // the result has 64 bits
    CModalAnswers answers;
    CEdidDialog dialog(host);
    dialog.dlg.show();
    host.record.Clear();
    QTest::mouseClick(&dialog.probe.OK(), Qt::LeftButton);
    QStringList listExpected = {
        QStringLiteral("GetCurSenderIndex()"),
        QStringLiteral("IsExtendedEdidSupported()"),
        QStringLiteral("SetEdidSetting(0, 1, {1920x1080 rate 60 fractional 0 flags 0x00 standard 0 pc 0})"),
        QStringLiteral("bar shown"),
    };
    listExpected += Waits(10000);
    listExpected += QStringList{QStringLiteral("bar hidden"), QStringLiteral("message")};
    QCOMPARE(host.record.All(), listExpected);
    QCOMPARE(answers.Texts(), QStringList(QStringLiteral("保存失败。")));
    QVERIFY(answers.Parents().first().isNull());
    QVERIFY(!dialog.dlg.IsSetSuccessed());
    CompareResult(dialog, 1);
}

void TestEdidSetDlgCommit::FullWriteInOrder()
{
    CEdidHost host;
    host.senderLogic.bExtendedEdid = true;
    host.projectData.nCurSenderIndex = 3;
    CEdidDialog dialog(host, 2);
    dialog.dlg.show();
    host.record.Clear();
    QTest::mouseClick(&dialog.probe.OK(), Qt::LeftButton);
    QStringList listExpected = {
        QStringLiteral("GetCurSenderIndex()"),
        QStringLiteral("IsExtendedEdidSupported()"),
        QStringLiteral("SetEdidSetting(3, 2, {1920x1080 rate 60 fractional 0 flags 0x12 standard 0 pc 1})"),
        QStringLiteral("bar shown"),
        QStringLiteral("GetSenderType(3)"),
    };
    listExpected += Waits(10000);
    listExpected += QStringList{QStringLiteral("bar hidden"), QStringLiteral("FinishEdidWrite(3, 1)")};
    QCOMPARE(host.record.All(), listExpected);
    CompareResult(dialog, 1);
}

void TestEdidSetDlgCommit::FullFailureShowsNoBar()
{
    CEdidHost host;
    host.senderLogic.bExtendedEdid = true;
    host.videoSourceLogic.nWriteResult = -1;
    CModalAnswers answers;
    CEdidDialog dialog(host);
    dialog.dlg.show();
    host.record.Clear();
    QTest::mouseClick(&dialog.probe.OK(), Qt::LeftButton);
    const QStringList listExpected = {
        QStringLiteral("GetCurSenderIndex()"),
        QStringLiteral("IsExtendedEdidSupported()"),
        QStringLiteral("SetEdidSetting(0, 1, {1920x1080 rate 60 fractional 0 flags 0x12 standard 0 pc 1})"),
        QStringLiteral("message"),
    };
    QCOMPARE(host.record.All(), listExpected);
    QCOMPARE(answers.Texts(), QStringList(QStringLiteral("保存失败。")));
    QVERIFY(answers.Parents().first().isNull());
    QVERIFY(!dialog.dlg.IsSetSuccessed());
    CompareResult(dialog, 1);
}

void TestEdidSetDlgCommit::WaitLength_data()
{
    QTest::addColumn<bool>("extended");
    QTest::addColumn<bool>("demo");
    QTest::addColumn<int>("senderType");
    QTest::addColumn<int>("wait");
    QTest::addColumn<int>("total"); // microseconds
    QTest::newRow("basic, demo") << false << true << 16 << 10000 << 970000;
    QTest::newRow("basic, device") << false << false << 16 << 120000 << 11640000;
    QTest::newRow("basic, a slow device waits no longer") << false << false << 21 << 120000 << 11640000;
    QTest::newRow("full, demo") << true << true << 16 << 10000 << 970000;
    QTest::newRow("full, demo of a slow device") << true << true << 21 << 10000 << 970000;
    QTest::newRow("full, device") << true << false << 16 << 120000 << 11640000;
    QTest::newRow("full, 21 is slow") << true << false << 21 << 200000 << 19400000;
    QTest::newRow("full, 54 is slow") << true << false << 54 << 200000 << 19400000;
    QTest::newRow("full, 55 is not") << true << false << 55 << 120000 << 11640000;
}

void TestEdidSetDlgCommit::WaitLength()
{
    QFETCH(bool, extended);
    QFETCH(bool, demo);
    QFETCH(int, senderType);
    QFETCH(int, wait);
    QFETCH(int, total);
    CEdidHost host;
    host.senderLogic.bExtendedEdid = extended;
    host.senderLogic.nSenderType = senderType;
    host.projectData.bDemoMode = demo;
    CEdidDialog dialog(host);
    dialog.probe.OK().click();
    QCOMPARE(int(host.vecWaits.size()), 97);
    QVERIFY(std::all_of(host.vecWaits.begin(), host.vecWaits.end(),
                        [&](unsigned int n) { return int(n) == wait; }));
    QCOMPARE(int(std::accumulate(host.vecWaits.begin(), host.vecWaits.end(), 0U)), total);
}

void TestEdidSetDlgCommit::DemoModeIsAskedOnEveryPass_data()
{
    QTest::addColumn<bool>("extended");
    QTest::newRow("basic") << false;
    QTest::newRow("full") << true;
}

void TestEdidSetDlgCommit::DemoModeIsAskedOnEveryPass()
{
    QFETCH(bool, extended);
    CEdidHost host;
    host.senderLogic.bExtendedEdid = extended;
    host.projectData.bDemoMode = false;
    host.funcOnWait = [&] { host.projectData.bDemoMode = host.vecWaits.size() >= 10; };
    CEdidDialog dialog(host);
    dialog.probe.OK().click();
    QCOMPARE(host.vecWaits.at(9), 120000U);
    QCOMPARE(host.vecWaits.at(10), 10000U);
}

void TestEdidSetDlgCommit::TheBarShows2To98AtTheWaits()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    dialog.probe.OK().click();
    QCOMPARE(int(host.vecPercents.size()), 97);
    for (std::size_t i = 0; i < host.vecPercents.size(); ++i)
        QCOMPARE(host.vecPercents[i], int(i) + 2);
}

void TestEdidSetDlgCommit::TheBarBelongsToTheDialog()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    QString strLabel;
    bool bOwned = false;
    host.funcOnWait = [&] {
        auto* pProgressbar = dialog.dlg.findChild<CCustomProgressbar*>();
        strLabel = pProgressbar->labelText();
        bOwned = pProgressbar->GetProgressOwnerRecord().pOwner == &dialog.dlg &&
                 pProgressbar->parentWidget() == &dialog.dlg;
    };
    dialog.probe.OK().click();
    QCOMPARE(strLabel, QStringLiteral("发送中..."));
    QVERIFY(bOwned);
    // The dialog leaves it to Qt's parent ownership.
    QVERIFY(dialog.dlg.findChild<CCustomProgressbar*>() != nullptr);
}

void TestEdidSetDlgCommit::TheSenderTypeOfTheWaitIsReadAnew()
{
    CEdidHost host;
    host.senderLogic.bExtendedEdid = true;
    host.projectData.bDemoMode = false;
    CEdidDialog dialog(host);
    host.senderLogic.nSenderType = 54;
    dialog.probe.OK().click();
    QCOMPARE(host.vecWaits.front(), 200000U);
}

void TestEdidSetDlgCommit::TheDefaultWaitSleeps()
{
    QElapsedTimer timer;
    timer.start();
    EdidEnvironment().funcWait(2000);
    QVERIFY(timer.nsecsElapsed() >= 2000000);
}

void TestEdidSetDlgCommit::BasicRecordHoldsRateAndSizeAlone()
{
    CEdidHost host;
    SEdidSetting setting = CEdidHost::Setting(QSize(1920, 1080), 60, 0x48);
    setting.byFractional = 1;
    setting.byTimingStandard = 1;
    setting.byConnectPC = 1;
    host.videoSourceLogic.setting = setting;
    CEdidDialog dialog(host);
    dialog.probe.OK().click();
    QCOMPARE(
        host.record.Only({QStringLiteral("SetEdidSetting")}).first(),
        QStringLiteral("SetEdidSetting(0, 1, {1920x1080 rate 60 fractional 0 flags 0x00 standard 0 pc 0})"));
}

void TestEdidSetDlgCommit::FullRecord_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("fractional");
    QTest::addColumn<int>("standard");
    const int arrWhole[] = {24, 25, 30, 50, 60, 120, 144, 240};
    for (const int nRate : arrWhole)
        QTest::addRow("%d", nRate) << nRate << 0 << 0;
    for (const int nRate : {24, 30, 60})
        QTest::addRow("%d / 1.001", nRate) << nRate << 1 << 1;
}

void TestEdidSetDlgCommit::FullRecord()
{
    QFETCH(int, rate);
    QFETCH(int, fractional);
    QFETCH(int, standard);
    CEdidHost host;
    host.senderLogic.bExtendedEdid = true;
    SEdidSetting setting = CEdidHost::Setting(QSize(1280, 720), quint8(rate));
    setting.byFractional = quint8(fractional);
    setting.byTimingStandard = quint8(standard);
    host.videoSourceLogic.setting = setting;
    CEdidDialog dialog(host);
    dialog.probe.OK().click();
    QCOMPARE(
        host.record.Only({QStringLiteral("SetEdidSetting")}).first(),
        QStringLiteral("SetEdidSetting(0, 1, {1280x720 rate %1 fractional %2 flags 0x12 standard %3 pc 1})")
            .arg(rate)
            .arg(fractional)
            .arg(standard));
}

void TestEdidSetDlgCommit::FormatFlagsOfTheFullRecord_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("written");
    QTest::newRow("nothing stored becomes 8 bit RGB") << 0x00 << 0x12;
    QTest::newRow("12 bit 4:4:0 stays") << 0x88 << 0x88;
    QTest::newRow("several bits become the first of each; bit 0 stays as it was read") << 0xFF << 0x13;
    QTest::newRow("10 bit 4:2:2 stays") << 0x44 << 0x44;
}

void TestEdidSetDlgCommit::FormatFlagsOfTheFullRecord()
{
    QFETCH(int, stored);
    QFETCH(int, written);
    CEdidHost host;
    host.senderLogic.bExtendedEdid = true;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1920, 1080), 60, quint8(stored));
    CEdidDialog dialog(host);
    dialog.probe.OK().click();
    QCOMPARE(int(host.videoSourceLogic.written->byFormatFlags), written);
}

void TestEdidSetDlgCommit::ConnectByteOfTheFullRecord_data()
{
    QTest::addColumn<int>("senderType");
    QTest::addColumn<int>("interfaceId");
    QTest::addColumn<int>("read");
    QTest::addColumn<int>("written");
    QTest::newRow("checked is written as 0") << 43 << 16 << 1 << 0;
    QTest::newRow("not checked is written as 1") << 43 << 16 << 0 << 1;
    QTest::newRow("a hidden box counts all the same") << 43 << 1 << 1 << 0;
    for (const int nType : {17, 26, 27, 28, 29, 36, 37}) {
        QTest::addRow("%d on 16, checked: 1 all the same", nType) << nType << 16 << 1 << 1;
        QTest::addRow("%d on 19, checked: 1 all the same", nType) << nType << 19 << 1 << 1;
        QTest::addRow("%d on 20, checked: 0", nType) << nType << 20 << 1 << 0;
    }
    QTest::newRow("18 on 16, checked: 0") << 18 << 16 << 1 << 0;
}

void TestEdidSetDlgCommit::ConnectByteOfTheFullRecord()
{
    QFETCH(int, senderType);
    QFETCH(int, interfaceId);
    QFETCH(int, read);
    QFETCH(int, written);
    CEdidHost host;
    host.senderLogic.bExtendedEdid = true;
    host.senderLogic.nSenderType = senderType;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1920, 1080), 60);
    host.videoSourceLogic.setting->byConnectPC = quint8(read);
    CEdidDialog dialog(host, interfaceId);
    dialog.probe.OK().click();
    QCOMPARE(int(host.videoSourceLogic.written->byConnectPC), written);
}

void TestEdidSetDlgCommit::TheTypedSizeIsWrittenForCustom()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    CEdidDialog dialog(host);
    dialog.probe.Width().setValue(1366);
    dialog.probe.Height().setValue(768);
    dialog.probe.OK().click();
    QCOMPARE(int(host.videoSourceLogic.written->wWidth), 1366);
    QCOMPARE(int(host.videoSourceLogic.written->wHeight), 768);
    QCOMPARE(host.record.Only({QStringLiteral("ApplyBasicEdid")}),
             QStringList(QStringLiteral("ApplyBasicEdid(0, 1366, 768)")));
}

void TestEdidSetDlgCommit::TheListedSizeIsWrittenForAPreset()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    dialog.probe.Width().setValue(1366);
    EdidDialog::Choose(dialog.probe.Resolution(), QStringLiteral("1920 × 1200"));
    dialog.probe.OK().click();
    QCOMPARE(int(host.videoSourceLogic.written->wWidth), 1920);
    QCOMPARE(int(host.videoSourceLogic.written->wHeight), 1200);
}

void TestEdidSetDlgCommit::ResultOfABasicWrite_data()
{
    QTest::addColumn<bool>("success");
    QTest::newRow("the host says it took") << true;
    QTest::newRow("the host says it did not") << false;
}

void TestEdidSetDlgCommit::ResultOfABasicWrite()
{
    QFETCH(bool, success);
    CEdidHost host;
    host.videoSourceLogic.bBasicSuccess = success;
    CEdidDialog dialog(host);
    dialog.probe.OK().click();
    QCOMPARE(dialog.dlg.IsSetSuccessed(), success);
    QCOMPARE(dialog.dlg.result(), 1);
}

void TestEdidSetDlgCommit::ResultIsFalseAfterAGoodFullWrite()
{
    CEdidHost host;
    host.senderLogic.bExtendedEdid = true;
    CEdidDialog dialog(host);
    dialog.probe.OK().click();
    QVERIFY(!dialog.dlg.IsSetSuccessed());
    QCOMPARE(dialog.dlg.result(), 1);
}

void TestEdidSetDlgCommit::AnIndexBeyondTheResolutionsAborts()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    dialog.dlg.show();
    dialog.dlg.OnResolutionComboBoxSelect(4);
    host.record.Clear();
    dialog.probe.OK().click();
    CompareAborted(dialog);
    QCOMPARE(host.record.All(), QStringList());
}

void TestEdidSetDlgCommit::ANegativeResolutionAborts()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    dialog.dlg.show();
    dialog.probe.ResolutionIndex() = -1;
    dialog.probe.OK().click();
    CompareAborted(dialog);
}

void TestEdidSetDlgCommit::ARateBeyondTheTableAborts()
{
    CEdidHost host;
    host.senderLogic.bExtendedEdid = true;
    CEdidDialog dialog(host);
    dialog.dlg.show();
    QAction action;
    action.setData(11);
    dialog.dlg.OnRateComboBoxSelect(&action);
    host.record.Clear();
    dialog.probe.OK().click();
    CompareAborted(dialog);
    QCOMPARE(host.record.All(), QStringList());
}

void TestEdidSetDlgCommit::ADepthBeyondTheTableAborts()
{
    CEdidHost host;
    host.senderLogic.bExtendedEdid = true;
    CEdidDialog dialog(host);
    dialog.dlg.show();
    dialog.probe.DepthIndex() = 3;
    dialog.probe.FormatFlags() = 0x1E;
    dialog.probe.OK().click();
    CompareAborted(dialog);
    QCOMPARE(int(dialog.probe.FormatFlags()), 0x1E);
}

void TestEdidSetDlgCommit::ANegativeDepthAbortsWithTheBitsCleared()
{
    CEdidHost host;
    host.senderLogic.bExtendedEdid = true;
    CEdidDialog dialog(host);
    dialog.dlg.show();
    dialog.probe.DepthIndex() = -1;
    dialog.probe.FormatFlags() = 0x1E;
    dialog.probe.OK().click();
    CompareAborted(dialog);
    QCOMPARE(int(dialog.probe.FormatFlags()), 0x10);
}

void TestEdidSetDlgCommit::AFormatBeyondTheTableAbortsWithTheDepthStored()
{
    CEdidHost host;
    host.senderLogic.bExtendedEdid = true;
    CEdidDialog dialog(host);
    dialog.dlg.show();
    dialog.probe.DepthIndex() = 2;
    dialog.probe.FormatIndex() = 4;
    dialog.probe.FormatFlags() = 0x12;
    dialog.probe.OK().click();
    CompareAborted(dialog);
    QCOMPARE(int(dialog.probe.FormatFlags()), 0x18);
}

void TestEdidSetDlgCommit::TheBasicWriteLooksAtNeitherDepthNorFormat()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    dialog.probe.DepthIndex() = 3;
    dialog.probe.FormatIndex() = 4;
    dialog.probe.OK().click();
    QCOMPARE(host.record.Count(QStringLiteral("SetEdidSetting")), 1);
    QCOMPARE(dialog.dlg.result(), 1);
}

void TestEdidSetDlgCommit::On132AShortListCannotBeWritten()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    CEdidDialog dialog(host, 132);
    dialog.dlg.show();
    QVERIFY(dialog.probe.OK().isEnabled());
    dialog.probe.OK().click();
    CompareAborted(dialog);
}

void TestEdidSetDlgCommit::TheProgressBarCannotBeCancelled()
{
    CEdidHost host;
    CEdidDialog dialog(host);
    int nButtons = -1;
    host.funcOnWait = [&] {
        nButtons = dialog.dlg.findChild<CCustomProgressbar*>()->findChildren<QPushButton*>().size();
    };
    dialog.dlg.OnOKPushButtonClicked();
    QCOMPARE(nButtons, 0);
}

QTEST_MAIN(TestEdidSetDlgCommit)
#include "TestEdidSetDlgCommit.moc"
