#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/DialogOperator.h"
#include "tests/workbench/colour/ShownColourPage.h"
#include "workbench/colour/ChartExport.h"
#include "workbench/colour/PictureSizeDialog.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray Content(const QString& strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// What the colour page copies and exports, and the dialog that asks for the size.
class TestColourPagePictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void APictureIsCopied();
    void FilesHoldTheChart();
    void AFileThatCannotBeWrittenIsTold();
    void AnExportLeavesTheChartAsItWas();
    void TheFirstSideOfAPictureIsTypedOver();
    void AnExportAsksForSizeAndResolution();
    void ALessReadableSizeIsNotOffered();
};

void TestColourPagePictures::init()
{
    CSimulator::Instance().Document().NewProject();
}

void TestColourPagePictures::APictureIsCopied()
{
    SShownColourPage shown;
    shown.page.CopyPicture();
    QCOMPARE(QGuiApplication::clipboard()->image().size(), shown.Chart().size());
}

void TestColourPagePictures::FilesHoldTheChart()
{
    SShownColourPage shown;
    const QTemporaryDir folder;
    const QString strPng = folder.filePath(QStringLiteral("chart.png"));
    QVERIFY(shown.page.SavePng(strPng, ChartExport::ScreenSize(shown.Chart())));
    const QImage image(strPng);
    QCOMPARE(image.size(), shown.Chart().size());
    const QPoint ptGreen = shown.View().PixelOf(shown.Screen().ptGreen);
    QCOMPARE(image.pixelColor(ptGreen), QColor(Qt::green));
    const QString strSvg = folder.filePath(QStringLiteral("chart.svg"));
    QVERIFY(shown.page.SaveSvg(strSvg, shown.Chart().size()));
    const QSvgRenderer renderer(strSvg);
    QVERIFY(renderer.isValid());
    QCOMPARE(renderer.viewBox().size(), shown.Chart().size());
    QVERIFY(Content(strSvg).contains("<text"));
}

void TestColourPagePictures::AFileThatCannotBeWrittenIsTold()
{
    SShownColourPage shown;
    const QTemporaryDir folder;
    QSignalSpy spy(&shown.page, &CColourPage::Failed);
    const SPictureSize size = ChartExport::ScreenSize(shown.Chart());
    for (const char* szName : {"missing/chart.png", "missing/chart.svg"}) {
        const QString strFile = folder.filePath(QString::fromLatin1(szName));
        QVERIFY(!(strFile.endsWith(QStringLiteral("svg")) ? shown.page.SaveSvg(strFile, size.size)
                                                          : shown.page.SavePng(strFile, size)));
        QCOMPARE(spy.count(), 1);
        QVERIFY(spy.takeFirst().first().toString().contains(strFile));
    }
    QVERIFY(QDir(folder.path()).isEmpty());
}

void TestColourPagePictures::AnExportLeavesTheChartAsItWas()
{
    SShownColourPage shown;
    shown.Move(shown.Screen().ptGreen);
    const int nHover = shown.Chart().m_nHoverPoint;
    const ColourGroups::Groups groups = ColourGroups::Take(shown.Chart());
    shown.page.CopyPicture();
    QCOMPARE(shown.Chart().m_nHoverPoint, nHover);
    QVERIFY(ColourGroups::AreSame(ColourGroups::Take(shown.Chart()), groups));
}

void TestColourPagePictures::TheFirstSideOfAPictureIsTypedOver()
{
    CPictureSizeDialog dialog({QSize(600, 500)}, CPictureSizeDialog::enPixels, QString(), nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("1200"));
    QCOMPARE(dialog.Size().size, QSize(1200, 500));
}

void TestColourPagePictures::AnExportAsksForSizeAndResolution()
{
    SShownColourPage shown;
    const QTemporaryDir folder;
    const QList<QPushButton*> listButtons = shown.page.findChildren<QPushButton*>();
    auto* pExport = *std::find_if(listButtons.cbegin(), listButtons.cend(), [](const QPushButton* pButton) {
        return pButton->text() == QString::fromUtf8("导出 PNG...");
    });
    std::unique_ptr<CDialogOperator> pFile;
    const CDialogOperator sizeOperator([&](QDialog* pDialog) {
        const auto Set = [pDialog](const char* szName, int nValue) {
            pDialog->findChild<QSpinBox*>(QString::fromLatin1(szName))->setValue(nValue);
        };
        Set("resolution", 192);
        Set("width", 1200);
        Set("height", 1000);
        pFile = std::make_unique<CDialogOperator>([&](QDialog* pFileDialog) {
            auto* pName = pFileDialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            pName->setText(folder.filePath(QStringLiteral("wall")));
            QTest::keyClick(pName, Qt::Key_Return);
        });
        QTest::keyClick(pDialog, Qt::Key_Return);
    });
    QTest::mouseClick(pExport, Qt::LeftButton);
    const QImage image(folder.filePath(QStringLiteral("wall.png")));
    QCOMPARE(image.size(), QSize(1200, 1000));
    QCOMPARE(image.dotsPerMeterX(), 7559);
}

void TestColourPagePictures::ALessReadableSizeIsNotOffered()
{
    CPictureSizeDialog dialog({QSize(600, 600)}, CPictureSizeDialog::enPixels, QString(), nullptr);
    dialog.findChild<QSpinBox*>(QStringLiteral("resolution"))->setValue(480);
    QCOMPARE(dialog.Size().size, QSize(1000, 1000));
    QCOMPARE(dialog.Size().Layout(), QSize(200, 200));
}

QTEST_MAIN(TestColourPagePictures)
#include "TestColourPagePictures.moc"
