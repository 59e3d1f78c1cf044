// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are read as a file of tests: what was understood is written, read again and must be the same.
// What a machine of a few states can run of it is run.
#include "Require.h"
#include "run/TestReader.h"
#include "run/TestRunner.h"
#include "run/TestWriter.h"

#include <cstdint>
#include <string_view>

using namespace orvane;

namespace {

FsmDocument SmallMachine() {
    FsmDocument document;
    document.General.FsmName = "P";
    document.View.Polytask = true;
    for (const int row : {6, 7}) {
        document.Event(row).Name = row == 6 ? "Start" : "Stop";
        document.Event(row).Code = ";test";
    }
    document.State(1).Name = "Idle";
    document.State(1).Targets[6] = 2;
    document.State(2).Name = "Run";
    document.State(2).TimingMode = 2;
    document.State(2).TimingVar = ";limit";
    document.State(2).Targets[kTimeoutRow] = 3;
    document.State(2).Targets[7] = 1;
    document.State(3).Name = "End";
    document.State(3).Targets[kElseRow] = 1;
    return document;
}

// Lines with a slip hold nothing; without them the rest must come back as it was.
void CheckWriting(run::TestFile file) {
    std::erase_if(file.Lines, [](const run::TestLine& line) {
        return std::holds_alternative<std::monostate>(line.What) && !line.Comment;
    });
    const std::string written = run::WriteTestFile(file);
    const run::TestReadResult again = run::ReadTestFile(written);
    Require(again.File == file, "what was written reads back as it was");
    Require(run::WriteTestFile(again.File) == written, "the same file gives the same bytes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const run::TestReadResult read = run::ReadTestFile(bytes);
    for (const run::TestMessage& slip : read.Slips) {
        Require(!slip.Text.empty(), "a slip says something");
        Require(slip.At.Line >= 1 && slip.At.Line <= read.File.Lines.size(),
                "a slip's line is one of the file's");
        Require(slip.At.Column >= 1, "columns count from 1");
    }
    if (read.Slips.size() < run::kMostSlips)
        CheckWriting(read.File);

    static const FsmDocument machine = SmallMachine();
    const run::TestPlan plan = run::PlanTests(read.File, machine, "machine");
    if (!read.Slips.empty() || !plan.Slips.empty())
        return 0;
    const run::TestRunner runner(machine, plan, {});
    run::Coverage coverage = runner.NoCoverage();
    for (const run::PlannedTest& test : plan.Tests)
        (void)runner.Run(test, coverage);
    return 0;
}
