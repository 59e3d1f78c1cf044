// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace orvane {

// One line of the table: what an operation on a document costs, beside the copy of its bytes.
struct RatioLine {
    std::string Operation;
    std::string Document;
    std::string Benchmark; // the name it was measured under
    std::string Floor;     // the name its copy was measured under; empty when there is none to compare with
    int Cells = 0;
    std::size_t Bytes = 0;
    double Aim = 0; // the largest ratio that is good; 0 when there is none
};

// Reads the command line of a benchmark program, which measures each operation so many times unless the
// caller says otherwise. False when there is something that no benchmark knows; it is told on standard error.
bool TakeBenchmarkArguments(int argc, char** argv, int repetitions);

// Keeps the least time of each benchmark, and prints only the table made of them: what disturbs a
// measurement only ever adds to it.
class LeastTimes : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override;

    void PrintTable(std::ostream& out, const std::vector<RatioLine>& lines) const;

  private:
    std::map<std::string, double> nanoseconds_;
};

} // namespace orvane
