// What geometry costs the chart. Nothing here has a fast path; the same questions in plain double are
// measured for comparison.

#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "SenderModuleDialog/geometry/Line.h"
#include "SenderModuleDialog/geometry/Polygon.h"
#include "oracles/geometry/PlainGeometry.h"

#include <QLineF>

#include <benchmark/benchmark.h>

#include <random>

namespace {

using Triangle = std::vector<CPointEx<float>>;

constexpr int c_nSegments = 1024;

/// Whole numbers of the generator itself: the same input on every machine.
std::vector<CPointEx<float>> RandomPoints(int nCount)
{
    std::mt19937 generator(20260);
    std::vector<CPointEx<float>> vecPoints;
    for (int i = 0; i < nCount; ++i) {
        const float fX = float(generator() >> 8U) * 0x1p-24F;
        const float fY = float(generator() >> 8U) * 0x1p-24F;
        vecPoints.emplace_back(fX, fY);
    }
    return vecPoints;
}

QPointF Widened(CPointEx<float> pt)
{
    return {double(pt.x), double(pt.y)};
}

void GetSegmentCross(benchmark::State& state)
{
    const auto vecPoints = RandomPoints(c_nSegments + 3);
    std::size_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        float fX = 0.0F;
        float fY = 0.0F;
        benchmark::DoNotOptimize(CLine::GetSegmentCross(vecPoints[i], vecPoints[i + 1], vecPoints[i + 2],
                                                        vecPoints[i + 3], fX, fY));
        benchmark::DoNotOptimize(fX);
        benchmark::DoNotOptimize(fY);
        i = (i + 1) % c_nSegments;
    }
}
BENCHMARK(GetSegmentCross);

void GetSegmentCross_QLineF(benchmark::State& state)
{
    const auto vecPoints = RandomPoints(c_nSegments + 3);
    std::size_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        const QLineF line(Widened(vecPoints[i]), Widened(vecPoints[i + 1]));
        const QLineF lineOther(Widened(vecPoints[i + 2]), Widened(vecPoints[i + 3]));
        QPointF ptCross;
        benchmark::DoNotOptimize(line.intersects(lineOther, &ptCross));
        benchmark::DoNotOptimize(ptCross);
        i = (i + 1) % c_nSegments;
    }
}
BENCHMARK(GetSegmentCross_QLineF);

void GrahamScan(benchmark::State& state)
{
    QVector<QPointF> vecPoints;
    for (const CPointEx<float>& pt : RandomPoints(int(state.range(0))))
        vecPoints.append(Widened(pt));
    for ([[maybe_unused]] auto _ : state) {
        CPolygon polygon(vecPoints);
        polygon.GrahamScan();
        benchmark::DoNotOptimize(polygon);
    }
}
// 471 is the number of wavelengths of the colour-matching table.
BENCHMARK(GrahamScan)->Arg(12)->Arg(100)->Arg(471);

/// The chromaticities of two common colour standards.
const Triangle c_triangleNtsc = {{0.67F, 0.33F}, {0.21F, 0.71F}, {0.14F, 0.08F}};
const Triangle c_triangleSrgb = {{0.64F, 0.33F}, {0.30F, 0.60F}, {0.15F, 0.06F}};

void CalcChromaRatio(benchmark::State& state)
{
    Triangle vecA = c_triangleSrgb;
    Triangle vecB = c_triangleNtsc;
    for ([[maybe_unused]] auto _ : state) {
        float fRatio = 0.0F;
        CCalcChromaRatio().CalcChromaRatio(vecA, vecB, fRatio);
        benchmark::DoNotOptimize(fRatio);
    }
}
BENCHMARK(CalcChromaRatio);

PlainGeometry::Polygon Widened(const Triangle& triangle)
{
    return {Widened(triangle[0]), Widened(triangle[1]), Widened(triangle[2])};
}

void CalcChromaRatio_ClipperInDouble(benchmark::State& state)
{
    const PlainGeometry::Polygon a = Widened(c_triangleSrgb);
    const PlainGeometry::Polygon b = Widened(c_triangleNtsc);
    for ([[maybe_unused]] auto _ : state) {
        double dRatio = PlainGeometry::Area(PlainGeometry::Overlap(a, b)) / PlainGeometry::Area(b);
        benchmark::DoNotOptimize(dRatio);
    }
}
BENCHMARK(CalcChromaRatio_ClipperInDouble);

} // namespace

BENCHMARK_MAIN();
