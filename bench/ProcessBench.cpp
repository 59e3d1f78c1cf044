// SPDX-License-Identifier: GPL-3.0-or-later
// Whole runs of `orvanec` beside `cat` of what they write, on the same disk. Users replace the program that
// was there, so that is what is measured: cat empties a file and fills it again. The runs alternate, in
// another order each time, because the disk is still busy with what the run before has left, and the least
// time of each counts: what disturbs a run only ever adds to it.
#include "ChildProcess.h"
#include "SampleDocuments.h"
#include "core/DocumentWriter.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <limits>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kRuns = 300;
constexpr int kManyDocuments = 10'000;

class TemporaryFolder {
  public:
    TemporaryFolder() { std::filesystem::create_directories(Path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(Path, ignored);
    }

    const std::filesystem::path Path =
        std::filesystem::temp_directory_path() / ("orvane-bench-" + std::to_string(getpid()));
};

struct Line {
    std::string Name;
    std::vector<std::string> Command;
    std::string Output;
    double Aim = 0;
    double Least = std::numeric_limits<double>::max();
};

void Write(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

void MeasureOneDocument(const std::filesystem::path& folder, const std::string& orvanec) {
    const std::string document = folder / "limit.zfsm";
    const std::string program = folder / "limit.zls";
    Write(document, orvane::WriteDocument(orvane::DocumentAtTheLimit()));
    std::vector<Line> lines = {
        {"cat of the program over a file", {"cat", program}, folder / "copy.zls"},
        {"generate over the program", {orvanec, "generate", document}, "/dev/null", 2.5},
        {"generate to another file", {orvanec, "generate", document, "-o", "-"}, folder / "other.zls", 2.5},
        {"generate --if-changed", {orvanec, "generate", "--if-changed", document}, "/dev/null", 2.5},
        {"check", {orvanec, "check", document}, "/dev/null"}};
    orvane::TimeOfCommand(lines[1].Command, lines[1].Output); // so that there is a program
    std::vector<Line*> order;
    for (Line& line : lines)
        order.push_back(&line);
    std::mt19937 shuffler; // the same orders in every run of the benchmark
    for (int run = 0; run < kRuns; ++run) {
        std::shuffle(order.begin(), order.end(), shuffler);
        for (Line* line : order)
            line->Least = std::min(line->Least, orvane::TimeOfCommand(line->Command, line->Output));
    }
    std::cout << std::fixed << "| whole process, document at the limit | time (ms) | to cat | aim |\n"
              << "| --- | ---: | ---: | ---: |\n";
    for (const Line& line : lines) {
        std::cout << "| " << line.Name << " | " << std::setprecision(2) << line.Least << " | "
                  << std::setprecision(1) << line.Least / lines[0].Least << " | ";
        if (line.Aim > 0)
            std::cout << line.Aim << " ";
        std::cout << "|\n";
    }
}

// What a document costs among many, once with no program there and once with all of them up to date.
void MeasureManyDocuments(const std::filesystem::path& folder, const std::string& orvanec) {
    const std::string bytes = orvane::WriteDocument(orvane::MidSizeDocument());
    std::string list;
    for (int i = 0; i < kManyDocuments; ++i) {
        const std::string name = folder / ("m" + std::to_string(i) + ".zfsm");
        Write(name, bytes);
        list += name + "\n";
    }
    Write(folder / "list", list);
    const std::string arguments = "@" + (folder / "list").string();
    std::cout << "\n| " << kManyDocuments << " documents of 20 by 15 in one call | time (s) | each (ms) |\n"
              << "| --- | ---: | ---: |\n";
    const std::vector<std::pair<std::string, std::vector<std::string>>> calls = {
        {"generate, none there", {orvanec, "generate", "--quiet", arguments}},
        {"generate, replacing all", {orvanec, "generate", "--quiet", arguments}},
        {"generate --if-changed", {orvanec, "generate", "--quiet", "--if-changed", arguments}},
        {"check", {orvanec, "check", "--quiet", arguments}}};
    for (const auto& [name, command] : calls) {
        const double time = orvane::TimeOfCommand(command, "/dev/null");
        std::cout << "| " << name << " | " << std::setprecision(2) << time / 1000 << " | "
                  << time / kManyDocuments << " |\n";
    }
}

} // namespace

// Arguments are those of the other benchmarks and mean nothing here.
int main(int, char** argv) {
    const TemporaryFolder folder;
    const std::string orvanec = std::filesystem::path(argv[0]).parent_path() / "orvanec";
    MeasureOneDocument(folder.Path, orvanec);
    MeasureManyDocuments(folder.Path, orvanec);
    return 0;
}
