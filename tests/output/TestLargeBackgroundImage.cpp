#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "tests/output/OutputDialogSupport.h"
#include "tests/support/RecordingHost.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace OutputDialogSupport;

class TestLargeBackgroundImage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void APictureOfOneGigabyteIsKeptWhole();
};

void TestLargeBackgroundImage::APictureOfOneGigabyteIsKeptWhole()
{
    constexpr qint64 c_nSize = qint64(1) << 30;
    constexpr qint64 c_nMarkPlace = c_nSize - 5;
    const QTemporaryDir dir;
    const QString strChosen = dir.filePath(QStringLiteral("large.png"));
    {
        // Sparse: only the mark at its end takes room on the disk.
        QFile file(strChosen);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.seek(c_nMarkPlace));
        QCOMPARE(file.write("mark!"), qint64(5));
    }
    CRecordingHost host;
    host.constantData.strImageFolder = dir.filePath(QStringLiteral("kept"));
    host.constantData.strImageFile = dir.filePath(QStringLiteral("kept/0.png"));
    host.projectData.sender.BkImageAlpha = 10;
    CBackgroundImageDlg dialog(nullptr);
    CFileAnswers answers;
    answers.Plan(strChosen);
    dialog.ActionSlots(1);

    QFile fileKept(host.constantData.strImageFile);
    QVERIFY(fileKept.open(QIODevice::ReadOnly));
    QCOMPARE(fileKept.size(), c_nSize);
    QVERIFY(fileKept.seek(c_nMarkPlace));
    QCOMPARE(fileKept.readAll(), QByteArray("mark!"));
    QCOMPARE(int(host.projectData.sender.BkImageAlpha), 10);
    QCOMPARE(QDir(host.constantData.strImageFolder)
                 .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             List({"0.png"}));
}

QTEST_MAIN(TestLargeBackgroundImage)
#include "TestLargeBackgroundImage.moc"
