#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "SenderModuleDialog/colour/SpectralLocus.h"
#include "benchmarks/support/RatioReporter.h"
#include "oracles/colour/PlainColorimetry.h"

#include <benchmark/benchmark.h>
#include <lcms2.h>

#include <random>
#include <string>
#include <vector>

namespace {

/// Points of each set: enough that no branch predictor learns them.
constexpr int c_nPoints = 20000;

constexpr double c_dNearLocus = 0.01;

std::vector<QPointF> NearLocus()
{
    std::mt19937 engine(1);
    std::uniform_real_distribution<float> temperature(4000.0F, 25000.0F);
    std::uniform_real_distribution<double> offset(-c_dNearLocus, c_dNearLocus);
    std::vector<QPointF> vecPoints;
    while (int(vecPoints.size()) < c_nPoints) {
        QPointF pt;
        PlainColorimetry::TemperatureToPoint(temperature(engine), &pt, true);
        pt += QPointF(offset(engine), offset(engine));
        if (PlainColorimetry::IsInGate(pt))
            vecPoints.push_back(pt);
    }
    return vecPoints;
}

/// The same with the temperature drawn evenly in mired, as lamps are sorted: the walk is shorter.
std::vector<QPointF> NearLocusByMired()
{
    std::mt19937 engine(2);
    std::uniform_real_distribution<float> mired(40.0F, 250.0F);
    std::uniform_real_distribution<double> offset(-c_dNearLocus, c_dNearLocus);
    std::vector<QPointF> vecPoints;
    while (int(vecPoints.size()) < c_nPoints) {
        QPointF pt;
        PlainColorimetry::TemperatureToPoint(1000000.0F / mired(engine), &pt, true);
        pt += QPointF(offset(engine), offset(engine));
        if (PlainColorimetry::IsInGate(pt))
            vecPoints.push_back(pt);
    }
    return vecPoints;
}

std::vector<QPointF> WholeGate()
{
    std::mt19937 engine(3);
    std::uniform_real_distribution<double> coordinate(0.0, 1.0);
    std::vector<QPointF> vecPoints;
    while (int(vecPoints.size()) < c_nPoints) {
        const QPointF pt(coordinate(engine), coordinate(engine));
        if (PlainColorimetry::IsInGate(pt))
            vecPoints.push_back(pt);
    }
    return vecPoints;
}

std::vector<float> Temperatures()
{
    std::mt19937 engine(4);
    std::uniform_real_distribution<float> temperature(4000.0F, 25000.0F);
    std::vector<float> vecTemperatures;
    vecTemperatures.reserve(c_nPoints);
    for (int i = 0; i < c_nPoints; ++i)
        vecTemperatures.push_back(temperature(engine));
    return vecTemperatures;
}

std::vector<QPointF> Diagram()
{
    std::mt19937 engine(5);
    std::uniform_real_distribution<double> x(0.0, 0.8);
    std::uniform_real_distribution<double> y(0.0, 0.9);
    std::vector<QPointF> vecPoints;
    vecPoints.reserve(c_nPoints);
    for (int i = 0; i < c_nPoints; ++i)
        vecPoints.push_back(QPointF(x(engine), y(engine)));
    return vecPoints;
}

/// Runs one call per element of a set, over and over.
template <class T, class TCall>
void RunOver(benchmark::State& state, const std::vector<T>& vecSet, TCall call)
{
    std::size_t i = 0;
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(call(vecSet[i]));
        i = i + 1 == vecSet.size() ? 0 : i + 1;
    }
}

const CCCT2ColorCoord& Cct()
{
    static const CCCT2ColorCoord s_cct;
    return s_cct;
}

bool LibraryTemperature(const QPointF& pt)
{
    float fCCT = 0.0F;
    const bool bInRange = Cct().TriangAlgCalcRelativeCCT(pt, &fCCT, true);
    benchmark::DoNotOptimize(fCCT);
    return bInRange;
}

bool PlainTemperature(const QPointF& pt)
{
    static const std::vector<sCIE1931> s_vecRows = PlainColorimetry::MakeRows();
    sCIE1931 arrPair[2];
    float fCCT = 0.0F;
    const bool bInRange = PlainColorimetry::PointToTemperature(s_vecRows, pt, &fCCT, true, arrPair);
    benchmark::DoNotOptimize(fCCT);
    return bInRange;
}

bool LittleCmsTemperature(const QPointF& pt)
{
    const cmsCIExyY white = {pt.x(), pt.y(), 1.0};
    double dCCT = 0.0;
    const bool bFound = cmsTempFromWhitePoint(&dCCT, &white) != 0;
    benchmark::DoNotOptimize(dCCT);
    return bFound;
}

bool LibraryPoint(float fCCT)
{
    QPointF pt;
    const bool bInRange = Cct().CCTtoColorCoord(fCCT, &pt, false);
    benchmark::DoNotOptimize(pt);
    return bInRange;
}

bool PlainPoint(float fCCT)
{
    QPointF pt;
    const bool bInRange = PlainColorimetry::TemperatureToPoint(fCCT, &pt, false);
    benchmark::DoNotOptimize(pt);
    return bInRange;
}

bool LittleCmsPoint(float fCCT)
{
    cmsCIExyY white = {};
    const bool bFound = cmsWhitePointFromTemp(&white, double(fCCT)) != 0;
    benchmark::DoNotOptimize(white);
    return bFound;
}

bool LibraryInside(const QPointF& pt)
{
    static const CChromaGamutInterpolation s_gamut;
    return s_gamut.IsPointInCIEPolygon(pt);
}

bool PlainInside(const QPointF& pt)
{
    static const QVector<QPointF> s_vecOutline = SpectralLocus::Outline();
    return PlainColorimetry::Contains(s_vecOutline, pt);
}

void ConstructLibraryTemperature(benchmark::State& state)
{
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(CCCT2ColorCoord());
}

void ConstructPlainTemperature(benchmark::State& state)
{
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(PlainColorimetry::MakeRows());
}

void ConstructLibraryOutline(benchmark::State& state)
{
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(CChromaGamutInterpolation());
}

void ConstructPlainOutline(benchmark::State& state)
{
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(SpectralLocus::Outline());
}

template <class T, class TCall>
void Register(const char* szName, std::vector<T> (*pSet)(), TCall call)
{
    benchmark::RegisterBenchmark(szName,
                                 [pSet, call](benchmark::State& state) { RunOver(state, pSet(), call); });
}

void RegisterTemperature(const std::string& strSubject, std::vector<QPointF> (*pSet)())
{
    Register((strSubject + "/library").c_str(), pSet, LibraryTemperature);
    Register((strSubject + "/plain").c_str(), pSet, PlainTemperature);
    Register((strSubject + "/Little-CMS").c_str(), pSet, LittleCmsTemperature);
}

void RegisterAll()
{
    RegisterTemperature("temperature near the locus", NearLocus);
    RegisterTemperature("temperature near the locus by mired", NearLocusByMired);
    RegisterTemperature("temperature in the whole gate", WholeGate);
    Register("point of a temperature/library", Temperatures, LibraryPoint);
    Register("point of a temperature/plain", Temperatures, PlainPoint);
    Register("point of a temperature/Little-CMS", Temperatures, LittleCmsPoint);
    Register("inside the outline/library", Diagram, LibraryInside);
    Register("inside the outline/plain", Diagram, PlainInside);
    benchmark::RegisterBenchmark("construct the temperatures/library", ConstructLibraryTemperature);
    benchmark::RegisterBenchmark("construct the temperatures/plain", ConstructPlainTemperature);
    benchmark::RegisterBenchmark("construct the outline/library", ConstructLibraryOutline);
    benchmark::RegisterBenchmark("construct the outline/plain", ConstructPlainOutline);
}

} // namespace

int main(int nArguments, char** ppArguments)
{
    RegisterAll();
    return RunWithRatios(nArguments, ppArguments);
}
