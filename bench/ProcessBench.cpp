// SPDX-License-Identifier: GPL-3.0-or-later
// A whole run of `orvanec generate` on the document at the limit beside `cat` of the program it writes, both
// into a file of their own. The runs alternate, and the least time of each counts: what disturbs a run only
// ever adds to it.
#include "SampleDocuments.h"
#include "core/DocumentWriter.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kRuns = 300;

// Runs the command with its standard output in the file and its standard error nowhere. Milliseconds; ends
// the program when the command fails.
double Run(std::vector<std::string> command, const std::string& output) {
    std::vector<char*> arguments;
    for (std::string& word : command)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0644);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);

    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    int status = -1;
    if (posix_spawnp(&process, arguments[0], &files, nullptr, arguments.data(), environ) == 0)
        waitpid(process, &status, 0);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    posix_spawn_file_actions_destroy(&files);
    if (status != 0) {
        throw std::runtime_error(command[0] + " failed");
    }
    return time.count();
}

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
    const TemporaryFolder folder;
    const std::string document = folder.Path / "limit.zfsm";
    const std::string program = folder.Path / "limit.zls";
    const std::string copy = folder.Path / "copy.zls";
    std::ofstream(document, std::ios::binary) << orvane::WriteDocument(orvane::DocumentAtTheLimit());
    const std::string orvanec = std::filesystem::path(argv[0]).parent_path() / "orvanec";
    const std::vector<std::string> generate = {orvanec, "generate", document, "-o", "-"};
    const std::vector<std::string> cat = {"cat", program};

    double generated = Run(generate, program);
    double copied = Run(cat, copy);
    for (int run = 0; run < kRuns; ++run) {
        generated = std::min(generated, Run(generate, program));
        copied = std::min(copied, Run(cat, copy));
    }
    std::cout << std::fixed << "| program | document | bytes | time (ms) | cat (ms) | ratio | aim |\n"
              << "| --- | --- | ---: | ---: | ---: | ---: | ---: |\n"
              << "| orvanec generate | limit | " << std::filesystem::file_size(program) << " | "
              << std::setprecision(2) << generated << " | " << copied << " | " << std::setprecision(1)
              << generated / copied << " | 3 |\n";
    return 0;
}
