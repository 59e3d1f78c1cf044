// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/Advice.h"

#include "run/PumpTable.h"
#include "support/AdviceTexts.h"

#include <gmock/gmock.h>

#include <set>

namespace orvane::run {
namespace {

using test::SmallTable;
using test::SoundTable;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Told(const FsmDocument& document) {
    return test::AdviceTexts(AdviceOn(document).List);
}

TEST(Advice, IsSilentWhereThereIsNothingToSay) { EXPECT_THAT(Told(SoundTable().Document()), IsEmpty()); }

TEST(Advice, TellsAStartThatIsNotStateOne) {
    SmallTable table = SoundTable();
    table.Name(3, "Wait").Cell(3, 6, 2).Cell(2, 7, 3);
    EXPECT_THAT(Told(table.Document()),
                ElementsAre("start-not-1 2 0: The machine starts in 2:Run, the first state that a transition "
                            "enters, and not in 1:Idle"));
}

TEST(Advice, TellsATimeoutThatCanNeverBeDue) {
    SmallTable table = SoundTable();
    table.Timing(2, kStartConstant, "5").Cell(2, 4, 1).Cell(2, 5, 1);
    EXPECT_THAT(Told(table.Document()),
                ElementsAre("dead-timeout 2 4: The timeout of 2:Run can never be due: the state is always "
                            "left, or entered anew, before"));
    table.Cell(2, 8, 2); // can hold it
    EXPECT_THAT(Told(table.Document()), IsEmpty());
}

TEST(Advice, TellsATimerThatMayNeverHaveBeenStarted) {
    SmallTable table = SoundTable();
    table.Timing(2, kContinueConstant, "5", "A").Cell(2, 4, 1);
    EXPECT_THAT(Told(table.Document()),
                ElementsAre("timer-never-started 2 3: The timeout of 2:Run looks at the timer A, which may "
                            "never have been started by then"));
    table.Timing(1, kStartConstant, "5", "A").Cell(1, 4, 2);
    EXPECT_THAT(Told(table.Document()), IsEmpty());
}

TEST(Advice, TellsRingsAndHoldsThatNeverYield) {
    SmallTable table = SoundTable();
    table.Polytask().Cell(2, 5, 1).Cell(2, 8, 2);
    EXPECT_THAT(Told(table.Document()),
                ElementsAre("never-yields 2 8: 2:Run is held by the event in row 8 (E8) and lets no time "
                            "pass, because its ELSE leads to another state: no other machine runs as long as "
                            "the event is there"));
    SmallTable ring = SoundTable();
    ring.Polytask().Cell(1, 8, 3).Name(3, "A").Cell(3, 5, 4).Name(4, "B").Cell(4, 5, 3).Cell(4, 9, 1);
    EXPECT_THAT(Told(ring.Document()),
                ElementsAre(testing::HasSubstr("3:A, 4:B lead to each other and let no time pass")));
}

TEST(Advice, TellsStatesWithoutAWayBackAndTraps) {
    SmallTable table = SoundTable();
    table.Cell(1, 8, 3).Name(3, "Done").Cell(3, 9, 4).Name(4, "End");
    EXPECT_THAT(Told(table.Document()),
                ElementsAre("no-way-back 3 0: From 3:Done no way leads back to the start, 1:Idle",
                            "no-way-back 4 0: From 4:End no way leads back to the start, 1:Idle",
                            "trap 4 0: Nothing leads out of 4:End: the machine stays there until power is "
                            "off"));
}

// A way that only a timeout makes, which cannot be due, is none.
TEST(Advice, AWayThatIsNeverTakenIsNone) {
    SmallTable table = SoundTable();
    table.Cell(1, 8, 3).Name(3, "Done").Timing(3, kStartConstant, "5").Cell(3, 4, 1).Cell(3, 5, 3);
    EXPECT_THAT(Told(table.Document()),
                ElementsAre(testing::StartsWith("dead-timeout 3"), testing::StartsWith("no-way-back 3"),
                            testing::StartsWith("trap 3")));
}

TEST(Advice, TellsEventsWithTheSameTest) {
    SmallTable table = SoundTable();
    table.Document().Event(7).Code = " ;test  6";
    EXPECT_THAT(
        Told(table.Document()),
        ElementsAre("same-test 0 7: The events in row 6 (E6) and row 7 (E7) have the same test; where "
                    "both lead somewhere only the upper one is taken"));
    table.Document().Event(8).Code = ";test 6"; // leads nowhere
    EXPECT_EQ(Told(table.Document()).size(), 1U);
}

TEST(Advice, TellsLabelsThatStandTwiceAndThenNothingOfTheRun) {
    SmallTable table = SoundTable();
    table.Name(3, "Timer").Cell(1, 8, 3).Timing(2, kStartConstant, "5", "3").Cell(2, 4, 1);
    EXPECT_THAT(Told(table.Document()),
                ElementsAre("label-twice 0 0: The label P_Timer_3 stands twice in the program; change one of "
                            "the names it is made of"));
}

TEST(Advice, OfADesignWithErrorsTellsWhatNeedsNoRun) {
    SmallTable table = SoundTable();
    table.Timing(2, kStartConstant, "").Cell(2, 4, 3).Name(3, "End");
    EXPECT_THAT(Told(table.Document()), IsEmpty());
    EXPECT_THAT(Told(FsmDocument()), IsEmpty());
}

TEST(Advice, EachKindHasAWordOfItsOwn) {
    std::set<std::string_view> words;
    for (const AdviceKind kind : kAdviceKinds)
        EXPECT_TRUE(words.insert(AdviceKindName(kind)).second);
    EXPECT_FALSE(words.contains(""));
}

} // namespace
} // namespace orvane::run
