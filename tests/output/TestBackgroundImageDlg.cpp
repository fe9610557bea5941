#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSwitchButton.h"
#include "host/OrviControl/Style.h"
#include "tests/output/OutputDialogSupport.h"
#include "tests/support/RecordingHost.h"

#include <QDir>
#include <QDirIterator>
#include <QDoubleSpinBox>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

using namespace OutputDialogSupport;

namespace {

const QString c_strPictureEvent = QStringLiteral("PostLabelEvent(0x24000, 1, 0, 0)");
const QString c_strViewEvent = QStringLiteral("PostLabelEvent(0x4000, 1, 0, 0)");

/// A host with real folders: pictures to choose from, and the place where the sender's picture is kept.
class CFolderHost
{
public:
    CFolderHost()
    {
        host.constantData.strImageFolder = Path("kept/pictures");
        host.constantData.strImageFile = Path("kept/pictures/sender 0.png");
        SetRecord(128, true, 0);
    }

    QString Path(const char* szName) const { return dir.filePath(QString::fromUtf8(szName)); }
    QString Stored() const { return host.constantData.strImageFile; }
    /// Writes a picture, with its folders, and gives its path.
    QString Write(const char* szName, const QByteArray& bytes) const
    {
        QString strPath = Path(szName);
        QDir().mkpath(QFileInfo(strPath).absolutePath());
        QFile file(strPath);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write the picture");
        return strPath;
    }
    QString Store(const QByteArray& bytes) const { return Write("kept/pictures/sender 0.png", bytes); }
    static QByteArray Read(const QString& strPath)
    {
        QFile file(strPath);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    void SetRecord(int nAlpha, bool bEnable, int nFit)
    {
        host.projectData.sender.BkImageAlpha = quint8(nAlpha);
        host.projectData.sender.BkImageEnable = bEnable;
        host.projectData.sender.BkImageFit = quint8(nFit);
    }
    /// Opacity, switch and fit of the record.
    QVector<int> Record() const
    {
        const CSender& sender = host.projectData.sender;
        return {int(sender.BkImageAlpha), int(sender.BkImageEnable), int(sender.BkImageFit)};
    }
    QStringList Events() const { return host.record.Only({QStringLiteral("PostLabelEvent")}); }

    /// Everything below the temporary folder.
    QStringList Tree() const
    {
        QStringList listPaths;
        QDirIterator it(dir.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            listPaths.append(QDir(dir.path()).relativeFilePath(it.next()));
        listPaths.sort();
        return listPaths;
    }

    QTemporaryDir dir;
    CRecordingHost host;
};

/// The dialog with names for its controls.
class CProbe
{
public:
    CCustomSwitchButton& Switch() const { return *dialog.findChild<CCustomSwitchButton*>(); }
    QPushButton& Choose() const { return *Button(dialog, "选取图片..."); }
    CCustomComboBox& Fit() const { return *dialog.findChild<CCustomComboBox*>(); }
    QSlider& Slider() const { return *dialog.findChild<QSlider*>(); }
    QDoubleSpinBox& Spin() const { return *dialog.findChild<QDoubleSpinBox*>(); }
    /// Enabled state of the four controls behind the switch.
    QVector<bool> Enabled() const
    {
        return {Choose().isEnabled(), Fit().isEnabled(), Slider().isEnabled(), Spin().isEnabled()};
    }
    void Act(int nId) { QVERIFY(QMetaObject::invokeMethod(&dialog, "ActionSlots", Q_ARG(int, nId))); }
    /// Chooses a file through the file dialog.
    void ChooseFile(const QString& strPath)
    {
        CFileAnswers answers;
        answers.Plan(strPath);
        Act(1);
        QCOMPARE(answers.Shown().size(), 1);
    }

    CBackgroundImageDlg dialog{nullptr};
};

const QVector<bool> c_vecAllEnabled = {true, true, true, true};
const QVector<bool> c_vecAllDisabled = {false, false, false, false};

} // namespace

class TestBackgroundImageDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
    void TheFileDialog();
    void CancellingTheFileDialogChangesNothing();
    void AChosenPictureIsKept();
    void AnotherPictureReplacesTheFirst();
    void TheKeptPictureItselfIsLeftAlone();
    void TheKeptPictureBySomeOtherSpellingIsLeftAlone();
    void ASourceThatVanishedLeavesTheRecordAlone();
    void ADirectoryInTheWayClearsTheRecord();
    void AReadOnlyFolderClearsTheRecord();
    void AFolderThatCannotBeMadeClearsTheRecord();
    void ACopyThatFailsHasRemovedTheOldPictureAlready();
    void APathWithChineseAndBlanks();
    void TheFolderIsMadeWithItsParents();
    void NothingOutsideTheFolderIsTouched();
    void FitFromTheMenu_data();
    void FitFromTheMenu();
    void FitIsToldByTheVisibleText();
    void TheSliderMovesTheNumberAndSavesOnce();
    void TheSliderToWhereItIsSavesNothing();
    void TheNumberMovesTheSliderAndSavesOnce();
    void TransparencyStoresOpacity_data();
    void TransparencyStoresOpacity();
    void AnOpacityThatIsReadAndWrittenBackFallsByOne();
    void TheSlotOfTheSliderSavesNothing();
    void OtherIdsDoNothing();
    void TheTitleBarRunsNoHandler();
    void TextsAreLookedUpInOneContext();
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

void TestBackgroundImageDlg::TheFileDialog()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    probe.dialog.show();
    CFileAnswers answers;
    QTest::mouseClick(&probe.Choose(), Qt::LeftButton);
    QCOMPARE(answers.Shown().size(), 1);
    const CFileAnswers::SShown& shown = answers.Shown().at(0);
    QCOMPARE(shown.strTitle, QStringLiteral("选取图片..."));
    QCOMPARE(shown.listFilters, List({"Image File(*.PNG *.JPG *.JPEG *.JPE)"}));
    QCOMPARE(shown.pParent, &probe.dialog);
}

void TestBackgroundImageDlg::CancellingTheFileDialogChangesNothing()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    host.host.record.Clear();
    probe.ChooseFile(QString());
    QCOMPARE(host.host.record.All(), QStringList());
    QCOMPARE(host.Record(), QVector<int>({128, 1, 0}));
    QCOMPARE(CFolderHost::Read(host.Stored()), QByteArray("picture"));
}

void TestBackgroundImageDlg::AChosenPictureIsKept()
{
    CFolderHost host;
    host.SetRecord(64, true, 1);
    const QString strChosen = host.Write("album/a.png", "first");
    CProbe probe;
    probe.ChooseFile(strChosen);
    QCOMPARE(CFolderHost::Read(host.Stored()), QByteArray("first"));
    QCOMPARE(CFolderHost::Read(strChosen), QByteArray("first"));
    QCOMPARE(host.Record(), QVector<int>({64, 1, 1}));
    QCOMPARE(host.Events(), QStringList({c_strPictureEvent}));
}

void TestBackgroundImageDlg::AnotherPictureReplacesTheFirst()
{
    CFolderHost host;
    const QString strFirst = host.Write("album/a.png", "first");
    const QString strSecond = host.Write("album/b.jpg", "second");
    CProbe probe;
    probe.ChooseFile(strFirst);
    probe.ChooseFile(strSecond);
    QCOMPARE(CFolderHost::Read(host.Stored()), QByteArray("second"));
    QCOMPARE(host.Events(), QStringList({c_strPictureEvent, c_strPictureEvent}));
}

void TestBackgroundImageDlg::TheKeptPictureItselfIsLeftAlone()
{
    CFolderHost host;
    host.Store("picture");
    const QDateTime timeBefore = QDateTime::fromSecsSinceEpoch(1000000000);
    {
        QFile file(host.Stored());
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(timeBefore, QFileDevice::FileModificationTime));
    }
    CProbe probe;
    host.SetRecord(1, false, 1);
    probe.ChooseFile(host.Stored());
    QCOMPARE(QFileInfo(host.Stored()).lastModified(), timeBefore);
    QCOMPARE(CFolderHost::Read(host.Stored()), QByteArray("picture"));
    QCOMPARE(host.Record(), QVector<int>({128, 1, 0}));
    QCOMPARE(host.Events(), QStringList({c_strPictureEvent}));
}

void TestBackgroundImageDlg::TheKeptPictureBySomeOtherSpellingIsLeftAlone()
{
    CFolderHost host;
    host.Store("picture");
    host.host.constantData.strImageFile = host.Path("kept/pictures/../pictures/sender 0.png");
    CProbe probe;
    probe.ChooseFile(host.Path("kept/pictures/sender 0.png"));
    QCOMPARE(CFolderHost::Read(host.Stored()), QByteArray("picture"));
    QCOMPARE(host.Record(), QVector<int>({128, 1, 0}));
}

void TestBackgroundImageDlg::ASourceThatVanishedLeavesTheRecordAlone()
{
    CFolderHost host;
    const QString strChosen = host.Write("album/a.png", "first");
    CProbe probe;
    probe.ChooseFile(strChosen);
    QVERIFY(QFile::remove(strChosen));
    host.SetRecord(9, false, 1);
    host.host.record.Clear();
    probe.Slider().setValue(10);
    QCOMPARE(host.Record(), QVector<int>({9, 0, 1}));
    QCOMPARE(CFolderHost::Read(host.Stored()), QByteArray("first"));
    QCOMPARE(host.Events(), QStringList({c_strViewEvent}));
}

void TestBackgroundImageDlg::ADirectoryInTheWayClearsTheRecord()
{
    CFolderHost host;
    host.SetRecord(128, true, 1);
    const QString strInTheWay = host.Write("kept/pictures/sender 0.png/inside.txt", "theirs");
    const QString strChosen = host.Write("album/a.png", "first");
    CProbe probe;
    probe.ChooseFile(strChosen);
    QCOMPARE(host.Record(), QVector<int>({0, 0, 0}));
    QCOMPARE(CFolderHost::Read(strInTheWay), QByteArray("theirs"));
    QCOMPARE(host.Events(), QStringList({c_strPictureEvent}));
}

void TestBackgroundImageDlg::AReadOnlyFolderClearsTheRecord()
{
    if (::geteuid() == 0) {
        // The superuser writes into any folder: a file in the folder's place stops even that account.
        CFolderHost host;
        host.Write("kept/pictures", "a file where the folder should be");
        const QString strChosen = host.Write("album/a.png", "first");
        CProbe probe;
        probe.ChooseFile(strChosen);
        QCOMPARE(host.Record(), QVector<int>({0, 0, 0}));
        QCOMPARE(host.Events(), QStringList({c_strPictureEvent}));
        return;
    }
    CFolderHost host;
    const QString strChosen = host.Write("album/a.png", "first");
    host.Store("old");
    const QString strFolder = host.host.constantData.strImageFolder;
    QVERIFY(QFile::setPermissions(strFolder, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    CProbe probe;
    probe.ChooseFile(strChosen);
    QVERIFY(QFile::setPermissions(strFolder,
                                  QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner));
    QCOMPARE(host.Record(), QVector<int>({0, 0, 0}));
    QCOMPARE(CFolderHost::Read(host.Stored()), QByteArray("old"));
    QCOMPARE(host.Events(), QStringList({c_strPictureEvent}));
}

void TestBackgroundImageDlg::AFolderThatCannotBeMadeClearsTheRecord()
{
    CFolderHost host;
    host.SetRecord(128, true, 1);
    host.Write("kept", "a file where the parent folder should be");
    const QString strChosen = host.Write("album/a.png", "first");
    CProbe probe;
    probe.ChooseFile(strChosen);
    QCOMPARE(host.Record(), QVector<int>({0, 0, 0}));
    QCOMPARE(host.Events(), QStringList({c_strPictureEvent}));
    QCOMPARE(CFolderHost::Read(host.Path("kept")), QByteArray("a file where the parent folder should be"));
}

void TestBackgroundImageDlg::ACopyThatFailsHasRemovedTheOldPictureAlready()
{
    CFolderHost host;
    host.SetRecord(128, true, 1);
    host.Store("old");
    const QString strChosen = host.Write("album/a.png", "first");
    CProbe probe;
    probe.ChooseFile(strChosen);
    QCOMPARE(CFolderHost::Read(host.Stored()), QByteArray("first"));
    // A folder passes for an existing picture, and cannot be copied as one.
    QVERIFY(QFile::remove(strChosen));
    QVERIFY(QDir().mkpath(strChosen));
    probe.Act(0);
    QVERIFY(!QFile::exists(host.Stored()));
    QCOMPARE(host.Record(), QVector<int>({0, 0, 0}));
}

void TestBackgroundImageDlg::APathWithChineseAndBlanks()
{
    CFolderHost host;
    host.host.constantData.strImageFolder = host.Path("工程 目录/背景");
    host.host.constantData.strImageFile = host.Path("工程 目录/背景/发送器 0.png");
    const QString strChosen = host.Write("我的 图片/背 景 图.png", "picture");
    CProbe probe;
    probe.ChooseFile(strChosen);
    QCOMPARE(CFolderHost::Read(host.Stored()), QByteArray("picture"));
    QCOMPARE(host.Record(), QVector<int>({128, 1, 0}));
}

void TestBackgroundImageDlg::TheFolderIsMadeWithItsParents()
{
    CFolderHost host;
    host.host.constantData.strImageFolder = host.Path("a/b/c");
    CProbe probe;
    probe.Act(0);
    QVERIFY(QDir(host.Path("a/b/c")).exists());
}

void TestBackgroundImageDlg::NothingOutsideTheFolderIsTouched()
{
    CFolderHost host;
    host.Write("album/b.png", "second");
    host.Write("kept/other.txt", "other");
    const QString strChosen = host.Write("album/a.png", "first");
    CProbe probe;
    probe.ChooseFile(strChosen);
    probe.Slider().setValue(10);
    probe.Act(0);
    QCOMPARE(host.Tree(), List({"album", "album/a.png", "album/b.png", "kept", "kept/other.txt",
                                "kept/pictures", "kept/pictures/sender 0.png"}));
    QCOMPARE(CFolderHost::Read(host.Path("album/b.png")), QByteArray("second"));
    QCOMPARE(CFolderHost::Read(host.Path("kept/other.txt")), QByteArray("other"));
}

void TestBackgroundImageDlg::FitFromTheMenu_data()
{
    QTest::addColumn<int>("nBefore");
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nFit");
    QTest::newRow("to stretched") << 0 << QStringLiteral("拉伸") << 1;
    QTest::newRow("to one to one") << 1 << QStringLiteral("1:1") << 0;
    QTest::newRow("the same again") << 1 << QStringLiteral("拉伸") << 1;
}

void TestBackgroundImageDlg::FitFromTheMenu()
{
    QFETCH(int, nBefore);
    QFETCH(QString, strText);
    QFETCH(int, nFit);
    CFolderHost host;
    host.Store("picture");
    host.SetRecord(128, true, nBefore);
    CProbe probe;
    probe.dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&probe.dialog));
    QVERIFY(ClickEntry(&probe.Fit(), strText));
    QCOMPARE(probe.Fit().text(), strText);
    QCOMPARE(host.Record(), QVector<int>({128, 1, nFit}));
    QCOMPARE(host.Events(), QStringList({c_strViewEvent}));
    QCOMPARE(probe.Fit().menu()->actions().at(nFit)->isChecked(), true);
    QCOMPARE(probe.Fit().menu()->actions().at(1 - nFit)->isChecked(), false);
}

void TestBackgroundImageDlg::FitIsToldByTheVisibleText()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    probe.Fit().setText(QStringLiteral("1:1 "));
    probe.Act(2);
    QCOMPARE(host.Record().at(2), 1);
    probe.Fit().setText(QStringLiteral("1:1"));
    probe.Act(2);
    QCOMPARE(host.Record().at(2), 0);
}

void TestBackgroundImageDlg::TheSliderMovesTheNumberAndSavesOnce()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    probe.dialog.show();
    QTest::keyClick(&probe.Slider(), Qt::Key_End);
    QCOMPARE(int(probe.Spin().value()), 100);
    QCOMPARE(host.Record(), QVector<int>({0, 1, 0}));
    QCOMPARE(host.Events(), QStringList({c_strViewEvent}));
}

void TestBackgroundImageDlg::TheSliderToWhereItIsSavesNothing()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    probe.Slider().setValue(50);
    QCOMPARE(host.Events(), QStringList());
    QCOMPARE(host.Record(), QVector<int>({128, 1, 0}));
}

void TestBackgroundImageDlg::TheNumberMovesTheSliderAndSavesOnce()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    probe.dialog.show();
    QTest::keyClick(&probe.Spin(), Qt::Key_Up);
    QCOMPARE(probe.Slider().value(), 51);
    QCOMPARE(host.Record(), QVector<int>({124, 1, 0}));
    QCOMPARE(host.Events(), QStringList({c_strViewEvent}));
}

void TestBackgroundImageDlg::TransparencyStoresOpacity_data()
{
    QTest::addColumn<int>("nPercent");
    QTest::addColumn<int>("nAlpha");
    QTest::newRow("transparent") << 100 << 0;
    QTest::newRow("opaque") << 0 << 255;
    QTest::newRow("a quarter") << 25 << 191;
    QTest::newRow("nearly transparent") << 99 << 2;
}

void TestBackgroundImageDlg::TransparencyStoresOpacity()
{
    QFETCH(int, nPercent);
    QFETCH(int, nAlpha);
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    probe.Spin().selectAll();
    QTest::keyClicks(&probe.Spin(), QString::number(nPercent));
    QCOMPARE(probe.Slider().value(), nPercent);
    QCOMPARE(host.Record().at(0), nAlpha);
}

void TestBackgroundImageDlg::AnOpacityThatIsReadAndWrittenBackFallsByOne()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    QCOMPARE(int(probe.Spin().value()), 50);
    probe.Act(4);
    QCOMPARE(host.Record(), QVector<int>({127, 1, 0}));
    QCOMPARE(host.Events(), QStringList({c_strViewEvent}));
}

void TestBackgroundImageDlg::TheSlotOfTheSliderSavesNothing()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    probe.Act(3);
    QCOMPARE(host.Events(), QStringList());
    QCOMPARE(host.Record(), QVector<int>({128, 1, 0}));
    probe.Act(0);
    QVERIFY2(host.Record().at(0) == 127, "the opacity was taken all the same, and the next change saves it");
}

void TestBackgroundImageDlg::OtherIdsDoNothing()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    host.host.record.Clear();
    for (const int nId : {-1, 5, 100})
        probe.Act(nId);
    QCOMPARE(host.host.record.All(), QStringList());
}

void TestBackgroundImageDlg::TheTitleBarRunsNoHandler()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    host.host.record.Clear();
    QTimer::singleShot(0, &probe.dialog, &QWidget::close);
    QCOMPARE(probe.dialog.exec(), 0);
    QCOMPARE(host.host.record.All(), QStringList());
}

void TestBackgroundImageDlg::TextsAreLookedUpInOneContext()
{
    CFolderHost host;
    const CContextTranslator translator;
    CProbe probe;
    CFileAnswers answers;
    probe.Act(1);
    QCOMPARE(translator.Strays(), QStringList());
    QCOMPARE(translator.Sources(), List({"背景图片设置", "启用", "选取图片...", "契合度", "拉伸", "透明度"}));
    QCOMPARE(answers.Shown().at(0).strTitle, Marked("选取图片..."));
    QCOMPARE(Entries(probe.Fit()), List({"1:1", "<拉伸>"}));
}

QTEST_MAIN(TestBackgroundImageDlg)
#include "TestBackgroundImageDlg.moc"
