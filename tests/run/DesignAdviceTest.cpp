// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/DesignAdvice.h"

#include "run/PumpTable.h"
#include "support/AdviceTexts.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

using test::SmallTable;
using test::SoundTable;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> ToldOfDesign(const FsmDocument& document) {
    return test::AdviceTexts(AdviceOnDesign(document));
}

TEST(DesignAdvice, IsSilentWhereThereIsNothingToSay) {
    EXPECT_THAT(ToldOfDesign(SoundTable().Document()), IsEmpty());
}

TEST(DesignAdvice, TellsStatesAndEventsOfOneName) {
    SmallTable table = SoundTable();
    table.Name(5, " Run ");
    table.Document().Event(9).Name = "E6";
    EXPECT_THAT(ToldOfDesign(table.Document()),
                ElementsAre("same-name 5 0: The states 2:Run and 5: Run have the same name",
                            "same-name 0 9: The events in rows 6 and 9 have the same name, E6"));
}

TEST(DesignAdvice, TellsTimerIdsThatDifferOnlyInBlanks) {
    SmallTable table = SoundTable();
    table.Timing(1, kStartConstant, "5", "A B")
        .Cell(1, 4, 2)
        .Timing(2, kStartConstant, "5", "AB")
        .Cell(2, 4, 1);
    EXPECT_THAT(ToldOfDesign(table.Document()),
                ElementsAre("timer-blanks 2 3: The timer ids \"A B\" of 1:Idle and \"AB\" of 2:Run differ "
                            "only in blanks"));
    table.Timing(2, kNoTiming, "5", "AB");
    EXPECT_THAT(ToldOfDesign(table.Document()), IsEmpty());
}

// Without multitasking others run meanwhile, but where the machine is depends on the controller.
TEST(DesignAdvice, TellsARingOfElse) {
    SmallTable table = SoundTable();
    table.Name(3, "Look").Cell(1, 5, 2).Cell(2, 5, 3).Cell(3, 5, 2);
    EXPECT_THAT(
        ToldOfDesign(table.Document()),
        ElementsAre("oscillates 2 5: The states 2:Run, 3:Look lead to each other by ELSE: while nothing "
                    "happens the machine goes round with every scan, and where it is then depends on "
                    "how often the controller scans"));
    table.Cell(3, 5, 3); // enters itself, which is no ring
    EXPECT_THAT(ToldOfDesign(table.Document()), IsEmpty());
}

TEST(DesignAdvice, WithMultitaskingARingOfElseNeverYieldsAndIsToldOnce) {
    SmallTable table = SoundTable();
    table.Polytask().Name(3, "Look").Cell(2, 5, 3).Cell(3, 5, 2);
    const std::string told =
        "never-yields 2 5: The states 2:Run, 3:Look lead to each other and let no time pass: "
        "no other machine runs then";
    EXPECT_THAT(ToldOfDesign(table.Document()), ElementsAre(told));
    int rings = 0;
    for (const Advice& advice : AdviceOn(table.Document()).List)
        rings += advice.Kind == AdviceKind::NeverYields ? 1 : 0;
    EXPECT_EQ(rings, 1);
}

} // namespace
} // namespace orvane::run
