#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "tests/output/BackgroundProbe.h"
#include "tests/support/DeathTest.h"

#include <QtTest>

#include <unistd.h>

using namespace BackgroundProbe;
using namespace OutputDialogSupport;

class TestBackgroundImageDlgFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
    void WithoutAHostTheProcessEnds();
    void ANullLabelEndsTheProcessAtTheEvent();
    void TextsAreLookedUpInOneContext();
};

void TestBackgroundImageDlgFiles::TheFileDialog()
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

void TestBackgroundImageDlgFiles::CancellingTheFileDialogChangesNothing()
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

void TestBackgroundImageDlgFiles::AChosenPictureIsKept()
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

void TestBackgroundImageDlgFiles::AnotherPictureReplacesTheFirst()
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

void TestBackgroundImageDlgFiles::TheKeptPictureItselfIsLeftAlone()
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

void TestBackgroundImageDlgFiles::TheKeptPictureBySomeOtherSpellingIsLeftAlone()
{
    CFolderHost host;
    host.Store("picture");
    host.host.constantData.strImageFile = host.Path("kept/pictures/../pictures/sender 0.png");
    CProbe probe;
    probe.ChooseFile(host.Path("kept/pictures/sender 0.png"));
    QCOMPARE(CFolderHost::Read(host.Stored()), QByteArray("picture"));
    QCOMPARE(host.Record(), QVector<int>({128, 1, 0}));
}

void TestBackgroundImageDlgFiles::ASourceThatVanishedLeavesTheRecordAlone()
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

void TestBackgroundImageDlgFiles::ADirectoryInTheWayClearsTheRecord()
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

void TestBackgroundImageDlgFiles::AReadOnlyFolderClearsTheRecord()
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

void TestBackgroundImageDlgFiles::AFolderThatCannotBeMadeClearsTheRecord()
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

void TestBackgroundImageDlgFiles::ACopyThatFailsHasRemovedTheOldPictureAlready()
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

void TestBackgroundImageDlgFiles::APathWithChineseAndBlanks()
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

void TestBackgroundImageDlgFiles::TheFolderIsMadeWithItsParents()
{
    CFolderHost host;
    host.host.constantData.strImageFolder = host.Path("a/b/c");
    CProbe probe;
    probe.Act(0);
    QVERIFY(QDir(host.Path("a/b/c")).exists());
}

void TestBackgroundImageDlgFiles::NothingOutsideTheFolderIsTouched()
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

void TestBackgroundImageDlgFiles::FitFromTheMenu_data()
{
    QTest::addColumn<int>("nBefore");
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nFit");
    QTest::newRow("to stretched") << 0 << QStringLiteral("拉伸") << 1;
    QTest::newRow("to one to one") << 1 << QStringLiteral("1:1") << 0;
    QTest::newRow("the same again") << 1 << QStringLiteral("拉伸") << 1;
}

void TestBackgroundImageDlgFiles::FitFromTheMenu()
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

void TestBackgroundImageDlgFiles::FitIsToldByTheVisibleText()
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

void TestBackgroundImageDlgFiles::TheSliderMovesTheNumberAndSavesOnce()
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

void TestBackgroundImageDlgFiles::TheSliderToWhereItIsSavesNothing()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    probe.Slider().setValue(50);
    QCOMPARE(host.Events(), QStringList());
    QCOMPARE(host.Record(), QVector<int>({128, 1, 0}));
}

void TestBackgroundImageDlgFiles::TheNumberMovesTheSliderAndSavesOnce()
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

void TestBackgroundImageDlgFiles::TransparencyStoresOpacity_data()
{
    QTest::addColumn<int>("nPercent");
    QTest::addColumn<int>("nAlpha");
    QTest::newRow("transparent") << 100 << 0;
    QTest::newRow("opaque") << 0 << 255;
    QTest::newRow("a quarter") << 25 << 191;
    QTest::newRow("nearly transparent") << 99 << 2;
}

void TestBackgroundImageDlgFiles::TransparencyStoresOpacity()
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

void TestBackgroundImageDlgFiles::AnOpacityThatIsReadAndWrittenBackFallsByOne()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    QCOMPARE(int(probe.Spin().value()), 50);
    probe.Act(4);
    QCOMPARE(host.Record(), QVector<int>({127, 1, 0}));
    QCOMPARE(host.Events(), QStringList({c_strViewEvent}));
}

void TestBackgroundImageDlgFiles::TheSlotOfTheSliderSavesNothing()
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

void TestBackgroundImageDlgFiles::OtherIdsDoNothing()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    host.host.record.Clear();
    for (const int nId : {-1, 5, 100})
        probe.Act(nId);
    QCOMPARE(host.host.record.All(), QStringList());
}

void TestBackgroundImageDlgFiles::TheTitleBarRunsNoHandler()
{
    CFolderHost host;
    host.Store("picture");
    CProbe probe;
    host.host.record.Clear();
    QTimer::singleShot(0, &probe.dialog, &QWidget::close);
    QCOMPARE(probe.dialog.exec(), 0);
    QCOMPARE(host.host.record.All(), QStringList());
}

void TestBackgroundImageDlgFiles::WithoutAHostTheProcessEnds()
{
    const SDeath death = RunToDeath([] { const CBackgroundImageDlg dialog(nullptr); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("g_pProjectData != nullptr"), death.strOutput.constData());
}

void TestBackgroundImageDlgFiles::ANullLabelEndsTheProcessAtTheEvent()
{
    CFolderHost host;
    g_pIKelvaroLabel = nullptr;
    CProbe probe;
    const SDeath death = RunToDeath([&] { probe.Act(2); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("g_pIKelvaroLabel != nullptr"), death.strOutput.constData());
}

void TestBackgroundImageDlgFiles::TextsAreLookedUpInOneContext()
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

QTEST_MAIN(TestBackgroundImageDlgFiles)
#include "TestBackgroundImageDlgFiles.moc"
