// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace orvane {

// When the hint window appears: 300 ms after it was last asked for, counted in ticks of its timer. The window
// feeds in what happens and does what comes back.
class TooltipTiming {
  public:
    enum class State { Hidden, Waiting, Shown };
    enum class Effect { None, Show, Hide };

    // The timer's interval in milliseconds, 1 or more.
    explicit TooltipTiming(int interval) : interval_(interval) {}

    // 'D' asks for the hint, 'U' calls it off, 'T' is a tick of the timer. Anything else does nothing.
    Effect Handle(char event);

    State Current() const { return state_; }

  private:
    Effect Tick();

    int interval_;
    std::int16_t countdown_ = 0;
    State state_ = State::Hidden;
};

} // namespace orvane
