// SPDX-License-Identifier: GPL-3.0-or-later
// A whole run of `orvanec generate` on the document at the limit beside `cat` of the program it writes, both
// into a file of their own. The runs alternate, and the least time of each counts: what disturbs a run only
// ever adds to it.
#include "ChildProcess.h"
#include "SampleDocuments.h"
#include "core/DocumentWriter.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kRuns = 300;

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

} // namespace

// Arguments are those of the other benchmarks and mean nothing here.
int main(int, char** argv) {
    using orvane::TimeOfCommand;
    const TemporaryFolder folder;
    const std::string document = folder.Path / "limit.zfsm";
    const std::string program = folder.Path / "limit.zls";
    const std::string copy = folder.Path / "copy.zls";
    std::ofstream(document, std::ios::binary) << orvane::WriteDocument(orvane::DocumentAtTheLimit());
    const std::string orvanec = std::filesystem::path(argv[0]).parent_path() / "orvanec";
    const std::vector<std::string> generate = {orvanec, "generate", document, "-o", "-"};
    const std::vector<std::string> cat = {"cat", program};

    double generated = TimeOfCommand(generate, program);
    double copied = TimeOfCommand(cat, copy);
    for (int run = 0; run < kRuns; ++run) {
        generated = std::min(generated, TimeOfCommand(generate, program));
        copied = std::min(copied, TimeOfCommand(cat, copy));
    }
    std::cout << std::fixed << "| program | document | bytes | time (ms) | cat (ms) | ratio | aim |\n"
              << "| --- | --- | ---: | ---: | ---: | ---: | ---: |\n"
              << "| orvanec generate | limit | " << std::filesystem::file_size(program) << " | "
              << std::setprecision(2) << generated << " | " << copied << " | " << std::setprecision(1)
              << generated / copied << " | 3 |\n";
    return 0;
}
