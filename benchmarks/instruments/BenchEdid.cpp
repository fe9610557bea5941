// EDIDs explained and judged in one call each, beside the installed decoder, which takes a process
// for each file.

#include "host/CommonClass/EdidBlockSize.h"
#include "instruments/edid/Conforming.h"
#include "instruments/edid/Explanation.h"
#include "instruments/edid/Rules.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

namespace {

/// Blocks of many modes, so that no branch predictor learns them.
std::vector<QByteArray> Blocks()
{
    constexpr int c_nBlocks = 1000;
    std::vector<QByteArray> vecBlocks;
    for (int i = 0; int(vecBlocks.size()) < c_nBlocks; ++i) {
        const int nWidth = 640 + i * 8 % 3000;
        const int nHeight = 480 + i * 6 % 1600;
        const float fRate = 24.0F + float(i % 40);
        const QByteArray edid =
            Edid::MakeConforming({nWidth, nHeight, fRate, QStringLiteral("LED"), {}, 60, 34}).edid;
        if (edid.size() == c_nEdidBlockSize)
            vecBlocks.push_back(edid);
    }
    return vecBlocks;
}

const quint8* BytesOf(const QByteArray& edid)
{
    return reinterpret_cast<const quint8*>(edid.constData());
}

void ExplainAndCheck(benchmark::State& state)
{
    const std::vector<QByteArray> vecBlocks = Blocks();
    std::vector<Edid::SField> vecFields;
    std::vector<Edid::SFinding> vecFindings;
    for (auto _ : state) {
        for (const QByteArray& edid : vecBlocks) {
            Edid::Explain(BytesOf(edid), edid.size(), vecFields);
            Edid::Check(BytesOf(edid), edid.size(), {2026}, vecFindings);
            benchmark::DoNotOptimize(vecFields.data());
            benchmark::DoNotOptimize(vecFindings.data());
        }
    }
    state.SetItemsProcessed(state.iterations() * int64_t(vecBlocks.size()));
}

/// One file a process, as a script would do it.
void Decoder(benchmark::State& state)
{
    char szFile[] = "/tmp/sender-bench-edid-XXXXXX";
    const int nFile = mkstemp(szFile);
    std::FILE* pFile = nFile < 0 ? nullptr : fdopen(nFile, "wb");
    const QByteArray edid = Blocks().front();
    if (pFile == nullptr ||
        std::fwrite(edid.constData(), 1, std::size_t(edid.size()), pFile) != std::size_t(edid.size())) {
        state.SkipWithError("the file for the decoder could not be written");
        return;
    }
    std::fclose(pFile);
    const std::string strCommand = std::string("edid-decode --check ") + szFile + " > /dev/null";
    for (auto _ : state)
        benchmark::DoNotOptimize(std::system(strCommand.c_str()));
    std::remove(szFile);
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(ExplainAndCheck)->Unit(benchmark::kMillisecond);
BENCHMARK(Decoder)->Unit(benchmark::kMillisecond)->UseRealTime();

/// Reports blocks per second.
class CRates : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& vecRuns) override
    {
        ConsoleReporter::ReportRuns(vecRuns);
        for (const Run& run : vecRuns) {
            const auto it = run.counters.find("items_per_second");
            if (it != run.counters.end())
                m_mapRates[run.run_name.function_name] = it->second.value;
        }
    }

    void PrintRatio() const
    {
        const auto it = m_mapRates.find("ExplainAndCheck");
        const auto itOther = m_mapRates.find("Decoder");
        if (it == m_mapRates.end() || itOther == m_mapRates.end())
            return;
        std::printf("\nBlocks in a second: %.0f here, %.0f with edid-decode: %.0f times as many\n",
                    it->second, itOther->second, it->second / itOther->second);
    }

private:
    std::map<std::string, double> m_mapRates;
};

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    CRates rates;
    benchmark::RunSpecifiedBenchmarks(&rates);
    benchmark::Shutdown();
    rates.PrintRatio();
    return 0;
}
