// SPDX-License-Identifier: GPL-3.0-or-later
#include "findings/FindingList.h"

#include "support/AdviceTexts.h"

#include <gmock/gmock.h>

namespace orvane::findings {
namespace {

using test::SmallTable;
using test::SoundTable;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(FindingList, HasErrorsFirstAndAdviceLastAndElseTheOrderOfTheReport) {
    SmallTable table = SoundTable();
    table.Name(5, "Run");
    const DesignFinding note{FindingLevel::Note, {}, "n"};
    const DesignFinding warning{FindingLevel::Warning, {}, "w"};
    const DesignFinding first{FindingLevel::Error, {}, "first"};
    const DesignFinding second{FindingLevel::Error, {}, "second"};
    EXPECT_THAT(FindingList({note, first, warning, second}, table.Document()),
                ElementsAre(first, second, warning, note,
                            DesignFinding{FindingLevel::Advice,
                                          {kNoRow, 5},
                                          "The states 2:Run and 5:Run have the same name"}));
}

TEST(FindingList, WhatIsExploredDoesNotStandInTheListAlready) {
    SmallTable table = SoundTable();
    table.Name(5, "Run").Name(3, "Trap").Cell(2, 8, 3);
    const Explored explored = Explore(table.Document(), {});
    EXPECT_TRUE(explored.Complete);
    EXPECT_THAT(explored.Advice, SizeIs(2)); // no way back, and a trap
    for (const DesignFinding& finding : explored.Advice)
        EXPECT_EQ(finding.Place, (Cell{kNoRow, 3})) << finding.Text;
}

TEST(FindingList, ExploringThatWasStoppedIsNotComplete) {
    std::stop_source stop;
    stop.request_stop();
    EXPECT_FALSE(Explore(SoundTable().Document(), stop.get_token()).Complete);
}

TEST(FindingList, PlacesAreToldByNames) {
    SmallTable table = SoundTable();
    const FsmDocument& document = table.Document();
    EXPECT_EQ(PlaceText(document, {}), "The machine");
    EXPECT_EQ(PlaceText(document, {kNoRow, 2}), "State 2:Run");
    EXPECT_EQ(PlaceText(document, {6, kNoState}), "Event E6");
    EXPECT_EQ(PlaceText(document, {12, kNoState}), "Event row 12");
    EXPECT_EQ(PlaceText(document, {7, 2}), "2:Run, on E7");
    EXPECT_EQ(PlaceText(document, {kTimeoutRow, 2}), "2:Run, on timeout");
}

} // namespace
} // namespace orvane::findings
