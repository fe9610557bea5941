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
/// So many kills have to fall among saves.
constexpr int c_nKillsAmongSaves = c_nKills / 10;
/// Longest time that it is left alone, microseconds: some ten saves.
constexpr int c_nLongestLife = 4000;
/// What is added to that time after each kill that came before the first save, as it does on a busy machine.
constexpr int c_nLifeAdded = 20;

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
    int nAmongSaves = 0;
    int nLongestLife = c_nLongestLife;
    for (int nKill = 0; nKill < c_nKills || nAmongSaves < c_nKillsAmongSaves; ++nKill) {
        KillWhileSaving(nSaved, random.bounded(nLongestLife));
        QVERIFY2(simulator.Document().Open(strFile, problem), qPrintable(problem.Text()));
        const QStringList listStored = simulator.Project().addresses.listStored;
        QVERIFY(listStored.size() >= nSaved);
        QCOMPARE(listStored, ExpectedList(listStored.size()));
        QCOMPARE(simulator.Project().addresses.listOriginal, listStored);
        if (listStored.size() > nSaved)
            ++nAmongSaves;
        else
            nLongestLife += c_nLifeAdded;
        nSaved = listStored.size();
    }
    QVERIFY2(simulator.Document().SaveAs(strFile, problem), qPrintable(problem.Text()));
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("project.json")});
}

QTEST_GUILESS_MAIN(TestKilledSave)
#include "TestKilledSave.moc"
