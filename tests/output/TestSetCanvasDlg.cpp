#include "tests/output/CanvasProbe.h"

#include <QGridLayout>
#include <QtTest>

using namespace CanvasProbe;
using namespace OutputDialogSupport;

class TestSetCanvasDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheFieldsHaveNoDecimals();
    void TheSizeTakesOneRowOfTheGrid();
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
    void ATypedSizeBelowTheLeastIsRefusedAndStays();
    void LeavingTheFieldGivesTheLeastSize();
    void ATypedHeightAboveTheGreatestBecomesTheGreatest();
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
             &probe.Combo(), &probe.Width(), &probe.Height(), &probe.Ok(), &probe.Cancel()}) {
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

void TestSetCanvasDlg::TheFieldsHaveNoDecimals()
{
    CRecordingHost host;
    const CProbe probe;
    QCOMPARE(probe.Width().decimals(), 0);
    QCOMPARE(probe.Height().decimals(), 0);
}

void TestSetCanvasDlg::TheSizeTakesOneRowOfTheGrid()
{
    CRecordingHost host;
    const CProbe probe;
    const auto* pGrid = probe.dialog.findChild<QGridLayout*>();
    int nRow = -1;
    int nColumn = -1;
    int nRowSpan = -1;
    int nColumnSpan = -1;
    pGrid->getItemPosition(pGrid->indexOf(&probe.Combo()), &nRow, &nColumn, &nRowSpan, &nColumnSpan);
    QCOMPARE(QVector<int>({nRow, nColumn, nRowSpan, nColumnSpan}), QVector<int>({0, 0, 1, 5}));
}

namespace {

/// The dialog on the screen, with the focus in a field.
void Show(CProbe& probe, CCustomSpinBox& field)
{
    probe.dialog.show();
    probe.dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&probe.dialog));
    field.setFocus();
}

} // namespace

void TestSetCanvasDlg::ATypedSizeBelowTheLeastIsRefusedAndStays()
{
    CRecordingHost host;
    CProbe probe;
    Show(probe, probe.Width());
    TypeOver(probe.Width(), 40);
    QCOMPARE(probe.Width().text(), QStringLiteral("40"));
    QCOMPARE(probe.ShownError(), QStringLiteral("画布的宽或高不能小于64。"));
    QVERIFY(!probe.Ok().isEnabled());
    QTest::keyClicks(&probe.Width(), QStringLiteral("0"));
    QCOMPARE(probe.ShownError(), QString());
    QVERIFY(probe.Ok().isEnabled());
}

void TestSetCanvasDlg::LeavingTheFieldGivesTheLeastSize()
{
    CRecordingHost host;
    CProbe probe;
    Show(probe, probe.Width());
    TypeOver(probe.Width(), 40);
    QTest::keyClick(&probe.Width(), Qt::Key_Tab);
    QCOMPARE(probe.Width().text(), QStringLiteral("64"));
    QCOMPARE(probe.ShownError(), QString());
    QVERIFY(probe.Ok().isEnabled());
}

void TestSetCanvasDlg::ATypedHeightAboveTheGreatestBecomesTheGreatest()
{
    CRecordingHost host;
    CProbe probe;
    Show(probe, probe.Height());
    TypeOver(probe.Height(), 16385);
    QCOMPARE(probe.Height().text(), QStringLiteral("16384"));
}

QTEST_MAIN(TestSetCanvasDlg)
#include "TestSetCanvasDlg.moc"
