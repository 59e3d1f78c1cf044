// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/BacktrackList.h"

#include "core/StateLabel.h"
#include "support/Property.h"
#include "support/RandomDocument.h"

namespace orvane {
namespace {

TEST(BacktrackList, TheTitleNamesTheState) {
    FsmDocument document;
    document.State(3).Name = "Idle";
    EXPECT_EQ(BacktrackTitle(document, 3), "Backtracks for state: 3:Idle");
    EXPECT_EQ(BacktrackTitle(document, 100), "Backtracks for state: 100:");
}

TEST(BacktrackList, AStateThatNothingTargetsHasNoLines) {
    FsmDocument document;
    document.State(1).Targets[6] = 2;
    EXPECT_TRUE(BacktrackLines(document, 3).empty());
}

TEST(BacktrackList, AStateThatTargetsItselfIsInItsOwnList) {
    FsmDocument document;
    document.Event(6).Name = "Again";
    document.State(3).Name = "Idle";
    document.State(3).Targets[6] = 3;
    EXPECT_EQ(BacktrackLines(document, 3),
              (std::vector<BacktrackLine>{{"Again", Colour{255, 153, 204}, 3, "3:Idle"}}));
}

TEST(BacktrackList, TimeoutsComeFirstThenElseThenEventsAndInEachTheStatesInOrder) {
    FsmDocument document;
    document.Event(6).Name = "Start";
    document.Event(54).Name = "Last";
    for (const int state : {90, 2}) {
        document.State(state).Name = "S";
        document.State(state).Targets[54] = 5;
        document.State(state).Targets[6] = 5;
        document.State(state).Targets[kElseRow] = 5;
        document.State(state).Targets[kTimeoutRow] = 5;
    }
    const Colour timeout{255, 255, 153};
    const Colour otherwise{255, 238, 204};
    const Colour event{255, 153, 204};
    EXPECT_EQ(BacktrackLines(document, 5), (std::vector<BacktrackLine>{{"TimeOut", timeout, 2, "2:S"},
                                                                       {"TimeOut", timeout, 90, "90:S"},
                                                                       {"ELSE", otherwise, 2, "2:S"},
                                                                       {"ELSE", otherwise, 90, "90:S"},
                                                                       {"Start", event, 2, "2:S"},
                                                                       {"Start", event, 90, "90:S"},
                                                                       {"Last", event, 2, "2:S"},
                                                                       {"Last", event, 90, "90:S"}}));
}

std::vector<std::string> PlainSearch(const FsmDocument& document, StateNumber state) {
    std::vector<std::string> found;
    for (int row = 4; row <= 54; ++row)
        for (int from = 1; from <= 100; ++from)
            if (document.State(from).Targets[row] == state)
                found.push_back((row == 4   ? "TimeOut"
                                 : row == 5 ? "ELSE"
                                            : document.Event(row).Name) +
                                "|" + StateLabel(from, document.State(from).Name));
    return found;
}

TEST(BacktrackList, AgreesWithAPlainSearch) {
    test::ExpectProperty({}, [] {
        const FsmDocument document = *test::AnyDocument();
        for (const StateNumber state : StateNumbers()) {
            std::vector<std::string> listed;
            for (const BacktrackLine& line : BacktrackLines(document, state)) {
                listed.push_back(line.EventText + "|" + line.FromText);
                RC_ASSERT(line.FromText == StateLabel(line.From, document.State(line.From).Name));
            }
            RC_ASSERT(listed == PlainSearch(document, state));
        }
    });
}

} // namespace
} // namespace orvane
