#include "simulator/CommonClass/ProjectFile.h"
#include "tests/simulator/SimulatorTest.h"
#include "tests/support/SmallDisk.h"

#include <QDir>
#include <QTemporaryDir>

#include <functional>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

QString Text(const char* szText)
{
    return QString::fromUtf8(szText);
}

/// Runs an action in a child without the rights of root; its result is the child's.
bool SucceedsAsNobody(const std::function<bool()>& Action)
{
    constexpr uid_t c_nNobody = 65534;
    const pid_t nChild = fork();
    if (nChild == 0)
        _exit((geteuid() != 0 || seteuid(c_nNobody) == 0) && Action() ? 0 : 1);
    int nStatus = 0;
    waitpid(nChild, &nStatus, 0);
    return WIFEXITED(nStatus) && WEXITSTATUS(nStatus) == 0;
}

/// Saves the same project again and again in a child.
pid_t StartSaving(const QString& strFile, int nSenderType, int nSaves)
{
    const pid_t nChild = fork();
    if (nChild != 0)
        return nChild;
    CSimulator& simulator = FreshSimulator();
    simulator.Document().AddSender(nSenderType);
    SFileProblem problem;
    bool bSaved = true;
    for (int nSave = 0; nSave < nSaves; ++nSave)
        bSaved = simulator.Document().SaveAs(strFile, problem) && bSaved;
    _exit(bSaved ? 0 : 1);
}

} // namespace

/// Disks that are full, folders that may not be written, and others that write the same file.
class TestHostileDisk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFullDiskKeepsTheOldFile();
    void AFullDiskKeepsABrokenFile();
    void ASaveSucceedsOnceThereIsRoom();
    void AFolderWithoutRightsIsAProblem();
    void AFileWithoutRightsIsAProblem();
    void TwoProcessesThatSaveLeaveOneWholeFile();
};

void TestHostileDisk::AFullDiskKeepsTheOldFile()
{
    const CSmallDisk disk;
    QVERIFY(disk.IsMounted());
    CSimulator& simulator = FreshSimulator();
    simulator.Document().AddSender(16);
    SFileProblem problem;
    QVERIFY2(simulator.Document().SaveAs(disk.Path("a.json"), problem), qPrintable(problem.Text()));
    const QJsonObject saved = ProjectToJson(simulator.Project());
    disk.Fill();
    simulator.Document().AddSender(16);
    QVERIFY(!simulator.Document().Save(problem));
    QVERIFY2(problem.strWhat.contains(Text("cannot be written")), qPrintable(problem.Text()));
    QVERIFY(!problem.strAdvice.isEmpty());
    QVERIFY(simulator.Document().IsModified());
    QCOMPARE(disk.Files(), QStringList({Text("a.json"), Text("filler")}));
    QVERIFY2(simulator.Document().Open(disk.Path("a.json"), problem), qPrintable(problem.Text()));
    QCOMPARE(ProjectToJson(simulator.Project()), saved);
}

void TestHostileDisk::AFullDiskKeepsABrokenFile()
{
    const CSmallDisk disk;
    QVERIFY(disk.IsMounted());
    const QByteArray baNotes(5000, 'n');
    QFile file(disk.Path("a.json"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(baNotes) == baNotes.size());
    file.close();
    disk.Fill();
    SFileProblem problem;
    QVERIFY(!FreshSimulator().Document().SaveAs(disk.Path("a.json"), problem));
    QVERIFY2(problem.strWhat.contains(Text("cannot be kept")), qPrintable(problem.Text()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), baNotes);
    QCOMPARE(disk.Files(), QStringList({Text("a.json"), Text("filler")}));
}

void TestHostileDisk::ASaveSucceedsOnceThereIsRoom()
{
    const CSmallDisk disk;
    QVERIFY(disk.IsMounted());
    disk.Fill();
    CSimulator& simulator = FreshSimulator();
    SFileProblem problem;
    QVERIFY(!simulator.Document().SaveAs(disk.Path("a.json"), problem));
    QCOMPARE(disk.Files(), QStringList{Text("filler")});
    QVERIFY(QFile::remove(disk.Path("filler")));
    QVERIFY2(simulator.Document().SaveAs(disk.Path("a.json"), problem), qPrintable(problem.Text()));
    QCOMPARE(disk.Files(), QStringList{Text("a.json")});
}

void TestHostileDisk::AFolderWithoutRightsIsAProblem()
{
    const QTemporaryDir dir;
    const QString strFile = dir.filePath(Text("a.json"));
    CSimulator& simulator = FreshSimulator();
    SFileProblem problem;
    QVERIFY2(simulator.Document().SaveAs(strFile, problem), qPrintable(problem.Text()));
    const QByteArray baFolder = QFile::encodeName(dir.path());
    QCOMPARE(chmod(baFolder.constData(), 0555), 0);
    simulator.Document().AddSender(16);
    QVERIFY(SucceedsAsNobody([&simulator] {
        SFileProblem refused;
        return !simulator.Document().Save(refused) && refused.strWhat.contains(Text("cannot be written")) &&
               !refused.strAdvice.isEmpty();
    }));
    QCOMPARE(chmod(baFolder.constData(), 0755), 0);
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{Text("a.json")});
    QVERIFY2(simulator.Document().Open(strFile, problem), qPrintable(problem.Text()));
    QVERIFY(simulator.Project().listSenders.empty());
}

void TestHostileDisk::AFileWithoutRightsIsAProblem()
{
    const QTemporaryDir dir;
    const QString strFile = dir.filePath(Text("a.json"));
    CSimulator& simulator = FreshSimulator();
    SFileProblem problem;
    QVERIFY2(simulator.Document().SaveAs(strFile, problem), qPrintable(problem.Text()));
    QCOMPARE(chmod(QFile::encodeName(dir.path()).constData(), 0777), 0);
    QCOMPARE(chmod(QFile::encodeName(strFile).constData(), 0), 0);
    QVERIFY(SucceedsAsNobody([&simulator, &strFile] {
        SFileProblem refused;
        return !simulator.Document().Open(strFile, refused) && refused.IsSet() &&
               !refused.strAdvice.isEmpty() && !simulator.Document().SaveAs(strFile, refused) &&
               refused.IsSet() && !refused.strAdvice.isEmpty();
    }));
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{Text("a.json")});
}

void TestHostileDisk::TwoProcessesThatSaveLeaveOneWholeFile()
{
    constexpr int c_nSaves = 300;
    constexpr int c_nOneType = 16;
    constexpr int c_nOtherType = 19;
    const QTemporaryDir dir;
    const QString strFile = dir.filePath(Text("a.json"));
    const pid_t arrChildren[] = {StartSaving(strFile, c_nOneType, c_nSaves),
                                 StartSaving(strFile, c_nOtherType, c_nSaves)};
    for (const pid_t nChild : arrChildren) {
        int nStatus = 0;
        QCOMPARE(waitpid(nChild, &nStatus, 0), nChild);
        QVERIFY(WIFEXITED(nStatus));
        QCOMPARE(WEXITSTATUS(nStatus), 0);
    }
    SFileProblem problem;
    const std::optional<SSimulatedProject> project = ProjectFile::Read(strFile, problem);
    QVERIFY2(project.has_value(), qPrintable(problem.Text()));
    QCOMPARE(project->listSenders.size(), std::size_t(1));
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{Text("a.json")});
}

int main(int nArguments, char** arrArguments)
{
    if (!CSmallDisk::EnterOwnMounts())
        return CSmallDisk::SayThatSkipped();
    QCoreApplication application(nArguments, arrArguments);
    TestHostileDisk test;
    return QTest::qExec(&test, nArguments, arrArguments);
}

#include "TestHostileDisk.moc"
