#include "tests/output/CanvasProbe.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ModalAnswers.h"

#include <QtTest>

using namespace CanvasProbe;
using namespace OutputDialogSupport;

class TestSetCanvasDlgVerdict : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LimitMessages_data();
    void LimitMessages();
    void TheLargestCanvasPasses();
    void ASenderThatIsNoVideoProcessorHasNoLimits();
    void AHostThatLeavesTheLimitsAloneKeepsThePresets();
    void ASizeBelowTheMinimumStopsBeforeTheOtherTests();
    void AValueAboveTheLargestSideIsSetBack();
    void AnErrorGoesWithTheNextValidValue();
    void TheValidationSlotShowsTheVerdict();
    void ChangeSizeShowsAndHides();
    void OkTakesTheFields();
    void CancelKeepsTheOpeningSize();
    void TheTitleBarRunsNoHandler();
    void OkWithAnErrorShowsItAndStays();
    void OtherButtonIdsDoNothing();
    void TheButtonSlotClosesTheDialog_data();
    void TheButtonSlotClosesTheDialog();
    void ReturnPressesOk();
    void TheDialogWritesNothing();
    void TextsAreLookedUpInOneContext();
    void TheErrorIsTranslatedWithItsNumber();
    void WithoutAHostTheProcessEnds();
};

void TestSetCanvasDlgVerdict::LimitMessages_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("strError");
    QTest::newRow("at the limit") << QSize(3840, 2160) << QString();
    QTest::newRow("width") << QSize(3841, 2000) << QStringLiteral("画布的宽不能大于3840。");
    QTest::newRow("height") << QSize(3000, 2161) << QStringLiteral("画布的高不能大于2160。");
    QTest::newRow("the area overwrites the width")
        << QSize(4096, 2160) << QStringLiteral("画布的面积不能大于8294400。");
}

void TestSetCanvasDlgVerdict::LimitMessages()
{
    QFETCH(QSize, size);
    QFETCH(QString, strError);
    CRecordingHost host;
    Limited(host).projectData.sender.sizeCanvas = QSize(1920, 1080);
    CProbe probe;
    TypeOver(probe.Width(), size.width());
    TypeOver(probe.Height(), size.height());
    QCOMPARE(probe.ShownError(), strError);
    QCOMPARE(probe.Ok().isEnabled(), strError.isEmpty());
    QCOMPARE(probe.dialog.size(), strError.isEmpty() ? c_sizeValid : c_sizeError);
    QCOMPARE(probe.dialog.IsShowError(), strError.isEmpty());
}

void TestSetCanvasDlgVerdict::TheLargestCanvasPasses()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(32768, 16384);
    CProbe probe;
    QVERIFY(probe.dialog.IsShowError());
    QCOMPARE(probe.ShownError(), QString());
}

void TestSetCanvasDlgVerdict::ASenderThatIsNoVideoProcessorHasNoLimits()
{
    CRecordingHost host;
    Limited(host).senderLogic.bVideoProcessor = false;
    host.projectData.sender.sizeCanvas = QSize(32768, 16384);
    CProbe probe;
    QVERIFY(probe.dialog.IsShowError());
    QCOMPARE(host.record.Count(QStringLiteral("GetCanvasLimit")), 0);
}

void TestSetCanvasDlgVerdict::AHostThatLeavesTheLimitsAloneKeepsThePresets()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(100, 100);
    CProbe probe;
    probe.Width().setMaximum(40000);
    probe.Height().setMaximum(20000);
    TypeOver(probe.Width(), 32768);
    TypeOver(probe.Height(), 16384);
    QVERIFY(probe.dialog.IsShowError());
}

void TestSetCanvasDlgVerdict::ASizeBelowTheMinimumStopsBeforeTheOtherTests()
{
    CRecordingHost host;
    host.senderLogic.canvasLimit = SCanvasLimit{10, 10, 10};
    CProbe probe;
    probe.Width().setMinimum(0);
    host.record.Clear();
    TypeOver(probe.Width(), 6);
    QCOMPARE(probe.ShownError(), QStringLiteral("画布的宽或高不能小于64。"));
    QCOMPARE(probe.dialog.size(), c_sizeError);
    QVERIFY(!probe.Ok().isEnabled());
    QCOMPARE(host.record.All(), QStringList());
}

void TestSetCanvasDlgVerdict::AValueAboveTheLargestSideIsSetBack()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(100, 100);
    CProbe probe;
    probe.Width().setMaximum(99999);
    probe.Height().setMaximum(99999);
    probe.Width().setValue(32769);
    QCOMPARE(probe.Fields(), QSize(32768, 100));
    probe.Height().setValue(16385);
    QCOMPARE(probe.Fields(), QSize(32768, 16384));
    QCOMPARE(probe.Combo().text(), QStringLiteral("自定义(32768×16384)"));
}

void TestSetCanvasDlgVerdict::AnErrorGoesWithTheNextValidValue()
{
    CRecordingHost host;
    Limited(host).projectData.sender.sizeCanvas = QSize(4096, 2160);
    CProbe probe;
    probe.dialog.show();
    QCOMPARE(probe.dialog.size(), c_sizeError);
    QVERIFY(probe.Error().isVisible());
    QVERIFY(!probe.Ok().isEnabled());
    TypeOver(probe.Width(), 1920);
    QCOMPARE(probe.dialog.size(), c_sizeValid);
    QVERIFY(!probe.Error().isVisible());
    QVERIFY(probe.Ok().isEnabled());
}

void TestSetCanvasDlgVerdict::TheValidationSlotShowsTheVerdict()
{
    CRecordingHost host;
    CProbe probe;
    host.senderLogic.canvasLimit = SCanvasLimit{32, 32, 32};
    QVERIFY(QMetaObject::invokeMethod(&probe.dialog, "SpinBoxValueChanged"));
    QCOMPARE(probe.ShownError(), QStringLiteral("画布的面积不能大于32。"));
}

void TestSetCanvasDlgVerdict::ChangeSizeShowsAndHides()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    CProbe probe;
    host.record.Clear();
    probe.dialog.ChangeSize(true);
    QVERIFY(!probe.Error().isHidden());
    QVERIFY(!probe.Ok().isEnabled());
    QCOMPARE(probe.dialog.size(), c_sizeError);
    probe.dialog.ChangeSize(false);
    QVERIFY(probe.Error().isHidden());
    QVERIFY(probe.Ok().isEnabled());
    QCOMPARE(probe.dialog.size(), c_sizeValid);
    QCOMPARE(host.record.All(), QStringList());
}

void TestSetCanvasDlgVerdict::OkTakesTheFields()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    CProbe probe;
    TypeOver(probe.Width(), 1234);
    ClickInLoop(&probe.dialog, "ok");
    QCOMPARE(probe.dialog.exec(), 1);
    QCOMPARE(probe.dialog.GetCanvasSize(), QSize(1234, 600));
}

void TestSetCanvasDlgVerdict::CancelKeepsTheOpeningSize()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(32, 600);
    CProbe probe;
    TypeOver(probe.Width(), 1234);
    ClickInLoop(&probe.dialog, "cancel");
    QCOMPARE(probe.dialog.exec(), 0);
    QCOMPARE(probe.dialog.GetCanvasSize(), QSize(32, 600));
}

void TestSetCanvasDlgVerdict::TheTitleBarRunsNoHandler()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    CProbe probe;
    TypeOver(probe.Width(), 1234);
    host.record.Clear();
    QTimer::singleShot(0, &probe.dialog, &QWidget::close);
    QCOMPARE(probe.dialog.exec(), 0);
    QCOMPARE(probe.dialog.GetCanvasSize(), QSize(800, 600));
    QCOMPARE(host.record.All(), QStringList());
}

void TestSetCanvasDlgVerdict::OkWithAnErrorShowsItAndStays()
{
    CRecordingHost host;
    Limited(host).projectData.sender.sizeCanvas = QSize(4096, 2160);
    CProbe probe;
    probe.dialog.show();
    CModalAnswers answers;
    answers.Plan(1);
    probe.Call("ButtonClicked", 3);
    QCOMPARE(answers.Texts(), List({"画布的面积不能大于8294400。"}));
    QCOMPARE(answers.Parents().at(0).data(), &probe.dialog);
    QVERIFY(probe.dialog.isVisible());
    QCOMPARE(probe.Fields(), QSize(4096, 2160));
}

void TestSetCanvasDlgVerdict::OtherButtonIdsDoNothing()
{
    CRecordingHost host;
    CProbe probe;
    probe.dialog.show();
    host.record.Clear();
    for (const int nId : {0, 1, 2, 5, -1})
        probe.Call("ButtonClicked", nId);
    QVERIFY(probe.dialog.isVisible());
    QCOMPARE(host.record.All(), QStringList());
}

void TestSetCanvasDlgVerdict::TheButtonSlotClosesTheDialog_data()
{
    QTest::addColumn<int>("nId");
    QTest::addColumn<int>("nResult");
    QTest::newRow("OK") << 3 << 1;
    QTest::newRow("Cancel") << 4 << 0;
}

void TestSetCanvasDlgVerdict::TheButtonSlotClosesTheDialog()
{
    QFETCH(int, nId);
    CRecordingHost host;
    CProbe probe;
    QTimer::singleShot(0, &probe.dialog, [&] { probe.Call("ButtonClicked", nId); });
    QTEST(probe.dialog.exec(), "nResult");
}

void TestSetCanvasDlgVerdict::ReturnPressesOk()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    CProbe probe;
    QTimer::singleShot(0, &probe.dialog, [&] {
        TypeOver(probe.Height(), 700);
        QTest::keyClick(&probe.Height(), Qt::Key_Return);
    });
    QCOMPARE(probe.dialog.exec(), 1);
    QCOMPARE(probe.dialog.GetCanvasSize(), QSize(800, 700));
}

void TestSetCanvasDlgVerdict::TheDialogWritesNothing()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    CProbe probe;
    TypeOver(probe.Width(), 1234);
    probe.Call("ButtonClicked", 3);
    QCOMPARE(host.projectData.sender.sizeCanvas, QSize(800, 600));
    QCOMPARE(host.record.Count(QStringLiteral("PostLabelEvent")), 0);
}

void TestSetCanvasDlgVerdict::TextsAreLookedUpInOneContext()
{
    CRecordingHost host;
    host.senderLogic.canvasLimit = SCanvasLimit{1000, 1000, 1 << 29};
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    const CContextTranslator translator;
    CProbe probe;
    TypeOver(probe.Width(), 1001);
    TypeOver(probe.Width(), 800);
    TypeOver(probe.Height(), 1001);
    host.senderLogic.canvasLimit->nMaxArea = 1000;
    probe.dialog.IsShowError();
    QCOMPARE(translator.Strays(), QStringList());
    const QStringList listSources = translator.Sources();
    for (const QString& strSource :
         List({"画布大小设置", "宽", "高", "确定", "取消", "自定义(%1×%2)", "画布的宽不能大于%1。",
               "画布的高不能大于%1。", "画布的面积不能大于%1。"}))
        QVERIFY2(listSources.contains(strSource), qPrintable(strSource));
    QCOMPARE(probe.dialog.windowTitle(), Marked("画布大小设置"));
}

void TestSetCanvasDlgVerdict::TheErrorIsTranslatedWithItsNumber()
{
    CRecordingHost host;
    Limited(host).projectData.sender.sizeCanvas = QSize(4096, 2160);
    const CContextTranslator translator;
    const CProbe probe;
    for (const CCustomLabel* pLabel : probe.dialog.findChildren<CCustomLabel*>()) {
        if (pLabel->wordWrap())
            QCOMPARE(pLabel->text(), Marked("画布的面积不能大于8294400。"));
    }
}

void TestSetCanvasDlgVerdict::WithoutAHostTheProcessEnds()
{
    const SDeath death = RunToDeath([] { const CSetCanvasDlg dialog(nullptr); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("SetCanvasDlg.cpp"), death.strOutput.constData());
}

QTEST_MAIN(TestSetCanvasDlgVerdict)
#include "TestSetCanvasDlgVerdict.moc"
