// The EDID block and its timing beside libxcvt, which calculates the published formula for the X server, for
// the same mode in the same run. After the table the ratios are printed.

#include "SenderModuleDialog/edid/EDIDRaw.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

extern "C" {
#include <libxcvt/libxcvt.h>
}

namespace {

/// Read back in every round, so that nothing is calculated ahead.
int g_nWidth = 1920;
int g_nHeight = 1080;
float g_fRate = 60.0F;

void Xcvt(benchmark::State& state, bool bReduced)
{
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(g_nWidth);
        libxcvt_mode_info* pMode = libxcvt_gen_mode_info(g_nWidth, g_nHeight, g_fRate, bReduced, false);
        benchmark::DoNotOptimize(pMode);
        std::free(pMode);
    }
}

void CalCVTtiming(benchmark::State& state, int nReduced)
{
    const CEDIDRaw edid;
    tagSBlankTiming timing = {};
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(g_nWidth);
        edid.CalCVTtiming(g_nWidth, g_nHeight, g_fRate, 0, nReduced, 0, &timing);
        benchmark::DoNotOptimize(timing);
    }
}

void ChangeWH(benchmark::State& state)
{
    CEDIDRaw edid;
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(g_nWidth);
        edid.ChangeWH(g_nWidth, g_nHeight, g_fRate);
        benchmark::DoNotOptimize(edid);
    }
}

void CalReslutionPixelFreq(benchmark::State& state, float fRate)
{
    const CEDIDRaw edid;
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(g_nWidth);
        float fFrequency = edid.CalReslutionPixelFreq(g_nWidth, g_nHeight, fRate, 0);
        benchmark::DoNotOptimize(fFrequency);
    }
}

BENCHMARK_CAPTURE(Xcvt, reduced, true);
BENCHMARK_CAPTURE(CalCVTtiming, reduced, 1);
BENCHMARK_CAPTURE(Xcvt, normal, false);
BENCHMARK_CAPTURE(CalCVTtiming, normal, 0);
BENCHMARK(ChangeWH);
BENCHMARK_CAPTURE(CalReslutionPixelFreq, matched, 60.0F);
BENCHMARK_CAPTURE(CalReslutionPixelFreq, unmatched, 59.94F);

/// Prints the ordinary table and keeps the times for the ratios.
class CTimes : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& vecRuns) override
    {
        ConsoleReporter::ReportRuns(vecRuns);
        for (const Run& run : vecRuns)
            m_mapTimes[run.benchmark_name()] = run.GetAdjustedCPUTime();
    }

    /// Prints the ratio of two times when both have run.
    void PrintRatio(const std::string& strName, const std::string& strOther, double dMost) const
    {
        const auto it = m_mapTimes.find(strName);
        const auto itOther = m_mapTimes.find(strOther);
        if (it == m_mapTimes.end() || itOther == m_mapTimes.end())
            return;
        std::printf("%-34s %5.2f times %-14s (at most %.2f)\n", strName.c_str(), it->second / itOther->second,
                    strOther.c_str(), dMost);
    }

private:
    std::map<std::string, double> m_mapTimes;
};

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    CTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    benchmark::Shutdown();
    times.PrintRatio("CalCVTtiming/reduced", "Xcvt/reduced", 0.5);
    times.PrintRatio("CalCVTtiming/normal", "Xcvt/normal", 0.5);
    times.PrintRatio("ChangeWH", "Xcvt/reduced", 3.0);
    times.PrintRatio("CalReslutionPixelFreq/matched", "Xcvt/reduced", 1.0);
    times.PrintRatio("CalReslutionPixelFreq/unmatched", "Xcvt/reduced", 1.0);
    return 0;
}
