// SPDX-License-Identifier: GPL-3.0-or-later
#include "RatioTable.h"

#include <iomanip>

namespace orvane {

bool TakeBenchmarkArguments(int argc, char** argv, int repetitions) {
    // Defaults first: what the caller says comes later and wins. The library keeps the program's name.
    std::vector<std::string> defaults = {"--benchmark_repetitions=" + std::to_string(repetitions),
                                         "--benchmark_min_time=0.05",
                                         "--benchmark_enable_random_interleaving=true"};
    std::vector<char*> pointers = {argv[0]};
    for (std::string& argument : defaults)
        pointers.push_back(argument.data());
    pointers.insert(pointers.end(), argv + 1, argv + argc);
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    return !benchmark::ReportUnrecognizedArguments(count, pointers.data());
}

void LeastTimes::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        const double time = run.real_accumulated_time / static_cast<double>(run.iterations) * 1e9;
        const auto [entry, isNew] = nanoseconds_.emplace(run.run_name.function_name, time);
        if (!isNew && time < entry->second)
            entry->second = time;
    }
}

void LeastTimes::PrintTable(std::ostream& out, const std::vector<RatioLine>& lines) const {
    out << "| operation | document | bytes | time (us) | copy (us) | ratio | aim | per cell (ns) |\n"
        << "| --- | --- | ---: | ---: | ---: | ---: | ---: | ---: |\n"
        << std::fixed;
    for (const RatioLine& line : lines) {
        const auto time = nanoseconds_.find(line.Benchmark);
        if (time == nanoseconds_.end())
            continue;
        const auto floor = nanoseconds_.find(line.Floor);
        out << "| " << line.Operation << " | " << line.Document << " | " << line.Bytes << " | "
            << std::setprecision(1) << time->second / 1e3 << " | ";
        if (floor == nanoseconds_.end())
            out << "| | ";
        else
            out << floor->second / 1e3 << " | " << time->second / floor->second << " | ";
        if (line.Aim > 0)
            out << std::setprecision(0) << line.Aim << " ";
        out << "| " << std::setprecision(1) << time->second / line.Cells << " |\n";
    }
}

} // namespace orvane
