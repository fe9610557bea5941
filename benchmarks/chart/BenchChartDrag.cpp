#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/solve/LocusEdges.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "oracles/chart/PlainChart.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <functional>
#include <limits>
#include <memory>

/// @file
/// A drag step, as a mouse move runs it: the plain procedure's first call (its list grows with every call)
/// and the chart's. `times_plain` is how much faster the chart is, `late_to_early` how much longer its
/// 10,000th step takes than its 10th.

namespace {

constexpr int c_nSide = 1000;

using Clock = std::chrono::steady_clock;

/// What is dragged, and where to.
struct SDrag
{
    const char* szName;
    int nPoint;
    CPoint ptTo;
    bool bSnapWhite;
};

constexpr SDrag c_arrDrags[] = {
    {"red, inside the locus", enRedPoint, {0.62F, 0.34F}, false},
    {"red, out of the locus", enRedPoint, {0.78F, 0.33F}, false},
    {"red, losing the white", enRedPoint, {0.20F, 0.40F}, false},
    {"white, in the triangle", enWhitePoint, {0.35F, 0.36F}, false},
    {"white, snapping", enWhitePoint, {0.315F, 0.33F}, true},
    {"white, out of the triangle", enWhitePoint, {0.50F, 0.50F}, false},
};

SChromaGroupInfo Group()
{
    SChromaGroupInfo group;
    group.ptRed = {0.64F, 0.33F};
    group.ptGreen = {0.30F, 0.60F};
    group.ptBlue = {0.15F, 0.06F};
    group.ptWhite = {0.3127F, 0.329F};
    return group;
}

/// One chart and the place that the mouse drags to.
class CDragBench
{
public:
    explicit CDragBench(const SDrag& drag)
        : m_chart(std::make_unique<CChromaticityDlgWnd>(nullptr))
    {
        m_chart->SetSize(c_nSide, c_nSide);
        m_chart->m_nHoverPoint = drag.nPoint;
        m_chart->m_bSnapWhite = drag.bSnapWhite;
        m_pos = m_chart->Mapping().ToPixel(drag.ptTo).toPoint();
    }

    void Step()
    {
        SChromaGroupInfo group = m_group;
        m_chart->CalcCurrentPoint(m_pos, &group);
        benchmark::DoNotOptimize(group.ptRed);
    }

    double SecondsOf(int nSteps)
    {
        const auto start = Clock::now();
        for (int i = 0; i < nSteps; ++i)
            Step();
        return std::chrono::duration<double>(Clock::now() - start).count() / nSteps;
    }

private:
    std::unique_ptr<CChromaticityDlgWnd> m_chart;
    QPointF m_pos;
    SChromaGroupInfo m_group = Group();
};

/// The plain procedure's first call, on a fresh list.
class CPlainDragBench
{
public:
    explicit CPlainDragBench(const SDrag& drag)
    {
        m_plain.SetSize(c_nSide, c_nSide);
        m_plain.nHoverPoint = drag.nPoint;
        m_plain.bSnapWhite = drag.bSnapWhite;
        m_pos = CChartMapping::ForSize(c_nSide, c_nSide).ToPixel(drag.ptTo).toPoint();
    }

    double FirstSeconds()
    {
        m_plain.gamut = CChromaGamutInterpolation();
        SChromaGroupInfo group = Group();
        const auto start = Clock::now();
        m_plain.CalcCurrentPoint(m_pos, &group);
        benchmark::DoNotOptimize(group.ptRed);
        return std::chrono::duration<double>(Clock::now() - start).count();
    }

private:
    CPlainChart m_plain;
    QPointF m_pos;
};

double BestOf(int nRounds, const std::function<double()>& funcSeconds)
{
    double dBest = std::numeric_limits<double>::max();
    for (int i = 0; i < nRounds; ++i)
        dBest = std::min(dBest, funcSeconds());
    return dBest;
}

constexpr int c_nRounds = 300;

void BM_PlainFirstStep(benchmark::State& state)
{
    const SDrag& drag = c_arrDrags[state.range(0)];
    CPlainDragBench plain(drag);
    for ([[maybe_unused]] auto round : state)
        state.SetIterationTime(plain.FirstSeconds());
    state.SetLabel(drag.szName);
}

void BM_Step(benchmark::State& state)
{
    const SDrag& drag = c_arrDrags[state.range(0)];
    CDragBench bench(drag);
    for ([[maybe_unused]] auto round : state)
        bench.Step();
    CPlainDragBench plain(drag);
    const double dPlain = BestOf(c_nRounds, [&plain] { return plain.FirstSeconds(); });
    const double dFast = BestOf(c_nRounds, [&bench] { return bench.SecondsOf(100); });
    state.counters["times_plain"] = dPlain / dFast;
    state.SetLabel(drag.szName);
}

void BM_LateStep(benchmark::State& state)
{
    constexpr int c_nEarly = 10;
    constexpr int c_nLate = 10000;
    constexpr int c_nTimed = 20;
    const SDrag& drag = c_arrDrags[state.range(0)];
    double dEarly = std::numeric_limits<double>::max();
    double dLate = dEarly;
    for ([[maybe_unused]] auto round : state) {
        CDragBench bench(drag);
        bench.SecondsOf(c_nEarly);
        dEarly = std::min(dEarly, bench.SecondsOf(c_nTimed));
        bench.SecondsOf(c_nLate);
        dLate = std::min(dLate, bench.SecondsOf(c_nTimed));
    }
    state.counters["late_to_early"] = dLate / dEarly;
    state.SetLabel(drag.szName);
}

/// Where a segment leaves the locus: the walk over all edges, and by their boxes.
void BM_PlainCrossing(benchmark::State& state)
{
    CChromaGamutInterpolation gamut;
    const QList<CPoint> listLocus = gamut.GetData();
    const SDrag& drag = c_arrDrags[state.range(0)];
    for ([[maybe_unused]] auto round : state) {
        CPoint ptOut;
        benchmark::DoNotOptimize(
            CPlainChart::GetCIEIntersection(listLocus, Group().ptWhite, drag.ptTo, ptOut));
    }
    state.SetLabel(drag.szName);
}

void BM_Crossing(benchmark::State& state)
{
    const CLocusEdges edges(CChromaGamutInterpolation().GetQPointFData());
    const SDrag& drag = c_arrDrags[state.range(0)];
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(edges.LastCrossing(Group().ptWhite, drag.ptTo));
    state.SetLabel(drag.szName);
}

void AllDrags(benchmark::internal::Benchmark* pBenchmark)
{
    pBenchmark->DenseRange(0, int(std::size(c_arrDrags)) - 1);
}

BENCHMARK(BM_PlainFirstStep)->Apply(AllDrags)->UseManualTime();
BENCHMARK(BM_Step)->Apply(AllDrags);
BENCHMARK(BM_LateStep)->Apply(AllDrags)->Iterations(50)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_PlainCrossing)->DenseRange(0, 1);
BENCHMARK(BM_Crossing)->DenseRange(0, 1);

} // namespace

int main(int nArguments, char** ppArguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(nArguments, ppArguments);
    benchmark::Initialize(&nArguments, ppArguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
