#include "benchmarks/support/RatioReporter.h"
#include "instruments/colour/MeasurementCsv.h"
#include "instruments/colour/StandardGamut.h"
#include "instruments/colour/WallAnalysis.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

namespace {

constexpr int c_nModules = 10000;
constexpr SChromaticity c_d65 = {0.3127, 0.3290};

/// A wall of one delivery.
const Modules& Wall()
{
    static const Modules s_modules = [] {
        std::mt19937 engine(1);
        std::normal_distribution<double> place(0.0, 0.0005);
        Modules modules;
        for (int i = 0; i < c_nModules; ++i) {
            SModule module = {QString::number(i),
                              {{{0.69, 0.304}, 240.0}, {{0.19, 0.72}, 800.0}, {{0.14, 0.055}, 75.0}},
                              {}};
            for (SReading* pReading :
                 {&module.primaries.red, &module.primaries.green, &module.primaries.blue}) {
                pReading->xy.dX += place(engine);
                pReading->dLuminance *= 1.0 + 10.0 * place(engine);
            }
            modules.push_back(module);
        }
        return modules;
    }();
    return s_modules;
}

void Read(benchmark::State& state)
{
    const QByteArray content = MeasurementCsv::Write(Wall(), {}).toUtf8();
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(MeasurementCsv::Read(content).modules.size());
}

void Analyse(benchmark::State& state)
{
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(bool(WallAnalysis::Of(Wall(), c_d65, c_arrColourStandards[7])));
}

/// The nearest temperature on the tabulated curve, and by the same search on Planck's law itself.
void Temperature(benchmark::State& state)
{
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(PlanckianLocus::TemperatureOf(c_d65)->dKelvin);
}

double SquaredDistance(double dMired, SUcs1960 uv)
{
    const SUcs1960 pt = PlanckianLocus::PointOfTemperature(1e6 / dMired);
    return (pt.dU - uv.dU) * (pt.dU - uv.dU) + (pt.dV - uv.dV) * (pt.dV - uv.dV);
}

void PlainTemperature(benchmark::State& state)
{
    const SUcs1960 uv = Chromaticity::ToUcs1960(Chromaticity::ToUcs(c_d65));
    for ([[maybe_unused]] auto round : state) {
        double dLow = 50.0;
        double dHigh = 1000.0;
        while (dHigh - dLow > 1e-6) {
            const double dThird = (dHigh - dLow) / 3.0;
            if (SquaredDistance(dLow + dThird, uv) < SquaredDistance(dHigh - dThird, uv))
                dHigh -= dThird;
            else
                dLow += dThird;
        }
        benchmark::DoNotOptimize(1e6 / dLow);
    }
}

} // namespace

int main(int nArguments, char** ppArguments)
{
    benchmark::RegisterBenchmark("read 10,000 modules/library", Read)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("analyse 10,000 modules/library", Analyse)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("correlated temperature/library", Temperature)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("correlated temperature/plain", PlainTemperature)
        ->Unit(benchmark::kMicrosecond);
    return RunWithRatios(nArguments, ppArguments);
}
