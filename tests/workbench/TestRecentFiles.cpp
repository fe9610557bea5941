#include "workbench/RecentFiles.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

class TestRecentFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheLatestComesFirstAndNoneTwice();
    void OnlySoManyAreKept();
    void AFileCanBeForgotten();
};

void TestRecentFiles::TheLatestComesFirstAndNoneTwice()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
    CRecentFiles files(settings);
    for (const char* szFile : {"/a.json", "/b.json", "/x/../a.json"})
        files.Note(QString::fromLatin1(szFile));
    QCOMPARE(files.List(), (QStringList{QStringLiteral("/a.json"), QStringLiteral("/b.json")}));
}

void TestRecentFiles::OnlySoManyAreKept()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
    CRecentFiles files(settings);
    for (int i = 0; i < 20; ++i)
        files.Note(QStringLiteral("/%1.json").arg(i));
    QCOMPARE(files.List().size(), CRecentFiles::c_nMaxFiles);
    QCOMPARE(files.List().first(), QStringLiteral("/19.json"));
}

void TestRecentFiles::AFileCanBeForgotten()
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("s.ini")), QSettings::IniFormat);
    CRecentFiles files(settings);
    files.Note(QStringLiteral("/a.json"));
    files.Forget(QStringLiteral("/a.json"));
    QCOMPARE(files.List(), QStringList());
}

QTEST_MAIN(TestRecentFiles)
#include "TestRecentFiles.moc"
