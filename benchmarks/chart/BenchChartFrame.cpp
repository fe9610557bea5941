#include "oracles/chart/PlainFrame.h"
#include "oracles/chart/PlainOverlays.h"
#include "oracles/chart/StandardGroup.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <memory>
#include <vector>

#include <malloc.h>

/// @file
/// A whole warm frame with two groups, tips, cross and legend under a moving mouse: in the plain order of
/// painting with everything anew, and as `CChromaticityDlgWnd::Draw` paints it. `times_plain` is the ratio of
/// the two, measured in turns.

namespace {

/// The mouse goes round in the middle of the diagram, through both triangles.
constexpr int c_nMouseSteps = 40;
constexpr QPointF c_ptMouseCentre(0.33, 0.35);
constexpr double c_dMouseRadius = 0.2;

/// A chart, its oracle and an image to paint them into.
class CStage
{
public:
    CStage(int nWidth, int nHeight, QImage::Format format)
        : m_image(nWidth, nHeight, format)
    {
        m_chart.resize(nWidth, nHeight);
        m_chart.SetSize(nWidth, nHeight);
        AddStandardGroup(m_chart, enOutputColorSpace, enStandardRec2020, true);
        AddStandardGroup(m_chart, enScreenColorSpace, enStandardSRGB, true);
        PaintFast();
        PaintPlain();
    }

    void PaintFast()
    {
        MoveMouse();
        QPainter painter(&m_image);
        m_chart.Draw(painter);
    }

    void PaintPlain()
    {
        MoveMouse();
        QPainter painter(&m_image);
        PlainFrame::Draw(m_chart, m_overlays, painter);
    }

private:
    void MoveMouse()
    {
        m_nStep = (m_nStep + 1) % c_nMouseSteps;
        const double dAngle = 2.0 * M_PI * m_nStep / c_nMouseSteps;
        const QPointF ptAround(c_dMouseRadius * std::cos(dAngle), c_dMouseRadius * std::sin(dAngle));
        m_chart.m_ptMouse = m_chart.Mapping().ToPixel(c_ptMouseCentre + ptAround).toPoint();
    }

    CChromaticityDlgWnd m_chart{nullptr};
    CPlainOverlays m_overlays{m_chart};
    QImage m_image;
    int m_nStep = 0;
};

double Seconds(const timespec& start, const timespec& end)
{
    return double(end.tv_sec - start.tv_sec) + 1e-9 * double(end.tv_nsec - start.tv_nsec);
}

template <class TFunc>
double SecondsOf(const TFunc& func)
{
    timespec start = {};
    timespec end = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &start);
    func();
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &end);
    return Seconds(start, end);
}

double Median(std::vector<double>& vecSeconds)
{
    const auto middle = vecSeconds.begin() + std::ptrdiff_t(vecSeconds.size() / 2);
    std::nth_element(vecSeconds.begin(), middle, vecSeconds.end());
    return *middle;
}

/// Median of the plain frames by the median of the warm ones, painted in turns so that both see the
/// same machine.
double TimesPlain(CStage& stage)
{
    constexpr int c_nRounds = 60;
    std::vector<double> vecFast;
    std::vector<double> vecPlain;
    for (int i = 0; i < c_nRounds; ++i) {
        vecFast.push_back(SecondsOf([&stage] { stage.PaintFast(); }));
        vecPlain.push_back(SecondsOf([&stage] { stage.PaintPlain(); }));
    }
    return Median(vecPlain) / Median(vecFast);
}

template <QImage::Format format>
void BM_PlainFrame(benchmark::State& state)
{
    CStage stage(int(state.range(0)), int(state.range(1)), format);
    while (state.KeepRunning())
        stage.PaintPlain();
}

template <QImage::Format format>
void BM_WarmFrame(benchmark::State& state)
{
    CStage stage(int(state.range(0)), int(state.range(1)), format);
    while (state.KeepRunning())
        stage.PaintFast();
    state.counters["times_plain"] = TimesPlain(stage);
}

void Sizes(benchmark::internal::Benchmark* pBenchmark)
{
    pBenchmark->Args({1000, 1000})->Args({1920, 1080})->Unit(benchmark::kMicrosecond);
}

BENCHMARK_TEMPLATE(BM_PlainFrame, QImage::Format_RGB32)->Apply(Sizes);
BENCHMARK_TEMPLATE(BM_WarmFrame, QImage::Format_RGB32)->Apply(Sizes);
BENCHMARK_TEMPLATE(BM_PlainFrame, QImage::Format_ARGB32_Premultiplied)->Apply(Sizes);
BENCHMARK_TEMPLATE(BM_WarmFrame, QImage::Format_ARGB32_Premultiplied)->Apply(Sizes);
BENCHMARK_TEMPLATE(BM_PlainFrame, QImage::Format_ARGB32)->Apply(Sizes);
BENCHMARK_TEMPLATE(BM_WarmFrame, QImage::Format_ARGB32)->Apply(Sizes);

} // namespace

int main(int argc, char** argv)
{
    // Large blocks always come from the system and go back to it, as in a new process. An allocator that
    // adapts would let the order of the benchmarks decide what the plain frame's two temporary images cost.
    constexpr int c_nMmapThreshold = 128 * 1024;
    mallopt(M_MMAP_THRESHOLD, c_nMmapThreshold);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
