// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ProgramChecker.h"

#include "codegen/CodeGenerator.h"
#include "core/TimingMode.h"

#include <gmock/gmock.h>

namespace orvane::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// States that start the timers of these ids and lead from one to the next and back to the first.
FsmDocument Ring(const std::vector<std::string>& timerIds) {
    FsmDocument document;
    document.General.FsmName = "P";
    document.Event(6).Code = ";next?";
    int number = 1;
    for (const std::string& id : timerIds) {
        StateRecord& state = document.State(number);
        state.TimingMode = kStartConstant;
        state.TimeConst = "1";
        state.TimerId = id;
        state.Targets[kTimeoutRow] = 1;
        state.Targets[6] = static_cast<std::int16_t>(number % static_cast<int>(timerIds.size()) + 1);
        ++number;
    }
    return document;
}

std::string TextOf(const FsmDocument& document) { return GenerateProgram(document, {}).Text; }

std::vector<std::string> FaultsWhen(const std::string& right, const std::string& wrong) {
    const FsmDocument document = Ring({"", "A"});
    std::string text = TextOf(document);
    text.replace(text.find(right), right.size(), wrong);
    return ProgramFaults(document, text);
}

TEST(ProgramChecker, NoticesWhatAnAssemblerWouldRefuse) {
    EXPECT_THAT(FaultsWhen("\tGoTo\tP1", "\tGoTo\tP1"), IsEmpty());
    EXPECT_THAT(FaultsWhen("\tGoTo\tP1", "\tGoTo\tP3"), ElementsAre("line 13 jumps to nothing: GoTo P3"));
    EXPECT_THAT(FaultsWhen("P2:", "P1:"),
                ElementsAre("line 23 jumps to nothing: GoTo P2", "the label P1 is defined more than once"));
}

TEST(ProgramChecker, NoticesATimerWithoutDefinitionAndOneWithTwo) {
    EXPECT_THAT(FaultsWhen("P_Timer_A:", "P_Timer_B:"),
                ElementsAre("line 17 uses a timer that is not defined: STStart P_Timer_A",
                            "line 21 uses a timer that is not defined: STTest P_Timer_A,1"));
    EXPECT_THAT(FaultsWhen("P_Timer_A:", "P_Timer:"),
                ElementsAre("line 17 uses a timer that is not defined: STStart P_Timer_A",
                            "line 21 uses a timer that is not defined: STTest P_Timer_A,1",
                            "the timer P_Timer is defined more than once"));
}

TEST(ProgramChecker, NoticesAMissingBlock) {
    FsmDocument document = Ring({"", "A"});
    const std::string text = TextOf(document);
    document.State(2).Targets[6] = 3;
    EXPECT_THAT(ProgramFaults(document, text), ElementsAre("other states have blocks than are entered"));
}

TEST(ProgramChecker, TheTimerWhoseIdIsTheTailOfAnotherIsTheUsersToDefine) {
    const FsmDocument document = Ring({"BA", "A"});
    const std::string text = TextOf(document);
    EXPECT_EQ(text.find("P_Timer_A:"), std::string::npos);
    EXPECT_THAT(ProgramFaults(document, text), IsEmpty());
}

TEST(ProgramChecker, IdsThatDifferInBlanksDefineTheirTimerTwice) {
    const FsmDocument document = Ring({"A", " A"});
    const std::string text = TextOf(document);
    EXPECT_NE(text.find("P_Timer_A:"), text.rfind("P_Timer_A:"));
    EXPECT_THAT(ProgramFaults(document, text), IsEmpty());
}

// A loop label is prefix, name and number; a label behind an action is prefix, number and counter.
TEST(ProgramChecker, NoticesThatAStateNamedByANumberCanShareALabelWithAnAction) {
    FsmDocument document = Ring({"", ""});
    document.Event(7).Code = document.Event(8).Code = ";again?";
    for (const int row : {6, 7, 8}) {
        document.State(1).Targets[row] = 2;
        document.State(1).Actions[row] = ";action";
    }
    document.State(2).Name = "1";
    EXPECT_THAT(ProgramFaults(document, TextOf(document)),
                ElementsAre("the label P_1_2 is defined more than once"));
}

} // namespace
} // namespace orvane::test
