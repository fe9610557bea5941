#include "SenderModuleDialog/chart/ChartMapping.h"
#include "SenderModuleDialog/chart/bitmap/ChromaBitmapPainter.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "oracles/chart/PlainBitmap.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <limits>
#include <map>
#include <utility>

/// @file
/// The background bitmap: the plain procedure, each instruction set of the painter, and filling an image of
/// the same size, which is the least that a new bitmap costs. `times_plain` is how much faster than the plain
/// procedure, `of_fill` how much longer than the fill.

namespace {

using ChromaBitmap::SSource;

SSource Source(int nWidth, int nHeight)
{
    SSource source;
    source.nWidth = nWidth;
    source.nHeight = nHeight;
    source.vecLocus = CChromaGamutInterpolation().GetQPointFData();
    const CChartMapping mapping = CChartMapping::ForSize(nWidth, nHeight);
    for (const QPointF pt : qAsConst(source.vecLocus)) {
        const QPointF ptPixel = mapping.ToPixel(pt);
        source.vecOutline.emplace_back(float(ptPixel.x()), float(ptPixel.y()));
    }
    return source;
}

/// The shortest processor time of several rounds, in seconds: other load on the machine does not count.
template <class TFunc>
double BestSeconds(int nRounds, const TFunc& func)
{
    double dBest = std::numeric_limits<double>::max();
    for (int i = 0; i < nRounds; ++i) {
        timespec start = {};
        timespec end = {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &start);
        func();
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &end);
        dBest =
            std::min(dBest, double(end.tv_sec - start.tv_sec) + 1e-9 * double(end.tv_nsec - start.tv_nsec));
    }
    return dBest;
}

QImage PaintPlain(const SSource& source)
{
    return PlainBitmap::Paint(source.nWidth, source.nHeight, source.vecLocus, source.vecOutline);
}

QImage PaintFast(const SSource& source, ChromaBitmap::enInstructions instructions)
{
    return ChromaBitmap::Paint(
        source, [] { return false; }, instructions);
}

/// Seconds of the plain procedure by size, measured once.
double PlainSeconds(const SSource& source)
{
    constexpr int c_nRounds = 3;
    static std::map<std::pair<int, int>, double> s_mapSeconds;
    const auto key = std::make_pair(source.nWidth, source.nHeight);
    if (s_mapSeconds.count(key) == 0)
        s_mapSeconds[key] =
            BestSeconds(c_nRounds, [&source] { benchmark::DoNotOptimize(PaintPlain(source)); });
    return s_mapSeconds[key];
}

double FillSeconds(const SSource& source)
{
    constexpr int c_nRounds = 200;
    QImage image(source.nWidth, source.nHeight, QImage::Format_ARGB32);
    return BestSeconds(c_nRounds, [&image] {
        image.fill(Qt::transparent);
        benchmark::DoNotOptimize(image.constBits());
    });
}

void BM_Plain(benchmark::State& state)
{
    const SSource source = Source(int(state.range(0)), int(state.range(1)));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(PaintPlain(source));
}

void BM_Fill(benchmark::State& state)
{
    QImage image(int(state.range(0)), int(state.range(1)), QImage::Format_ARGB32);
    while (state.KeepRunning()) {
        image.fill(Qt::transparent);
        benchmark::DoNotOptimize(image.constBits());
    }
}

template <ChromaBitmap::enInstructions instructions>
void BM_Paint(benchmark::State& state)
{
    if (!ChromaBitmap::HasInstructions(instructions)) {
        state.SkipWithError("this processor has no such instructions");
        return;
    }
    const SSource source = Source(int(state.range(0)), int(state.range(1)));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(PaintFast(source, instructions));
    constexpr int c_nRounds = 200;
    const double dSeconds =
        BestSeconds(c_nRounds, [&source] { benchmark::DoNotOptimize(PaintFast(source, instructions)); });
    state.counters["times_plain"] = PlainSeconds(source) / dSeconds;
    state.counters["of_fill"] = dSeconds / FillSeconds(source);
}

void Sizes(benchmark::internal::Benchmark* pBenchmark)
{
    pBenchmark->Args({1000, 1000})->Args({1920, 1080})->Args({3840, 2160})->Unit(benchmark::kMillisecond);
}

BENCHMARK(BM_Plain)->Apply(Sizes)->Iterations(1);
BENCHMARK(BM_Fill)->Apply(Sizes);
BENCHMARK_TEMPLATE(BM_Paint, ChromaBitmap::enPlainInstructions)->Apply(Sizes);
BENCHMARK_TEMPLATE(BM_Paint, ChromaBitmap::enSse2Instructions)->Apply(Sizes);
BENCHMARK_TEMPLATE(BM_Paint, ChromaBitmap::enAvx2Instructions)->Apply(Sizes);
BENCHMARK_TEMPLATE(BM_Paint, ChromaBitmap::enNeonInstructions)->Apply(Sizes);

} // namespace

BENCHMARK_MAIN();
