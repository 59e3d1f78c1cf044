// SPDX-License-Identifier: GPL-3.0-or-later
// What a scan of a machine costs, beside the least that any automaton with such a table does: find the lowest
// true event of the state, look up its target, go there. Both take the same stream of inputs in the same run.
#include "RatioTable.h"
#include "SampleDocuments.h"
#include "run/Machine.h"

#include <benchmark/benchmark.h>

#include <array>
#include <bit>
#include <iostream>
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

} // namespace
} // namespace orvane

int main(int argc, char** argv) {
    using namespace orvane;
    // Defaults first: what the caller says comes later and wins.
    std::vector<std::string> arguments = {argv[0], "--benchmark_repetitions=15", "--benchmark_min_time=0.05",
                                          "--benchmark_enable_random_interleaving=true"};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data()))
        return 2;

    const FsmDocument limit = DocumentAtTheLimit();
    benchmark::RegisterBenchmark("scan/limit", [&](benchmark::State& state) { Scan(state, limit); });
    benchmark::RegisterBenchmark("bare/limit", [&](benchmark::State& state) { BareTable(state, limit); });
    LeastTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    // A cell of this table is one scan: 50 ns are 20 million a second.
    times.PrintTable(std::cout, {{"scan, 1024 times", "limit", "scan/limit", "bare/limit", kScans, 0, 10}});
    return 0;
}
