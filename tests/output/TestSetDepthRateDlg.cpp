#include "tests/output/DepthRateProbe.h"

#include <QtTest>

using namespace DepthRateProbe;
using namespace OutputDialogSupport;

class TestSetDepthRateDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheMetaObjectHasTheSlots();
    void TheWindowAndItsControls();
    void TheControlsLieInTheWindow_data();
    void TheControlsLieInTheWindow();
    void TheHostIsAskedInOrderAtOpening_data();
    void TheHostIsAskedInOrderAtOpening();
    void RateMenu_data();
    void RateMenu();
    void DepthMenu_data();
    void DepthMenu();
    void ASenderWithoutAChoiceIsSetTo8BitMerelyByOpening();
    void ItsFieldStillShowsTheOldDepthAndOkSavesThat();
    void AChoiceShowsInItsField_data();
    void AChoiceShowsInItsField();
    void AChoiceAsksTheHostInOrder();
    void FiftyHertzIsExempt();
    void FiftyHertzExemptsAChoiceOfDepthToo();
    void ADepthAloneIsHeldAgainstTheLimits();
    void AHostWithoutObjectionChangesNothing();
    void Warnings_data();
    void Warnings();
    void AnUnknownFlagShowsAnEmptyWarning();
    void AnUnknownFlagLaterKeepsTheTextThereWas();
    void AWarningNeverGoesAway();
    void ALaterWarningReplacesTheText();
    void TheWarningStandsClearOfTheButtons();
    void ChangeWndSizeShowsTheWarning();
    void ChangeWndSizeTakesTheWarningAway();
    void TheLayoutsAreReplacedWithoutComplaint();
};

void TestSetDepthRateDlg::TheMetaObjectHasTheSlots()
{
    QCOMPARE(Slots(CSetDepthRateDlg::staticMetaObject),
             List({"ComboBoxSelect(QAction* action)", "ButtonClicked(int id)"}));
}

void TestSetDepthRateDlg::TheWindowAndItsControls()
{
    CRecordingHost host;
    SetRecord(host, 30, 16);
    const CProbe probe;
    QCOMPARE(probe.dialog.windowTitle(), QStringLiteral("帧率和色深设置"));
    QCOMPARE(probe.dialog.size(), c_sizePlain);
    QCOMPARE(probe.dialog.minimumSize(), probe.dialog.maximumSize());
    QCOMPARE(probe.Rate().text(), QStringLiteral("30Hz"));
    QCOMPARE(probe.Depth().text(), QStringLiteral("16bit"));
    QVERIFY(probe.Warning().isHidden());
    QVERIFY(probe.Ok().isEnabled());
    QCOMPARE(probe.ButtonPanel().pos(), QPoint(5, 80));
    for (const CCustomComboBox* pCombo : {&probe.Rate(), &probe.Depth()}) {
        QCOMPARE(pCombo->menu()->minimumWidth(), 152);
        QCOMPARE(pCombo->menu()->maximumWidth(), 152);
        QCOMPARE(pCombo->menu()->styleSheet(), GetFontStyleSheet(g_menuStyle, QStringLiteral("QMenu"), 12));
    }
    for (const QPushButton* pButton : {&probe.Ok(), &probe.Cancel()})
        QCOMPARE(pButton->styleSheet(),
                 GetFontStyleSheet(g_pushButtonStyle, QStringLiteral("QPushButton"), 12));
    int nCaptions = 0;
    for (const CCustomLabel* pLabel : probe.dialog.findChildren<CCustomLabel*>()) {
        if (!List({"支持的最大帧率", "输出色深"}).contains(pLabel->text()))
            continue;
        ++nCaptions;
        QCOMPARE(pLabel->alignment(), Qt::AlignCenter);
        QCOMPARE(pLabel->styleSheet(), GetFontStyleSheet(g_labelNoFrameStyle, QStringLiteral("QLabel"), 12));
    }
    QCOMPARE(nCaptions, 2);
}

void TestSetDepthRateDlg::TheControlsLieInTheWindow_data()
{
    QTest::addColumn<bool>("bWarning");
    QTest::addColumn<QSize>("sizeWindow");
    QTest::newRow("plain") << false << c_sizePlain;
    QTest::newRow("warning") << true << c_sizeWarning;
}

void TestSetDepthRateDlg::TheControlsLieInTheWindow()
{
    QFETCH(bool, bWarning);
    CRecordingHost host;
    host.videoSourceLogic.limitFlags = 0x800;
    CProbe probe;
    probe.dialog.show();
    if (bWarning)
        probe.Choose("120Hz");
    QTEST(probe.dialog.size(), "sizeWindow");
    QCOMPARE(probe.FieldPanel().geometry().left(), 5);
    QCOMPARE(probe.FieldPanel().geometry().top(), 5);
    QCOMPARE(probe.FieldPanel().width(), 338);
    QVERIFY(probe.ButtonPanel().geometry().top() > probe.FieldPanel().geometry().bottom());
    for (const QWidget* pControl :
         std::initializer_list<const QWidget*>{&probe.Rate(), &probe.Depth(), &probe.Ok(), &probe.Cancel()}) {
        QCOMPARE(pControl->height(), 26);
        QVERIFY(
            probe.dialog.rect().contains(QRect(pControl->mapTo(&probe.dialog, QPoint()), pControl->size())));
        QVERIFY(pControl->parentWidget()->rect().contains(pControl->geometry()));
    }
    QVERIFY(!probe.Rate().geometry().intersects(probe.Depth().geometry()));
    QVERIFY(qAbs(probe.Ok().width() - probe.Cancel().width()) <= 1);
}

void TestSetDepthRateDlg::TheHostIsAskedInOrderAtOpening_data()
{
    QTest::addColumn<bool>("bVideoProcessor");
    QTest::addColumn<bool>("bSupport");
    QTest::addColumn<QStringList>("listCalls");
    QTest::newRow("no video processor")
        << false << false
        << List({"GetCurrentSender()", "GetCurSenderIndex()", "IsVideoProcessor(2)", "IsVideoProcessor(2)"});
    QTest::newRow("a video processor with more than 8 bit")
        << true << true
        << List({"GetCurrentSender()", "GetCurSenderIndex()", "IsVideoProcessor(2)", "GetSenderType(2)",
                 "IsVideoProcessor(2)", "IsSupport10Bit(2)", "IsSupport12Bit(2)"});
    QTest::newRow("a video processor with 8 bit alone")
        << true << false
        << List({"GetCurrentSender()", "GetCurSenderIndex()", "IsVideoProcessor(2)", "GetSenderType(2)",
                 "IsVideoProcessor(2)", "IsSupport10Bit(2)", "IsSupport12Bit(2)", "GetCurrentSender()"});
}

void TestSetDepthRateDlg::TheHostIsAskedInOrderAtOpening()
{
    QFETCH(bool, bVideoProcessor);
    QFETCH(bool, bSupport);
    CRecordingHost host;
    host.projectData.nCurSenderIndex = 2;
    host.senderLogic.bVideoProcessor = bVideoProcessor;
    host.senderLogic.bSupport10Bit = bSupport;
    host.senderLogic.bSupport12Bit = bSupport;
    const CProbe probe;
    QTEST(host.record.All(), "listCalls");
}

void TestSetDepthRateDlg::RateMenu_data()
{
    QTest::addColumn<bool>("bVideoProcessor");
    QTest::addColumn<int>("nSenderType");
    QTest::addColumn<QStringList>("listEntries");
    const QStringList listAll = List({"50Hz", "60Hz", "120Hz", "240Hz"});
    const QStringList listWithout50 = List({"60Hz", "120Hz", "240Hz"});
    QTest::newRow("video processor of type 16") << true << 16 << listAll;
    QTest::newRow("video processor of type 38") << true << 38 << listWithout50;
    QTest::newRow("type 38 that is no video processor") << false << 38 << listAll;
}

void TestSetDepthRateDlg::RateMenu()
{
    QFETCH(bool, bVideoProcessor);
    QFETCH(int, nSenderType);
    CRecordingHost host;
    host.senderLogic.bVideoProcessor = bVideoProcessor;
    host.senderLogic.nSenderType = nSenderType;
    const CProbe probe;
    QTEST(Entries(probe.Rate()), "listEntries");
}

void TestSetDepthRateDlg::DepthMenu_data()
{
    QTest::addColumn<bool>("bVideoProcessor");
    QTest::addColumn<bool>("bSupport10Bit");
    QTest::addColumn<bool>("bSupport12Bit");
    QTest::addColumn<QStringList>("listEntries");
    QTest::newRow("no video processor") << false << false << false << List({"8bit", "10bit", "12bit"});
    QTest::newRow("neither") << true << false << false << List({"8bit"});
    QTest::newRow("10 bit") << true << true << false << List({"8bit", "10bit"});
    QTest::newRow("12 bit") << true << false << true << List({"8bit", "10bit", "12bit"});
    QTest::newRow("both") << true << true << true << List({"8bit", "10bit", "12bit"});
}

void TestSetDepthRateDlg::DepthMenu()
{
    QFETCH(bool, bVideoProcessor);
    QFETCH(bool, bSupport10Bit);
    QFETCH(bool, bSupport12Bit);
    CRecordingHost host;
    host.senderLogic.bVideoProcessor = bVideoProcessor;
    host.senderLogic.bSupport10Bit = bSupport10Bit;
    host.senderLogic.bSupport12Bit = bSupport12Bit;
    const CProbe probe;
    QTEST(Entries(probe.Depth()), "listEntries");
}

void TestSetDepthRateDlg::ASenderWithoutAChoiceIsSetTo8BitMerelyByOpening()
{
    CRecordingHost host;
    SetRecord(host, 60, 12);
    host.senderLogic.bSupport10Bit = false;
    host.senderLogic.bSupport12Bit = false;
    const CProbe probe;
    QCOMPARE(Record(host), qMakePair(60, 8));
}

void TestSetDepthRateDlg::ItsFieldStillShowsTheOldDepthAndOkSavesThat()
{
    CRecordingHost host;
    SetRecord(host, 60, 12);
    host.senderLogic.bSupport10Bit = false;
    host.senderLogic.bSupport12Bit = false;
    CProbe probe;
    QCOMPARE(probe.Depth().text(), QStringLiteral("12bit"));
    probe.Press(2);
    QCOMPARE(Record(host), qMakePair(60, 12));
}

void TestSetDepthRateDlg::AChoiceShowsInItsField_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<QString>("strRate");
    QTest::addColumn<QString>("strDepth");
    for (const char* szRate : {"50Hz", "60Hz", "120Hz", "240Hz"})
        QTest::newRow(szRate) << QString::fromLatin1(szRate) << QString::fromLatin1(szRate)
                              << QStringLiteral("16bit");
    for (const char* szDepth : {"8bit", "10bit", "12bit"})
        QTest::newRow(szDepth) << QString::fromLatin1(szDepth) << QStringLiteral("30Hz")
                               << QString::fromLatin1(szDepth);
    QTest::newRow("a text of neither menu")
        << QStringLiteral("14bit") << QStringLiteral("30Hz") << QStringLiteral("16bit");
}

void TestSetDepthRateDlg::AChoiceShowsInItsField()
{
    QFETCH(QString, strText);
    CRecordingHost host;
    SetRecord(host, 30, 16);
    CProbe probe;
    QAction action(strText);
    QVERIFY(QMetaObject::invokeMethod(&probe.dialog, "ComboBoxSelect", Q_ARG(QAction*, &action)));
    QTEST(probe.Rate().text(), "strRate");
    QTEST(probe.Depth().text(), "strDepth");
}

void TestSetDepthRateDlg::AChoiceAsksTheHostInOrder()
{
    CRecordingHost host;
    host.projectData.nCurSenderIndex = 4;
    CProbe probe;
    host.record.Clear();
    probe.Choose("120Hz");
    QCOMPARE(host.record.All(),
             List({"GetCurSenderIndex()", "GetSenderType(4)", "GetOutputLimitFlags(4, 0x0)"}));
}

void TestSetDepthRateDlg::FiftyHertzIsExempt()
{
    CRecordingHost host;
    host.videoSourceLogic.limitFlags = 0x800;
    CProbe probe;
    host.record.Clear();
    probe.Choose("50Hz");
    QCOMPARE(host.record.All(), QStringList());
    QVERIFY(probe.Warning().isHidden());
    QVERIFY(probe.Ok().isEnabled());
}

void TestSetDepthRateDlg::FiftyHertzExemptsAChoiceOfDepthToo()
{
    CRecordingHost host;
    SetRecord(host, 50, 8);
    host.videoSourceLogic.limitFlags = 0x800;
    CProbe probe;
    host.record.Clear();
    probe.Choose("10bit");
    QCOMPARE(host.record.All(), QStringList());
    QCOMPARE(probe.Depth().text(), QStringLiteral("10bit"));
    QVERIFY(probe.Ok().isEnabled());
}

void TestSetDepthRateDlg::ADepthAloneIsHeldAgainstTheLimits()
{
    CRecordingHost host;
    host.videoSourceLogic.limitFlags = 0x8000000;
    CProbe probe;
    probe.Choose("10bit");
    QCOMPARE(probe.Warning().text(), QStringLiteral("输出口带载面积不能超过655360。"));
    QVERIFY(!probe.Ok().isEnabled());
}

void TestSetDepthRateDlg::AHostWithoutObjectionChangesNothing()
{
    CRecordingHost host;
    CProbe probe;
    probe.Choose("240Hz");
    QVERIFY(probe.Warning().isHidden());
    QVERIFY(probe.Ok().isEnabled());
    QCOMPARE(probe.dialog.size(), c_sizePlain);
}

void TestSetDepthRateDlg::Warnings_data()
{
    QTest::addColumn<unsigned int>("nFlags");
    QTest::addColumn<int>("nSenderType");
    QTest::addColumn<QString>("strText");
    QTest::newRow("area, small") << 0x800U << 24 << QStringLiteral("输出视频区域不能超过260万像素。");
    QTest::newRow("area") << 0x800U << 17 << QStringLiteral("输出视频区域不能超过888万像素。");
    QTest::newRow("DVI 1 to 4") << 0x1000U << 17 << QStringLiteral("DVI1~4的点数和不能超过888万。");
    QTest::newRow("DVI 5 to 8") << 0x2000U << 17 << QStringLiteral("DVI5~8的点数和不能超过888万。");
    QTest::newRow("port") << 0x8000000U << 17 << QStringLiteral("输出口带载面积不能超过655360。");
    QTest::newRow("EDID area, small") << 0x10000000U << 63 << QStringLiteral("EDID的输出面积不能超过260W。");
    QTest::newRow("EDID area") << 0x10000000U << 17 << QStringLiteral("EDID的输出面积不能超过888W。");
    QTest::newRow("the first of several")
        << 0x18003000U << 17 << QStringLiteral("DVI1~4的点数和不能超过888万。");
}

void TestSetDepthRateDlg::Warnings()
{
    QFETCH(unsigned int, nFlags);
    QFETCH(int, nSenderType);
    CRecordingHost host;
    host.senderLogic.nSenderType = nSenderType;
    host.videoSourceLogic.limitFlags = nFlags;
    CProbe probe;
    probe.dialog.show();
    probe.Choose("120Hz");
    QTEST(probe.Warning().text(), "strText");
    QVERIFY(probe.Warning().isVisible());
    QCOMPARE(probe.Warning().pos(), QPoint(20, 108));
    QVERIFY(!probe.Ok().isEnabled());
    QCOMPARE(probe.dialog.size(), c_sizeWarning);
}

void TestSetDepthRateDlg::AnUnknownFlagShowsAnEmptyWarning()
{
    CRecordingHost host;
    host.videoSourceLogic.limitFlags = 0;
    CProbe probe;
    probe.dialog.show();
    probe.Choose("120Hz");
    QCOMPARE(probe.Warning().text(), QString());
    QVERIFY(probe.Warning().isVisible());
    QVERIFY(!probe.Ok().isEnabled());
    QCOMPARE(probe.dialog.size(), c_sizeWarning);
}

void TestSetDepthRateDlg::AnUnknownFlagLaterKeepsTheTextThereWas()
{
    CRecordingHost host;
    host.videoSourceLogic.limitFlags = 0x1000;
    CProbe probe;
    probe.Choose("120Hz");
    host.videoSourceLogic.limitFlags = 0x4;
    probe.Choose("240Hz");
    QCOMPARE(probe.Warning().text(), QStringLiteral("DVI1~4的点数和不能超过888万。"));
}

void TestSetDepthRateDlg::AWarningNeverGoesAway()
{
    CRecordingHost host;
    host.videoSourceLogic.limitFlags = 0x1000;
    CProbe probe;
    probe.dialog.show();
    probe.Choose("120Hz");
    probe.Choose("50Hz");
    host.videoSourceLogic.limitFlags.reset();
    probe.Choose("60Hz");
    QVERIFY(probe.Warning().isVisible());
    QVERIFY(!probe.Ok().isEnabled());
    QCOMPARE(probe.dialog.size(), c_sizeWarning);
    QCOMPARE(probe.Rate().text(), QStringLiteral("60Hz"));
}

void TestSetDepthRateDlg::ALaterWarningReplacesTheText()
{
    CRecordingHost host;
    host.videoSourceLogic.limitFlags = 0x1000;
    CProbe probe;
    probe.Choose("120Hz");
    host.videoSourceLogic.limitFlags = 0x2000;
    probe.Choose("240Hz");
    QCOMPARE(probe.Warning().text(), QStringLiteral("DVI5~8的点数和不能超过888万。"));
}

void TestSetDepthRateDlg::TheWarningStandsClearOfTheButtons()
{
    CRecordingHost host;
    host.videoSourceLogic.limitFlags = 0x800;
    CProbe probe;
    probe.dialog.show();
    probe.Choose("120Hz");
    const QRect rcWarning = probe.Warning().geometry();
    QVERIFY(rcWarning.width() >= probe.Warning().fontMetrics().horizontalAdvance(probe.Warning().text()));
    QVERIFY(probe.dialog.rect().contains(rcWarning));
    for (const QWidget* pControl :
         std::initializer_list<const QWidget*>{&probe.Rate(), &probe.Depth(), &probe.Ok(), &probe.Cancel()})
        QVERIFY(!rcWarning.intersects(QRect(pControl->mapTo(&probe.dialog, QPoint()), pControl->size())));
}

void TestSetDepthRateDlg::ChangeWndSizeShowsTheWarning()
{
    CRecordingHost host;
    CProbe probe;
    probe.dialog.ChangeWndSize(true);
    QVERIFY(!probe.Warning().isHidden());
    QCOMPARE(probe.Warning().pos(), QPoint(20, 108));
    QVERIFY(!probe.Ok().isEnabled());
    QCOMPARE(probe.dialog.size(), c_sizeWarning);
    QCOMPARE(probe.ButtonPanel().pos(), QPoint(5, 100));
}

void TestSetDepthRateDlg::ChangeWndSizeTakesTheWarningAway()
{
    CRecordingHost host;
    host.videoSourceLogic.limitFlags = 0x1000;
    CProbe probe;
    probe.Choose("120Hz");
    probe.dialog.ChangeWndSize(false);
    QVERIFY(probe.Warning().isHidden());
    QVERIFY(probe.Ok().isEnabled());
    QCOMPARE(probe.ButtonPanel().pos(), QPoint(5, 80));
    // The layout, built last, has the plain window's size.
    QCOMPARE(probe.dialog.size(), c_sizePlain);
    host.videoSourceLogic.limitFlags = 0;
    probe.Choose("240Hz");
    QCOMPARE(probe.Warning().text(), QString());
}

void TestSetDepthRateDlg::TheLayoutsAreReplacedWithoutComplaint()
{
    CRecordingHost host;
    const CWarnings warnings;
    CProbe probe;
    probe.dialog.show();
    const QRect rcRate = probe.Rate().geometry();
    const QRect rcOk = probe.Ok().geometry();
    for (int i = 0; i < 3; ++i)
        probe.dialog.SetControlRect();
    QCoreApplication::processEvents();
    QCOMPARE(warnings.With(QStringLiteral("Layout")), QStringList());
    QCOMPARE(probe.dialog.findChildren<QLayout*>().size(), 3);
    QCOMPARE(probe.dialog.size(), c_sizePlain);
    QCOMPARE(probe.Rate().geometry(), rcRate);
    QCOMPARE(probe.Ok().geometry(), rcOk);
}

QTEST_MAIN(TestSetDepthRateDlg)
#include "TestSetDepthRateDlg.moc"
