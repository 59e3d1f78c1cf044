// SPDX-License-Identifier: GPL-3.0-or-later
// What a scan of a machine costs, beside the least that any automaton with such a table does: find the lowest
// true event of the state, look up its target, go there. Both take the same stream of inputs in the same run.
// Then what a user waits for: tests, what can be known of a machine, and a tour.
#include "RatioTable.h"
#include "SampleDocuments.h"
#include "core/DocumentReader.h"
#include "core/TimingMode.h"
#include "run/Advice.h"
#include "run/Machine.h"
#include "run/TestReader.h"
#include "run/TestRunner.h"
#include "run/Tour.h"

#include <benchmark/benchmark.h>

#include <array>
#include <bit>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>

namespace orvane {
namespace {

constexpr std::size_t kScans = 1024; // an iteration

// Bits of event rows, each true once in eight looks.
std::vector<std::uint64_t> InputStream() {
    std::mt19937_64 random(1);
    std::vector<std::uint64_t> stream(kScans);
    for (std::uint64_t& events : stream)
        events = random() & random() & random() & ~std::uint64_t{0x3F};
    return stream;
}

void Scan(benchmark::State& state, const FsmDocument& document) {
    const run::Machine machine(document);
    const std::vector<std::uint64_t> stream = InputStream();
    run::Config config;
    run::Inputs inputs;
    inputs.Limits.fill(1000);
    std::vector<run::Taken> log;
    machine.PowerOn(config, inputs, log);
    for ([[maybe_unused]] auto iteration : state) {
        for (const std::uint64_t events : stream) {
            log.clear();
            inputs.Events = events;
            ++config.Now;
            benchmark::DoNotOptimize(machine.Scan(config, inputs, log));
        }
    }
}

void BareTable(benchmark::State& state, const FsmDocument& document) {
    std::vector<std::array<std::uint8_t, 64>> table(kStateCount + 1);
    for (const StateNumber from : StateNumbers()) {
        for (const RowNumber row : EventRows())
            table[from.Number()][row.Number()] =
                static_cast<std::uint8_t>(document.State(from).Targets[row].Number());
    }
    const std::vector<std::uint64_t> stream = InputStream();
    std::size_t present = 1;
    for ([[maybe_unused]] auto iteration : state) {
        for (const std::uint64_t events : stream) {
            if (events != 0)
                present = table[present][std::countr_zero(events)];
            benchmark::DoNotOptimize(present);
        }
    }
}

// As `orvanec test` does it, but for reading the files: 10,000 steps under all four readings.
void RunSteps(benchmark::State& state, FsmDocument document) {
    for (const StateNumber number : StateNumbers()) { // a limit that has to be computed is not known
        document.State(number).TimingMode = kStartConstant;
        document.State(number).TimeConst = "1000";
    }
    std::string text;
    for (int test = 0; test < 100; ++test) {
        text += "test of many steps\n";
        for (int step = 0; step < 100; ++step)
            text += step % 2 == 0 ? "pulse #6\n" : "+5 pulse #7\n";
    }
    for ([[maybe_unused]] auto iteration : state) {
        const run::TestReadResult read = run::ReadTestFile(text);
        const run::TestPlan plan = run::PlanTests(read.File, document, "document");
        const run::TestRunner runner(document, plan, {});
        run::Coverage coverage = runner.NoCoverage();
        for (const run::PlannedTest& test : plan.Tests)
            benchmark::DoNotOptimize(runner.Run(test, coverage));
    }
}

void Explore(benchmark::State& state, const std::vector<FsmDocument>& documents) {
    for ([[maybe_unused]] auto iteration : state) {
        for (const FsmDocument& document : documents)
            benchmark::DoNotOptimize(run::AdviceOn(document));
    }
}

void MakeTour(benchmark::State& state, const FsmDocument& document) {
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(run::MakeTour(document, {}));
}

std::vector<FsmDocument> Examples() {
    std::vector<FsmDocument> examples;
    for (const auto& entry : std::filesystem::directory_iterator(ORVANE_EXAMPLES)) {
        if (entry.path().extension() != ".zfsm")
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        examples.push_back(ReadDocument(bytes).Document);
    }
    return examples;
}

} // namespace
} // namespace orvane

int main(int argc, char** argv) {
    using namespace orvane;
    if (!TakeBenchmarkArguments(argc, argv, 15))
        return 2;

    const FsmDocument limit = DocumentAtTheLimit();
    benchmark::RegisterBenchmark("scan/limit", [&](benchmark::State& state) { Scan(state, limit); });
    benchmark::RegisterBenchmark("bare/limit", [&](benchmark::State& state) { BareTable(state, limit); });
    benchmark::RegisterBenchmark("steps/limit", [&](benchmark::State& state) { RunSteps(state, limit); });
    const std::vector<FsmDocument> examples = Examples();
    benchmark::RegisterBenchmark("explore/examples",
                                 [&](benchmark::State& state) { Explore(state, examples); });
    benchmark::RegisterBenchmark("explore/limit", [&](benchmark::State& state) { Explore(state, {limit}); });
    const FsmDocument large = SampleDocument(40, 39); // as many transitions as the largest real machine
    benchmark::RegisterBenchmark("tour/large", [&](benchmark::State& state) { MakeTour(state, large); });
    benchmark::RegisterBenchmark("tour/limit", [&](benchmark::State& state) { MakeTour(state, limit); });
    LeastTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    // A cell of this table is one scan: 50 ns are 20 million a second.
    const int exampleCount = std::max<int>(static_cast<int>(examples.size()), 1);
    times.PrintTable(std::cout,
                     {{"scan, 1024 times", "limit", "scan/limit", "bare/limit", kScans, 0, 10},
                      {"test, a cell is a step", "limit", "steps/limit", "", 10'000, 0, 0},
                      {"explore, a cell is one", "examples", "explore/examples", "", exampleCount, 0, 0},
                      {"explore", "limit", "explore/limit", "", 100 * 49, 0, 0},
                      {"tour", "40 by 39", "tour/large", "", 40 * 39, 0, 0},
                      {"tour", "limit", "tour/limit", "", 100 * 49, 0, 0}});
    return 0;
}
