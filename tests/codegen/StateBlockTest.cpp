// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/CodeGenerator.h"
#include "core/TimingMode.h"
#include "support/PairOfStates.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

// The block of one state, from its entry label to the empty line behind it.
std::string BlockOf(const FsmDocument& document, int state) {
    const std::string text = Generated(document);
    const std::size_t start = text.find("P_Set" + std::to_string(state) + ":\r\n");
    if (start == std::string::npos)
        return "no block";
    const std::size_t next = text.find("P_Set" + std::to_string(state + 1) + ":\r\n");
    return text.substr(start, next == std::string::npos ? next : next - start);
}

TEST(StateBlock, StateOneThatIsNeverReenteredGetsNoBlock) {
    FsmDocument document = PairOfStates();
    document.State(2).Targets[6] = 3;
    document.State(3).Targets[6] = 2;
    EXPECT_EQ(BlockOf(document, 1), "no block");
    EXPECT_THAT(BlockOf(document, 2), HasSubstr("P_Set3"));
    EXPECT_THAT(MessagesOf(document), ElementsAre());
}

TEST(StateBlock, AnUnreachedStateIsWarnedOfAndNotGenerated) {
    FsmDocument document = PairOfStates();
    document.State(3).Name = "Lost";
    document.State(3).EntryCode = ";lost";
    document.State(3).TimingMode = 1; // would be a note, were it reached
    EXPECT_THAT(Generated(document), Not(HasSubstr("lost")));
    EXPECT_THAT(MessagesOf(document), ElementsAre("State 3:Lost is unreachable"));
}

TEST(StateBlock, UserTextsAreCopiedAsTheyStand) {
    FsmDocument document = PairOfStates();
    document.State(1).EntryCode = "\tMove\ta\r\n\r\n  odd \xE4";
    EXPECT_THAT(BlockOf(document, 1), HasSubstr("P_Set1:\r\n\tMove\ta\r\n\r\n  odd \xE4\r\nP1:\r\n"));
}

TEST(StateBlock, ExitCodeAndTooltipsAreNeverGenerated) {
    FsmDocument document = PairOfStates();
    const std::string before = Generated(document);
    document.State(1).ExitCode = ";exit";
    document.State(1).Tooltip = "tip";
    document.Event(6).Tooltip = "tip";
    document.Event(6).Name = "name";
    EXPECT_EQ(Generated(document), before);
}

TEST(StateBlock, StayingWithoutActionJumpsToTheLoopAndWithActionToTheEntry) {
    FsmDocument document = PairOfStates();
    document.Event(7).Code = ";seven?";
    document.Event(8).Code = ";eight?";
    document.State(1).Targets[7] = 1;
    document.State(1).Targets[8] = 1;
    document.State(1).Actions[8] = ";act";
    EXPECT_EQ(BlockOf(document, 1), "P_Set1:\r\n\r\nP1:\r\n"
                                    ";six?\r\n\tGoifT\tP_Set2\r\n"
                                    ";seven?\r\n\tGoifT\tP1\r\n"
                                    ";eight?\r\n\tGoIfF\tP_1_0\r\n;act\r\n\tGoTo\tP_Set1\r\nP_1_0:\r\n"
                                    "\tGoTo\tP1\r\n\r\n");
}

TEST(StateBlock, ActionsWithoutTargetAreNotGenerated) {
    FsmDocument document = PairOfStates();
    document.State(1).Actions[7] = ";seven";
    document.State(1).Actions[kTimeoutRow] = ";timeout";
    document.State(1).Actions[kElseRow] = ";else";
    EXPECT_EQ(BlockOf(document, 1), "P_Set1:\r\n\r\nP1:\r\n;six?\r\n\tGoifT\tP_Set2\r\n\tGoTo\tP1\r\n\r\n");
}

TEST(StateBlock, SkipLabelsCountInHexadecimalAndAnewInEachState) {
    FsmDocument document = PairOfStates();
    for (int row = 6; row < 6 + 17; ++row) {
        document.Event(row).Code = ";?";
        for (const int state : {1, 2}) {
            document.State(state).Targets[row] = static_cast<std::int16_t>(3 - state);
            document.State(state).Actions[row] = ";!";
        }
    }
    for (const int state : {1, 2}) {
        const std::string block = BlockOf(document, state);
        const std::string stem = "P_" + std::to_string(state) + "_";
        EXPECT_THAT(block, HasSubstr(";?\r\n\tGoIfF\t" + stem + "0\r\n"));
        EXPECT_THAT(block, HasSubstr("\r\n" + stem + "9:\r\n;?\r\n\tGoIfF\t" + stem + "A\r\n"));
        EXPECT_THAT(block, HasSubstr("\r\n" + stem + "F:\r\n;?\r\n\tGoIfF\t" + stem + "10\r\n"));
        EXPECT_THAT(block, Not(HasSubstr(stem + "11:")));
    }
}

TEST(StateBlock, AStateThatElseLeavesDoesNotYield) {
    FsmDocument document = PairOfStates();
    document.View.Polytask = true;
    EXPECT_THAT(BlockOf(document, 2), HasSubstr("P2:\r\n\tYieldTask\r\n"));
    document.State(2).Targets[kElseRow] = 2;
    EXPECT_THAT(BlockOf(document, 2), HasSubstr("P2:\r\n\tYieldTask\r\n"));
    document.State(2).Targets[kElseRow] = 1;
    EXPECT_THAT(BlockOf(document, 2), Not(HasSubstr("YieldTask")));
}

TEST(StateBlock, ElseRunsItsActionAndJumpsToTheEntry) {
    FsmDocument document = PairOfStates();
    document.State(1).Targets[kElseRow] = 1;
    EXPECT_THAT(BlockOf(document, 1), EndsWith("\tGoifT\tP_Set2\r\n\r\n\tGoTo\tP_Set1\r\n\r\n"));
    document.State(1).Actions[kElseRow] = ";else";
    EXPECT_THAT(BlockOf(document, 1), EndsWith("\tGoifT\tP_Set2\r\n;else\r\n\tGoTo\tP_Set1\r\n\r\n"));
}

TEST(StateBlock, AConstantTimeoutTestsTheTimerWithTheConstantAsItStands) {
    FsmDocument document = PairOfStates();
    StateRecord& state = document.State(1);
    state.Targets[kTimeoutRow] = 2;
    state.TimingMode = kContinueConstant;
    state.TimerId = " A B";
    state.TimeConst = " 10 ";
    EXPECT_EQ(BlockOf(document, 1), "P_Set1:\r\n\r\nP1:\r\n;six?\r\n\tGoifT\tP_Set2\r\n"
                                    "\tSTTest\tP_Timer_A_B, 10 \r\n\tGoIfF\tP_Set2\r\n\tGoTo\tP1\r\n\r\n");
    state.TimingMode = kStartConstant;
    state.Actions[kTimeoutRow] = ";late";
    EXPECT_EQ(BlockOf(document, 1),
              "P_Set1:\r\n\r\n\tSTStart\tP_Timer_A_B\r\nP1:\r\n;six?\r\n\tGoifT\tP_Set2\r\n"
              "\tSTTest\tP_Timer_A_B, 10 \r\n\tGoIfT\tP_1_0\r\n;late\r\n\tGoTo\tP_Set2\r\nP_1_0:\r\n"
              "\tGoTo\tP1\r\n\r\n");
}

TEST(StateBlock, AVariableTimeoutComputesItsLimitAndLeavesTheActionOut) {
    FsmDocument document = PairOfStates();
    StateRecord& state = document.State(1);
    state.Targets[kTimeoutRow] = 2;
    state.Actions[kTimeoutRow] = ";never";
    state.TimingMode = kStartVariable;
    state.TimingVar = "\tfLoad\tlimit";
    EXPECT_EQ(BlockOf(document, 1),
              "P_Set1:\r\n\r\n\tSTStart\tP_Timer\r\nP1:\r\n;six?\r\n\tGoifT\tP_Set2\r\n"
              "\tfLoad\tlimit\r\n\tfSwap\r\n\tfSTTimeSince\tP_Timer\r\n\tfSub\r\n\tfGoIfNeg\tP_Set2\r\n"
              "\tGoTo\tP1\r\n\r\n");
    state.TimingMode = kContinueVariable;
    EXPECT_THAT(BlockOf(document, 1), Not(HasSubstr("STStart")));
    EXPECT_THAT(BlockOf(document, 1), HasSubstr("\tfSTTimeSince\tP_Timer\r\n"));
}

TEST(StateBlock, ATimeoutWithoutTimingModeIsAnErrorAndTheBlockGoesOnWithElse) {
    FsmDocument document = PairOfStates();
    document.State(1).Targets[kTimeoutRow] = 2;
    EXPECT_EQ(BlockOf(document, 1),
              "P_Set1:\r\n\r\nP1:\r\n;six?\r\n\tGoifT\tP_Set2\r\n"
              "Orvane reports State 1: has a timeout transition but the timing mode is not specified\r\n"
              "\tGoTo\tP1\r\n\r\n");
}

TEST(StateBlock, AnEventWithoutTestCodeIsAnErrorInItsPlaceAndNothingElse) {
    FsmDocument document = PairOfStates();
    document.State(1).Targets[7] = 2;
    document.State(1).Actions[7] = ";seven";
    document.State(1).Targets[8] = 2;
    document.Event(8).Code = ";eight?";
    EXPECT_EQ(BlockOf(document, 1), "P_Set1:\r\n\r\nP1:\r\n;six?\r\n\tGoifT\tP_Set2\r\n"
                                    "Orvane reports Missing event test code in row 7\r\n"
                                    ";eight?\r\n\tGoifT\tP_Set2\r\n\tGoTo\tP1\r\n\r\n");
}

TEST(StateBlock, ATransitionWithoutTestCodeStillLeavesTheState) {
    FsmDocument document = PairOfStates();
    document.State(2).Targets[6] = 0;
    document.State(2).Targets[7] = 1;
    EXPECT_THAT(MessagesOf(document), ElementsAre("Missing event test code in row 7"));
}

TEST(StateBlock, AStateThatOnlyStaysIsADeadEnd) {
    FsmDocument document = PairOfStates();
    document.State(2).Targets[6] = 2;
    document.State(1).Targets[7] = 1;
    document.Event(7).Code = ";?";
    EXPECT_THAT(MessagesOf(document), ElementsAre("State 2: is a dead end"));
}

} // namespace
} // namespace orvane
