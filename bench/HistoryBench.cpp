// SPDX-License-Identifier: GPL-3.0-or-later
// What it costs to go back in a run that is as long as a run can be, and to play all of it again after an
// edit. There is no floor: the aims are 0.1 ms for a step back, and that an edit is drawn within a frame as
// long as a run has some ten thousand steps.
#include "SampleDocuments.h"
#include "run/LiveRun.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace orvane {
namespace {

// Without the ELSE in each cell, by which the full table never comes to rest.
FsmDocument FullTableThatRests() {
    FsmDocument document = DocumentAtTheLimit();
    for (const StateNumber state : StateNumbers()) {
        document.State(state).Targets[kElseRow] = kNoState;
        document.State(state).Actions[kElseRow].clear();
    }
    return document;
}

// Pulses and waits in turn, on the table in which most can happen.
std::vector<run::RunStep> LongRun(std::size_t steps) {
    std::vector<run::RunStep> run;
    for (const StateNumber state : StateNumbers())
        run.push_back(run::LimitOf(state, 1000));
    run.push_back({0, run::RunAct::PowerOn});
    while (run.size() < steps) {
        run.push_back(run::PulseOf(run::BitOf(RowNumber(kFirstEventRow + int(run.size() % 49)))));
        run.push_back(run::WaitFor(1));
    }
    run.resize(steps);
    return run;
}

void StepBack(benchmark::State& state) {
    const FsmDocument document = FullTableThatRests();
    run::LiveRun live(document);
    live.Play({LongRun(run::kLongestRun), {}, {}, {run::kLongestRun, 0}});
    const std::size_t steps = live.Past()->Steps().size();
    std::size_t back = 0;
    for ([[maybe_unused]] auto iteration : state) {
        live.Back();
        benchmark::DoNotOptimize(live.Past()->Now().Where().Now);
        if (++back == steps / 2)
            state.SkipWithError("went back too far");
    }
    state.counters["steps"] = double(steps);
}

void PlayAgain(benchmark::State& state) {
    const FsmDocument document = FullTableThatRests();
    const auto steps = std::size_t(state.range(0));
    run::LiveRun live(document);
    live.Play({LongRun(steps), {}, {}, {steps, 0}});
    for ([[maybe_unused]] auto iteration : state)
        live.Recompile();
    state.counters["steps"] = double(live.Past()->Steps().size());
}

BENCHMARK(StepBack)->Iterations(20'000);
BENCHMARK(PlayAgain)->Arg(200)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace orvane

BENCHMARK_MAIN();
