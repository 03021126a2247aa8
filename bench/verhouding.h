// Runs the registered benchmarks and keeps the best processor time of each, so that a bench can print what it is about:
// the ratio of two times taken in one run on one machine. What else the machine does only adds to them.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace tavelo {

// Folder of the large schedules, made by the build.
inline const std::string bench_data = TAVELO_BENCH_DATA "/";

// For what takes less than a few milliseconds: many short turns, of which the best counts.
template <class... Rest>
void meet_vaak(const char* naam, Rest... rest) {
    benchmark::RegisterBenchmark(naam, rest...)->Repetitions(25)->MinTime(0.1)->Unit(benchmark::kMicrosecond);
}

class Tijden : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
            const double seconden = run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
            const auto [plaats, nieuw] = tijden_.try_emplace(run.run_name.function_name, seconden);
            if (!nieuw) plaats->second = std::min(plaats->second, seconden);
        }
        ConsoleReporter::ReportRuns(runs);
    }

    // "ratio <what>: <ratio> (at most <most>)"; nothing when one of the two did not run.
    void druk_verhouding(const char* wat, const std::string& teller, const std::string& noemer,
                         double hoogstens) const {
        const auto boven = tijden_.find(teller);
        const auto onder = tijden_.find(noemer);
        if (boven == tijden_.end() || onder == tijden_.end()) return;
        std::printf("ratio %s: %.2f (at most %g)\n", wat, boven->second / onder->second, hoogstens);
    }

    // The same against a fixed time: "ratio <what>: <part of the budget used> (at most <most>)".
    void druk_budget(const char* wat, const std::string& teller, double budget_seconden, double hoogstens = 1) const {
        const auto boven = tijden_.find(teller);
        if (boven == tijden_.end()) return;
        std::printf("ratio %s: %.2f (at most %g)\n", wat, boven->second / budget_seconden, hoogstens);
    }

  private:
    std::map<std::string, double> tijden_;
};

} // namespace tavelo
