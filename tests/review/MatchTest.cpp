// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/Match.h"

#include "review/Compare.h"
#include "support/SmallTable.h"

#include <gtest/gtest.h>

namespace orvane::test {
namespace {

using review::Change;
using review::ChangeKind;
using review::Compare;
using review::Match;
using review::Matching;

// Idle, Run and Stop in columns 1 to 3.
SmallTable PumpThatRepeats() {
    SmallTable table;
    table.Name(1, "Idle", ";idle").Name(2, "Run", ";run").Name(3, "Stop", ";stop");
    table.Cell(1, 6, 2).Cell(2, 7, 3, ";slow").Cell(3, 8, 1).Cell(3, 9, 3, ";again");
    return table;
}

std::vector<ChangeKind> KindsOf(const std::vector<Change>& changes) {
    std::vector<ChangeKind> kinds;
    for (const Change& change : changes)
        kinds.push_back(change.Kind);
    return kinds;
}

TEST(Match, FollowsAUniqueNameToAnotherNumber) {
    SmallTable moved;
    moved.Name(5, "Idle").Name(1, "Run").Name(2, "Stop");
    const Matching matching = Match(PumpThatRepeats().Document(), moved.Document());
    EXPECT_EQ(matching.States.NewOf(1), StateNumber(5));
    EXPECT_FALSE(matching.States.IsGuess(1));
    EXPECT_TRUE(matching.States.HasMoved(1));
    EXPECT_FALSE(matching.States.HasMoved(2));
}

TEST(Match, BlanksAtTheEndsMakeNoOtherName) {
    SmallTable table;
    table.Name(4, " Run ");
    EXPECT_EQ(Match(PumpThatRepeats().Document(), table.Document()).States.NewOf(2), StateNumber(4));
}

TEST(Match, KnowsARenamedEventByItsTestCode) {
    SmallTable oldOne;
    oldOne.Document().Event(6) = {"Start", ";start?", "", 0};
    SmallTable newOne;
    newOne.Document().Event(6) = {};
    newOne.Document().Event(12) = {"Go", ";start?", "", 0};
    const Matching matching = Match(oldOne.Document(), newOne.Document());
    EXPECT_EQ(matching.Rows.NewOf(6), RowNumber(12));
    EXPECT_FALSE(matching.Rows.IsGuess(6));
}

TEST(Match, GuessesARenamedStateByItsContent) {
    SmallTable renamed = PumpThatRepeats();
    renamed.Name(3, "Halt", ";stop");
    const Matching matching = Match(PumpThatRepeats().Document(), renamed.Document());
    EXPECT_EQ(matching.States.NewOf(3), StateNumber(3));
    EXPECT_TRUE(matching.States.IsGuess(3));
    EXPECT_FALSE(matching.States.IsGuess(1));
}

TEST(Match, DoesNotTakeAStateWithOtherContentForARenamedOne) {
    SmallTable other = PumpThatRepeats();
    other.Document().State(3) = FsmDocument().StateTemplate();
    other.Name(3, "Drain", ";open\r\n;the valve").Cell(3, 6, 2, ";x").Cell(3, 7, 2, ";y").Cell(2, 7, 0);
    const Matching matching = Match(PumpThatRepeats().Document(), other.Document());
    EXPECT_FALSE(matching.States.HasNew(3));
    EXPECT_FALSE(matching.States.HasOld(3));
}

TEST(Match, TwoStatesThatExchangedTheirNumbersAreOneMove) {
    SmallTable exchanged;
    exchanged.Name(1, "Idle", ";idle").Name(3, "Run", ";run").Name(2, "Stop", ";stop");
    exchanged.Cell(1, 6, 3).Cell(3, 7, 2, ";slow").Cell(2, 8, 1).Cell(2, 9, 2, ";again");
    EXPECT_EQ(KindsOf(Compare(PumpThatRepeats().Document(), exchanged.Document()).Changes),
              std::vector{ChangeKind::StateMoved});
}

TEST(Match, AWishForTheSameOverrulesNames) {
    const FsmDocument oldOne = PumpThatRepeats().Document();
    SmallTable newOne = PumpThatRepeats();
    newOne.Name(4, "Wait");
    const Matching matching = Match(oldOne, newOne.Document(), {{{2, 4}}, {{6, 7}}});
    EXPECT_EQ(matching.States.NewOf(2), StateNumber(4));
    EXPECT_FALSE(matching.States.IsGuess(2));
    EXPECT_EQ(matching.Rows.NewOf(6), RowNumber(7));
    EXPECT_FALSE(matching.States.HasOld(2));
    EXPECT_EQ(Match(newOne.Document(), oldOne, review::Wishes{{{2, 4}}, {{6, 7}}}.Mirrored()),
              matching.Mirrored());
}

TEST(Match, AWishThatAnOldStateIsGoneLeavesItAlone) {
    const FsmDocument document = PumpThatRepeats().Document();
    const Matching matching = Match(document, document, {{{2, std::nullopt}}, {}});
    EXPECT_FALSE(matching.States.HasNew(2));
    EXPECT_FALSE(matching.States.HasOld(2));
    EXPECT_EQ(matching.States.NewOf(1), StateNumber(1));
}

TEST(Match, PassesOverWishesForWhatIsNotThere) {
    const FsmDocument document = PumpThatRepeats().Document();
    EXPECT_EQ(Match(document, document, {{{50, 1}, {1, 1}, {1, 2}}, {}}).States.NewOf(1), StateNumber(1));
}

TEST(Match, StatesWithoutNamesKeepTheirNumbersInADocumentThatIsTheSame) {
    SmallTable table;
    for (int state = 1; state <= 6; ++state)
        table.Cell(state, 6, 1 + state % 6);
    SmallTable changed = table;
    changed.Cell(4, 7, 2);
    const Matching matching = Match(table.Document(), changed.Document());
    for (int state = 1; state <= 6; ++state)
        EXPECT_EQ(matching.States.NewOf(state), StateNumber(state));
}

TEST(Compare, AStateThatWasPutInIsOneChangeAndThoseBehindItAreOnlyRenumbered) {
    SmallTable newOne;
    newOne.Name(1, "Idle", ";idle").Name(2, "New", ";new").Name(3, "Run", ";run").Name(4, "Stop", ";stop");
    newOne.Cell(1, 6, 3).Cell(3, 7, 4, ";slow").Cell(4, 8, 1).Cell(4, 9, 4, ";again");
    const review::ChangeList list = Compare(PumpThatRepeats().Document(), newOne.Document());
    ASSERT_EQ(KindsOf(list.Changes), std::vector{ChangeKind::StateAdded});
    EXPECT_EQ(list.Changes.front().New.State, StateNumber(2));
    EXPECT_EQ(list.Same.States.NewOf(2), StateNumber(3));
}

TEST(Compare, AnEmptyColumnThatPushesOthersAlongIsADifference) {
    SmallTable newOne;
    newOne.Name(1, "Idle", ";idle").Name(3, "Run", ";run").Name(4, "Stop", ";stop");
    newOne.Cell(1, 6, 3).Cell(3, 7, 4, ";slow").Cell(4, 8, 1).Cell(4, 9, 4, ";again");
    const review::ChangeList list = Compare(PumpThatRepeats().Document(), newOne.Document());
    EXPECT_TRUE(list.Changes.empty());
    EXPECT_FALSE(list.IsEmpty());
}

TEST(Compare, WidthsAndRowsThatAreShownAreOfTheView) {
    SmallTable newOne = PumpThatRepeats();
    newOne.Document().State(2).ColWidth = 1200;
    newOne.Document().State(60).ColWidth = 1300;
    newOne.Document().View.ShowElse = true;
    newOne.Document().View.Col0Width = 99;
    newOne.Document().View.RowVisible.Else = 240;
    const review::ChangeList list = Compare(PumpThatRepeats().Document(), newOne.Document());
    EXPECT_EQ(list.Changes.size(), 5u);
    for (const Change& change : list.Changes)
        EXPECT_TRUE(change.IsOfTheView) << change.Name;
    newOne.Document().View.Polytask = true; // makes another program
    const std::vector<Change> changes = Compare(PumpThatRepeats().Document(), newOne.Document()).Changes;
    EXPECT_EQ(changes.size(), 6u);
    EXPECT_FALSE(changes.front().IsOfTheView);
}

TEST(Compare, WhatWentStandsBehindWhatItStoodBehind) {
    SmallTable newOne;
    newOne.Name(1, "Idle", ";idle").Name(2, "Stop", ";halt");
    newOne.Cell(2, 8, 1).Cell(2, 9, 2, ";again");
    const std::vector<Change> changes = Compare(PumpThatRepeats().Document(), newOne.Document()).Changes;
    EXPECT_EQ(KindsOf(changes),
              (std::vector{ChangeKind::Target, ChangeKind::StateRemoved, ChangeKind::StateField}));
    EXPECT_EQ(std::get<StateNumber>(changes[0].Before), StateNumber(2));
    EXPECT_EQ(std::get<StateNumber>(changes[0].After), StateNumber());
}

} // namespace
} // namespace orvane::test
