// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/LabelClashes.h"

#include "codegen/CodeGenerator.h"
#include "support/ProgramLines.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "support/RandomMachine.h"
#include "support/SmallTable.h"

#include <gmock/gmock.h>

#include <map>

namespace orvane {
namespace {

using test::SmallTable;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(LabelClashes, AStateNamedTimerCanHaveTheLabelOfATimer) {
    const FsmDocument document = SmallTable()
                                     .Timing(1, kStartConstant, "5", "3")
                                     .Cell(1, 6, 3)
                                     .Name(3, "Timer")
                                     .Cell(3, 6, 1)
                                     .Document();
    EXPECT_THAT(LabelClashes(document), ElementsAre("P_Timer_3"));
}

TEST(LabelClashes, TimerIdsThatDifferInBlanksHaveOneLabel) {
    const FsmDocument document = SmallTable()
                                     .Timing(1, kStartConstant, "5", "A")
                                     .Cell(1, 6, 2)
                                     .Timing(2, kStartConstant, "5", "A ")
                                     .Cell(2, 6, 1)
                                     .Document();
    EXPECT_THAT(LabelClashes(document), ElementsAre("P_Timer_A"));
}

TEST(LabelClashes, AStateWithANumberForANameCanHaveTheLabelBehindAnAction) {
    const FsmDocument document = SmallTable()
                                     .Cell(2, 6, 1, ";act")
                                     .Cell(1, 6, 2)
                                     .Cell(1, 7, 10)
                                     .Name(10, "2")
                                     .Cell(10, 6, 1)
                                     .Document();
    EXPECT_THAT(LabelClashes(document), IsEmpty()); // P_2_10 and P_2_0
    const FsmDocument clash =
        SmallTable().Cell(2, 6, 1, ";act").Cell(2, 7, 1, ";act").Name(1, "2").Cell(1, 6, 2).Document();
    EXPECT_THAT(LabelClashes(clash), ElementsAre("P_2_1"));
}

TEST(LabelClashes, StatesThatTheProgramLeavesOutDoNotCount) {
    const FsmDocument document = SmallTable()
                                     .Timing(1, kStartConstant, "5", "3")
                                     .Cell(1, 6, 1)
                                     .Name(3, "Timer")
                                     .Cell(3, 6, 1)
                                     .Document();
    EXPECT_THAT(LabelClashes(document), IsEmpty());
}

TEST(LabelClashes, AreWhatTheProgramsTextDefinesTwice) {
    int clashing = 0;
    test::ExpectProperty({.Cases = 1000, .LargestSize = 100}, [&] {
        FsmDocument document = *test::AnyMachine();
        for (const int number : {1, 2, 3}) // names that make trouble
            document.State(number).Name = *rc::gen::element<std::string>("", "Timer", "1", "2", "Launch");
        document.State(1).TimerId = *rc::gen::element<std::string>("", "1", "2", "A ");
        std::map<std::string, int> defined;
        for (const test::ProgramLine& line : test::ParseProgram(GenerateProgram(document, {}).Text)) {
            if (line.Kind == test::LineKind::Label || line.Kind == test::LineKind::Timer)
                ++defined[line.Name];
        }
        std::vector<std::string> twice;
        for (const auto& [label, count] : defined) {
            if (count > 1)
                twice.push_back(label);
        }
        RC_ASSERT(LabelClashes(document) == twice);
        clashing += twice.empty() ? 0 : 1;
    });
    EXPECT_GT(clashing, 20);
}

} // namespace
} // namespace orvane
