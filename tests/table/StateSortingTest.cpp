// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/StateSorting.h"

#include "core/TightPacked.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "support/SmallTable.h"

#include <gtest/gtest.h>

namespace orvane::test {
namespace {

std::vector<std::string> NamesAfter(FsmDocument document, const StateOrder& order, int count) {
    TableClipboard clipboard;
    Rearrange(document, clipboard, order);
    std::vector<std::string> names;
    for (int state = 1; state <= count; ++state)
        names.push_back(document.State(state).Name);
    return names;
}

using Names = std::vector<std::string>;

TEST(StateSorting, ByNameTheStartStaysUnlessItIsToGo) {
    const FsmDocument document = SmallTable()
                                     .Name(1, "Open")
                                     .Name(2, "closed")
                                     .Name(4, "Alarm")
                                     .Name(5, "", "entry")
                                     .Name(7, "Beep")
                                     .Document();
    EXPECT_EQ(NamesAfter(document, SortedByName(document, StartState::Stays), 6),
              (Names{"Open", "Alarm", "Beep", "closed", "", ""}));
    EXPECT_EQ(NamesAfter(document, SortedByName(document, StartState::IsSorted), 6),
              (Names{"Alarm", "Beep", "closed", "Open", "", ""}));
    FsmDocument sorted = document;
    TableClipboard clipboard;
    Rearrange(sorted, clipboard, SortedByName(document, StartState::Stays));
    EXPECT_EQ(sorted.State(5).EntryCode, "entry");
}

TEST(StateSorting, ByTheWayFromTheStartNearStatesComeFirst) {
    const FsmDocument document = SmallTable()
                                     .Name(1, "Start")
                                     .Name(2, "Far")
                                     .Name(3, "Alone")
                                     .Name(4, "Near")
                                     .Name(5, "AfterTimeout")
                                     .Cell(1, 7, 4)
                                     .Cell(1, 4, 5)
                                     .Cell(4, 6, 2)
                                     .Cell(2, 6, 1)
                                     .Document();
    EXPECT_EQ(NamesAfter(document, SortedByWay(document), 5),
              (Names{"Start", "AfterTimeout", "Near", "Far", "Alone"}));
}

TEST(StateSorting, GapsAreClosedAndWhatIsLedToIsNoGap) {
    FsmDocument document = SmallTable().Name(3, "Three").Cell(3, 6, 6).Name(9, "Nine").Document();
    document.Event(8) = {};
    document.State(3).Actions[12] = ";kept";
    document.Event(20).Tooltip = "Later";
    EXPECT_EQ(NamesAfter(document, StateGapsClosed(document), 5), (Names{"", "Three", "", "Nine", ""}));
    const EventOrder events = EventGapsClosed(document);
    EXPECT_EQ(events.NewOf(9), RowNumber(8));
    EXPECT_EQ(events.NewOf(12), RowNumber(9));
    EXPECT_EQ(events.NewOf(20), RowNumber(10));
}

TEST(StateSorting, SortingASortedTableChangesNothing) {
    ExpectProperty({.Cases = 100, .LargestSize = 60}, [] {
        FsmDocument document = *AnyDocument();
        TableClipboard clipboard;
        Rearrange(document, clipboard, SortedByName(document, StartState::Stays));
        RC_ASSERT(SortedByName(document, StartState::Stays).KeepsAll());
        Rearrange(document, clipboard, SortedByWay(document));
        RC_ASSERT(SortedByWay(document).KeepsAll());
        Rearrange(document, clipboard, StateGapsClosed(document));
        Rearrange(document, clipboard, EventGapsClosed(document));
        RC_ASSERT(StateGapsClosed(document).KeepsAll());
        RC_ASSERT(EventGapsClosed(document).KeepsAll());
    });
}

} // namespace
} // namespace orvane::test
