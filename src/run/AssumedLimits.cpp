// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/AssumedLimits.h"

#include "core/TimingMode.h"
#include "run/LimitText.h"
#include "text/AnsiText.h"

namespace orvane::run {

AssumedLimits::AssumedLimits(const FsmDocument& document) {
    const Machine machine(document);
    for (const StateNumber state : StateNumbers()) {
        const LimitKind kind = machine.State(state).Limit;
        if (kind == LimitKind::Variable)
            Surroundings.Limits[state.Number()] = kAssumedLimit;
        const std::string& text = document.State(state).TimeConst;
        if (kind == LimitKind::Constant && !LimitNumber(text))
            Given.emplace(Trim(text), kAssumedLimit);
    }
}

} // namespace orvane::run
