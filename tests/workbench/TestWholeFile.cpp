#include "tests/support/SmallDisk.h"
#include "workbench/WholeFile.h"

#include <QFile>
#include <QtTest>

namespace {

QByteArray ReadAll(const QString& strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestWholeFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFileIsWritten();
    void AFileIsReplaced();
    void AFullDiskKeepsTheOldFile_data();
    void AFullDiskKeepsTheOldFile();
    void AFolderThatIsNotThereIsAProblem();
};

void TestWholeFile::AFileIsWritten()
{
    const CSmallDisk disk;
    QVERIFY(disk.IsMounted());
    QCOMPARE(WholeFile::Write(disk.Path("a.bin"), "block"), QString());
    QCOMPARE(ReadAll(disk.Path("a.bin")), QByteArray("block"));
}

void TestWholeFile::AFileIsReplaced()
{
    const CSmallDisk disk;
    QCOMPARE(WholeFile::Write(disk.Path("a.bin"), "a longer one"), QString());
    QCOMPARE(WholeFile::Write(disk.Path("a.bin"), "short"), QString());
    QCOMPARE(ReadAll(disk.Path("a.bin")), QByteArray("short"));
    QCOMPARE(disk.Files().size(), 1);
}

void TestWholeFile::AFullDiskKeepsTheOldFile_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("a file that fits into a buffer") << 128;
    QTest::newRow("a file that does not") << 100000;
}

void TestWholeFile::AFullDiskKeepsTheOldFile()
{
    QFETCH(int, size);
    const CSmallDisk disk;
    QCOMPARE(WholeFile::Write(disk.Path("a.bin"), "old"), QString());
    disk.Fill();
    QVERIFY(!WholeFile::Write(disk.Path("a.bin"), QByteArray(size, 'n')).isEmpty());
    QCOMPARE(ReadAll(disk.Path("a.bin")), QByteArray("old"));
    QCOMPARE(disk.Files().size(), 2);
}

void TestWholeFile::AFolderThatIsNotThereIsAProblem()
{
    const CSmallDisk disk;
    QVERIFY(!WholeFile::Write(disk.Path("no/a.bin"), "block").isEmpty());
    QVERIFY(disk.Files().isEmpty());
}

int main(int nArguments, char** arrArguments)
{
    if (!CSmallDisk::EnterOwnMounts())
        return CSmallDisk::SayThatSkipped();
    QCoreApplication application(nArguments, arrArguments);
    TestWholeFile test;
    return QTest::qExec(&test, nArguments, arrArguments);
}

#include "TestWholeFile.moc"
