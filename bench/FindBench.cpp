// SPDX-License-Identifier: GPL-3.0-or-later
// What it costs to find a text, to list uses, to rename and to move in a machine at the limit, beside what
// every edit costs in any case: the image of the document and its program. A letter typed into the pane must
// be answered within a frame of 16 ms.
#include "RatioTable.h"
#include "SampleDocuments.h"
#include "codegen/CodeGenerator.h"
#include "core/TightPacked.h"
#include "find/MovePlan.h"
#include "find/Rename.h"
#include "find/Replacement.h"
#include "find/Search.h"
#include "find/WhereUsed.h"
#include "table/StateSorting.h"

#include <benchmark/benchmark.h>

#include <iostream>

namespace orvane {
namespace {

constexpr double kMostOfAnEdit = 4;

class FindBench {
  public:
    // The document must outlive the run.
    explicit FindBench(const FsmDocument& document) : document_(document) {
        Register("edit", [&document] {
            benchmark::DoNotOptimize(Pack(document));
            benchmark::DoNotOptimize(GenerateProgram(document, {}));
        });
    }

    template <typename Work>
    void Add(const std::string& operation, double aim, Work work) {
        Register(operation, work);
        lines_.push_back({operation, "limit", operation, "edit", 100 * 49, 0, aim});
    }

    void AddSearch(const std::string& operation, const find::SearchQuery& query) {
        const find::Pattern pattern = std::get<find::Pattern>(find::ReadPattern(query));
        Add(operation, 0, [this, pattern] { benchmark::DoNotOptimize(find::Search(document_, pattern)); });
    }

    void Run() {
        LeastTimes times;
        benchmark::RunSpecifiedBenchmarks(&times);
        times.PrintTable(std::cout, lines_);
    }

  private:
    template <typename Work>
    static void Register(const std::string& name, Work work) {
        benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State& state) mutable {
            for ([[maybe_unused]] auto iteration : state)
                work();
        });
    }

    const FsmDocument& document_;
    std::vector<RatioLine> lines_;
};

void AddSearches(FindBench& bench) {
    bench.AddSearch("find a letter", {.Text = "e"});
    bench.AddSearch("find a rare word", {.Text = "nowhere"});
    bench.AddSearch("find a whole word", {.Text = "goto", .WholeWord = true});
    bench.AddSearch("find an expression", {.Text = "s\\w+_\\d", .IsExpression = true});
    bench.AddSearch("find .*x", {.Text = ".*nowhere", .IsExpression = true});
    bench.AddSearch("find (a+)+b", {.Text = "(\\w+)+!", .IsExpression = true});
}

void AddEdits(FindBench& bench, const FsmDocument& document) {
    bench.Add("where used", 0, [&] { benchmark::DoNotOptimize(find::UsesOf(document, find::OfState{50})); });
    bench.Add("rename a state", kMostOfAnEdit,
              [&] { benchmark::DoNotOptimize(find::PlanRename(document, find::OfState{50}, "Filling")); });
    bench.Add("rename the machine", kMostOfAnEdit,
              [&] { benchmark::DoNotOptimize(find::PlanRename(document, find::OfMachine{}, "Filling")); });
    bench.Add("move a state", kMostOfAnEdit, [&, moved = document]() mutable {
        TableClipboard clipboard;
        const find::MovePlan plan = find::PlanMove(moved, StateOrder::Moving(2, 100));
        find::Apply(moved, clipboard, plan, std::vector<bool>(plan.Labels.size(), true));
        benchmark::DoNotOptimize(moved);
    });
    bench.Add("move an event", kMostOfAnEdit, [&, moved = document]() mutable {
        TableClipboard clipboard;
        const find::MovePlan plan = find::PlanMove(moved, EventOrder::Moving(6, 54));
        find::Apply(moved, clipboard, plan, std::vector<bool>(plan.Labels.size(), true));
        benchmark::DoNotOptimize(moved);
    });
    bench.Add("sort by name", kMostOfAnEdit, [&] {
        benchmark::DoNotOptimize(find::PlanMove(document, SortedByName(document, StartState::Stays)));
    });
}

} // namespace
} // namespace orvane

int main(int argc, char** argv) {
    if (!orvane::TakeBenchmarkArguments(argc, argv, 7))
        return 2;
    const orvane::FsmDocument limit = orvane::DocumentAtTheLimit();
    orvane::FindBench bench(limit);
    orvane::AddSearches(bench);
    orvane::AddEdits(bench, limit);
    bench.Run();
    return 0;
}
