// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/ui/program/DrawnProgram.h"

#include "recovery/ui/program/Strokes.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace orvane::test {

namespace {

constexpr unsigned kHangSeconds = 60; // after which it is ended by an alarm, which counts as by itself

void Set(const char* name, const std::string& value) { setenv(name, value.c_str(), 1); }

void SetEnvironment(const DrawnProgram& program, const Life& life, int pipe) {
    const std::string folder = program.Folder.string();
    for (const char* place : {"APPDATA", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        Set(place, folder);
    Set("XDG_STATE_HOME", folder + "/state");
    Set("QT_PLUGIN_PATH", program.Plugins);
    Set("QT_QPA_GENERIC_PLUGINS", "orvanedrawing");
    Set("ORVANE_DRAW_FROM", std::to_string(life.From));
    Set("ORVANE_DRAW_TO", std::to_string(life.To));
    Set("ORVANE_DRAW_PIPE", std::to_string(pipe));
    if (life.Recovers)
        Set("ORVANE_DRAW_RECOVERED", "1");
    if (life.KillAtCall > 0) {
        Set("ORVANE_KILL_AT", std::to_string(life.KillAtCall));
        Set("LD_PRELOAD", program.KillLibrary);
        const char* asan = getenv("ASAN_OPTIONS"); // a sanitizer wants to be the first library otherwise
        Set("ASAN_OPTIONS", std::string(asan ? asan : "") + ":verify_asan_link_order=0");
    }
}

[[noreturn]] void Become(const DrawnProgram& program, const Life& life, int pipe) {
    SetEnvironment(program, life, pipe);
    alarm(kHangSeconds);
    const std::string document = life.Recovers ? "/nosplash" : (program.Folder / "machine.zfsm").string();
    execl(program.Program.c_str(), program.Program.c_str(), document.c_str(), nullptr);
    _exit(127);
}

// None when the program is gone.
std::optional<std::int32_t> NextOf(int pipe) {
    std::int32_t told = 0;
    return read(pipe, &told, sizeof told) == sizeof told ? std::optional(told) : std::nullopt;
}

} // namespace

LifeEnd DrawnProgram::Live(const Life& life) const {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        Become(*this, life, ends[1]);
    }
    close(ends[1]);
    LifeEnd end;
    while (const std::optional<std::int32_t> told = NextOf(ends[0])) {
        end.IsThrough = *told == kHalfTypedIsKept;
        if (!end.IsThrough)
            end.Stroke = *told;
        if (!end.IsThrough && life.KillInStroke != *told)
            continue;
        std::this_thread::sleep_for(life.Delay); // any moment will do
        kill(child, SIGKILL);
        break;
    }
    while (const std::optional<std::int32_t> told = NextOf(ends[0])) {
        if (*told != kHalfTypedIsKept)
            end.Stroke = *told;
    }
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    end.EndedByItself = !WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL;
    return end;
}

} // namespace orvane::test
