// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/EndingSignals.h"

#include <mutex>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#else
#include <csignal>
#include <system_error>
#include <thread>

#include <unistd.h>
#endif

namespace orvane::cli {

namespace {

// Whoever is told to end has nothing but what stands here.
std::mutex runningMutex;
std::shared_ptr<RunningTests> runningTests;

void ReportTests() {
    std::unique_lock lock(runningMutex);
    const std::shared_ptr<RunningTests> tests = runningTests;
    lock.unlock();
    if (tests)
        tests->WriteBrokenOff();
}

} // namespace

void ReportWhenTold(std::shared_ptr<RunningTests> tests) {
    const std::lock_guard lock(runningMutex);
    runningTests = std::move(tests);
}

#ifdef _WIN32

namespace {

// The system calls the handler with nothing but the kind of event.
std::shared_ptr<UnfinishedFiles> unfinishedFiles;

BOOL WINAPI RemoveThem(DWORD) {
    ReportTests();
    unfinishedFiles->RemoveAllForGood();
    return FALSE; // on to the handler that ends the program
}

} // namespace

void RemoveWhenTold(std::shared_ptr<UnfinishedFiles> unfinished) {
    unfinishedFiles = std::move(unfinished);
    SetConsoleCtrlHandler(RemoveThem, TRUE);
}

#else

namespace {

// Those that end the program; one that it was started to ignore stays ignored.
sigset_t EndingSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction now {};
        if (sigaction(number, nullptr, &now) == 0 && now.sa_handler == SIG_DFL)
            sigaddset(&signals, number);
    }
    return signals;
}

void WaitForThem(sigset_t signals, UnfinishedFiles& unfinished) {
    int number = 0;
    if (sigwait(&signals, &number) != 0)
        return;
    ReportTests();
    unfinished.RemoveAllForGood();
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
    kill(getpid(), number);
}

} // namespace

// A thread that waits for the signals may do what a handler may not: lock, and read what others change. They
// are blocked everywhere else; threads inherit that.
void RemoveWhenTold(std::shared_ptr<UnfinishedFiles> unfinished) {
    const sigset_t signals = EndingSignals();
    sigset_t before;
    if (pthread_sigmask(SIG_BLOCK, &signals, &before) != 0)
        return;
    try {
        std::thread([signals, unfinished = std::move(unfinished)] {
            WaitForThem(signals, *unfinished);
        }).detach();
    } catch (const std::system_error&) {
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
    }
}

#endif

} // namespace orvane::cli
