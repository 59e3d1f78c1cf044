// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/RunStep.h"

namespace orvane::run {

RunStep SwitchTo(std::uint64_t events) { return {events, RunAct::Inputs}; }

RunStep PulseOf(std::uint64_t events) { return {events, RunAct::Pulse}; }

RunStep WaitFor(Units units) { return {std::uint64_t(units), RunAct::Wait}; }

RunStep LimitOf(StateNumber state, Units units) {
    return {std::uint64_t(units), RunAct::Limit, std::uint8_t(state.Number())};
}

} // namespace orvane::run
