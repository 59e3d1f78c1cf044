// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/FreeLimits.h"

#include "core/TimingMode.h"
#include "run/LimitText.h"
#include "text/AnsiText.h"

namespace orvane::run {

FsmDocument WithFreeLimits(FsmDocument document, const Constants& given) {
    for (const StateNumber number : StateNumbers()) {
        StateRecord& state = document.State(number);
        if (!HasConstantLimit(state.TimingMode) || LimitNumber(state.TimeConst) ||
            given.find(Trim(state.TimeConst)) != given.end())
            continue;
        state.TimingVar = state.TimeConst;
        state.TimingMode = StartsTiming(state.TimingMode) ? kStartVariable : kContinueVariable;
    }
    return document;
}

} // namespace orvane::run
