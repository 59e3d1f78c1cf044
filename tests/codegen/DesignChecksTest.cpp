// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/DesignChecks.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

FsmDocument WithState(int number, std::string name) {
    FsmDocument document;
    document.State(number).Name = std::move(name);
    return document;
}

TEST(DesignChecks, StatesAreNamedByNumberAndName) {
    EXPECT_EQ(StateTitle(WithState(3, "Idle "), 3), "3:Idle");
    EXPECT_EQ(StateTitle(FsmDocument(), 7), "7:");
}

TEST(DesignChecks, AMachineWithoutNameIsAnErrorInFiveLines) {
    FsmDocument document;
    EXPECT_EQ(CheckPrefix(document),
              (Finding{FindingKind::MissingPrefix,
                       {},
                       "You must supply a distinguishing label prefix in the \"Name\"\r\n"
                       "box of the General Code editor. This should be unique within your\r\n"
                       "project as a whole. Typically this would be a 3-letter mnemonic for\r\n"
                       "the overall function of this FSM, for example \"PMP\" for a pump\r\n"
                       "control FSM"}));
    document.General.FsmName = " ";
    EXPECT_EQ(CheckPrefix(document), std::nullopt);
}

TEST(DesignChecks, ATransitionWithoutTestCodeNamesTheRowAndNoState) {
    FsmDocument document = WithState(9, "Run");
    EXPECT_EQ(CheckEventCode(document, {6, 9}), std::nullopt);
    document.State(9).Targets[6] = 1;
    document.State(9).Targets[54] = 9;
    EXPECT_EQ(CheckEventCode(document, {6, 9}),
              (Finding{FindingKind::MissingEventCode, {6, 9}, "Missing event test code in row 6"}));
    EXPECT_EQ(CheckEventCode(document, {54, 9}),
              (Finding{FindingKind::MissingEventCode, {54, 9}, "Missing event test code in row 54"}));
    document.Event(6).Code = " ";
    EXPECT_EQ(CheckEventCode(document, {6, 9}), std::nullopt);
}

TEST(DesignChecks, AnActionWithoutTransitionNeedsNoTestCode) {
    FsmDocument document;
    document.State(1).Actions[6] = ";never";
    EXPECT_EQ(CheckEventCode(document, {6, 1}), std::nullopt);
}

TEST(DesignChecks, ATimingModeWithoutTimeoutTransitionIsANote) {
    FsmDocument document = WithState(3, "Idle");
    EXPECT_EQ(CheckTimeout(document, 3), std::nullopt);
    for (const int mode : {1, 2, 3, 4, 5, -1}) {
        document.State(3).TimingMode = mode;
        EXPECT_EQ(CheckTimeout(document, 3),
                  (Finding{FindingKind::TimingModeWithoutTimeout,
                           {4, 3},
                           "State 3:Idle has a timing mode specified but no timeout transition"}));
    }
}

TEST(DesignChecks, AConstantTimeoutNeedsATimeConstant) {
    FsmDocument document = WithState(3, "Idle");
    document.State(3).Targets[kTimeoutRow] = 1;
    for (const int mode : {1, 3}) {
        document.State(3).TimingMode = mode;
        for (const char* blank : {"", " "}) {
            document.State(3).TimeConst = blank;
            EXPECT_EQ(
                CheckTimeout(document, 3),
                (Finding{FindingKind::MissingTimeConstant, {4, 3}, "State 3:Idle needs a time constant"}));
        }
        document.State(3).TimeConst = "0";
        EXPECT_EQ(CheckTimeout(document, 3), std::nullopt);
    }
}

TEST(DesignChecks, AVariableTimeoutNeedsAVariableTime) {
    FsmDocument document = WithState(3, "Idle");
    document.State(3).Targets[kTimeoutRow] = 3;
    for (const int mode : {2, 4}) {
        document.State(3).TimingMode = mode;
        for (const char* blank : {"", "  "}) {
            document.State(3).TimingVar = blank;
            EXPECT_EQ(
                CheckTimeout(document, 3),
                (Finding{FindingKind::MissingVariableTime, {4, 3}, "State 3:Idle needs a variable time."}));
        }
        document.State(3).TimingVar = "\tfLoad";
        EXPECT_EQ(CheckTimeout(document, 3), std::nullopt);
    }
}

TEST(DesignChecks, ATimeoutTransitionNeedsAKnownTimingMode) {
    FsmDocument document = WithState(3, "Idle");
    document.State(3).Targets[kTimeoutRow] = 1;
    document.State(3).TimeConst = "1";
    document.State(3).TimingVar = "x";
    for (const int mode : {0, 5, 255, -1}) {
        document.State(3).TimingMode = mode;
        EXPECT_EQ(CheckTimeout(document, 3),
                  (Finding{FindingKind::MissingTimingMode,
                           {4, 3},
                           "State 3:Idle has a timeout transition but the timing mode is not specified"}));
    }
}

TEST(DesignChecks, AStateWithoutTransitionToAnotherIsADeadEnd) {
    FsmDocument document = WithState(3, "Idle");
    const Finding deadEnd{FindingKind::DeadEnd, {0, 3}, "State 3:Idle is a dead end"};
    EXPECT_EQ(CheckDeadEnd(document, 3), deadEnd);
    document.State(3).Targets[6] = 3;
    document.State(3).Targets[kTimeoutRow] = 3;
    document.State(3).Targets[kElseRow] = 3;
    EXPECT_EQ(CheckDeadEnd(document, 3), deadEnd);
    for (const int row : {kTimeoutRow, kElseRow, 6, 54}) {
        FsmDocument leaving = document;
        leaving.State(3).Targets[row] = 1;
        EXPECT_EQ(CheckDeadEnd(leaving, 3), std::nullopt) << row;
    }
}

TEST(DesignChecks, TimeoutAndElseTogetherAreANote) {
    FsmDocument document = WithState(3, "Idle");
    document.State(3).Targets[kTimeoutRow] = 1;
    EXPECT_EQ(CheckTimeoutAndElse(document, 3), std::nullopt);
    document.State(3).Targets[kElseRow] = 3;
    EXPECT_EQ(CheckTimeoutAndElse(document, 3),
              (Finding{FindingKind::TimeoutAndElse,
                       {5, 3},
                       "State 3:Idle has both a timeout and an ELSE transition."}));
    document.State(3).Targets[kTimeoutRow] = 0;
    EXPECT_EQ(CheckTimeoutAndElse(document, 3), std::nullopt);
}

TEST(DesignChecks, AStateInUseThatIsNotReachedIsUnreachable) {
    FsmDocument document = WithState(3, "Idle");
    document.State(4).Targets[54] = 1;
    document.State(5).EntryCode = ";alone";
    document.State(5).Actions[6] = ";alone";
    const Reachability reachability = ComputeReachability(document);
    EXPECT_EQ(CheckUnreachable(document, reachability, 3),
              (Finding{FindingKind::UnreachableState, {0, 3}, "State 3:Idle is unreachable"}));
    EXPECT_EQ(CheckUnreachable(document, reachability, 4),
              (Finding{FindingKind::UnreachableState, {0, 4}, "State 4: is unreachable"}));
    EXPECT_EQ(CheckUnreachable(document, reachability, 5), std::nullopt); // neither name nor target
    EXPECT_EQ(CheckUnreachable(document, reachability, 6), std::nullopt);
}

TEST(DesignChecks, WhatAMergeLeftToPeopleIsFoundInEveryKindOfText) {
    const std::string block = ";ours\r\n;<<<<<<< CONFLICT: place\r\n;||||||| BASE\r\n;======= THEIRS\r\n"
                              ";theirs\r\n;>>>>>>> CONFLICT";
    constexpr const char* open = " has a conflict of a merge that nobody has resolved";
    FsmDocument document = WithState(3, "Idle");
    EXPECT_TRUE(CheckMergeConflicts(document).empty());
    document.State(3).ExitCode = ";not at the begin of a line ;<<<<<<< CONFLICT: no";
    EXPECT_TRUE(CheckMergeConflicts(document).empty());
    document.General.HeaderComment = block;
    document.Event(7).Tooltip = block;
    document.State(3).EntryCode = block;
    document.State(3).Actions[kElseRow] = block;
    document.State(3).Actions[54] = block;
    EXPECT_EQ(
        CheckMergeConflicts(document),
        (std::vector<Finding>{
            {FindingKind::MergeConflict, {}, std::string("The general code") + open},
            {FindingKind::MergeConflict, {7, 0}, std::string("The event in row 7") + open},
            {FindingKind::MergeConflict, {0, 3}, std::string("State 3:Idle") + open},
            {FindingKind::MergeConflict, {5, 3}, std::string("State 3:Idle, the ELSE action,") + open},
            {FindingKind::MergeConflict, {54, 3}, std::string("State 3:Idle, the action in row 54,") + open},
        }));
}

TEST(DesignChecks, StateOneIsNeverCalledUnreachable) {
    const FsmDocument document = WithState(1, "Idle");
    EXPECT_EQ(CheckUnreachable(document, ComputeReachability(document), 1), std::nullopt);
}

} // namespace
} // namespace orvane
