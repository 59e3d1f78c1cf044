// SPDX-License-Identifier: GPL-3.0-or-later
#include "RatioTable.h"

#include <iomanip>

namespace orvane {

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
