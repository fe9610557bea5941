#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "host/OrviControl/Style.h"
#include "tests/output/OutputDialogSupport.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/RecordingHost.h"

#include <QMenu>
#include <QPushButton>
#include <QtTest>

using namespace OutputDialogSupport;

namespace {

const QSize c_sizeValid(300, 125);
const QSize c_sizeError(300, 160);

/// The dialog with names for its controls.
class CProbe
{
public:
    CCustomSpinBox& Width() const { return *dialog.findChildren<CCustomSpinBox*>().at(0); }
    CCustomSpinBox& Height() const { return *dialog.findChildren<CCustomSpinBox*>().at(1); }
    CCustomComboBox& Combo() const { return *dialog.findChild<CCustomComboBox*>(); }
    QPushButton& Ok() const { return *Button(dialog, "确定"); }
    CCustomLabel& Error() const
    {
        for (CCustomLabel* pLabel : dialog.findChildren<CCustomLabel*>()) {
            if (pLabel->wordWrap())
                return *pLabel;
        }
        qFatal("no error label");
    }
    QSize Fields() const { return {int(Width().value()), int(Height().value())}; }
    /// The error that shows, empty when none does.
    QString ShownError() const { return Error().isHidden() ? QString() : Error().text(); }
    void Call(const char* szSlot, int nId)
    {
        QVERIFY(QMetaObject::invokeMethod(&dialog, szSlot, Q_ARG(int, nId)));
    }

    CSetCanvasDlg dialog{nullptr};
};

/// What an operator does: the whole text of a field is replaced by keys.
void TypeOver(CCustomSpinBox& spin, int nValue)
{
    spin.selectAll();
    QTest::keyClicks(&spin, QString::number(nValue));
}

CRecordingHost& Limited(CRecordingHost& host)
{
    host.senderLogic.canvasLimit = SCanvasLimit{3840, 2160, 8294400};
    return host;
}

} // namespace

class TestSetCanvasDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheMetaObjectHasTheSlots();
    void TheWindowAndItsControls();
    void TheControlsLieInTheWindow_data();
    void TheControlsLieInTheWindow();
    void TheHostIsAskedInOrderAtOpening_data();
    void TheHostIsAskedInOrderAtOpening();
    void OpeningSize_data();
    void OpeningSize();
    void TheMenuLacksTheThirdPresetForType17_data();
    void TheMenuLacksTheThirdPresetForType17();
    void ThePresetTextShowsAlsoWhereTheMenuLacksIt();
    void APresetFromTheMenuFillsTheFields_data();
    void APresetFromTheMenuFillsTheFields();
    void ThePresetSlotFillsTheFields_data();
    void ThePresetSlotFillsTheFields();
    void AnotherPresetIdOnlyValidates();
    void TypingAPresetTurnsTheTextIntoIt();
    void TypingAnotherSizeShowsACustomText();
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

void TestSetCanvasDlg::TheMetaObjectHasTheSlots()
{
    QCOMPARE(Slots(CSetCanvasDlg::staticMetaObject),
             List({"ComboBoxSelect(int id)", "SpinBoxValueChanged()", "ButtonClicked(int id)"}));
}

void TestSetCanvasDlg::TheWindowAndItsControls()
{
    CRecordingHost host;
    CProbe probe;
    QCOMPARE(probe.dialog.windowTitle(), QStringLiteral("画布大小设置"));
    QCOMPARE(probe.dialog.minimumSize(), probe.dialog.maximumSize());
    QCOMPARE(probe.Width().minimum(), 64.0);
    QCOMPARE(probe.Width().maximum(), 32768.0);
    QCOMPARE(probe.Height().minimum(), 64.0);
    QCOMPARE(probe.Height().maximum(), 16384.0);
    QCOMPARE(probe.Width().alignment(), Qt::AlignCenter);
    QCOMPARE(probe.Height().alignment(), Qt::AlignCenter);
    QCOMPARE(probe.Combo().menu()->minimumWidth(), 242);
    QCOMPARE(probe.Combo().menu()->maximumWidth(), 242);
    QCOMPARE(probe.Combo().menu()->styleSheet(), GetFontStyleSheet(g_menuStyle, QStringLiteral("QMenu"), 12));
    QCOMPARE(probe.Ok().styleSheet(),
             GetFontStyleSheet(g_pushButtonStyle, QStringLiteral("QPushButton"), 12));
    QCOMPARE(probe.Error().styleSheet(), GetFontStyleSheet(g_labelWarnStyle, QStringLiteral("QLabel"), 12));
    const QList<CCustomLabel*> listLabels = probe.dialog.findChildren<CCustomLabel*>();
    for (const char* szCaption : {"宽", "高"}) {
        const auto itLabel =
            std::find_if(listLabels.cbegin(), listLabels.cend(), [&](const CCustomLabel* pLabel) {
                return pLabel->text() == QString::fromUtf8(szCaption);
            });
        QVERIFY(itLabel != listLabels.cend());
        QCOMPARE((*itLabel)->alignment(), Qt::AlignCenter);
        QCOMPARE((*itLabel)->height(), 26);
        QCOMPARE((*itLabel)->styleSheet(),
                 GetFontStyleSheet(g_labelNoFrameStyle, QStringLiteral("QLabel"), 12));
    }
}

void TestSetCanvasDlg::TheControlsLieInTheWindow_data()
{
    QTest::addColumn<QSize>("sizeCanvas");
    QTest::addColumn<QSize>("sizeWindow");
    QTest::newRow("valid") << QSize(1920, 1080) << c_sizeValid;
    QTest::newRow("error") << QSize(4096, 2160) << c_sizeError;
}

void TestSetCanvasDlg::TheControlsLieInTheWindow()
{
    QFETCH(QSize, sizeCanvas);
    CRecordingHost host;
    Limited(host).projectData.sender.sizeCanvas = sizeCanvas;
    CProbe probe;
    probe.dialog.show();
    QTEST(probe.dialog.size(), "sizeWindow");
    const QRect rcInside = probe.dialog.rect().marginsRemoved({25, 10, 25, 10});
    for (const QWidget* pControl : std::initializer_list<const QWidget*>{
             &probe.Combo(), &probe.Width(), &probe.Height(), &probe.Ok(), Button(probe.dialog, "取消")}) {
        QCOMPARE(pControl->height(), 26);
        QVERIFY(rcInside.contains(QRect(pControl->mapTo(&probe.dialog, QPoint()), pControl->size())));
    }
    QCOMPARE(probe.Combo().width(), 250);
    if (!probe.Error().isHidden())
        QVERIFY(probe.Error().height() >= probe.Error().heightForWidth(probe.Error().width()));
}

void TestSetCanvasDlg::TheHostIsAskedInOrderAtOpening_data()
{
    QTest::addColumn<bool>("bVideoProcessor");
    QTest::addColumn<bool>("bCanvasSize");
    QTest::addColumn<QStringList>("listCalls");
    QTest::newRow("no video processor")
        << false << true
        << List({"GetCurSenderIndex()", "GetCurrentSender()", "IsVideoProcessor(3)", "GetCurSenderIndex()",
                 "IsVideoProcessor(3)", "GetCurSenderIndex()", "GetSenderType(3)"});
    QTest::newRow("a video processor without a canvas of its own")
        << true << false
        << List({"GetCurSenderIndex()", "GetCurrentSender()", "IsVideoProcessor(3)", "IsSupportCanvasSize(3)",
                 "GetCurSenderIndex()", "IsVideoProcessor(3)", "GetCanvasLimit(3, {32768, 16384, 536870912})",
                 "GetCurSenderIndex()", "GetSenderType(3)"});
    QTest::newRow("a video processor with a canvas of its own")
        << true << true
        << List({"GetCurSenderIndex()", "GetCurrentSender()", "IsVideoProcessor(3)", "IsSupportCanvasSize(3)",
                 "GetHardwareCanvasSize(3)", "GetCurSenderIndex()", "IsVideoProcessor(3)",
                 "GetCanvasLimit(3, {32768, 16384, 536870912})", "GetCurSenderIndex()", "GetSenderType(3)"});
}

void TestSetCanvasDlg::TheHostIsAskedInOrderAtOpening()
{
    QFETCH(bool, bVideoProcessor);
    QFETCH(bool, bCanvasSize);
    CRecordingHost host;
    host.projectData.nCurSenderIndex = 3;
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    host.senderLogic.bVideoProcessor = bVideoProcessor;
    host.senderLogic.bSupportCanvasSize = bCanvasSize;
    const CProbe probe;
    QTEST(host.record.All(), "listCalls");
}

void TestSetCanvasDlg::OpeningSize_data()
{
    QTest::addColumn<bool>("bCanvasSize");
    QTest::addColumn<QSize>("sizeRecord");
    QTest::addColumn<QSize>("sizeHardware");
    QTest::addColumn<QSize>("sizeKept");
    QTest::addColumn<QSize>("sizeShown");
    const QSize sizeRecord(800, 600);
    QTest::newRow("the record's") << false << sizeRecord << QSize(2048, 1152) << sizeRecord << sizeRecord;
    QTest::newRow("the hardware's") << true << sizeRecord << QSize(2048, 1152) << QSize(2048, 1152)
                                    << QSize(2048, 1152);
    QTest::newRow("hardware without a canvas")
        << true << sizeRecord << QSize(0, 0) << QSize(1920, 1080) << QSize(1920, 1080);
    QTest::newRow("hardware of width 0 is used as it is")
        << true << sizeRecord << QSize(0, 600) << QSize(0, 600) << QSize(64, 600);
    QTest::newRow("hardware of height 0 is used as it is")
        << true << sizeRecord << QSize(600, 0) << QSize(600, 0) << QSize(600, 64);
    QTest::newRow("a record below the minimum is lifted in the fields alone")
        << false << QSize(32, 16) << QSize() << QSize(32, 16) << QSize(64, 64);
    QTest::newRow("a record above the range is cut in the fields alone")
        << false << QSize(40000, 20000) << QSize() << QSize(40000, 20000) << QSize(32768, 16384);
    QTest::newRow("a record without a canvas")
        << false << QSize() << QSize() << QSize(-1, -1) << QSize(64, 64);
}

void TestSetCanvasDlg::OpeningSize()
{
    QFETCH(bool, bCanvasSize);
    QFETCH(QSize, sizeRecord);
    QFETCH(QSize, sizeHardware);
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = sizeRecord;
    host.senderLogic.bSupportCanvasSize = bCanvasSize;
    host.senderLogic.sizeHardwareCanvas = sizeHardware;
    CProbe probe;
    QTEST(probe.dialog.GetCanvasSize(), "sizeKept");
    QTEST(probe.Fields(), "sizeShown");
    QCOMPARE(probe.ShownError(), QString());
    QCOMPARE(probe.dialog.size(), c_sizeValid);
}

void TestSetCanvasDlg::TheMenuLacksTheThirdPresetForType17_data()
{
    QTest::addColumn<int>("nSenderType");
    QTest::addColumn<QStringList>("listEntries");
    QTest::newRow("16") << 16 << List({"1920×1080", "3840×2160", "4096×2160"});
    QTest::newRow("17") << 17 << List({"1920×1080", "3840×2160"});
}

void TestSetCanvasDlg::TheMenuLacksTheThirdPresetForType17()
{
    QFETCH(int, nSenderType);
    CRecordingHost host;
    host.senderLogic.nSenderType = nSenderType;
    const CProbe probe;
    QTEST(Entries(probe.Combo()), "listEntries");
    int nData = 0;
    for (const QAction* pAction : probe.Combo().menu()->actions())
        QCOMPARE(pAction->data().toInt(), nData++);
}

void TestSetCanvasDlg::ThePresetTextShowsAlsoWhereTheMenuLacksIt()
{
    CRecordingHost host;
    host.senderLogic.nSenderType = 17;
    host.projectData.sender.sizeCanvas = QSize(4096, 2160);
    const CProbe probe;
    QCOMPARE(probe.Combo().text(), QStringLiteral("4096×2160"));
}

void TestSetCanvasDlg::APresetFromTheMenuFillsTheFields_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<QSize>("size");
    QTest::newRow("1080") << QStringLiteral("1920×1080") << QSize(1920, 1080);
    QTest::newRow("2160") << QStringLiteral("3840×2160") << QSize(3840, 2160);
    QTest::newRow("4096") << QStringLiteral("4096×2160") << QSize(4096, 2160);
}

void TestSetCanvasDlg::APresetFromTheMenuFillsTheFields()
{
    QFETCH(QString, strText);
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    CProbe probe;
    probe.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&probe.dialog));
    QVERIFY(ClickEntry(&probe.Combo(), strText));
    QCOMPARE(probe.Combo().text(), strText);
    QTEST(probe.Fields(), "size");
}

void TestSetCanvasDlg::ThePresetSlotFillsTheFields_data()
{
    QTest::addColumn<int>("nId");
    QTest::addColumn<QSize>("size");
    QTest::newRow("0") << 0 << QSize(1920, 1080);
    QTest::newRow("1") << 1 << QSize(3840, 2160);
    QTest::newRow("2") << 2 << QSize(4096, 2160);
}

void TestSetCanvasDlg::ThePresetSlotFillsTheFields()
{
    QFETCH(int, nId);
    CRecordingHost host;
    host.senderLogic.nSenderType = 17;
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    CProbe probe;
    probe.Call("ComboBoxSelect", nId);
    QTEST(probe.Fields(), "size");
}

void TestSetCanvasDlg::AnotherPresetIdOnlyValidates()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    CProbe probe;
    for (const int nId : {-1, 3}) {
        host.record.Clear();
        probe.Call("ComboBoxSelect", nId);
        QCOMPARE(probe.Fields(), QSize(800, 600));
        QCOMPARE(probe.Combo().text(), QStringLiteral("自定义(800×600)"));
        QCOMPARE(host.record.All(), List({"GetCurSenderIndex()", "IsVideoProcessor(0)",
                                          "GetCanvasLimit(0, {32768, 16384, 536870912})"}));
    }
}

void TestSetCanvasDlg::TypingAPresetTurnsTheTextIntoIt()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    CProbe probe;
    TypeOver(probe.Width(), 1920);
    QCOMPARE(probe.Combo().text(), QStringLiteral("自定义(1920×600)"));
    TypeOver(probe.Height(), 1080);
    QCOMPARE(probe.Combo().text(), QStringLiteral("1920×1080"));
}

void TestSetCanvasDlg::TypingAnotherSizeShowsACustomText()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(1920, 1080);
    CProbe probe;
    QCOMPARE(probe.Combo().text(), QStringLiteral("1920×1080"));
    TypeOver(probe.Width(), 1921);
    QCOMPARE(probe.Combo().text(), QStringLiteral("自定义(1921×1080)"));
    QCOMPARE(probe.Fields(), QSize(1921, 1080));
}

void TestSetCanvasDlg::LimitMessages_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("strError");
    QTest::newRow("at the limit") << QSize(3840, 2160) << QString();
    QTest::newRow("width") << QSize(3841, 2000) << QStringLiteral("画布的宽不能大于3840。");
    QTest::newRow("height") << QSize(3000, 2161) << QStringLiteral("画布的高不能大于2160。");
    QTest::newRow("the area overwrites the width")
        << QSize(4096, 2160) << QStringLiteral("画布的面积不能大于8294400。");
}

void TestSetCanvasDlg::LimitMessages()
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

void TestSetCanvasDlg::TheLargestCanvasPasses()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(32768, 16384);
    CProbe probe;
    QVERIFY(probe.dialog.IsShowError());
    QCOMPARE(probe.ShownError(), QString());
}

void TestSetCanvasDlg::ASenderThatIsNoVideoProcessorHasNoLimits()
{
    CRecordingHost host;
    Limited(host).senderLogic.bVideoProcessor = false;
    host.projectData.sender.sizeCanvas = QSize(32768, 16384);
    CProbe probe;
    QVERIFY(probe.dialog.IsShowError());
    QCOMPARE(host.record.Count(QStringLiteral("GetCanvasLimit")), 0);
}

void TestSetCanvasDlg::AHostThatLeavesTheLimitsAloneKeepsThePresets()
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

void TestSetCanvasDlg::ASizeBelowTheMinimumStopsBeforeTheOtherTests()
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

void TestSetCanvasDlg::AValueAboveTheLargestSideIsSetBack()
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

void TestSetCanvasDlg::AnErrorGoesWithTheNextValidValue()
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

void TestSetCanvasDlg::TheValidationSlotShowsTheVerdict()
{
    CRecordingHost host;
    CProbe probe;
    host.senderLogic.canvasLimit = SCanvasLimit{32, 32, 32};
    QVERIFY(QMetaObject::invokeMethod(&probe.dialog, "SpinBoxValueChanged"));
    QCOMPARE(probe.ShownError(), QStringLiteral("画布的面积不能大于32。"));
}

void TestSetCanvasDlg::ChangeSizeShowsAndHides()
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

void TestSetCanvasDlg::OkTakesTheFields()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    CProbe probe;
    TypeOver(probe.Width(), 1234);
    ClickInLoop(&probe.dialog, "确定");
    QCOMPARE(probe.dialog.exec(), 1);
    QCOMPARE(probe.dialog.GetCanvasSize(), QSize(1234, 600));
}

void TestSetCanvasDlg::CancelKeepsTheOpeningSize()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(32, 600);
    CProbe probe;
    TypeOver(probe.Width(), 1234);
    ClickInLoop(&probe.dialog, "取消");
    QCOMPARE(probe.dialog.exec(), 0);
    QCOMPARE(probe.dialog.GetCanvasSize(), QSize(32, 600));
}

void TestSetCanvasDlg::TheTitleBarRunsNoHandler()
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

void TestSetCanvasDlg::OkWithAnErrorShowsItAndStays()
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

void TestSetCanvasDlg::OtherButtonIdsDoNothing()
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

void TestSetCanvasDlg::TheButtonSlotClosesTheDialog_data()
{
    QTest::addColumn<int>("nId");
    QTest::addColumn<int>("nResult");
    QTest::newRow("OK") << 3 << 1;
    QTest::newRow("Cancel") << 4 << 0;
}

void TestSetCanvasDlg::TheButtonSlotClosesTheDialog()
{
    QFETCH(int, nId);
    CRecordingHost host;
    CProbe probe;
    QTimer::singleShot(0, &probe.dialog, [&] { probe.Call("ButtonClicked", nId); });
    QTEST(probe.dialog.exec(), "nResult");
}

void TestSetCanvasDlg::ReturnPressesOk()
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

void TestSetCanvasDlg::TheDialogWritesNothing()
{
    CRecordingHost host;
    host.projectData.sender.sizeCanvas = QSize(800, 600);
    CProbe probe;
    TypeOver(probe.Width(), 1234);
    probe.Call("ButtonClicked", 3);
    QCOMPARE(host.projectData.sender.sizeCanvas, QSize(800, 600));
    QCOMPARE(host.record.Count(QStringLiteral("PostLabelEvent")), 0);
}

void TestSetCanvasDlg::TextsAreLookedUpInOneContext()
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

void TestSetCanvasDlg::TheErrorIsTranslatedWithItsNumber()
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

void TestSetCanvasDlg::WithoutAHostTheProcessEnds()
{
    const SDeath death = RunToDeath([] { const CSetCanvasDlg dialog(nullptr); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("SetCanvasDlg.cpp"), death.strOutput.constData());
}

QTEST_MAIN(TestSetCanvasDlg)
#include "TestSetCanvasDlg.moc"
