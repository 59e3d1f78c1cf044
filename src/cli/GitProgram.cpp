// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/GitProgram.h"

#include <array>
#include <cstdio>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace orvane::cli {

namespace {

constexpr int kNoSuchProgram = 127; // as shells say it

#ifdef _WIN32

std::string Quoted(const std::string& argument) { return "\"" + argument + "\""; }
std::FILE* Open(const std::string& command) { return _popen(command.c_str(), "r"); }
int Close(std::FILE* stream) { return _pclose(stream); }

#else

std::string Quoted(const std::string& argument) {
    std::string quoted = "'";
    for (const char character : argument)
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return quoted + "'";
}
std::FILE* Open(const std::string& command) { return popen(command.c_str(), "r"); }
int Close(std::FILE* stream) {
    const int ended = pclose(stream);
    return WIFEXITED(ended) ? WEXITSTATUS(ended) : kNoSuchProgram;
}

#endif

} // namespace

std::optional<GitAnswer> AskGit(const std::vector<std::string>& arguments) {
    std::string command = "git";
    for (const std::string& argument : arguments)
        command += " " + Quoted(argument);
    std::FILE* stream = Open(command);
    if (stream == nullptr)
        return std::nullopt;
    GitAnswer answer;
    std::array<char, 4096> room;
    for (std::size_t read = 1; read > 0;) {
        read = std::fread(room.data(), 1, room.size(), stream);
        answer.Output.append(room.data(), read);
    }
    answer.Status = Close(stream);
    if (answer.Status == kNoSuchProgram)
        return std::nullopt;
    while (answer.Output.ends_with('\n') || answer.Output.ends_with('\r'))
        answer.Output.pop_back();
    return answer;
}

} // namespace orvane::cli
