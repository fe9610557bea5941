#include "host/TevraData/ConstantData.h"
#include "tests/simulator/SimulatorTest.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

bool WritePicture(const QString& strFile, const QByteArray& baContent)
{
    QFile file(strFile);
    return QDir().mkpath(QFileInfo(strFile).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(baContent) == baContent.size();
}

QByteArray ReadPicture(const QString& strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString PictureOf(int nSender)
{
    return GetConstantData()->GetSenderBKImgName(nSender, true);
}

} // namespace

class TestPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ThePictureStandsInThePictureFolder();
    void EachSenderHasAPictureOfItsOwn();
    void TheFolderStandsBesideTheProjectFile();
    void SavingTakesThePicturesAlong();
    void AnotherProjectsPicturesDoNotComeUpInThisOne();
    void NothingElseInTheFolderIsTouched();
    void AnUnsavedProjectsPicturesGoWithIt();
    void PicturesThatCannotBeCopiedAreReported();

private:
    QString Path(const char* szName) const { return m_dir->filePath(QString::fromUtf8(szName)); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestPictures::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    CSimulator& simulator = FreshSimulator();
    simulator.Document().AddSender(16);
    simulator.Document().AddSender(17);
}

void TestPictures::ThePictureStandsInThePictureFolder()
{
    CConstantData* pConstant = GetConstantData();
    QCOMPARE(pConstant->GetSenderBKImgName(0, true),
             pConstant->GetBKImagePath() + QLatin1Char('/') + pConstant->GetSenderBKImgName(0, false));
    QVERIFY(!QFileInfo::exists(PictureOf(0)));
}

void TestPictures::EachSenderHasAPictureOfItsOwn()
{
    QVERIFY(PictureOf(0) != PictureOf(1));
    QVERIFY(PictureOf(0) != PictureOf(7));
}

void TestPictures::TheFolderStandsBesideTheProjectFile()
{
    SFileProblem problem;
    QVERIFY(CSimulator::Instance().Document().SaveAs(Path("工程 1.json"), problem));
    QCOMPARE(GetConstantData()->GetBKImagePath(), Path("工程 1.pictures"));
    QVERIFY2(!QFileInfo::exists(Path("工程 1.pictures")), "the dialog creates it when there is a picture");
}

void TestPictures::SavingTakesThePicturesAlong()
{
    QVERIFY(WritePicture(PictureOf(1), "picture"));
    SFileProblem problem;
    QVERIFY(CSimulator::Instance().Document().SaveAs(Path("a.json"), problem));
    QCOMPARE(ReadPicture(PictureOf(1)), QByteArray("picture"));
    QVERIFY(CSimulator::Instance().Document().SaveAs(Path("b.json"), problem));
    QCOMPARE(ReadPicture(PictureOf(1)), QByteArray("picture"));
    QVERIFY(QFileInfo::exists(Path("a.pictures/sender-2")));
}

void TestPictures::AnotherProjectsPicturesDoNotComeUpInThisOne()
{
    QVERIFY(WritePicture(Path("a.pictures/sender-1"), "of the project that is overwritten"));
    SFileProblem problem;
    QVERIFY(CSimulator::Instance().Document().SaveAs(Path("a.json"), problem));
    QVERIFY(!QFileInfo::exists(PictureOf(0)));
}

void TestPictures::NothingElseInTheFolderIsTouched()
{
    QVERIFY(WritePicture(Path("a.pictures/holiday.jpg"), "holiday"));
    QVERIFY(WritePicture(PictureOf(0), "picture"));
    SFileProblem problem;
    QVERIFY(CSimulator::Instance().Document().SaveAs(Path("a.json"), problem));
    QCOMPARE(ReadPicture(Path("a.pictures/holiday.jpg")), QByteArray("holiday"));
}

void TestPictures::AnUnsavedProjectsPicturesGoWithIt()
{
    const QString strFolder = GetConstantData()->GetBKImagePath();
    QVERIFY(QFileInfo(strFolder).isDir());
    CSimulator::Instance().Document().NewEmptyProject();
    QVERIFY(!QFileInfo::exists(strFolder));
}

void TestPictures::PicturesThatCannotBeCopiedAreReported()
{
    QVERIFY(WritePicture(PictureOf(0), "picture"));
    QVERIFY(WritePicture(Path("a.pictures"), "a file where the folder should be"));
    QSignalSpy spyProblem(&CSimulator::Instance().Document(), &CProjectDocument::OnProblem);
    SFileProblem problem;
    QVERIFY(CSimulator::Instance().Document().SaveAs(Path("a.json"), problem));
    QCOMPARE(spyProblem.count(), 1);
    QCOMPARE(ReadPicture(Path("a.pictures")), QByteArray("a file where the folder should be"));
}

QTEST_GUILESS_MAIN(TestPictures)
#include "TestPictures.moc"
