// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/MachineJson.h"

#include "core/TimingMode.h"
#include "support/Json.h"

#include <gtest/gtest.h>

namespace orvane::test {
namespace {

constexpr const char* kMachine = R"({"name": "lamp", "states": ["off", "on"], "events": ["press", "tick"],
    "initial": 2, "transitions": [[1, 1, 2, ""], [2, 2, 1, "a\nb"]], "entry": {"2": "light"},
    "timeouts": {"2": {"delay": "3s", "event": 2}}})";

TEST(MachineJson, TheInitialStateChangesPlacesWithTheFirst) {
    const FsmDocument document = MachineFromJson(kMachine);
    EXPECT_EQ(document.State(1).Name, "on");
    EXPECT_EQ(document.State(2).Name, "off");
    EXPECT_EQ(document.State(1).Targets[7], 2);
    EXPECT_EQ(document.State(2).Targets[6], 1);
}

TEST(MachineJson, ForeignCodeBecomesComments) {
    const FsmDocument document = MachineFromJson(kMachine);
    EXPECT_EQ(document.Event(6).Code, ";press");
    EXPECT_EQ(document.State(1).EntryCode, ";light");
    EXPECT_EQ(document.State(1).Actions[7], ";a\r\n;b");
    EXPECT_EQ(document.State(2).Actions[6], "");
}

TEST(MachineJson, ATimeoutLeadsWhereItsEventLeads) {
    const FsmDocument document = MachineFromJson(kMachine);
    const StateRecord& on = document.State(1);
    EXPECT_EQ(on.TimingMode, kStartConstant);
    EXPECT_EQ(on.TimeConst, "3s");
    EXPECT_EQ(on.Targets[kTimeoutRow], 2);
}

TEST(MachineJson, WhatIsNoMachineThrows) { EXPECT_THROW(MachineFromJson("{\"name\": 1}"), JsonError); }

} // namespace
} // namespace orvane::test
