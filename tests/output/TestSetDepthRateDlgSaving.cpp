#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "tests/output/DepthRateProbe.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ModalAnswers.h"

#include <QtTest>

using namespace DepthRateProbe;
using namespace OutputDialogSupport;

class TestSetDepthRateDlgSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
    void WithoutAHostTheProcessEnds();
    void ANullLabelEndsTheProcessAtTheEvent();
    void TextsAreLookedUpInOneContext();
};

void TestSetDepthRateDlgSaving::OkOnAVideoProcessor_data()
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

void TestSetDepthRateDlgSaving::OkOnAVideoProcessor()
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
    ClickInLoop(&probe.dialog, "ok");
    QCOMPARE(probe.dialog.exec(), 1);
    QTEST(host.record.All(), "listCalls");
    QCOMPARE(Record(host), qMakePair(nRate, nDepth));
}

void TestSetDepthRateDlgSaving::OkOnAnotherSenderWritesTheRecordAlone()
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

void TestSetDepthRateDlgSaving::ARateThatTheMenuLacksIsSavedAs60()
{
    CRecordingHost host;
    SetRecord(host, 30, 8);
    CProbe probe;
    QCOMPARE(probe.Rate().text(), QStringLiteral("30Hz"));
    probe.Press(2);
    QCOMPARE(Record(host), qMakePair(60, 8));
}

void TestSetDepthRateDlgSaving::ADepthThatTheMenuLacksIsSavedAs8()
{
    CRecordingHost host;
    SetRecord(host, 120, 16);
    CProbe probe;
    QCOMPARE(probe.Depth().text(), QStringLiteral("16bit"));
    probe.Press(2);
    QCOMPARE(Record(host), qMakePair(120, 8));
}

void TestSetDepthRateDlgSaving::TheDepthThatTheHardwareHasIsNotWritten_data()
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

void TestSetDepthRateDlgSaving::TheDepthThatTheHardwareHasIsNotWritten()
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

void TestSetDepthRateDlgSaving::TheQuestion_data()
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

void TestSetDepthRateDlgSaving::TheQuestion()
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

void TestSetDepthRateDlgSaving::TheAnswerToTheQuestion_data()
{
    QTest::addColumn<int>("nButton");
    QTest::addColumn<bool>("bSaved");
    QTest::newRow("yes") << 2 << true;
    QTest::newRow("no") << 4 << false;
    QTest::newRow("closed without an answer") << 0 << false;
}

void TestSetDepthRateDlgSaving::TheAnswerToTheQuestion()
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

void TestSetDepthRateDlgSaving::ANoLeavesTheValuesTakenButNothingSaved()
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

void TestSetDepthRateDlgSaving::SaveDataWritesInOrder()
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

void TestSetDepthRateDlgSaving::CancelGivesTwoAndWritesNothing()
{
    CRecordingHost host;
    SetRecord(host, 30, 16);
    CProbe probe;
    probe.Choose("120Hz");
    host.record.Clear();
    ClickInLoop(&probe.dialog, "cancel");
    QCOMPARE(probe.dialog.exec(), 2);
    QCOMPARE(host.record.All(), QStringList());
    QCOMPARE(Record(host), qMakePair(30, 16));
}

void TestSetDepthRateDlgSaving::TheTitleBarGivesZeroAndWritesNothing()
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

void TestSetDepthRateDlgSaving::OtherButtonIdsDoNothing()
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

void TestSetDepthRateDlgSaving::MembersThatStayDoNothing()
{
    CRecordingHost host;
    CProbe probe;
    host.record.Clear();
    QVERIFY(!probe.dialog.IsShowError());
    probe.dialog.SetControlValue();
    QCOMPARE(host.record.All(), QStringList());
    QCOMPARE(probe.dialog.size(), c_sizePlain);
}

void TestSetDepthRateDlgSaving::AMenuIsOperatedByTheMouse()
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

void TestSetDepthRateDlgSaving::AMenuIsOperatedByKeys()
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

void TestSetDepthRateDlgSaving::ANullActionEndsTheProcess()
{
    CRecordingHost host;
    const SDeath death = RunToDeath([] {
        CSetDepthRateDlg dialog(nullptr);
        dialog.ComboBoxSelect(nullptr);
    });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("action != nullptr"), death.strOutput.constData());
}

void TestSetDepthRateDlgSaving::WithoutAHostTheProcessEnds()
{
    const SDeath death = RunToDeath([] { const CSetDepthRateDlg dialog(nullptr); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("g_pProjectData != nullptr"), death.strOutput.constData());
}

void TestSetDepthRateDlgSaving::ANullLabelEndsTheProcessAtTheEvent()
{
    CRecordingHost host;
    g_pIKelvaroLabel = nullptr;
    CProbe probe;
    const SDeath death = RunToDeath([&] { probe.Press(2); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("g_pIKelvaroLabel != nullptr"), death.strOutput.constData());
}

void TestSetDepthRateDlgSaving::TextsAreLookedUpInOneContext()
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

QTEST_MAIN(TestSetDepthRateDlgSaving)
#include "TestSetDepthRateDlgSaving.moc"
