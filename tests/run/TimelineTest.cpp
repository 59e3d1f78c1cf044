// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Timeline.h"

#include "run/PumpTable.h"
#include "run/TraceOfRun.h"
#include "run/TraceVcd.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using test::kPowerOn;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class PumpTimeline : public testing::Test {
  protected:
    PumpTimeline() : document(test::PumpTable().Document()), machine(document), run(machine) {}

    Timeline Lanes(Units finest = 0) const { return TimelineOf(machine, run, finest); }

    FsmDocument document;
    Machine machine;
    History run;
};

TEST_F(PumpTimeline, BeforePowerThereAreNoLanes) {
    EXPECT_THAT(Lanes().States, IsEmpty());
    EXPECT_THAT(Lanes().Inputs, IsEmpty());
    EXPECT_THAT(Lanes().Timers, IsEmpty());
}

TEST_F(PumpTimeline, StatesInputsAndTimersHaveALaneEach) {
    run.Do(kPowerOn);
    run.Do(WaitFor(10));
    run.Do(PulseOf(BitOf(6)));
    run.Do(WaitFor(30));
    run.Do(SwitchTo(BitOf(7)));
    run.Do(WaitFor(5));
    run.Do(SwitchTo(0));
    run.Do(PulseOf(BitOf(6)));
    run.Do(WaitFor(20));
    const Timeline lanes = Lanes();
    EXPECT_THAT(lanes.States, ElementsAre(StateStretch{0, 10, 1}, StateStretch{10, 40, 2},
                                          StateStretch{40, 45, 1}, StateStretch{45, 65, 2}));
    EXPECT_THAT(lanes.Inputs, ElementsAre(InputLane{6, {{10, 10}, {45, 45}}}, InputLane{7, {{40, 45}}}));
    EXPECT_THAT(lanes.Timers, ElementsAre(TimerLane{0, {{10, 45}, {45, 65}}, 100}));
    EXPECT_EQ(lanes.End, 65);
}

TEST_F(PumpTimeline, WhatLiesBehindTheMomentShownIsThereToo) {
    run.Do(kPowerOn);
    run.Do(PulseOf(BitOf(6)));
    run.Do(WaitFor(150));
    const std::vector<StateStretch> whole = Lanes().States;
    run.GoToTime(20);
    EXPECT_EQ(Lanes().States, whole);
    EXPECT_THAT(whole,
                ElementsAre(StateStretch{0, 0, 1}, StateStretch{0, 100, 2}, StateStretch{100, 150, 1}));
}

TEST_F(PumpTimeline, AHeldInputLastsToTheEnd) {
    run.Do(SwitchTo(BitOf(7)));
    run.Do(kPowerOn);
    run.Do(WaitFor(8));
    EXPECT_THAT(Lanes().Inputs, ElementsAre(InputLane{7, {{0, 8}}}));
}

TEST_F(PumpTimeline, ALongRunHasNoMoreStretchesThanCanBeSeen) {
    run.Do(kPowerOn);
    for (int i = 0; i < 5000; ++i) {
        run.Do(PulseOf(BitOf(6)));
        run.Do(WaitFor(1));
        run.Do(PulseOf(BitOf(7)));
    }
    EXPECT_EQ(Lanes().States.size(), 10'001U);
    const Timeline coarse = Lanes(50);
    EXPECT_LE(coarse.States.size(), 3U + 5000 / 50);
    EXPECT_LE(coarse.Inputs.at(0).True.size(), 1U + 5000 / 50);
    EXPECT_LE(coarse.Timers.at(0).Runs.size(), 1U + 5000 / 50);
    EXPECT_EQ(coarse.States.back().To, 5000);
}

TEST_F(PumpTimeline, TheTraceForViewersGoesToTheMomentShown) {
    run.Do(SwitchTo(BitOf(7)));
    run.Do(kPowerOn);
    run.Do(SwitchTo(0));
    run.Do(PulseOf(BitOf(6)));
    run.Do(WaitFor(150));
    run.GoToTime(30);
    const RunTrace trace = TraceOfRun(document, machine, run);
    EXPECT_EQ(trace.Rows.front().Kind, TraceKind::PowerOn);
    EXPECT_EQ(trace.Rows.back().When, 30);
    EXPECT_EQ(trace.Rows.back().What.To, StateNumber(2));
    const std::size_t transitions =
        std::size_t(std::count_if(trace.Rows.begin(), trace.Rows.end(),
                                  [](const TraceRow& row) { return row.Kind == TraceKind::Transition; }));
    EXPECT_EQ(transitions, 1U);
    EXPECT_THAT(TraceVcd(trace, document, machine), HasSubstr("$enddefinitions"));
}

} // namespace
} // namespace orvane::run
