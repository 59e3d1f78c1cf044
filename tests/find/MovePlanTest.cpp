// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/MovePlan.h"

#include "codegen/CodeGenerator.h"
#include "core/TightPacked.h"
#include "find/Rename.h"
#include "support/RandomMachine.h"
#include "support/SmallTable.h"

#include <gmock/gmock.h>

namespace orvane::find {
namespace {

using test::SmallTable;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Changes(const FsmDocument& document, const MovePlan& plan) {
    std::vector<std::string> changes;
    for (const TextUse& use : plan.Labels)
        changes.push_back(TextAt(document, use.Place).substr(use.Start, use.Length) + " > " + use.After +
                          (use.IsSure ? "" : " ?"));
    return changes;
}

FsmDocument Garage() {
    return SmallTable()
        .Name(1, "Idle", "\tGoTo\tP_Open_Set2 ;P_Open_2\r\n\tGoTo\tP_Shut_3\tP_2_1\tP_Idle_Set1")
        .Name(2, "Open")
        .Name(3, "Shut", "P_OPEN_SET2")
        .Cell(1, 6, 2)
        .Cell(2, 6, 3, ";first")
        .Cell(2, 7, 1, ";second")
        .Cell(3, 6, 1)
        .Document();
}

TEST(MovePlan, OffersTheLabelsWithNumbersInUserCode) {
    const FsmDocument document = Garage();
    const MovePlan plan = PlanMove(document, StateOrder::Moving(2, 3));
    EXPECT_THAT(plan.Notes, IsEmpty());
    EXPECT_THAT(Changes(document, plan),
                ElementsAre("P_Open_Set2 > P_Open_Set3", "P_Open_2 > P_Open_3 ?", "P_Shut_3 > P_Shut_2",
                            "P_2_1 > P_3_1", "P_OPEN_SET2 > P_Open_Set3 ?"));
    FsmDocument moved = document;
    TableClipboard clipboard;
    Apply(moved, clipboard, plan, {true, true, true, true, false});
    EXPECT_EQ(moved.State(1).EntryCode,
              "\tGoTo\tP_Open_Set3 ;P_Open_3\r\n\tGoTo\tP_Shut_2\tP_3_1\tP_Idle_Set1");
    EXPECT_EQ(moved.State(2).EntryCode, "P_OPEN_SET2");
    EXPECT_EQ(moved.State(3).Name, "Open");
}

TEST(MovePlan, TheLabelsBehindActionsFollowTheOrderOfEvents) {
    const FsmDocument document = Garage();
    const MovePlan plan = PlanMove(document, EventOrder::Swapping(6, 7));
    EXPECT_THAT(Changes(document, plan), ElementsAre("P_2_1 > P_2_0"));
}

TEST(MovePlan, SaysThatTheMachineStartsElsewhere) {
    const FsmDocument document = Garage();
    EXPECT_THAT(PlanMove(document, StateOrder::Swapping(1, 3)).Notes,
                ElementsAre("State 1 is the start: the machine would begin in 3:Shut, now as state 1"));
}

TEST(MovePlan, SaysWhichEventWouldCountFirst) {
    const FsmDocument document = Garage();
    EXPECT_THAT(PlanMove(document, EventOrder::Moving(7, 6)).Notes,
                ElementsAre("When both occur at a time, E7 would count before E6 (in 2:Open)"));
    EXPECT_THAT(PlanMove(document, EventOrder::Moving(9, 6)).Notes, IsEmpty()); // no state knows both
}

TEST(MovePlan, SaysWhichTimersTheProgramWouldDefineOtherwise) {
    FsmDocument document = SmallTable()
                               .Timing(1, 1, "1", "A")
                               .Timing(2, 1, "1", "BA")
                               .Timing(3, 1, "1", "BA")
                               .Cell(1, 4, 2)
                               .Cell(2, 4, 3)
                               .Cell(3, 4, 1)
                               .Document();
    EXPECT_THAT(PlanMove(document, StateOrder::Swapping(2, 3)).Notes, IsEmpty());
    EXPECT_THAT(PlanMove(document, StateOrder::Moving(1, 2)).Notes,
                testing::Contains("The program would lose a definition of the timer P_Timer_A"));
    std::swap(document.State(1).TimerId, document.State(2).TimerId);
    EXPECT_THAT(PlanMove(document, StateOrder::Swapping(1, 2)).Notes,
                testing::Contains("The program would have one more definition of the timer P_Timer_A"));
}

TEST(MovePlan, PlacesFollowTheirStateAndEvent) {
    EXPECT_EQ(NewPlace(StateOrder::Moving(2, 5), {6, 3}), (Cell{6, 2}));
    EXPECT_EQ(NewPlace(EventOrder::Moving(6, 9), {6, 3}), (Cell{9, 3}));
    EXPECT_EQ(NewPlace(EventOrder::Moving(6, 9), {0, 3}), (Cell{0, 3}));
    EXPECT_EQ(NewNumber(StateOrder::Moving(2, 5), kNoState), kNoState);
}

// User code that names its own labels goes where it went before.
TEST(MovePlan, CodeThatNamesLabelsNamesThemStill) {
    FsmDocument document = Garage();
    document.State(3).EntryCode.clear();
    document.State(1).EntryCode = "\tGoTo\tP_Open_Set2";
    const MovePlan plan = PlanMove(document, StateOrder::Moving(2, 40));
    TableClipboard clipboard;
    Apply(document, clipboard, plan, std::vector<bool>(plan.Labels.size(), true));
    const std::string program = GenerateProgram(document, {}).Text;
    EXPECT_THAT(program, testing::HasSubstr("P_Idle_Set1:\r\n\tGoTo\tP_Open_Set40\r\n"));
    EXPECT_THAT(program, testing::HasSubstr("P_Open_Set40:\r\n"));
    EXPECT_THAT(program, testing::Not(testing::HasSubstr("P_Open_Set2")));
}

} // namespace
} // namespace orvane::find
