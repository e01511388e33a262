#include "benchmarks/bench_report.h"

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

struct Pair
{
    std::string name;
    BenchGoal goal;
};

std::vector<Pair>& pairs()
{
    static std::vector<Pair> all;
    return all;
}

// Keeps the best time of each benchmark: what disturbs a run only ever makes it longer.
class BestTimes : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& /*unused*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred)
                continue;
            const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
            const auto counter = run.counters.find("items");
            const double each = counter == run.counters.end() ? 1 : double(counter->second);
            const std::string name = run.run_name.function_name;
            const auto [known, isNew] = m_best.try_emplace(name, seconds / each);
            if (!isNew)
                known->second = std::min(known->second, seconds / each);
        }
    }
    double of(const std::string& name) const
    {
        const auto found = m_best.find(name);
        return found == m_best.end() ? 0 : found->second;
    }

private:
    std::map<std::string, double> m_best;
};

bool printLine(const Pair& pair, const BestTimes& times)
{
    const double ours = times.of(pair.name + "/ours") / pair.goal.perSecond;
    const double base =
        pair.goal.bound > 0 ? pair.goal.bound : times.of(pair.name + "/base") / pair.goal.perSecond;
    if (ours <= 0 || base <= 0) {
        std::printf("%s failed to run\n", pair.name.c_str());
        return false;
    }
    const double ratio = ours / base;
    std::printf("%s ours=%.4g base=%.4g ratio=%.3f goal=%.2f unit=%s\n", pair.name.c_str(), ours,
                base, ratio, pair.goal.ratio, qPrintable(pair.goal.unit));
    std::fflush(stdout);
    return ratio <= pair.goal.ratio;
}

}  // namespace

void registerPair(const char* name, const BenchGoal& goal, BenchFunction ours, BenchFunction base,
                  int repetitions)
{
    const std::string stem = name;
    pairs().push_back({stem, goal});
    const auto add = [&goal, repetitions](const std::string& full, BenchFunction function) {
        auto* registered = benchmark::RegisterBenchmark(full.c_str(), function);
        registered->Repetitions(repetitions);
        if (goal.ownFigure)
            registered->UseManualTime()->Iterations(1);
        else
            registered->UseRealTime();
    };
    add(stem + "/ours", ours);
    if (base)
        add(stem + "/base", base);
}

bool runPairs(const QString& filter)
{
    bool good = true;
    bool any = false;
    for (const Pair& pair : pairs()) {
        if (!QString::fromStdString(pair.name).contains(filter))
            continue;
        any = true;
        BestTimes times;
        // Ours and the baseline take turns, so that both meet the same weather.
        benchmark::RunSpecifiedBenchmarks(&times, "^" + pair.name + "/");
        good = printLine(pair, times) && good;
    }
    if (!any)
        std::fprintf(stderr, "no benchmark is named like '%s'\n", qPrintable(filter));
    return good && any;
}
