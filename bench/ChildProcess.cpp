// SPDX-License-Identifier: GPL-3.0-or-later
#include "ChildProcess.h"

#include <chrono>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane {

double TimeOfCommand(std::vector<std::string> command, const std::string& output) {
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
    if (status != 0)
        throw std::runtime_error(command[0] + " failed");
    return time.count();
}

} // namespace orvane
