// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/Labels.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

FsmDocument Named(std::string prefix) {
    FsmDocument document;
    document.General.FsmName = std::move(prefix);
    document.State(1).Name = "Idle";
    document.State(12).Name = "Motor On";
    return document;
}

TEST(Labels, OfANamedStateHoldItsNameAndNumber) {
    EXPECT_EQ(StateEntryLabel(Named("PMP"), 1), "PMP_Idle_Set1");
    EXPECT_EQ(StateLoopLabel(Named("PMP"), 1), "PMP_Idle_1");
}

TEST(Labels, OfAStateWhoseNameHoldsABlankLeaveTheNameOut) {
    EXPECT_EQ(StateEntryLabel(Named("PMP"), 12), "PMP_Set12");
    EXPECT_EQ(StateLoopLabel(Named("PMP"), 12), "PMP12");
}

TEST(Labels, OfAnUnnamedStateHoldItsNumber) {
    EXPECT_EQ(StateEntryLabel(Named("PMP"), 100), "PMP_Set100");
    EXPECT_EQ(StateLoopLabel(Named("PMP"), 100), "PMP100");
}

TEST(Labels, OfStatesWithTheSameNameDifferByTheirNumbers) {
    FsmDocument document = Named("PMP");
    document.State(2).Name = "Idle";
    EXPECT_EQ(StateEntryLabel(document, 2), "PMP_Idle_Set2");
    EXPECT_EQ(StateLoopLabel(document, 2), "PMP_Idle_2");
}

TEST(Labels, BlanksOfThePrefixChangeInStateAndTimerLabelsOnly) {
    const FsmDocument document = Named("My Pump");
    EXPECT_EQ(StateEntryLabel(document, 1), "My_Pump_Idle_Set1");
    EXPECT_EQ(StateLoopLabel(document, 12), "My_Pump12");
    EXPECT_EQ(TimerLabel(document, ""), "My_Pump_Timer");
    EXPECT_EQ(TimerLabel(document, "A"), "My_Pump_Timer_A");
    EXPECT_EQ(ActionSkipLabel(document, 1, 0), "My Pump_1_0");
    EXPECT_EQ(LaunchLabel(document), "My Pump_Launch");
}

TEST(Labels, ATimerIdIsTrimmedAndItsBlanksChange) {
    const FsmDocument document = Named("PMP");
    EXPECT_EQ(TimerLabel(document, " door open  "), "PMP_Timer_door_open");
    EXPECT_EQ(TimerLabel(document, ""), "PMP_Timer");
}

TEST(Labels, ATimerIdOfOnlyBlanksIsNotTheDefaultTimer) {
    EXPECT_EQ(TimerLabel(Named("PMP"), "   "), "PMP_Timer_");
}

TEST(Labels, ActionsAreCountedInHexadecimal) {
    const FsmDocument document = Named("PMP");
    EXPECT_EQ(ActionSkipLabel(document, 12, 9), "PMP_12_9");
    EXPECT_EQ(ActionSkipLabel(document, 12, 10), "PMP_12_A"); // the eleventh action
    EXPECT_EQ(ActionSkipLabel(document, 12, 16), "PMP_12_10");
}

TEST(Labels, InstancesFollowATab) {
    FsmDocument document;
    EXPECT_EQ(InstanceSuffix(document), "");
    document.General.Instances = "  ";
    EXPECT_EQ(InstanceSuffix(document), "");
    document.General.Instances = " 4 ";
    EXPECT_EQ(InstanceSuffix(document), "\t4");
}

} // namespace
} // namespace orvane
