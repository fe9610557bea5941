#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "simulator/CommonClass/Simulator.h"
#include "simulator/OrviControl/Theme.h"
#include "tests/robot/LongDrag.h"
#include "tests/robot/Robot.h"
#include "tests/robot/RobotScenes.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

/// The library waits for hardware in a fixed sequence of sleeps. No hardware is here, so the robot
/// does not wait.
extern "C" Q_DECL_EXPORT int usleep(useconds_t /*nMicroseconds*/)
{
    return 0;
}

namespace {

constexpr int c_nUsageError = 2;
constexpr int c_nDefaultEvents = 50000;

/// Shorter runs are all warm-up and prove nothing about memory.
constexpr int c_nEventsForMemory = 500000;
/// Memory near the end, as a part of that after the warm-up.
constexpr double c_dMostGrowth = 1.05;

struct SOptions
{
    int nEvents;
    int nDrags; ///< moves of the mouse on a chart, instead of events; 0 for none
    unsigned int nSeed;
};

SOptions ReadOptions(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Operates every dialog, the chart and the workbench at random, and reports what goes wrong."));
    parser.addHelpOption();
    const QCommandLineOption eventsOption(QStringLiteral("events"), QStringLiteral("How many actions to do."),
                                          QStringLiteral("number"), QString::number(c_nDefaultEvents));
    const QCommandLineOption dragsOption(
        QStringLiteral("drags"),
        QStringLiteral("Drags the points of a chart with that many moves of the mouse instead."),
        QStringLiteral("number"), QStringLiteral("0"));
    const QCommandLineOption seedOption(QStringLiteral("seed"),
                                        QStringLiteral("Repeats the run that printed this seed."),
                                        QStringLiteral("number"), QStringLiteral("1"));
    parser.addOptions({eventsOption, dragsOption, seedOption});
    parser.process(application);
    bool bEvents = false;
    bool bDrags = false;
    bool bSeed = false;
    const SOptions options = {parser.value(eventsOption).toInt(&bEvents),
                              parser.value(dragsOption).toInt(&bDrags),
                              parser.value(seedOption).toUInt(&bSeed)};
    if (!bEvents || !bDrags || !bSeed || options.nEvents < 1 || options.nDrags < 0) {
        std::fprintf(stderr, "sender-robot: give whole numbers above 0, see --help\n");
        std::exit(c_nUsageError);
    }
    return options;
}

/// No setting, recent file or picture of the person who runs the robot is touched: its home is a folder of
/// its own.
void MoveInto(const QTemporaryDir& folder)
{
    qputenv("HOME", QFile::encodeName(folder.path()));
    for (const char* szVariable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(szVariable, QFile::encodeName(folder.filePath(QString::fromLatin1(szVariable))));
    QDir::setCurrent(folder.path());
}

void JudgeMemory(CRobotWatch& watch, const char* szKind, const CMemoryTrend& trend)
{
    if (trend.Growth() > c_dMostGrowth)
        watch.Fail(QStringLiteral("%1 memory grew to %2 of what it was after the warm-up")
                       .arg(QString::fromLatin1(szKind))
                       .arg(trend.Growth()));
}

bool Report(CRobot& robot)
{
    CRobotWatch& watch = robot.Watch();
    if (robot.Done() >= c_nEventsForMemory) {
        JudgeMemory(watch, "allocated", watch.AllocatedMemory());
        JudgeMemory(watch, "resident", watch.ResidentMemory());
    }
    std::printf("%d actions, slowest %lld ms, %d failures; of the memory after the warm-up, "
                "%.3f is allocated and %.3f resident\n",
                robot.Done(), static_cast<long long>(watch.SlowestAction()), int(watch.Failures().size()),
                watch.AllocatedMemory().Growth(), watch.ResidentMemory().Growth());
    return watch.Failures().isEmpty();
}

bool OperateAll(int nEvents, unsigned int nSeed)
{
    CRobot robot(nSeed, nEvents);
    PlayScenes(robot);
    return Report(robot);
}

} // namespace

int main(int argc, char* argv[])
{
    KeepHeapCompact();
    const QTemporaryDir folder;
    MoveInto(folder);
    qputenv("ORVICONTROL_ANIMATIONS", "0");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("sender-robot"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(Theme::Palette());
    QApplication::setFont(Theme::Font());
    const SOptions options = ReadOptions(application);
    std::printf("seed %u\n", options.nSeed);
    std::fflush(stdout);
    SenderModuleDialogInit(CSimulator::Instance().Label());
    const bool bGood = options.nDrags > 0 ? DragForLong(options.nDrags, options.nSeed)
                                          : OperateAll(options.nEvents, options.nSeed);
    return bGood ? EXIT_SUCCESS : EXIT_FAILURE;
}
