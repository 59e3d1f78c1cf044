// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>
#include <optional>

namespace orvane {

// When what is typed in an open editor is written down: a quarter of a second after the last letter, and in
// steady typing every second. A timer that each letter starts anew would never run out while somebody types,
// so the moment moves with the letters only up to a second after the first one that is not written.
class DraftPace {
  public:
    using Clock = std::chrono::steady_clock;

    static constexpr std::chrono::milliseconds kPause{250};
    static constexpr std::chrono::milliseconds kLongest{1000};

    void Typed(Clock::time_point now) {
        last_ = now;
        if (!waits_)
            first_ = now;
        waits_ = true;
    }
    // The draft has been written, or it is gone with its editor.
    void Written() { waits_ = false; }

    // None while nothing waits. A timer may be set for it when the first letter comes; when it runs out and
    // the moment has moved it is set for what is left.
    std::optional<Clock::time_point> Due() const {
        if (!waits_)
            return std::nullopt;
        return Moment();
    }
    bool IsDue(Clock::time_point now) const { return waits_ && now >= Moment(); }

  private:
    Clock::time_point Moment() const { return std::min(last_ + kPause, first_ + kLongest); }

    bool waits_ = false;      // letters are not written
    Clock::time_point first_; // of them
    Clock::time_point last_;
};

} // namespace orvane
