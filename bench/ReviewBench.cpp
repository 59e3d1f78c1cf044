// SPDX-License-Identifier: GPL-3.0-or-later
// What it costs to compare and to merge two versions of a document, beside writing both documents, which
// looks at every byte of them once. Without names every state and event is to be guessed from its content.
#include "RatioTable.h"
#include "SampleDocuments.h"
#include "core/DocumentWriter.h"
#include "review/Compare.h"
#include "review/Merge.h"
#include "review/TellChanges.h"

#include <benchmark/benchmark.h>

#include <iostream>

namespace orvane {
namespace {

constexpr int kCells = kStateCount * (kLastRow - kFirstEventRow + 1);

struct Versions {
    FsmDocument Old;
    FsmDocument New;
};

FsmDocument WithoutNames(FsmDocument document) {
    for (const StateNumber state : StateNumbers())
        document.State(state).Name.clear();
    for (const RowNumber row : EventRows()) {
        document.Event(row).Name.clear();
        document.Event(row).Code = ";test";
    }
    return document;
}

// The last state has come to stand first, which renumbers every target; some cells are other ones.
FsmDocument Edited(const FsmDocument& document) {
    FsmDocument edited = document;
    for (const StateNumber state : StateNumbers()) {
        StateRecord& record = edited.State(state == StateNumbers().Last() ? 1 : state.Number() + 1);
        record = document.State(state);
        for (const RowNumber row : CellRows()) {
            const StateNumber target = record.Targets[row];
            if (target != kNoState)
                record.Targets[row] = target == StateNumbers().Last() ? 1 : target.Number() + 1;
        }
    }
    for (int state = 5; state <= kStateCount; state += 10)
        edited.State(state).Actions[20] = ";another action";
    return edited;
}

void Diff(benchmark::State& state, const Versions& versions) {
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(
            DiffText(review::Compare(versions.Old, versions.New), versions.Old, versions.New, "names"));
}

void MergeBoth(benchmark::State& state, const Versions& versions) {
    FsmDocument theirs = versions.Old;
    theirs.State(50).EntryCode = ";another entry";
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(review::Merge(versions.Old, versions.New, theirs));
}

void WriteBoth(benchmark::State& state, const Versions& versions) {
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(WriteDocument(versions.Old));
        benchmark::DoNotOptimize(WriteDocument(versions.New));
    }
}

} // namespace
} // namespace orvane

int main(int argc, char** argv) {
    using namespace orvane;
    if (!TakeBenchmarkArguments(argc, argv, 5))
        return 2;

    const Versions named{DocumentAtTheLimit(), Edited(DocumentAtTheLimit())};
    const FsmDocument nameless = WithoutNames(DocumentAtTheLimit());
    const Versions guessed{nameless, Edited(nameless)};
    using benchmark::RegisterBenchmark;
    RegisterBenchmark("diff/names", [&](benchmark::State& state) { Diff(state, named); });
    RegisterBenchmark("diff/nameless", [&](benchmark::State& state) { Diff(state, guessed); });
    RegisterBenchmark("merge/names", [&](benchmark::State& state) { MergeBoth(state, named); });
    RegisterBenchmark("write/names", [&](benchmark::State& state) { WriteBoth(state, named); });
    RegisterBenchmark("write/nameless", [&](benchmark::State& state) { WriteBoth(state, guessed); });
    LeastTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    times.PrintTable(std::cout,
                     {{"diff", "limit", "diff/names", "write/names", kCells, 0, 20},
                      {"diff, no names", "limit", "diff/nameless", "write/nameless", kCells, 0, 300},
                      {"merge", "limit", "merge/names", "write/names", kCells, 0, 30}});
    return 0;
}
