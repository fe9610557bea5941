#ifndef BENCHMARKS_SUPPORT_RATIOREPORTER_H
#define BENCHMARKS_SUPPORT_RATIOREPORTER_H

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// Prints the usual table and then, for each subject, every contender's time and its ratio to the library's.
///
/// Benchmarks are named `subject/contender`; the contender `library` is what the others are divided by. Of
/// repeated runs the fastest counts, because a busy machine disturbed it least.
class CRatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& vecRuns) override
    {
        ConsoleReporter::ReportRuns(vecRuns);
        for (const Run& run : vecRuns) {
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                Note(run);
        }
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        std::printf("\nTime of each contender, and how many times the library's that is:\n");
        for (const std::string& strSubject : m_vecSubjects)
            PrintSubject(strSubject);
    }

private:
    struct STime
    {
        std::string strContender;
        double dTime;
        const char* szUnit;
    };

    void Note(const Run& run)
    {
        const std::string strName = run.run_name.function_name;
        const std::size_t nSlash = strName.rfind('/');
        if (nSlash == std::string::npos)
            return;
        const std::string strSubject = strName.substr(0, nSlash);
        if (m_mapTimes.count(strSubject) == 0)
            m_vecSubjects.push_back(strSubject);
        std::vector<STime>& vecTimes = m_mapTimes[strSubject];
        const STime time = {strName.substr(nSlash + 1), run.GetAdjustedCPUTime(),
                            benchmark::GetTimeUnitString(run.time_unit)};
        const auto known = std::find_if(vecTimes.begin(), vecTimes.end(), [&time](const STime& other) {
            return other.strContender == time.strContender;
        });
        if (known == vecTimes.end())
            vecTimes.push_back(time);
        else
            known->dTime = std::min(known->dTime, time.dTime);
    }

    void PrintSubject(const std::string& strSubject) const
    {
        const std::vector<STime>& vecTimes = m_mapTimes.at(strSubject);
        const auto library = std::find_if(vecTimes.begin(), vecTimes.end(),
                                          [](const STime& time) { return time.strContender == "library"; });
        std::printf("  %s:", strSubject.c_str());
        for (const STime& time : vecTimes) {
            std::printf(" %s %.4g %s", time.strContender.c_str(), time.dTime, time.szUnit);
            if (library != vecTimes.end() && time.strContender != "library")
                std::printf(" (%.2f x)", time.dTime / library->dTime);
            std::printf("%s", &time == &vecTimes.back() ? "\n" : ",");
        }
    }

    std::vector<std::string> m_vecSubjects; ///< in the order of their first run
    std::map<std::string, std::vector<STime>> m_mapTimes;
};

/// The body of a benchmark's `main`: runs what is registered and prints the ratios.
inline int RunWithRatios(int nArguments, char** ppArguments)
{
    benchmark::Initialize(&nArguments, ppArguments);
    if (benchmark::ReportUnrecognizedArguments(nArguments, ppArguments))
        return 1;
    CRatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}

#endif // BENCHMARKS_SUPPORT_RATIOREPORTER_H
