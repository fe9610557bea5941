#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "host/QtCompat.h"
#include "tests/edid/EdidDialogHost.h"

#include <QtTest>

#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QPushButton>

/// The menus behind the combo boxes, and what choosing from them does.
class TestEdidSetDlgMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryMenuIsAsWideAsItsBox();
    void TheResolutionMenuOffersCustomAndTheList();
    void TheComputersOwnSizeIsMarked();
    void TheCurrentSizeIsChecked();
    void CustomIsCheckedForASizeThatIsNotListed();
    void ChoosingAResolution();
    void ChoosingAPresetAndThenCustomShowsTheStoredSize();
    void Interface132HasNoCustomEntry();
    void TheCustomActionOf132WorksAllTheSame();
    void On132AnUnlistedSizeOpensAtTheFourthEntry();
    void On132AShortListHasNoMenu();
    void TheRateMenuFollowsTheSender_data();
    void TheRateMenuFollowsTheSender();
    void ChoosingARate();
    void ARateThatTheMenuLacksIsShownAndNothingIsChecked();
    void TheDepthMenuFollowsTheSender_data();
    void TheDepthMenuFollowsTheSender();
    void OpeningPutsAnEightBitProcessorToEightBit_data();
    void OpeningPutsAnEightBitProcessorToEightBit();
    void ChoosingADepthShowsTheNameWithABlank();
    void TheFormatMenu();
    void TheTimingStandardMenu();
    void ChoosingATimingStandardAsksTheHostAgain();
};

void TestEdidSetDlgMenus::TheResolutionMenuOffersCustomAndTheList()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    const QStringList listExpected = {QStringLiteral("自定义"), QStringLiteral("1280 × 720"),
                                      QStringLiteral("1920 × 1080"), QStringLiteral("1920 × 1200")};
    QCOMPARE(EdidDialog::MenuTexts(dialog.probe.Resolution()), listExpected);
    const QList<QAction*> listActions = dialog.probe.Resolution().menu()->actions();
    for (int i = 0; i < listActions.size(); ++i)
        QCOMPARE(listActions.at(i)->data().toInt(), i);
}

void TestEdidSetDlgMenus::TheComputersOwnSizeIsMarked()
{
    CEdidHost host;
    const QSize sizeDesktop = QtCompat::DesktopSize();
    host.videoSourceLogic.limit.listResolution = {QSize(640, 480), sizeDesktop};
    const CEdidDialog dialog(host);
    const QString strExpected =
        QStringLiteral("%1 × %2 (电脑)").arg(sizeDesktop.width()).arg(sizeDesktop.height());
    QCOMPARE(EdidDialog::MenuTexts(dialog.probe.Resolution()).last(), strExpected);
    EdidDialog::Choose(dialog.probe.Resolution(), strExpected);
    QCOMPARE(dialog.probe.Resolution().text(),
             QStringLiteral("%1×%2(电脑)").arg(sizeDesktop.width()).arg(sizeDesktop.height()));
}

void TestEdidSetDlgMenus::TheCurrentSizeIsChecked()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Resolution()), QStringList(QStringLiteral("1920 × 1080")));
    QCOMPARE(dialog.probe.Resolution().text(), QStringLiteral("1920×1080"));
}

void TestEdidSetDlgMenus::CustomIsCheckedForASizeThatIsNotListed()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    const CEdidDialog dialog(host);
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Resolution()), QStringList(QStringLiteral("自定义")));
    QCOMPARE(dialog.probe.Resolution().text(), QStringLiteral("自定义：1000×500"));
}

void TestEdidSetDlgMenus::ChoosingAResolution()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    host.record.Clear();
    EdidDialog::Choose(dialog.probe.Resolution(), QStringLiteral("1280 × 720"));
    QCOMPARE(dialog.probe.ResolutionIndex(), 1);
    QCOMPARE(dialog.probe.Resolution().text(), QStringLiteral("1280×720"));
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Resolution()), QStringList(QStringLiteral("1280 × 720")));
    QCOMPARE(host.record.All(), QStringList(QStringLiteral("CheckEdidLimit(1280, 720, 2304000)")));
}

void TestEdidSetDlgMenus::ChoosingAPresetAndThenCustomShowsTheStoredSize()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    const CEdidDialog dialog(host);
    dialog.probe.Width().setValue(1111);
    dialog.probe.Height().setValue(555);
    EdidDialog::Choose(dialog.probe.Resolution(), QStringLiteral("1280 × 720"));
    EdidDialog::Choose(dialog.probe.Resolution(), QStringLiteral("自定义"));
    QCOMPARE(dialog.probe.Resolution().text(), QStringLiteral("自定义：1000×500"));
    QCOMPARE(dialog.probe.Width().text(), QStringLiteral("1111"));
    QCOMPARE(dialog.probe.Height().text(), QStringLiteral("555"));
}

void TestEdidSetDlgMenus::Interface132HasNoCustomEntry()
{
    CEdidHost host;
    const CEdidDialog dialog(host, 132);
    const QStringList listExpected = {QStringLiteral("1280 × 720"), QStringLiteral("1920 × 1080"),
                                      QStringLiteral("1920 × 1200")};
    QCOMPARE(EdidDialog::MenuTexts(dialog.probe.Resolution()), listExpected);
    QCOMPARE(EdidDialog::MenuTexts(dialog.probe.Rate()), QStringList(QStringLiteral("60")));
}

void TestEdidSetDlgMenus::TheCustomActionOf132WorksAllTheSame()
{
    CEdidHost host;
    const CEdidDialog dialog(host, 132);
    QAction* pCustom = dialog.probe.ResolutionActions().first();
    QCOMPARE(pCustom->text(), QStringLiteral("自定义"));
    QVERIFY(!pCustom->isChecked());
    pCustom->trigger();
    QCOMPARE(dialog.probe.ResolutionIndex(), 0);
    QCOMPARE(dialog.probe.Resolution().text(), QStringLiteral("自定义：1920×1080"));
    QVERIFY(pCustom->isChecked());
}

void TestEdidSetDlgMenus::On132AnUnlistedSizeOpensAtTheFourthEntry()
{
    CEdidHost host;
    host.videoSourceLogic.limit.listResolution.append(QSize(2560, 1440));
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    const CEdidDialog dialog(host, 132);
    QCOMPARE(dialog.probe.Resolution().text(), QStringLiteral("2560×1440"));
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Resolution()), QStringList(QStringLiteral("2560 × 1440")));
}

void TestEdidSetDlgMenus::On132AShortListHasNoMenu()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1000, 500), 60);
    const CEdidDialog dialog(host, 132);
    QVERIFY(dialog.probe.Resolution().menu() == nullptr);
    QCOMPARE(dialog.probe.ResolutionActions().size(), 1);
    // The refresh of the resolution returns at once and changes nothing: no text, and the row of
    // the size stays.
    QCOMPARE(dialog.probe.Resolution().text(), QString());
    QVERIFY(!dialog.probe.Width().isHidden());
    // There is no entry to judge, so the host judges what stands in the spin boxes.
    QCOMPARE(host.record.All().last(), QStringLiteral("CheckEdidLimit(1000, 500, 2304000)"));
    // The other menus are there, and the custom action works.
    QCOMPARE(EdidDialog::MenuTexts(dialog.probe.Rate()), QStringList(QStringLiteral("60")));
    dialog.probe.ResolutionActions().first()->trigger();
    QCOMPARE(dialog.probe.Resolution().text(), QStringLiteral("自定义：1000×500"));
}

void TestEdidSetDlgMenus::TheRateMenuFollowsTheSender_data()
{
    QTest::addColumn<int>("senderType");
    QTest::addColumn<int>("interfaceId");
    QTest::addColumn<bool>("lowRateOnly");
    QTest::addColumn<bool>("extended");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << 16 << 1 << false << false << "30 50 60";
    QTest::newRow("plain with the full record") << 16 << 1 << false << true << "30 50 60 120";
    QTest::newRow("low rates") << 16 << 1 << true << true << "30 50";
    QTest::newRow("interface 132") << 16 << 132 << false << true << "60";
    QTest::newRow("interface 132, low rates: nothing at all") << 16 << 132 << true << true << "";
    QTest::newRow("50") << 50 << 9 << false << false << "29.97 30 50 59.94 60 120";
    QTest::newRow("51") << 51 << 9 << false << false << "23.976 24 29.97 30 50 59.94 60 120";
    QTest::newRow("53") << 53 << 9 << false << false << "23.976 24 25 29.97 30 50 59.94 60 120";
    QTest::newRow("68") << 68 << 9 << false << false << "30 50 60 120 144 240";
    QTest::newRow("73 on 16") << 73 << 16 << false << false << "23.976 24 25 29.97 30 50 59.94 60";
}

void TestEdidSetDlgMenus::TheRateMenuFollowsTheSender()
{
    QFETCH(int, senderType);
    QFETCH(int, interfaceId);
    QFETCH(bool, lowRateOnly);
    QFETCH(bool, extended);
    QFETCH(QString, expected);
    CEdidHost host;
    host.senderLogic.nSenderType = senderType;
    host.senderLogic.bExtendedEdid = extended;
    const CEdidDialog dialog(host, interfaceId, lowRateOnly);
    QCOMPARE(EdidDialog::MenuTexts(dialog.probe.Rate()).join(QLatin1Char(' ')), expected);
}

void TestEdidSetDlgMenus::ChoosingARate()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    host.record.Clear();
    EdidDialog::Choose(dialog.probe.Rate(), QStringLiteral("30"));
    QCOMPARE(dialog.probe.RateIndex(), 4);
    QCOMPARE(dialog.probe.Rate().text(), QStringLiteral("30"));
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Rate()), QStringList(QStringLiteral("30")));
    QCOMPARE(host.record.All(), QStringList(QStringLiteral("CheckEdidLimit(1920, 1080, 4608000)")));
}

void TestEdidSetDlgMenus::ARateThatTheMenuLacksIsShownAndNothingIsChecked()
{
    CEdidHost host;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1920, 1080), 60);
    const CEdidDialog dialog(host, 1, true);
    QCOMPARE(dialog.probe.RateIndex(), 7);
    QCOMPARE(dialog.probe.Rate().text(), QStringLiteral("60"));
    QCOMPARE(EdidDialog::MenuTexts(dialog.probe.Rate()).join(QLatin1Char(' ')), QStringLiteral("30 50"));
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Rate()), QStringList());
}

void TestEdidSetDlgMenus::TheDepthMenuFollowsTheSender_data()
{
    QTest::addColumn<bool>("processor");
    QTest::addColumn<bool>("has10");
    QTest::addColumn<bool>("has12");
    QTest::addColumn<int>("senderType");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no video processor") << false << false << false << 16 << "8bit 10bit 12bit";
    QTest::newRow("8 bit") << true << false << false << 16 << "8bit";
    QTest::newRow("10 bit") << true << true << false << 16 << "8bit 10bit";
    QTest::newRow("12 bit") << true << false << true << 16 << "8bit 10bit 12bit";
    QTest::newRow("type 73") << true << true << false << 73 << "8bit 10bit 12bit";
    QTest::newRow("type 17 on the interface 16") << true << true << false << 17 << "8bit 10bit 12bit";
}

void TestEdidSetDlgMenus::TheDepthMenuFollowsTheSender()
{
    QFETCH(bool, processor);
    QFETCH(bool, has10);
    QFETCH(bool, has12);
    QFETCH(int, senderType);
    QFETCH(QString, expected);
    CEdidHost host;
    host.senderLogic.bVideoProcessor = processor;
    host.senderLogic.bSupport10Bit = has10;
    host.senderLogic.bSupport12Bit = has12;
    host.senderLogic.nSenderType = senderType;
    const CEdidDialog dialog(host, 16);
    QCOMPARE(EdidDialog::MenuTexts(dialog.probe.Depth()).join(QLatin1Char(' ')), expected);
}

void TestEdidSetDlgMenus::OpeningPutsAnEightBitProcessorToEightBit_data()
{
    QTest::addColumn<bool>("processor");
    QTest::addColumn<bool>("has10");
    QTest::addColumn<bool>("has12");
    QTest::addColumn<int>("expected");
    QTest::newRow("8 bit processor: written") << true << false << false << 8;
    QTest::newRow("10 bit processor: left alone") << true << true << false << 12;
    QTest::newRow("12 bit processor: left alone") << true << false << true << 12;
    QTest::newRow("no processor: left alone") << false << false << false << 12;
}

void TestEdidSetDlgMenus::OpeningPutsAnEightBitProcessorToEightBit()
{
    QFETCH(bool, processor);
    QFETCH(bool, has10);
    QFETCH(bool, has12);
    QFETCH(int, expected);
    CEdidHost host;
    host.projectData.sender.nColorDepth = 12;
    host.senderLogic.bVideoProcessor = processor;
    host.senderLogic.bSupport10Bit = has10;
    host.senderLogic.bSupport12Bit = has12;
    const CEdidDialog dialog(host);
    QCOMPARE(host.projectData.sender.nColorDepth, expected);
    QCOMPARE(host.record.Count(QStringLiteral("GetCurrentSender")), expected == 8 ? 1 : 0);
}

void TestEdidSetDlgMenus::ChoosingADepthShowsTheNameWithABlank()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    QCOMPARE(dialog.probe.Depth().text(), QStringLiteral("8 bit"));
    EdidDialog::Choose(dialog.probe.Depth(), QStringLiteral("12bit"));
    QCOMPARE(dialog.probe.DepthIndex(), 2);
    QCOMPARE(dialog.probe.Depth().text(), QStringLiteral("12 bit"));
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Depth()), QStringList(QStringLiteral("12bit")));
}

void TestEdidSetDlgMenus::TheFormatMenu()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    const QStringList listExpected = {QStringLiteral("RGB"), QStringLiteral("YCBCR 4:4:4"),
                                      QStringLiteral("YCBCR 4:2:2"), QStringLiteral("YCBCR 4:4:0")};
    QCOMPARE(EdidDialog::MenuTexts(dialog.probe.Format()), listExpected);
    EdidDialog::Choose(dialog.probe.Format(), QStringLiteral("YCBCR 4:4:0"));
    QCOMPARE(dialog.probe.FormatIndex(), 3);
    // Kept up to date, and never seen.
    QCOMPARE(dialog.probe.Format().text(), QStringLiteral("YCBCR 4:4:0"));
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Format()), QStringList(QStringLiteral("YCBCR 4:4:0")));
    QVERIFY(dialog.probe.Format().isHidden());
}

void TestEdidSetDlgMenus::TheTimingStandardMenu()
{
    CEdidHost host;
    const CEdidDialog dialog(host);
    const QStringList listExpected = {QStringLiteral("CVT_RB"), QStringLiteral("CVT")};
    QCOMPARE(EdidDialog::MenuTexts(dialog.probe.Standard()), listExpected);
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Standard()), QStringList(QStringLiteral("CVT_RB")));
    EdidDialog::Choose(dialog.probe.Standard(), QStringLiteral("CVT"));
    QCOMPARE(int(dialog.probe.TimingStandard()), 1);
    QCOMPARE(dialog.probe.Standard().text(), QStringLiteral("CVT"));
    QCOMPARE(EdidDialog::CheckedTexts(dialog.probe.Standard()), QStringList(QStringLiteral("CVT")));
}

void TestEdidSetDlgMenus::ChoosingATimingStandardAsksTheHostAgain()
{
    CEdidHost host;
    host.videoSourceLogic.limit.bLimitByPixelClock = true;
    host.videoSourceLogic.setting = CEdidHost::Setting(QSize(1920, 1080), 60);
    host.videoSourceLogic.setting->byFractional = 1;
    const CEdidDialog dialog(host);
    QCOMPARE(host.record.All().last(), QStringLiteral("CheckEdidLimit(1920, 1080, 138)"));
    EdidDialog::Choose(dialog.probe.Standard(), QStringLiteral("CVT"));
    QCOMPARE(host.record.All().last(), QStringLiteral("CheckEdidLimit(1920, 1080, 172)"));
}

void TestEdidSetDlgMenus::EveryMenuIsAsWideAsItsBox()
{
    CEdidHost host;
    host.senderLogic.nSenderType = 43;
    CEdidDialog dialog(host, 16);
    dialog.dlg.show();
    const CEdidSetDlgProbe& probe = dialog.probe;
    for (CCustomComboBox* pComboBox :
         {&probe.Resolution(), &probe.Rate(), &probe.Depth(), &probe.Format(), &probe.Standard()}) {
        Q_EMIT pComboBox->menu()->aboutToShow();
        QCOMPARE(pComboBox->menu()->minimumWidth(), pComboBox->width());
    }
}

QTEST_MAIN(TestEdidSetDlgMenus)
#include "TestEdidSetDlgMenus.moc"
