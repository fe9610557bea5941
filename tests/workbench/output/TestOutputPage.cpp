#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "host/OrviControl/CustomSwitchButton.h"
#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/DialogOperator.h"
#include "workbench/output/CanvasPreview.h"
#include "workbench/output/CorrectionPanel.h"
#include "workbench/output/OutputPage.h"
#include "workbench/output/SenderOutput.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

CSimulator& Simulator()
{
    return CSimulator::Instance();
}

const SSimulatedSender& Sender(int nSender = 0)
{
    return *Simulator().Project().FindSender(nSender);
}

void ChangeSender(const std::function<void(SSimulatedSender& sender)>& funcChange)
{
    Simulator().Document().Change([&](SSimulatedProject& project) { funcChange(*project.FindSender(0)); });
}

QString StoredPicture()
{
    return QStringLiteral("%1/%2").arg(Simulator().Document().PictureFolder(),
                                       Simulator().Document().PictureName(0));
}

/// Puts a picture of one colour where the sender has its own.
bool StorePicture(QSize size, Qt::GlobalColor color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image.save(StoredPicture(), "PNG");
}

/// A page that shows the first sender.
class CShownPage : public COutputPage
{
public:
    CShownPage()
    {
        resize(900, 500);
        ShowSelection({0, -1});
    }

    const SCanvasContent& Content() const { return findChild<CCanvasPreview*>()->Content(); }
    bool Shows(const QString& strText) const
    {
        for (const QLabel* pLabel : findChildren<QLabel*>())
            if (pLabel->text() == strText)
                return true;
        return false;
    }
    void Click(const char* szButton) const
    {
        for (QPushButton* pButton : findChildren<QPushButton*>())
            if (pButton->text() == QString::fromUtf8(szButton))
                return QTest::mouseClick(pButton, Qt::LeftButton);
        QFAIL(szButton);
    }
};

void EnterCanvas(QDialog* pDialog, int nWidth, int nHeight)
{
    const auto listFields = pDialog->findChildren<CCustomSpinBox*>();
    listFields[0]->setValue(nWidth);
    listFields[1]->setValue(nHeight);
}

void ChooseEntry(QDialog* pDialog, const char* szText)
{
    for (const QMenu* pMenu : pDialog->findChildren<QMenu*>())
        for (QAction* pAction : pMenu->actions())
            if (pAction->text() == QString::fromUtf8(szText))
                return pAction->trigger();
    QFAIL(szText);
}

} // namespace

class TestOutputPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void AnAcceptedCanvasIsStored_data();
    void AnAcceptedCanvasIsStored();
    void ACancelledCanvasIsNotStored();
    void AnAcceptedRateAndDepthShowAtOnce();
    void ADepthThatOpeningAloneSetsShows();
    void APictureIsFollowedWhileItsDialogIsOpen();
    void AReplacedPictureShowsUnderTheSameRecord();
    void WhatIsShownOfThePicture_data();
    void WhatIsShownOfThePicture();
    void AVanishedPictureIsTold();
    void AFileThatIsNoPictureIsTold();
    void APictureFollowsTheProjectFile();
    void ACoefficientStartsAtThePresetAndIsShown_data();
    void ACoefficientStartsAtThePresetAndIsShown();
    void ACancelledCoefficientIsNotTaken();
    void AnotherSenderForgetsTheCoefficients();
    void ASenderThatIsNoVideoProcessorHasNoHardwareValues();
    void WithoutSenderNothingCanBeOpened();
    void ButtonsThatReadAlikeHaveNamesOfTheirOwn();
    void TheEventsReachTheJournal();
    void ACanvasWithoutAreaIsTold();
};

void TestOutputPage::initTestCase()
{
    SenderModuleDialogInit(Simulator().Label());
}

void TestOutputPage::init()
{
    Simulator().Document().NewProject();
    Simulator().Journal().Clear();
}

void TestOutputPage::AnAcceptedCanvasIsStored_data()
{
    QTest::addColumn<bool>("fromHardware");
    QTest::newRow("record and hardware") << true;
    QTest::newRow("record alone") << false;
}

void TestOutputPage::AnAcceptedCanvasIsStored()
{
    QFETCH(bool, fromHardware);
    ChangeSender([&](SSimulatedSender& sender) {
        sender.capability.bCanvasFromHardware = fromHardware;
        sender.sizeHardwareCanvas = QSize(100, 100);
    });
    CShownPage page;
    QSignalSpy spy(&page, &CWorkbenchPage::Reported);
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        EnterCanvas(pDialog, 1000, 500);
        Press(pDialog, "确定");
    });
    page.Click("画布大小...");
    QCOMPARE(Sender().record.sizeCanvas, QSize(1000, 500));
    QCOMPARE(Sender().sizeHardwareCanvas, fromHardware ? QSize(1000, 500) : QSize(100, 100));
    QCOMPARE(page.Content().sizeCanvas, QSize(1000, 500));
    QVERIFY(page.Shows(QStringLiteral("1000 × 500")));
    QCOMPARE(spy.count(), 1);
}

void TestOutputPage::ACancelledCanvasIsNotStored()
{
    CShownPage page;
    const QSize sizeBefore = Sender().record.sizeCanvas;
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        EnterCanvas(pDialog, 1000, 500);
        Press(pDialog, "取消");
    });
    page.Click("画布大小...");
    QCOMPARE(Sender().record.sizeCanvas, sizeBefore);
    QCOMPARE(page.Content().sizeCanvas, SenderOutput::Canvas(Sender()));
}

void TestOutputPage::AnAcceptedRateAndDepthShowAtOnce()
{
    ChangeSender([](SSimulatedSender& sender) {
        sender.capability.bSupport10Bit = true;
        sender.outputLimitFlags = 0;
    });
    CShownPage page;
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        ChooseEntry(pDialog, "50Hz");
        ChooseEntry(pDialog, "10bit");
        Press(pDialog, "确定");
    });
    page.Click("帧率和色深...");
    QVERIFY(Sender().b50Hz);
    QVERIFY(page.Shows(QStringLiteral("50 Hz")));
    QVERIFY(page.Shows(QStringLiteral("50 Hz：开")));
    QVERIFY(page.Shows(QStringLiteral("10 bit")));
    QVERIFY(!page.Shows(QStringLiteral("8 bit")));
}

void TestOutputPage::ADepthThatOpeningAloneSetsShows()
{
    ChangeSender([](SSimulatedSender& sender) {
        sender.capability.bSupport10Bit = sender.capability.bSupport12Bit = false;
        sender.record.nColorDepth = 16;
    });
    CShownPage page;
    QVERIFY(page.Shows(QStringLiteral("16 bit")));
    const CDialogOperator dialogOperator([](QDialog* pDialog) { Press(pDialog, "取消"); });
    page.Click("帧率和色深...");
    QVERIFY(!page.Shows(QStringLiteral("16 bit")));
}

void TestOutputPage::APictureIsFollowedWhileItsDialogIsOpen()
{
    QVERIFY(StorePicture({30, 20}, Qt::red));
    CShownPage page;
    QVERIFY(page.Content().imgPicture.isNull());
    const CDialogOperator dialogOperator([&page](QDialog* pDialog) {
        QTest::mouseClick(pDialog->findChild<CCustomSwitchButton*>(), Qt::LeftButton);
        QCOMPARE(page.Content().sizePicture, QSize(30, 20));
        QCOMPARE(int(page.Content().fit), int(enPictureFit::enOneToOne));
        ChooseEntry(pDialog, "拉伸");
        QCOMPARE(int(page.Content().fit), int(enPictureFit::enStretched));
        pDialog->findChild<QDoubleSpinBox*>()->setValue(40);
        QCOMPARE(int(page.Content().byAlpha), 153);
    });
    page.Click("设置背景图片...");
    QVERIFY(page.Shows(QStringLiteral("153 / 255 (60%)")));
    QVERIFY(page.Shows(QStringLiteral("拉伸")));
}

void TestOutputPage::AReplacedPictureShowsUnderTheSameRecord()
{
    QVERIFY(StorePicture({30, 20}, Qt::red));
    ChangeSender([](SSimulatedSender& sender) { sender.record.BkImageEnable = true; });
    CShownPage page;
    QCOMPARE(page.Content().imgPicture.pixelColor(0, 0), QColor(Qt::red));
    QVERIFY(StorePicture({30, 20}, Qt::blue));
    Q_EMIT Simulator().OnLabelEvent(0x24000, 1, 0, 0);
    QCOMPARE(page.Content().imgPicture.pixelColor(0, 0), QColor(Qt::blue));
}

void TestOutputPage::WhatIsShownOfThePicture_data()
{
    QTest::addColumn<bool>("file");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("alpha");
    QTest::addColumn<bool>("picture");
    QTest::addColumn<QString>("note");
    QTest::newRow("on") << true << true << 200 << true << QString();
    QTest::newRow("on, transparent") << true << true << 0 << true << QStringLiteral("背景图片完全透明");
    QTest::newRow("off") << true << false << 200 << false << QStringLiteral("背景图片已关闭");
    QTest::newRow("off, no file") << false << false << 200 << false << QStringLiteral("没有背景图片");
}

void TestOutputPage::WhatIsShownOfThePicture()
{
    QFETCH(bool, file);
    QFETCH(bool, enabled);
    QFETCH(int, alpha);
    QFETCH(bool, picture);
    QVERIFY(!file || StorePicture({30, 20}, Qt::red));
    ChangeSender([&](SSimulatedSender& sender) {
        sender.record.BkImageEnable = enabled;
        sender.record.BkImageAlpha = quint8(alpha);
    });
    const CShownPage page;
    QCOMPARE(!page.Content().imgPicture.isNull(), picture);
    QVERIFY(!page.Content().bWarning);
    QTEST(page.Content().strNote, "note");
}

void TestOutputPage::AVanishedPictureIsTold()
{
    ChangeSender([](SSimulatedSender& sender) { sender.record.BkImageEnable = true; });
    const CShownPage page;
    QVERIFY(page.Content().bWarning);
    QVERIFY(page.Content().strNote.contains(QStringLiteral("文件不存在")));
    QVERIFY(page.Shows(QStringLiteral("没有文件")));
}

void TestOutputPage::AFileThatIsNoPictureIsTold()
{
    QFile file(StoredPicture());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("text") == 4);
    file.close();
    ChangeSender([](SSimulatedSender& sender) { sender.record.BkImageEnable = true; });
    const CShownPage page;
    QVERIFY(page.Content().bWarning);
    QVERIFY(page.Content().strNote.contains(QStringLiteral("无法读取背景图片")));
    QVERIFY(page.Shows(QStringLiteral("无法读取")));
}

void TestOutputPage::APictureFollowsTheProjectFile()
{
    QVERIFY(StorePicture({30, 20}, Qt::red));
    ChangeSender([](SSimulatedSender& sender) { sender.record.BkImageEnable = true; });
    const CShownPage page;
    const QTemporaryDir folder;
    SFileProblem problem;
    QVERIFY(Simulator().Document().SaveAs(folder.filePath(QStringLiteral("wall.json")), problem));
    QCOMPARE(page.Content().sizePicture, QSize(30, 20));
    QVERIFY(QFile::remove(StoredPicture()));
    Simulator().Document().NewProject();
    QVERIFY(page.Content().imgPicture.isNull());
}

void TestOutputPage::ACoefficientStartsAtThePresetAndIsShown_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("report");
    QTest::newRow("correction") << 0 << QStringLiteral("重置校正系数") << QStringLiteral("校正系数：0.123");
    QTest::newRow("seam repair") << 1 << QStringLiteral("重置修缝系数") << QStringLiteral("修缝系数：0.123");
}

void TestOutputPage::ACoefficientStartsAtThePresetAndIsShown()
{
    QFETCH(int, row);
    CShownPage page;
    QSignalSpy spy(&page, &CWorkbenchPage::Reported);
    page.findChildren<QDoubleSpinBox*>().at(row)->setValue(0.5);
    QString strTitle;
    double dShown = -1;
    const CDialogOperator dialogOperator([&](QDialog* pDialog) {
        auto* pField = pDialog->findChild<QDoubleSpinBox*>();
        strTitle = pDialog->windowTitle();
        dShown = pField->value();
        pField->setValue(0.123);
        Press(pDialog, "确定");
    });
    page.Corrections().Reset(row == 0);
    QTEST(strTitle, "title");
    QCOMPARE(dShown, 0.5);
    QVERIFY(page.Shows(QStringLiteral("0.123")));
    QTEST(spy.value(0).value(0).toString(), "report");
}

void TestOutputPage::ACancelledCoefficientIsNotTaken()
{
    CShownPage page;
    QSignalSpy spy(&page, &CWorkbenchPage::Reported);
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        pDialog->findChild<QDoubleSpinBox*>()->setValue(0.123);
        Press(pDialog, "取消");
    });
    page.Corrections().Reset(true);
    QVERIFY(!page.Shows(QStringLiteral("0.123")));
    QCOMPARE(spy.count(), 0);
}

void TestOutputPage::AnotherSenderForgetsTheCoefficients()
{
    CShownPage page;
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        pDialog->findChild<QDoubleSpinBox*>()->setValue(0.123);
        Press(pDialog, "确定");
    });
    page.Corrections().Reset(true);
    page.ShowSelection({0, 16});
    QVERIFY2(page.Shows(QStringLiteral("0.123")), "an input of the same sender keeps them");
    page.ShowSelection({1, -1});
    QVERIFY(!page.Shows(QStringLiteral("0.123")));
}

void TestOutputPage::ASenderThatIsNoVideoProcessorHasNoHardwareValues()
{
    ChangeSender([](SSimulatedSender& sender) { sender.capability.bVideoProcessor = false; });
    const CShownPage page;
    QVERIFY(!page.Shows(QStringLiteral("50 Hz：关")));
}

void TestOutputPage::WithoutSenderNothingCanBeOpened()
{
    CShownPage page;
    Simulator().Document().NewEmptyProject();
    for (const QPushButton* pButton : page.findChildren<QPushButton*>())
        QVERIFY(!pButton->isEnabled());
    QCOMPARE(page.Content().strNote, QStringLiteral("请选择一个发送器"));
}

void TestOutputPage::ButtonsThatReadAlikeHaveNamesOfTheirOwn()
{
    const CShownPage page;
    QStringList listNames;
    for (const QPushButton* pButton : page.findChildren<QPushButton*>())
        listNames.append(pButton->accessibleName().isEmpty() ? pButton->text() : pButton->accessibleName());
    QCOMPARE(listNames.removeDuplicates(), 0);
    QVERIFY(listNames.contains(QStringLiteral("重置修缝系数")));
}

void TestOutputPage::TheEventsReachTheJournal()
{
    ChangeSender([](SSimulatedSender& sender) { sender.outputLimitFlags = 0; });
    CShownPage page;
    {
        const CDialogOperator dialogOperator([](QDialog* pDialog) { Press(pDialog, "确定"); });
        page.SetRateAndDepth();
    }
    const CDialogOperator dialogOperator([](QDialog* pDialog) {
        QTest::mouseClick(pDialog->findChild<CCustomSwitchButton*>(), Qt::LeftButton);
        ChooseEntry(pDialog, "拉伸");
    });
    page.SetBackground();
    QCOMPARE(Simulator().Journal().Calls(enJournalEvent),
             (QStringList{QStringLiteral("PostLabelEvent(0xc00, 0, 1, 0)"),
                          QStringLiteral("PostLabelEvent(0x24000, 1, 0, 0)"),
                          QStringLiteral("PostLabelEvent(0x4000, 1, 0, 0)")}));
}

void TestOutputPage::ACanvasWithoutAreaIsTold()
{
    ChangeSender([](SSimulatedSender& sender) {
        sender.capability.bCanvasFromHardware = true;
        sender.sizeHardwareCanvas = QSize(0, 600);
    });
    const CShownPage page;
    QVERIFY(page.Content().bWarning);
    QCOMPARE(page.Content().strNote, QStringLiteral("画布没有面积：0 × 600"));
}

QTEST_MAIN(TestOutputPage)
#include "TestOutputPage.moc"
