// SPDX-License-Identifier: GPL-3.0-or-later
// What a user does to a running machine, at random.
#pragma once

#include "run/History.h"
#include "run/RunStep.h"

#include <rapidcheck.h>

#include <vector>

namespace orvane::test {

// Steps that History takes, after power came on; inputs that the document tests more often than others.
inline rc::Gen<std::vector<run::RunStep>> AnyRun() {
    const auto events = rc::gen::map(rc::gen::inRange<std::uint64_t>(0, 256),
                                     [](std::uint64_t bits) { return bits << kFirstEventRow; });
    const auto step =
        rc::gen::oneOf(rc::gen::map(events, run::SwitchTo), rc::gen::map(events, run::PulseOf),
                       rc::gen::map(rc::gen::inRange<run::Units>(1, 60), run::WaitFor),
                       rc::gen::apply([](int state, run::Units units) { return run::LimitOf(state, units); },
                                      rc::gen::inRange(1, 12), rc::gen::inRange<run::Units>(0, 40)));
    return rc::gen::container<std::vector<run::RunStep>>(step);
}

// All variable limits are given first, so that few runs end for want of one.
inline void Begin(run::History& history, run::Units limit) {
    for (const StateNumber state : StateNumbers())
        history.Do(run::LimitOf(state, limit));
    history.Do({0, run::RunAct::PowerOn});
}

} // namespace orvane::test
