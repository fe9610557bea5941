#include "host/TevraData/ConfigData.h"
#include "simulator/CommonClass/ProjectFile.h"
#include "tests/simulator/SimulatorTest.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

namespace {

/// How often a process is killed while it saves.
constexpr int c_nKills = 500;
/// Longest time that it is left alone, microseconds: some ten saves.
constexpr int c_nLongestLife = 4000;

QString AddressAt(int nIndex)
{
    return QStringLiteral("10.0.%1.%2").arg(nIndex / 200).arg(nIndex % 200 + 1);
}

/// Names make the file long enough for several blocks.
QString NameAt(int nIndex)
{
    return QStringLiteral("%1 ").arg(nIndex).repeated(20).left(64);
}

[[noreturn]] void SaveUntilKilled(int nFirst)
{
    for (int nIndex = nFirst;; ++nIndex) {
        GetConfigData()->AddSpecifiedIP(AddressAt(nIndex), NameAt(nIndex));
        GetConfigData()->SpecifiedIPsSave();
    }
}

/// Saves more and more addresses in a child, and kills it after a while.
void KillWhileSaving(int nFirst, int nMicroseconds)
{
    const pid_t nChild = fork();
    if (nChild == 0)
        SaveUntilKilled(nFirst);
    usleep(useconds_t(nMicroseconds));
    kill(nChild, SIGKILL);
    int nStatus = 0;
    waitpid(nChild, &nStatus, 0);
}

QStringList ExpectedList(int nCount)
{
    QStringList listExpected;
    for (int nIndex = 0; nIndex < nCount; ++nIndex)
        listExpected.append(AddressEntry(AddressAt(nIndex), NameAt(nIndex)));
    return listExpected;
}

} // namespace

class TestKilledSave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AKillLeavesTheOldListOrTheNewOne();
};

void TestKilledSave::AKillLeavesTheOldListOrTheNewOne()
{
    const QTemporaryDir dir;
    const QString strFile = dir.filePath(QStringLiteral("project.json"));
    CSimulator& simulator = FreshSimulator();
    SFileProblem problem;
    QVERIFY2(simulator.Document().SaveAs(strFile, problem), qPrintable(problem.Text()));
    QRandomGenerator random(20260102);
    int nSaved = 0;
    int nProgress = 0;
    for (int nKill = 0; nKill < c_nKills; ++nKill) {
        KillWhileSaving(nSaved, random.bounded(c_nLongestLife));
        QVERIFY2(simulator.Document().Open(strFile, problem), qPrintable(problem.Text()));
        const QStringList listStored = simulator.Project().addresses.listStored;
        QVERIFY(listStored.size() >= nSaved);
        QCOMPARE(listStored, ExpectedList(listStored.size()));
        QCOMPARE(simulator.Project().addresses.listOriginal, listStored);
        nProgress += listStored.size() > nSaved ? 1 : 0;
        nSaved = listStored.size();
    }
    QVERIFY2(simulator.Document().SaveAs(strFile, problem), qPrintable(problem.Text()));
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("project.json")});
    // The kills fell among saves, not before them.
    QVERIFY2(nProgress > c_nKills / 10, QByteArray::number(nProgress).constData());
}

QTEST_GUILESS_MAIN(TestKilledSave)
#include "TestKilledSave.moc"
