// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/TooltipTiming.h"

#include <cmath>

namespace orvane {

namespace {

constexpr double kDelay = 300; // milliseconds

} // namespace

TooltipTiming::Effect TooltipTiming::Handle(char event) {
    switch (event) {
    case 'D':
        countdown_ = static_cast<std::int16_t>(std::lrint(kDelay / interval_));
        state_ = State::Waiting;
        return Effect::None;
    case 'U':
        state_ = State::Hidden;
        return Effect::Hide;
    case 'T':
        return Tick();
    default:
        return Effect::None;
    }
}

TooltipTiming::Effect TooltipTiming::Tick() {
    if (state_ != State::Waiting)
        return Effect::None;
    --countdown_;
    if (countdown_ >= 1)
        return Effect::None;
    state_ = State::Shown;
    return Effect::Show;
}

} // namespace orvane
