// SPDX-License-Identifier: BSD-3-Clause
// Benchmark output as ratios: every benchmark named "qsp/<case>" that has a
// twin "<peer>/<case>" gets a line peer-time / qsp-time, so that a ratio
// above 1 means the library is faster. Absolute times on a shared machine
// say little; ratios of runs made side by side say more. Two ratios are
// printed: of wall-clock time, and of the process's processor time, which
// leaves out the time the benchmark spent descheduled while other programs
// ran (the one to read when the machine is busier than its cores).
#pragma once
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace qspbench {

class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& r : runs) {
            if (r.run_type != Run::RT_Iteration || r.error_occurred) continue;
            const std::string name = r.benchmark_name();
            const auto slash = name.find('/');
            if (slash == std::string::npos) continue;
            // With --benchmark_repetitions the fastest repetition counts: on a
            // shared machine the slower ones measure the neighbours.
            Times& t = times_[name.substr(slash + 1)][name.substr(0, slash)];
            const double real = r.GetAdjustedRealTime(), cpu = r.GetAdjustedCPUTime();
            if (t.real == 0 || real < t.real) t.real = real;
            if (t.cpu == 0 || cpu < t.cpu) t.cpu = cpu;
            if (seen_.insert(name.substr(slash + 1)).second) order_.push_back(name.substr(slash + 1));
        }
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        std::printf("\n%-40s %-12s %s\n", "case", "peer", "peer time / qsp time: wall  processor");
        for (const std::string& c : order_) {
            const auto& byImpl = times_[c];
            const auto ours = byImpl.find("qsp");
            if (ours == byImpl.end()) continue;
            for (const auto& [impl, t] : byImpl)
                if (impl != "qsp")
                    std::printf("%-40s %-12s %30.3f %10.3f\n", c.c_str(), impl.c_str(), t.real / ours->second.real,
                                t.cpu / ours->second.cpu);
        }
    }

private:
    struct Times {
        double real = 0, cpu = 0;
    };
    std::map<std::string, std::map<std::string, Times>> times_;
    std::vector<std::string> order_;
    std::set<std::string> seen_;
};

inline int runWithRatios(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}

}  // namespace qspbench

#define QSP_BENCH_MAIN() \
    int main(int argc, char** argv) { return qspbench::runWithRatios(argc, argv); }
