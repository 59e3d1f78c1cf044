// SPDX-License-Identifier: GPL-3.0-or-later
// What the engine's operations cost, each beside one copy of the bytes it makes (or takes apart) into fresh
// memory: no program that makes these bytes can be faster than that. Both are measured in the same run, in
// random order, several times; the table at the end takes the least time of each.
#include "RatioTable.h"
#include "SampleDocuments.h"
#include "codegen/CodeGenerator.h"
#include "codegen/Reachability.h"
#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "core/TightPacked.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <functional>
#include <iostream>
#include <sys/mman.h>

namespace orvane {
namespace {

// Copies into pages that no one has touched yet and gives them back, as an operation's result is made in
// fresh memory and freed.
void CopyIntoFreshMemory(const std::string& bytes) {
    void* fresh = mmap(nullptr, bytes.size(), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (fresh == MAP_FAILED)
        std::abort();
    std::memcpy(fresh, bytes.data(), bytes.size());
    benchmark::DoNotOptimize(fresh);
    benchmark::ClobberMemory();
    munmap(fresh, bytes.size());
}

class EngineBench {
  public:
    // The documents must outlive the run.
    void AddOperations(const std::string& name, const FsmDocument& document, int cells);
    void Run();

  private:
    void Add(const std::string& operation, const std::string& document, int cells, const std::string& bytes,
             double aim, const std::function<void()>& run);

    std::vector<RatioLine> lines_;
};

void EngineBench::Add(const std::string& operation, const std::string& document, int cells,
                      const std::string& bytes, double aim, const std::function<void()>& run) {
    const std::string name = operation + "/" + document;
    benchmark::RegisterBenchmark(name.c_str(), [run](benchmark::State& state) {
        for ([[maybe_unused]] auto iteration : state)
            run();
    });
    std::string floor;
    if (!bytes.empty()) {
        floor = "copy/" + name;
        benchmark::RegisterBenchmark(floor.c_str(), [bytes](benchmark::State& state) {
            for ([[maybe_unused]] auto iteration : state)
                CopyIntoFreshMemory(bytes);
        });
    }
    lines_.push_back({operation, document, name, floor, cells, bytes.size(), aim});
}

void EngineBench::AddOperations(const std::string& name, const FsmDocument& document, int cells) {
    const GenerationContext context = {"C:\\plant\\plant.zfsm", "16/11/2026 01:02:03"};
    const std::string file = WriteDocument(document);
    const std::string image = Pack(document);
    const std::string program = GenerateProgram(document, context).Text;
    constexpr double writing = 10;
    constexpr double reading = 20;
    Add("generate", name, cells, program, writing,
        [&document, context] { benchmark::DoNotOptimize(GenerateProgram(document, context)); });
    Add("write", name, cells, file, writing,
        [&document] { benchmark::DoNotOptimize(WriteDocument(document)); });
    Add("pack", name, cells, image, writing, [&document] { benchmark::DoNotOptimize(Pack(document)); });
    Add("read", name, cells, file, reading, [file] { benchmark::DoNotOptimize(ReadDocument(file)); });
    // As undo does it: into the document that is there.
    Add("unpack", name, cells, image, reading,
        [image, undone = document]() mutable { benchmark::DoNotOptimize(Unpack(image, undone)); });
    Add("reachability", name, cells, {}, 0,
        [&document] { benchmark::DoNotOptimize(ComputeReachability(document)); });
}

void EngineBench::Run() {
    LeastTimes times;
    benchmark::RunSpecifiedBenchmarks(&times);
    times.PrintTable(std::cout, lines_);
}

} // namespace
} // namespace orvane

int main(int argc, char** argv) {
    if (!orvane::TakeBenchmarkArguments(argc, argv, 15))
        return 2;

    const orvane::FsmDocument midSize = orvane::MidSizeDocument();
    const orvane::FsmDocument limit = orvane::DocumentAtTheLimit();
    orvane::EngineBench bench;
    bench.AddOperations("mid-size", midSize, 20 * 15);
    bench.AddOperations("limit", limit, 100 * 49);
    bench.Run();
    return 0;
}
