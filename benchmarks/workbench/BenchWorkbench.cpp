#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "benchmarks/support/RatioReporter.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/MainWindow.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <string>

/// @file
/// The shown workbench over 10, 100 and 1,000 senders: adding that many processors at once, beside announcing
/// each of them, and a change of one sender among them. Times that grow tenfold from row to row are linear.

namespace {

constexpr int c_nType = 21;
constexpr int c_nPorts = 16;

/// A workbench on the screen, with settings of its own.
struct SShownWorkbench
{
    QTemporaryDir folder;
    CLanguage language;
    QSettings settings{folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
    CMainWindow window{language, settings};

    SShownWorkbench()
    {
        window.show();
        Redraw();
    }

    static void Redraw()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
};

void StartEmpty()
{
    CSimulator::Instance().Document().NewEmptyProject();
    SShownWorkbench::Redraw();
}

template <class FAdd>
void AddProcessors(benchmark::State& state, FAdd funcAdd)
{
    const SShownWorkbench workbench;
    for (auto pass : state) {
        Q_UNUSED(pass)
        state.PauseTiming();
        StartEmpty();
        state.ResumeTiming();
        funcAdd(int(state.range(0)));
        SShownWorkbench::Redraw();
    }
    state.SetComplexityN(state.range(0));
}

void AddAtOnce(benchmark::State& state)
{
    AddProcessors(
        state, [](int nCount) { CSimulator::Instance().Document().AddSenders(c_nType, nCount, c_nPorts); });
}

void AddOneByOne(benchmark::State& state)
{
    AddProcessors(state, [](int nCount) {
        for (int i = 0; i < nCount; ++i)
            CSimulator::Instance().Document().AddSenders(c_nType, 1, c_nPorts);
    });
}

void ChangeOneOf(benchmark::State& state)
{
    const SShownWorkbench workbench;
    StartEmpty();
    CSimulator::Instance().Document().AddSenders(c_nType, int(state.range(0)), c_nPorts);
    SShownWorkbench::Redraw();
    int nRate = 0;
    for (auto pass : state) {
        Q_UNUSED(pass)
        nRate = nRate % 60 + 1;
        CSimulator::Instance().Document().Change(
            [nRate](SSimulatedProject& project) { project.listSenders.front().record.nFrameRate = nRate; });
        SShownWorkbench::Redraw();
    }
    state.SetComplexityN(state.range(0));
}

constexpr int c_arrCounts[] = {10, 100, 1000};

/// One row for each number of senders, named as the reporter compares them: `subject/contender`.
void Register()
{
    for (const int nCount : c_arrCounts) {
        const std::string strCount = std::to_string(nCount);
        const auto Add = [nCount](const std::string& strName, void (*pBenchmark)(benchmark::State&)) {
            benchmark::RegisterBenchmark(strName.c_str(), pBenchmark)
                ->Arg(nCount)
                ->Unit(benchmark::kMillisecond);
        };
        Add("add " + strCount + " processors/library", AddAtOnce);
        Add("add " + strCount + " processors/one by one", AddOneByOne);
        Add("change one of " + strCount + "/library", ChangeOneOf);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    SenderModuleDialogInit(CSimulator::Instance().Label());
    Register();
    return RunWithRatios(argc, argv);
}
