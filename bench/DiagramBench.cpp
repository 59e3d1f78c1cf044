// SPDX-License-Identifier: GPL-3.0-or-later
// What a picture of a machine costs, cold and after an edit, and what each text export costs beside
// generating the program, which writes about as much.
#include "RatioTable.h"
#include "SampleDocuments.h"
#include "codegen/CodeGenerator.h"
#include "diagram/Layout.h"
#include "diagram/LetterWidths.h"
#include "diagram/Svg.h"
#include "export/Exports.h"

#include <benchmark/benchmark.h>

#include <iostream>

namespace orvane {
namespace {

constexpr int kCells = kStateCount * (kLastRow - kFirstEventRow + 1);
const diagram::LetterWidths kSizes;

void Cold(benchmark::State& state, const FsmDocument& document) {
    const diagram::Scene scene = diagram::MakeScene(document, kSizes);
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(diagram::ColdLayout(scene, kSizes, diagram::Direction::LeftToRight));
}

// From the document to the bytes of the picture, which take longer than painting it does.
void AfterEdit(benchmark::State& state, FsmDocument document) {
    const diagram::Layout before =
        diagram::ColdLayout(diagram::MakeScene(document, kSizes), kSizes, diagram::Direction::LeftToRight);
    document.State(1).Targets[54] = 7;
    for ([[maybe_unused]] auto iteration : state) {
        const diagram::Scene scene = diagram::MakeScene(document, kSizes);
        const diagram::Layout layout = diagram::WarmLayout(scene, kSizes, before.Memory);
        benchmark::DoNotOptimize(diagram::SvgOf(scene, layout, kSizes));
    }
}

void Generate(benchmark::State& state, const FsmDocument& document) {
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(GenerateProgram(document, {}));
}

struct Form {
    const char* Name;
    std::string (*Write)(const FsmDocument&);
};

std::string GridOf(const FsmDocument& document) {
    return exports::CsvGridOf(document, exports::Formulas::Safe);
}

constexpr Form kForms[] = {
    {"html", exports::HtmlOf},         {"markdown", exports::MarkdownOf}, {"csv", GridOf},
    {"csv-long", exports::CsvLongOf},  {"json", exports::JsonOf},         {"mermaid", exports::MermaidOf},
    {"plantuml", exports::PlantUmlOf}, {"scxml", exports::ScxmlOf}};

void Export(benchmark::State& state, const FsmDocument& document, const Form& form) {
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(form.Write(document));
}

} // namespace
} // namespace orvane

int main(int argc, char** argv) {
    using namespace orvane;
    if (!TakeBenchmarkArguments(argc, argv, 5))
        return 2;
    using benchmark::RegisterBenchmark;
    std::vector<RatioLine> lines;
    for (const auto& [states, count] :
         {std::pair(12, 24), std::pair(30, 60), std::pair(100, 150), std::pair(100, 450)}) {
        const FsmDocument machine = MachineOfLines(states, count);
        const std::string name = std::to_string(states) + "/" + std::to_string(count);
        RegisterBenchmark(("cold/" + name).c_str(),
                          [machine](benchmark::State& state) { Cold(state, machine); });
        RegisterBenchmark(("edit/" + name).c_str(),
                          [machine](benchmark::State& state) { AfterEdit(state, machine); });
        lines.push_back({"picture, cold", name, "cold/" + name, "", count, 0, 0});
        lines.push_back({"picture after an edit", name, "edit/" + name, "", count, 0, 0});
    }
    const FsmDocument limit = DocumentAtTheLimit();
    RegisterBenchmark("generate", [&](benchmark::State& state) { Generate(state, limit); });
    for (const Form& form : kForms) {
        const std::string name = std::string("export/") + form.Name;
        RegisterBenchmark(name.c_str(), [&](benchmark::State& state) { Export(state, limit, form); });
        lines.push_back({"export " + std::string(form.Name), "limit", name, "generate", kCells, 0, 3});
    }
    LeastTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    times.PrintTable(std::cout, lines);
    return 0;
}
