// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <system_error>

#ifdef _WIN32
#include <thread>
#endif

namespace orvane {

// With whoever has a file open that the user or a script saves, and waits for.
inline constexpr std::chrono::milliseconds kSavingPatience{500};

// Windows refuses to replace a file that someone has open, if only for a moment: a virus scanner, an editor
// that reads it again, this program when a document is named twice. What fails for that reason is attempted
// again until it succeeds or `patience` is over. Other systems do not refuse: one attempt. Returns how the
// last one ended.
template <typename Attempt>
std::error_code Patiently([[maybe_unused]] std::chrono::milliseconds patience, Attempt attempt) {
    std::error_code failure = attempt();
#ifdef _WIN32
    const auto end = std::chrono::steady_clock::now() + patience;
    while (failure == std::errc::permission_denied && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        failure = attempt();
    }
#endif
    return failure;
}

} // namespace orvane
