// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/TakeOver.h"

#include "review/Compare.h"
#include "support/SmallTable.h"
#include "support/Versions.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvane::test {
namespace {

using review::Change;
using review::ChangeKind;
using review::ChangeList;
using review::Compare;
using review::TakeOver;

bool IsMove(const Change& change) {
    return change.Kind == ChangeKind::StateMoved || change.Kind == ChangeKind::EventMoved;
}

// What is left after everything that can be taken over was, one change at a time.
ChangeList TakenOver(FsmDocument document, const FsmDocument& other) {
    for (int steps = 0; steps < 1000; ++steps) {
        const ChangeList list = Compare(document, other);
        const auto taken = std::find_if(list.Changes.begin(), list.Changes.end(), [&](const Change& change) {
            FsmDocument changed = document;
            if (TakeOver(change, list, changed))
                return false;
            const bool didSomething = changed != document;
            document = changed;
            return didSomething;
        });
        if (taken == list.Changes.end())
            return list;
    }
    ADD_FAILURE() << "it does not come to an end";
    return {};
}

TEST(TakeOver, OneChangeAfterTheOtherLeadsToTheOtherDesign) {
    Dice dice(11);
    for (int machine = 0; machine < 25; ++machine) {
        const Version oldOne = RandomMachine(dice, {.MostStates = 12, .MostEvents = 8, .BlankNames = 0});
        Version newOne = oldOne;
        for (int edit = 0; edit < 12; ++edit)
            EditAtRandom(newOne, dice);
        for (const Change& change : TakenOver(oldOne.Document, newOne.Document).WithoutView().Changes)
            EXPECT_TRUE(IsMove(change)) << machine << " " << ChangeKindName(change.Kind);
    }
}

TEST(TakeOver, ATargetThatIsNotHereIsRefusedWithoutAnyChange) {
    SmallTable oldOne;
    oldOne.Name(1, "Idle");
    SmallTable newOne;
    newOne.Name(1, "Idle").Name(2, "Run").Cell(1, 6, 2);
    const ChangeList list = Compare(oldOne.Document(), newOne.Document());
    FsmDocument document = oldOne.Document();
    EXPECT_EQ(TakeOver(list.Changes.at(0), list, document),
              "The transition leads to a state that is not here. Take that state over first");
    EXPECT_EQ(document, oldOne.Document());
    EXPECT_EQ(TakeOver(list.Changes.at(1), list, document), std::nullopt);
    EXPECT_EQ(document.State(2).Name, "Run");
}

TEST(TakeOver, MovesAndWhatFindsNoRoomAreRefused) {
    FsmDocument oldOne;
    for (int state = 1; state <= 100; ++state)
        oldOne.State(state).Name = "S" + std::to_string(state);
    FsmDocument newOne = oldOne;
    newOne.State(100) = newOne.StateTemplate();
    newOne.State(100).Name = "New";
    newOne.State(100).EntryCode = ";other";
    std::swap(newOne.State(1), newOne.State(2));
    const ChangeList list = Compare(oldOne, newOne);
    int refused = 0;
    for (const Change& change : list.Changes) {
        FsmDocument document = oldOne;
        if (!TakeOver(change, list, document))
            continue;
        ++refused;
        EXPECT_EQ(document, oldOne);
    }
    EXPECT_EQ(refused, 2);
}

} // namespace
} // namespace orvane::test
