#include "SenderModuleDialog/output/SetDepthRateDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/Style.h"
#include "tests/output/OutputDialogSupport.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/RecordingHost.h"

#include <QAction>
#include <QLayout>
#include <QMenu>
#include <QPushButton>
#include <QtTest>

using namespace OutputDialogSupport;

namespace {

const QSize c_sizePlain(348, 130);
const QSize c_sizeWarning(348, 175);

/// The dialog with names for its controls.
class CProbe
{
public:
    CCustomComboBox& Rate() const { return *dialog.findChildren<CCustomComboBox*>().at(0); }
    CCustomComboBox& Depth() const { return *dialog.findChildren<CCustomComboBox*>().at(1); }
    QPushButton& Ok() const { return *Button(dialog, "确定"); }
    QPushButton& Cancel() const { return *Button(dialog, "取消"); }
    QWidget& ButtonPanel() const { return *Ok().parentWidget(); }
    QWidget& FieldPanel() const { return *Rate().parentWidget(); }
    CCustomLabel& Warning() const
    {
        const QString strStyle = GetFontStyleSheet(g_labelWarnStyle, QStringLiteral("QLabel"), 12);
        for (CCustomLabel* pLabel : dialog.findChildren<CCustomLabel*>()) {
            if (pLabel->styleSheet() == strStyle)
                return *pLabel;
        }
        qFatal("no warning label");
    }
    /// Chooses an entry of either menu, as its own signal would.
    void Choose(const char* szText)
    {
        for (CCustomComboBox* pCombo : {&Rate(), &Depth()}) {
            for (QAction* pAction : pCombo->menu()->actions()) {
                if (pAction->text() == QString::fromLatin1(szText))
                    pAction->trigger();
            }
        }
    }
    void Press(int nId) { QVERIFY(QMetaObject::invokeMethod(&dialog, "ButtonClicked", Q_ARG(int, nId))); }

    CSetDepthRateDlg dialog{nullptr};
};

void SetRecord(CRecordingHost& host, int nRate, int nDepth)
{
    host.projectData.sender.nFrameRate = nRate;
    host.projectData.sender.nColorDepth = nDepth;
}

QPair<int, int> Record(const CRecordingHost& host)
{
    return {host.projectData.sender.nFrameRate, host.projectData.sender.nColorDepth};
}

const QStringList& Writes()
{
    static const QStringList s_listNames = List({"SetOutput50Hz", "SetOutputDepthMode", "PostLabelEvent"});
    return s_listNames;
}

} // namespace

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
    void OkOnAVideoProcessor_data();
    void OkOnAVideoProcessor();
    void OkOnAnotherSenderWritesTheRecordAlone();
    void ARateThatTheMenuLacksIsSavedAs60();
    void ADepthThatTheMenuLacksIsSavedAs8();
    void TheDepthThatTheHardwareHasIsNotWritten_data();
    void TheDepthThatTheHardwareHasIsNotWritten();
    void TheQuestion_data();
    void TheQuestion();
    void TheAnswerToTheQuestion_data();
    void TheAnswerToTheQuestion();
    void ANoLeavesTheValuesTakenButNothingSaved();
    void SaveDataWritesInOrder();
    void CancelGivesTwoAndWritesNothing();
    void TheTitleBarGivesZeroAndWritesNothing();
    void OtherButtonIdsDoNothing();
    void MembersThatStayDoNothing();
    void AMenuIsOperatedByTheMouse();
    void AMenuIsOperatedByKeys();
    void ANullActionEndsTheProcess();
    void TextsAreLookedUpInOneContext();
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

void TestSetDepthRateDlg::OkOnAVideoProcessor_data()
{
    QTest::addColumn<QString>("strRate");
    QTest::addColumn<QString>("strDepth");
    QTest::addColumn<QStringList>("listCalls");
    QTest::addColumn<int>("nRate");
    QTest::addColumn<int>("nDepth");
    QTest::newRow("50 Hz at 10 bit") << QStringLiteral("50Hz") << QStringLiteral("10bit")
                                     << List({"GetCurSenderIndex()", "IsVideoProcessor(5)",
                                              "GetMaxInputFrameRate(5)", "SetOutput50Hz(5, true, 0)",
                                              "GetCurSenderIndex()", "IsVideoProcessor(5)",
                                              "GetOutputDepthMode(5)", "SetOutputDepthMode(5, 1, 1)",
                                              "GetCurrentSender()", "PostLabelEvent(0xc00, 0, 1, 0)"})
                                     << 50 << 10;
    QTest::newRow("240 Hz at 12 bit")
        << QStringLiteral("240Hz") << QStringLiteral("12bit")
        << List({"GetCurSenderIndex()", "IsVideoProcessor(5)", "GetMaxInputFrameRate(5)",
                 "SetOutput50Hz(5, false, 0)", "GetCurSenderIndex()", "IsVideoProcessor(5)",
                 "GetOutputDepthMode(5)", "SetOutputDepthMode(5, 2, 1)", "GetCurrentSender()",
                 "PostLabelEvent(0xc00, 0, 1, 0)"})
        << 240 << 12;
    QTest::newRow("the depth that the hardware has")
        << QStringLiteral("120Hz") << QStringLiteral("8bit")
        << List({"GetCurSenderIndex()", "IsVideoProcessor(5)", "GetMaxInputFrameRate(5)",
                 "SetOutput50Hz(5, false, 0)", "GetCurSenderIndex()", "IsVideoProcessor(5)",
                 "GetOutputDepthMode(5)", "GetCurrentSender()", "PostLabelEvent(0xc00, 0, 1, 0)"})
        << 120 << 8;
}

void TestSetDepthRateDlg::OkOnAVideoProcessor()
{
    QFETCH(QString, strRate);
    QFETCH(QString, strDepth);
    QFETCH(int, nRate);
    QFETCH(int, nDepth);
    CRecordingHost host;
    host.projectData.nCurSenderIndex = 5;
    CProbe probe;
    probe.Choose(strRate.toLatin1().constData());
    probe.Choose(strDepth.toLatin1().constData());
    host.record.Clear();
    ClickInLoop(&probe.dialog, "确定");
    QCOMPARE(probe.dialog.exec(), 1);
    QTEST(host.record.All(), "listCalls");
    QCOMPARE(Record(host), qMakePair(nRate, nDepth));
}

void TestSetDepthRateDlg::OkOnAnotherSenderWritesTheRecordAlone()
{
    CRecordingHost host;
    host.senderLogic.bVideoProcessor = false;
    host.videoSourceLogic.fMaxInputFrameRate = 1000.0F;
    CProbe probe;
    probe.Choose("120Hz");
    probe.Choose("12bit");
    host.record.Clear();
    CModalAnswers answers;
    probe.Press(2);
    QCOMPARE(answers.Texts(), QStringList());
    QCOMPARE(host.record.All(),
             List({"GetCurSenderIndex()", "IsVideoProcessor(0)", "GetCurSenderIndex()", "IsVideoProcessor(0)",
                   "GetCurrentSender()", "PostLabelEvent(0xc00, 0, 1, 0)"}));
    QCOMPARE(Record(host), qMakePair(120, 12));
}

void TestSetDepthRateDlg::ARateThatTheMenuLacksIsSavedAs60()
{
    CRecordingHost host;
    SetRecord(host, 30, 8);
    CProbe probe;
    QCOMPARE(probe.Rate().text(), QStringLiteral("30Hz"));
    probe.Press(2);
    QCOMPARE(Record(host), qMakePair(60, 8));
}

void TestSetDepthRateDlg::ADepthThatTheMenuLacksIsSavedAs8()
{
    CRecordingHost host;
    SetRecord(host, 120, 16);
    CProbe probe;
    QCOMPARE(probe.Depth().text(), QStringLiteral("16bit"));
    probe.Press(2);
    QCOMPARE(Record(host), qMakePair(120, 8));
}

void TestSetDepthRateDlg::TheDepthThatTheHardwareHasIsNotWritten_data()
{
    QTest::addColumn<int>("nHardwareMode");
    QTest::addColumn<QString>("strDepth");
    QTest::addColumn<QStringList>("listCalls");
    QTest::newRow("8 bit already") << 0 << QStringLiteral("8bit") << QStringList();
    QTest::newRow("10 bit already") << 1 << QStringLiteral("10bit") << QStringList();
    QTest::newRow("12 bit already") << 2 << QStringLiteral("12bit") << QStringList();
    QTest::newRow("back to 8 bit") << 2 << QStringLiteral("8bit") << List({"SetOutputDepthMode(0, 0, 1)"});
    QTest::newRow("a mode that is unknown here")
        << 7 << QStringLiteral("8bit") << List({"SetOutputDepthMode(0, 0, 1)"});
}

void TestSetDepthRateDlg::TheDepthThatTheHardwareHasIsNotWritten()
{
    QFETCH(int, nHardwareMode);
    QFETCH(QString, strDepth);
    CRecordingHost host;
    host.senderLogic.nOutputDepthMode = nHardwareMode;
    CProbe probe;
    probe.Choose(strDepth.toLatin1().constData());
    probe.Press(2);
    QTEST(host.record.Only(List({"SetOutputDepthMode"})), "listCalls");
}

void TestSetDepthRateDlg::TheQuestion_data()
{
    QTest::addColumn<float>("fInputRate");
    QTest::addColumn<QStringList>("listTexts");
    QTest::newRow("equal") << 60.0F << QStringList();
    QTest::newRow("below") << 59.94F << QStringList();
    QTest::newRow("none") << 0.0F << QStringList();
    QTest::newRow("negative") << -120.0F << QStringList();
    QTest::newRow("above")
        << 60.006F << List({"工程设置支持的最大帧率(60Hz)小于实际输入的最大帧率(60.01Hz)，是否继续？"});
    QTest::newRow("far above")
        << 119.88F << List({"工程设置支持的最大帧率(60Hz)小于实际输入的最大帧率(119.88Hz)，是否继续？"});
}

void TestSetDepthRateDlg::TheQuestion()
{
    QFETCH(float, fInputRate);
    QFETCH(QStringList, listTexts);
    CRecordingHost host;
    host.videoSourceLogic.fMaxInputFrameRate = fInputRate;
    CProbe probe;
    CModalAnswers answers;
    answers.Plan(2);
    probe.Press(2);
    QCOMPARE(answers.Texts(), listTexts);
    if (!listTexts.isEmpty())
        QCOMPARE(answers.Parents().at(0).data(), &probe.dialog);
    QCOMPARE(probe.dialog.result(), 1);
}

void TestSetDepthRateDlg::TheAnswerToTheQuestion_data()
{
    QTest::addColumn<int>("nButton");
    QTest::addColumn<bool>("bSaved");
    QTest::newRow("yes") << 2 << true;
    QTest::newRow("no") << 4 << false;
    QTest::newRow("closed without an answer") << 0 << false;
}

void TestSetDepthRateDlg::TheAnswerToTheQuestion()
{
    QFETCH(int, nButton);
    QFETCH(bool, bSaved);
    CRecordingHost host;
    SetRecord(host, 60, 8);
    host.videoSourceLogic.fMaxInputFrameRate = 100.0F;
    CProbe probe;
    probe.dialog.show();
    probe.Choose("50Hz");
    probe.Choose("10bit");
    host.record.Clear();
    CModalAnswers answers;
    answers.Plan(nButton);
    QTest::mouseClick(&probe.Ok(), Qt::LeftButton);
    QCOMPARE(host.record.Only(Writes()),
             bSaved ? List({"SetOutput50Hz(0, true, 0)", "SetOutputDepthMode(0, 1, 1)",
                            "PostLabelEvent(0xc00, 0, 1, 0)"})
                    : QStringList());
    QCOMPARE(Record(host), bSaved ? qMakePair(50, 10) : qMakePair(60, 8));
    QCOMPARE(probe.dialog.isVisible(), !bSaved);
    QCOMPARE(probe.Rate().text(), QStringLiteral("50Hz"));
}

void TestSetDepthRateDlg::ANoLeavesTheValuesTakenButNothingSaved()
{
    CRecordingHost host;
    host.videoSourceLogic.fMaxInputFrameRate = 240.0F;
    CProbe probe;
    probe.Choose("120Hz");
    probe.Choose("12bit");
    CModalAnswers answers;
    answers.Plan(4);
    probe.Press(2);
    QCOMPARE(Record(host), qMakePair(60, 8));
    probe.dialog.SaveData();
    QCOMPARE(Record(host), qMakePair(120, 12));
}

void TestSetDepthRateDlg::SaveDataWritesInOrder()
{
    CRecordingHost host;
    SetRecord(host, 120, 12);
    host.senderLogic.nOutputDepthMode = 2;
    CProbe probe;
    host.record.Clear();
    probe.dialog.SaveData();
    QCOMPARE(host.record.All(), List({"GetCurSenderIndex()", "IsVideoProcessor(0)", "GetOutputDepthMode(0)",
                                      "SetOutputDepthMode(0, 0, 1)", "GetCurrentSender()"}));
    QCOMPARE(Record(host), qMakePair(60, 8));
}

void TestSetDepthRateDlg::CancelGivesTwoAndWritesNothing()
{
    CRecordingHost host;
    SetRecord(host, 30, 16);
    CProbe probe;
    probe.Choose("120Hz");
    host.record.Clear();
    ClickInLoop(&probe.dialog, "取消");
    QCOMPARE(probe.dialog.exec(), 2);
    QCOMPARE(host.record.All(), QStringList());
    QCOMPARE(Record(host), qMakePair(30, 16));
}

void TestSetDepthRateDlg::TheTitleBarGivesZeroAndWritesNothing()
{
    CRecordingHost host;
    SetRecord(host, 30, 16);
    CProbe probe;
    host.record.Clear();
    QTimer::singleShot(0, &probe.dialog, &QWidget::close);
    QCOMPARE(probe.dialog.exec(), 0);
    QCOMPARE(host.record.All(), QStringList());
    QCOMPARE(Record(host), qMakePair(30, 16));
}

void TestSetDepthRateDlg::OtherButtonIdsDoNothing()
{
    CRecordingHost host;
    CProbe probe;
    probe.dialog.show();
    host.record.Clear();
    for (const int nId : {0, 1, 4, -1})
        probe.Press(nId);
    QVERIFY(probe.dialog.isVisible());
    QCOMPARE(host.record.All(), QStringList());
}

void TestSetDepthRateDlg::MembersThatStayDoNothing()
{
    CRecordingHost host;
    CProbe probe;
    host.record.Clear();
    QVERIFY(!probe.dialog.IsShowError());
    probe.dialog.SetControlValue();
    QCOMPARE(host.record.All(), QStringList());
    QCOMPARE(probe.dialog.size(), c_sizePlain);
}

void TestSetDepthRateDlg::AMenuIsOperatedByTheMouse()
{
    CRecordingHost host;
    CProbe probe;
    probe.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&probe.dialog));
    QVERIFY(ClickEntry(&probe.Rate(), QStringLiteral("240Hz")));
    QCOMPARE(probe.Rate().text(), QStringLiteral("240Hz"));
    QVERIFY(ClickEntry(&probe.Depth(), QStringLiteral("12bit")));
    QCOMPARE(probe.Depth().text(), QStringLiteral("12bit"));
    QCOMPARE(host.record.Count(QStringLiteral("GetOutputLimitFlags")), 2);
}

void TestSetDepthRateDlg::AMenuIsOperatedByKeys()
{
    CRecordingHost host;
    CProbe probe;
    probe.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&probe.dialog));
    QTimer::singleShot(0, &probe.dialog, [&] {
        QTest::keyClick(probe.Rate().menu(), Qt::Key_Down);
        QTest::keyClick(probe.Rate().menu(), Qt::Key_Return);
    });
    QTest::keyClick(&probe.Rate(), Qt::Key_Down);
    QCOMPARE(probe.Rate().text(), QStringLiteral("120Hz"));
}

void TestSetDepthRateDlg::ANullActionEndsTheProcess()
{
    CRecordingHost host;
    const SDeath death = RunToDeath([] {
        CSetDepthRateDlg dialog(nullptr);
        dialog.ComboBoxSelect(nullptr);
    });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("action != nullptr"), death.strOutput.constData());
}

void TestSetDepthRateDlg::TextsAreLookedUpInOneContext()
{
    CRecordingHost host;
    host.videoSourceLogic.fMaxInputFrameRate = 100.0F;
    const CContextTranslator translator;
    CProbe probe;
    CModalAnswers answers;
    answers.Plan(4);
    probe.Press(2);
    for (const unsigned int nFlag : {0x800U, 0x1000U, 0x2000U, 0x8000000U, 0x10000000U}) {
        for (const int nType : {16, 17}) {
            host.senderLogic.nSenderType = nType;
            host.videoSourceLogic.limitFlags = nFlag;
            probe.Choose("120Hz");
        }
    }
    QCOMPARE(translator.Strays(), QStringList());
    const QStringList listSources = translator.Sources();
    for (const QString& strSource :
         List({"帧率和色深设置", "支持的最大帧率", "输出色深", "确定", "取消",
               "工程设置支持的最大帧率(%1Hz)小于实际输入的最大帧率(%2Hz)，是否继续？",
               "输出视频区域不能超过260万像素。", "输出视频区域不能超过888万像素。",
               "DVI1~4的点数和不能超过888万。", "DVI5~8的点数和不能超过888万。",
               "输出口带载面积不能超过655360。", "EDID的输出面积不能超过260W。",
               "EDID的输出面积不能超过888W。"}))
        QVERIFY2(listSources.contains(strSource), qPrintable(strSource));
    QCOMPARE(answers.Texts(),
             List({"<工程设置支持的最大帧率(60Hz)小于实际输入的最大帧率(100.00Hz)，是否继续？>"}));
}

QTEST_MAIN(TestSetDepthRateDlg)
#include "TestSetDepthRateDlg.moc"
