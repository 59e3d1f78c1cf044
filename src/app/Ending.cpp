// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Ending.h"

#include "app/frmTable.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>

#ifndef _WIN32
#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>
#endif

namespace orvane {

bool MayLogOut(frmTable& window, bool mayAsk) {
    if (mayAsk)
        return window.MayClose();
    window.Preserve();
    return true;
}

Ending::Ending(frmTable& window) : window_(window) {
    ListenToSessionManager();
    ListenToSignals();
}

void Ending::ListenToSessionManager() {
    connect(
        qGuiApp, &QGuiApplication::commitDataRequest, this,
        [this](QSessionManager& manager) {
            const bool mayAsk = manager.allowsInteraction();
            if (!MayLogOut(window_, mayAsk))
                manager.cancel();
            if (mayAsk)
                manager.release();
        },
        Qt::DirectConnection);
}

#ifdef _WIN32

Ending::~Ending() = default;
void Ending::ListenToSignals() {}
void Ending::EndBySignal(int) {}

#else

namespace {

constexpr std::array kSignals{SIGTERM, SIGHUP, SIGINT};

// A handler can do little more than write a byte; the event loop does the rest.
std::array<int, 2> pipeEnds{-1, -1};

void TellEventLoop(int number) {
    const char byte = char(number);
    (void)!write(pipeEnds[1], &byte, 1); // full only when it was told many times already
}

} // namespace

// One that the program was started to ignore stays ignored.
void Ending::ListenToSignals() {
    if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // signals end the program at once, as they do without this
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char number = 0;
        if (read(pipeEnds[0], &number, 1) == 1)
            EndBySignal(number);
    });
    for (const int number : kSignals) {
        struct sigaction now {};
        if (sigaction(number, nullptr, &now) != 0 || now.sa_handler != SIG_DFL)
            continue;
        now.sa_handler = TellEventLoop;
        now.sa_flags = SA_RESTART;
        (void)sigaction(number, &now, nullptr);
    }
}

Ending::~Ending() {
    for (const int number : kSignals)
        std::signal(number, SIG_DFL);
    for (int& end : pipeEnds) {
        if (end != -1)
            close(end);
        end = -1;
    }
}

// Ends as the signal would have, so that whoever sent it sees that. Nothing is unwound: an open editor that
// was closed now would take what is typed in it out of the journal.
void Ending::EndBySignal(int number) {
    window_.Preserve();
    std::signal(number, SIG_DFL);
    (void)raise(number);
}

#endif

} // namespace orvane
