#include "tests/output/BackgroundProbe.h"

#include <QtTest>

using namespace BackgroundProbe;
using namespace OutputDialogSupport;

class TestBackgroundImageDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EnterInTheTransparencyFieldOpensNothing();
    void TheMetaObjectHasTheSlot();
    void TheWindowAndItsControls();
    void TheControlsLieInTheWindow();
    void TheSliderStyleIsUnderstood();
    void OpeningShowsTheRecord_data();
    void OpeningShowsTheRecord();
    void TheHostIsAskedInOrderAtOpening();
    void FillingTheControlsTellsTheHostNothing();
    void TheFitMenu_data();
    void TheFitMenu();
    void TheSwitchSavesAndTells();
    void TheSwitchCallsTheHostInOrder();
    void SwitchingOnWithoutAPictureSavesNothingYetTells();
    void AVanishedPictureShowsTheSwitchClosedWhileTheSettingStaysOn();
    void TheSwitchIsOperatedByTheMouseAndByKeys();
};

void TestBackgroundImageDlg::TheMetaObjectHasTheSlot()
{
    QCOMPARE(Slots(CBackgroundImageDlg::staticMetaObject), List({"ActionSlots(int nID)"}));
}

void TestBackgroundImageDlg::TheWindowAndItsControls()
{
    CFolderHost host;
    const CProbe probe;
    QCOMPARE(probe.dialog.windowTitle(), QStringLiteral("背景图片设置"));
    QCOMPARE(probe.dialog.minimumSize(), QSize(330, 135));
    QCOMPARE(probe.dialog.maximumSize(), QSize(330, 135));
    QCOMPARE(probe.Choose().size(), QSize(100, 24));
    QCOMPARE(probe.Fit().minimumHeight(), 24);
    QCOMPARE(probe.Fit().maximumHeight(), 24);
    QCOMPARE(probe.Slider().orientation(), Qt::Horizontal);
    QCOMPARE(probe.Slider().minimum(), 0);
    QCOMPARE(probe.Slider().maximum(), 100);
    QCOMPARE(probe.Slider().minimumHeight(), 24);
    QCOMPARE(probe.Spin().minimum(), 0.0);
    QCOMPARE(probe.Spin().maximum(), 100.0);
    QCOMPARE(probe.Spin().decimals(), 0);
    QCOMPARE(probe.Spin().suffix(), QStringLiteral("%"));
    QCOMPARE(probe.Spin().size(), QSize(55, 22));
    QCOMPARE(probe.Choose().styleSheet(),
             GetFontStyleSheet(g_pushButtonStyle, QStringLiteral("QPushButton"), 12));
    QCOMPARE(probe.Fit().menu()->styleSheet(), GetFontStyleSheet(g_menuStyle, QStringLiteral("QMenu"), 12));
    QCOMPARE(probe.Spin().styleSheet(),
             GetFontStyleSheet(g_doubleSpinBoxStyle, QStringLiteral("QDoubleSpinBox"), 12));
    QStringList listCaptions;
    for (const CCustomLabel* pLabel : probe.dialog.findChildren<CCustomLabel*>()) {
        listCaptions.append(pLabel->text());
        QCOMPARE(pLabel->size(), QSize(80, 24));
        QVERIFY((pLabel->alignment() & Qt::AlignLeft) != 0);
        QCOMPARE(pLabel->styleSheet(), GetFontStyleSheet(g_labelNoFrameStyle, QStringLiteral("QLabel"), 12));
    }
    QCOMPARE(listCaptions, List({"启用", "契合度", "透明度"}));
}

void TestBackgroundImageDlg::TheControlsLieInTheWindow()
{
    CFolderHost host;
    CProbe probe;
    probe.dialog.show();
    const QRect rcInside = probe.dialog.rect().marginsRemoved({20, 20, 20, 20});
    for (const QWidget* pControl : std::initializer_list<const QWidget*>{
             &probe.Switch(), &probe.Choose(), &probe.Fit(), &probe.Slider(), &probe.Spin()})
        QVERIFY(rcInside.contains(pControl->geometry()));
    QVERIFY(probe.Slider().width() > 100);
    QVERIFY(qAbs(probe.Slider().geometry().center().y() - probe.Spin().geometry().center().y()) <= 1);
}

void TestBackgroundImageDlg::TheSliderStyleIsUnderstood()
{
    const CWarnings warnings;
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    probe.dialog.show();
    QVERIFY(probe.Slider().styleSheet().startsWith(QStringLiteral(
        "QSlider::groove:horizontal{background:qlineargradient(spread:pad,x1:0,y1:0,x2:1,y2:0, ")));
    QCOMPARE(warnings.With(QStringLiteral("stylesheet")), QStringList());
    probe.Slider().setValue(50);
    const QImage image = probe.Slider().grab().toImage();
    QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2), QColor(Qt::white));
}

void TestBackgroundImageDlg::OpeningShowsTheRecord_data()
{
    QTest::addColumn<int>("nAlpha");
    QTest::addColumn<bool>("bEnable");
    QTest::addColumn<int>("nFit");
    QTest::addColumn<bool>("bStored");
    QTest::addColumn<bool>("bOpen");
    QTest::addColumn<QString>("strFit");
    QTest::addColumn<int>("nPercent");
    const QString strStretch = QStringLiteral("拉伸");
    const QString strOne = QStringLiteral("1:1");
    QTest::newRow("on, one to one, half") << 128 << true << 0 << true << true << strOne << 50;
    QTest::newRow("off") << 128 << false << 0 << true << false << strOne << 50;
    QTest::newRow("on, but without a picture") << 128 << true << 0 << false << false << strOne << 50;
    QTest::newRow("stretched, opaque") << 255 << true << 1 << true << true << strStretch << 0;
    QTest::newRow("transparent") << 0 << true << 1 << true << true << strStretch << 100;
    QTest::newRow("a fit that is neither shows as stretched")
        << 0 << true << 7 << true << true << strStretch << 100;
}

void TestBackgroundImageDlg::OpeningShowsTheRecord()
{
    QFETCH(int, nAlpha);
    QFETCH(bool, bEnable);
    QFETCH(int, nFit);
    QFETCH(bool, bStored);
    QFETCH(bool, bOpen);
    QFETCH(int, nPercent);
    CFolderHost host;
    host.SetRecord(nAlpha, bEnable, nFit);
    if (bStored)
        host.Store("picture");
    const CProbe probe;
    QCOMPARE(probe.Switch().isOpen(), bOpen);
    QTEST(probe.Fit().text(), "strFit");
    QCOMPARE(probe.Slider().value(), nPercent);
    QCOMPARE(int(probe.Spin().value()), nPercent);
    QCOMPARE(probe.Enabled(), bOpen ? c_vecAllEnabled : c_vecAllDisabled);
    QCOMPARE(host.Record(), QVector<int>({nAlpha, int(bEnable), nFit}));
}

void TestBackgroundImageDlg::TheHostIsAskedInOrderAtOpening()
{
    CFolderHost host;
    host.host.projectData.nCurSenderIndex = 6;
    const CProbe probe;
    QCOMPARE(host.host.record.All(),
             List({"GetCurrentSender()", "GetCurSenderIndex()", "GetSenderBKImgName(6, true)"}));
}

void TestBackgroundImageDlg::FillingTheControlsTellsTheHostNothing()
{
    CFolderHost host;
    host.Store("picture");
    host.SetRecord(10, true, 1);
    const CProbe probe;
    QCOMPARE(probe.Slider().value(), 96);
    QCOMPARE(host.Events(), QStringList());
    QCOMPARE(host.Record(), QVector<int>({10, 1, 1}));
}

void TestBackgroundImageDlg::TheFitMenu_data()
{
    QTest::addColumn<int>("nFit");
    QTest::addColumn<QVector<bool>>("vecChecked");
    QTest::newRow("one to one") << 0 << QVector<bool>{true, false};
    QTest::newRow("stretched") << 1 << QVector<bool>{false, true};
    QTest::newRow("neither") << 2 << QVector<bool>{false, false};
}

void TestBackgroundImageDlg::TheFitMenu()
{
    QFETCH(int, nFit);
    CFolderHost host;
    host.SetRecord(128, true, nFit);
    const CProbe probe;
    QCOMPARE(Entries(probe.Fit()), List({"1:1", "拉伸"}));
    QVector<bool> vecChecked;
    for (const QAction* pAction : probe.Fit().menu()->actions()) {
        QVERIFY(pAction->isCheckable());
        vecChecked.append(pAction->isChecked());
    }
    QTEST(vecChecked, "vecChecked");
}

void TestBackgroundImageDlg::TheSwitchSavesAndTells()
{
    CFolderHost host;
    host.Store("picture");
    host.SetRecord(128, true, 1);
    CProbe probe;
    probe.Act(0);
    QVERIFY(!probe.Switch().isOpen());
    QCOMPARE(probe.Enabled(), c_vecAllDisabled);
    QCOMPARE(host.Record(), QVector<int>({128, 0, 1}));
    QCOMPARE(host.Events(), QStringList({c_strPictureEvent}));
    probe.Act(0);
    QVERIFY(probe.Switch().isOpen());
    QCOMPARE(probe.Enabled(), c_vecAllEnabled);
    QCOMPARE(host.Record(), QVector<int>({128, 1, 1}));
    QCOMPARE(host.Events(), QStringList({c_strPictureEvent, c_strPictureEvent}));
    QCOMPARE(CFolderHost::Read(host.Stored()), QByteArray("picture"));
}

void TestBackgroundImageDlg::TheSwitchCallsTheHostInOrder()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    host.host.record.Clear();
    probe.Act(0);
    QCOMPARE(host.host.record.All(),
             QStringList({QStringLiteral("GetBKImagePath()"), QStringLiteral("GetCurSenderIndex()"),
                          QStringLiteral("GetSenderBKImgName(0, true)"), QStringLiteral("GetCurrentSender()"),
                          c_strPictureEvent}));
}

void TestBackgroundImageDlg::SwitchingOnWithoutAPictureSavesNothingYetTells()
{
    CFolderHost host;
    host.SetRecord(77, false, 1);
    CProbe probe;
    QTest::mouseClick(&probe.Switch(), Qt::LeftButton);
    QVERIFY(probe.Switch().isOpen());
    QCOMPARE(probe.Enabled(), c_vecAllEnabled);
    QCOMPARE(host.Record(), QVector<int>({77, 0, 1}));
    QCOMPARE(host.Events(), QStringList({c_strPictureEvent}));
}

void TestBackgroundImageDlg::AVanishedPictureShowsTheSwitchClosedWhileTheSettingStaysOn()
{
    CFolderHost host;
    CProbe probe;
    QVERIFY(!probe.Switch().isOpen());
    QTest::mouseClick(&probe.Switch(), Qt::LeftButton);
    QVERIFY2(!probe.Switch().isOpen(), "the setting was on, so the first click switches it off");
    QTest::mouseClick(&probe.Switch(), Qt::LeftButton);
    QVERIFY(probe.Switch().isOpen());
}

void TestBackgroundImageDlg::TheSwitchIsOperatedByTheMouseAndByKeys()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    probe.dialog.show();
    QTest::mouseClick(&probe.Switch(), Qt::LeftButton);
    QCOMPARE(host.Record().at(1), 0);
    QTest::keyClick(&probe.Switch(), Qt::Key_Space);
    QCOMPARE(host.Record().at(1), 1);
}

void TestBackgroundImageDlg::EnterInTheTransparencyFieldOpensNothing()
{
    CFolderHost folders;
    folders.Store("picture");
    CProbe probe;
    probe.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&probe.dialog));
    probe.Spin().setFocus();
    probe.Spin().selectAll();
    const CFileAnswers answers;
    QTest::keyClicks(&probe.Spin(), QStringLiteral("30"));
    QTest::keyClick(&probe.Spin(), Qt::Key_Return);
    QVERIFY(answers.Shown().isEmpty());
    QCOMPARE(probe.Spin().value(), 30.0);
    QVERIFY(probe.dialog.isVisible());
}

QTEST_MAIN(TestBackgroundImageDlg)
#include "TestBackgroundImageDlg.moc"
