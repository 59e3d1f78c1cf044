// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/Merge.h"

#include "core/DocumentWriter.h"
#include "review/ConflictBlock.h"
#include "support/SmallTable.h"

#include <gmock/gmock.h>

namespace orvane::test {
namespace {

using review::Conflict;
using review::ConflictKind;
using review::Contradictions;
using review::MergeResult;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

SmallTable Pump() {
    SmallTable table;
    table.Name(1, "Idle", ";idle").Name(2, "Run", ";run").Name(3, "Stop", ";stop");
    table.Cell(1, 6, 2).Cell(2, 7, 3, ";slow").Cell(3, 8, 1);
    return table;
}

// With Fill in front of Run, which is 3 then, and Stop 4.
SmallTable WithFill() {
    SmallTable table;
    table.Name(1, "Idle", ";idle").Name(3, "Run", ";run").Name(4, "Stop", ";stop").Name(2, "Fill", ";fill");
    table.Cell(1, 6, 3).Cell(3, 7, 4, ";slow").Cell(4, 8, 1).Cell(2, 9, 3);
    return table;
}

// Without Stop.
SmallTable WithoutStop() {
    SmallTable table = Pump();
    table.Document().State(3) = table.Document().StateTemplate();
    return table.Cell(2, 7, 0, ";slow");
}

MergeResult Merged(const SmallTable& ours, const SmallTable& theirs) {
    return review::Merge(Pump().Document(), ours.Document(), theirs.Document());
}

std::vector<std::string> Asked(const MergeResult& result) {
    std::vector<std::string> asked;
    for (const Conflict& conflict : result.Conflicts)
        asked.push_back(std::string(ConflictKindName(conflict.Kind)) + ": " + conflict.What);
    return asked;
}

TEST(Merge, WhatWasRenumberedContradictsNothing) {
    SmallTable theirs = Pump();
    theirs.Cell(3, 9, 2, ";again");
    const MergeResult result = Merged(WithFill(), theirs);
    EXPECT_THAT(Asked(result), IsEmpty());
    EXPECT_EQ(result.Document.State(4).Targets[9], StateNumber(3)); // Stop leads to Run
    EXPECT_EQ(result.Document.State(4).Actions[9], ";again");
    EXPECT_EQ(result.FromTheirs.States.NewOf(3), StateNumber(4));
}

TEST(Merge, BothSidesMayAddStatesAndEvents) {
    SmallTable theirs = Pump();
    theirs.Name(4, "Alarm", ";alarm").Cell(2, 9, 4);
    theirs.Document().Event(10) = {"Smoke", ";smoke?", "", 0};
    theirs.Cell(4, 10, 4);
    const MergeResult result = Merged(WithFill(), theirs);
    EXPECT_THAT(Asked(result), IsEmpty());
    EXPECT_EQ(result.Document.State(5).Name, "Alarm");
    EXPECT_EQ(result.Document.State(3).Targets[9], StateNumber(5));
    EXPECT_EQ(result.Document.State(5).Targets[10], StateNumber(5));
}

TEST(Merge, CodeIsMergedLineByLine) {
    SmallTable ours = Pump();
    ours.Name(2, "Run", ";first\r\n;run");
    SmallTable theirs = Pump();
    theirs.Document().State(2).Tooltip = "runs";
    MergeResult result = Merged(ours, theirs);
    EXPECT_THAT(Asked(result), IsEmpty());
    EXPECT_EQ(result.Document.State(2).EntryCode, ";first\r\n;run");
    EXPECT_EQ(result.Document.State(2).Tooltip, "runs");
    theirs.Name(2, "Run", ";walk");
    result = Merged(ours, theirs);
    EXPECT_THAT(Asked(result), ElementsAre("field: state 2:Run, entry action"));
    EXPECT_THAT(result.Document.State(2).EntryCode, HasSubstr(";first\r\n;run\r\n;<<<<<<< CONFLICT: "));
}

TEST(Merge, TwoTargetsForOneCellAreAskedInItsAction) {
    SmallTable ours = Pump();
    ours.Cell(1, 6, 3);
    SmallTable theirs = Pump();
    theirs.Cell(1, 6, 1);
    const MergeResult result = Merged(ours, theirs);
    EXPECT_THAT(Asked(result), ElementsAre("target: 1:Idle, E6, target"));
    EXPECT_EQ(result.Document.State(1).Targets[6], StateNumber(3));
    EXPECT_EQ(result.Document.State(1).Actions[6], ";<<<<<<< CONFLICT: 1:Idle, E6, target\r\n"
                                                   ";||||||| BASE\r\n;-> 2:Run\r\n"
                                                   ";======= THEIRS\r\n;-> 1:Idle\r\n"
                                                   ";>>>>>>> CONFLICT");
}

TEST(Merge, TwoNamesForOneStateAreAskedInItsExitNote) {
    SmallTable ours = Pump();
    ours.Name(2, "Go", ";run");
    SmallTable theirs = Pump();
    theirs.Name(2, "Work", ";run");
    const MergeResult result = Merged(ours, theirs);
    EXPECT_THAT(Asked(result), ElementsAre("field: state 2:Go, name"));
    EXPECT_EQ(result.Document.State(2).Name, "Go");
    EXPECT_THAT(result.Document.State(2).ExitCode, HasSubstr(";======= THEIRS\r\n;Work\r\n"));
}

TEST(Merge, TwoPrefixesAreAskedInTheHeader) {
    SmallTable ours = Pump();
    ours.Document().General.FsmName = "A";
    SmallTable theirs = Pump();
    theirs.Document().General.FsmName = "B";
    const MergeResult result = Merged(ours, theirs);
    EXPECT_EQ(result.Document.General.FsmName, "A");
    EXPECT_THAT(result.Document.General.HeaderComment,
                HasSubstr("CONFLICT: machine, name\r\n;||||||| BASE\r\n;P\r\n;======= THEIRS\r\n;B\r\n"));
}

TEST(Merge, TwoWidthsAreOursAndOnlyNoted) {
    SmallTable ours = Pump();
    ours.Document().State(2).ColWidth = 1000;
    SmallTable theirs = Pump();
    theirs.Document().State(2).ColWidth = 1100;
    const MergeResult result = Merged(ours, theirs);
    EXPECT_THAT(Asked(result), IsEmpty());
    EXPECT_THAT(result.Notes, ElementsAre("state 2:Run, column width was changed by both sides; it is ours"));
    EXPECT_EQ(result.Document.State(2).ColWidth, Twips(1000));
}

TEST(Merge, WhatOneSideRemovedAndNobodyChangedIsGone) {
    SmallTable theirs = Pump();
    theirs.Cell(1, 9, 2);
    const MergeResult result = Merged(WithoutStop(), theirs);
    EXPECT_THAT(Asked(result), IsEmpty());
    EXPECT_FALSE(result.FromTheirs.States.HasNew(3));
    EXPECT_EQ(result.Document.State(1).Targets[9], StateNumber(2));
}

TEST(Merge, RemovedHereAndChangedThereIsAskedInTheHeader) {
    SmallTable theirs = Pump();
    theirs.Name(3, "Stop", ";stop slowly");
    const MergeResult result = Merged(WithoutStop(), theirs);
    EXPECT_THAT(
        Asked(result),
        ElementsAre("removed-here-changed-there: state 3:Stop was removed by ours and changed by theirs"));
    EXPECT_FALSE(result.FromTheirs.States.HasNew(3));
    EXPECT_THAT(result.Document.General.HeaderComment, HasSubstr(";    ;stop slowly\r\n"));
}

TEST(Merge, ChangedHereAndRemovedThereStaysAndIsAskedInItsExitNote) {
    SmallTable ours = Pump();
    ours.Name(3, "Stop", ";stop slowly");
    const MergeResult result = Merged(ours, WithoutStop());
    EXPECT_THAT(
        Asked(result),
        ElementsAre("changed-here-removed-there: state 3:Stop was removed by theirs and changed by ours"));
    EXPECT_EQ(result.Document.State(3).EntryCode, ";stop slowly");
    EXPECT_THAT(result.Document.State(3).ExitCode, HasSubstr("CONFLICT: state 3:Stop was removed"));
}

TEST(Merge, ANewWayToAStateThatWentIsAskedAtTheCell) {
    SmallTable theirs = Pump();
    theirs.Cell(1, 9, 3);
    const MergeResult result = Merged(WithoutStop(), theirs);
    EXPECT_THAT(
        Asked(result),
        ElementsAre("removed-here-changed-there: state 3:Stop was removed by ours and changed by theirs",
                    "lost-target: 1:Idle, E9, leads to a state that is gone"));
    EXPECT_EQ(result.Document.State(1).Targets[9], StateNumber());
    EXPECT_THAT(result.Document.State(1).Actions[9], HasSubstr(";-> 3:Stop\r\n"));
}

TEST(Merge, ClearingMovingAndWideningWhatTheOtherSideRemovedIsNotAsked) {
    SmallTable theirs = Pump();
    theirs.Cell(3, 8, 0).Cell(2, 7, 1, ";slow");
    theirs.Document().State(3).ColWidth = 2000;
    SmallTable ours = WithoutStop();
    ours.Cell(2, 7, 1, ";slow");
    EXPECT_THAT(Asked(Merged(ours, theirs)), IsEmpty());
}

TEST(Merge, OneNameForTwoNewStatesIsAsked) {
    SmallTable ours = Pump();
    ours.Name(4, "Alarm", ";loud").Cell(1, 9, 4);
    SmallTable theirs = Pump();
    theirs.Name(4, "Alarm", ";silent").Cell(2, 9, 4);
    const MergeResult result = Merged(ours, theirs);
    EXPECT_THAT(Asked(result), ElementsAre("field: state 4:Alarm, entry action"));
    EXPECT_EQ(result.Document.State(2).Targets[9], StateNumber(4));
    theirs.Name(4, "Alarm", ";loud").Cell(4, 6, 1);
    EXPECT_THAT(Asked(Merged(ours, theirs)),
                ElementsAre("added-twice: 4:Alarm was added by both sides; this is both together"));
}

TEST(Merge, AnotherStartIsAskedWhenTheOtherSideDidAnything) {
    SmallTable moved;
    moved.Name(2, "Idle", ";idle").Name(1, "Run", ";run").Name(3, "Stop", ";stop");
    moved.Cell(2, 6, 1).Cell(1, 7, 3, ";slow").Cell(3, 8, 2);
    EXPECT_THAT(Asked(Merged(moved, Pump())), IsEmpty());
    SmallTable changed = Pump();
    changed.Cell(3, 9, 2);
    const MergeResult ours = Merged(changed, moved);
    EXPECT_THAT(Asked(ours), ElementsAre("start: the machine starts in 1:Idle in ours, in 2:Run in theirs"));
    EXPECT_EQ(ours.Document.State(1).Name, "Idle");
    const MergeResult theirs = Merged(moved, changed);
    EXPECT_THAT(Asked(theirs),
                ElementsAre("start: the machine starts in 1:Run in ours, in 2:Idle in theirs"));
    EXPECT_EQ(theirs.Document.State(1).Name, "Run");
}

TEST(Merge, TwoOrdersOfEventsAreAsked) {
    const auto exchanged = [](int one, int other) {
        SmallTable table = Pump();
        std::swap(table.Document().Event(one), table.Document().Event(other));
        for (const StateNumber state : StateNumbers()) {
            StateRecord& record = table.Document().State(state);
            std::swap(record.Targets[one], record.Targets[other]);
            std::swap(record.Actions[one], record.Actions[other]);
        }
        return table;
    };
    const MergeResult result = Merged(exchanged(6, 9), exchanged(7, 8));
    EXPECT_THAT(Asked(result),
                ElementsAre("order: both sides moved events; their order, which is their priority, is ours"));
    EXPECT_EQ(result.Document.Event(6).Name, "E9");
    EXPECT_THAT(Asked(Merged(exchanged(6, 9), exchanged(6, 9))), IsEmpty());
    EXPECT_THAT(Asked(Merged(exchanged(6, 9), Pump())), IsEmpty());
}

TEST(Merge, WhatFindsNoRoomIsAsked) {
    FsmDocument base;
    for (int state = 1; state <= 99; ++state)
        base.State(state).Name = "S" + std::to_string(state);
    FsmDocument ours = base;
    ours.State(100).Name = "Ours";
    FsmDocument theirs = base;
    theirs.State(100).Name = "Theirs";
    theirs.State(1).Targets[6] = 100;
    const MergeResult result = review::Merge(base, ours, theirs);
    EXPECT_THAT(Asked(result),
                ElementsAre("no-room: state 100:Theirs has no room: a document has at most 100 states",
                            "lost-target: 1:S1, row 6, leads to a state that is gone"));
    EXPECT_EQ(result.Document.State(100).Name, "Ours");
    EXPECT_THAT(result.Document.General.HeaderComment, HasSubstr(";state Theirs\r\n"));
}

TEST(Merge, EmptyColumnsGiveWayToNewStates) {
    FsmDocument base;
    for (int state = 1; state <= 99; ++state)
        base.State(state < 50 ? state : state + 1).Name = "S" + std::to_string(state);
    FsmDocument ours = base;
    ours.General.CodeSeg = ";x";
    ours.State(50).Name = "Ours";
    const MergeResult result = review::Merge(base, ours, base);
    EXPECT_EQ(WriteDocument(result.Document), WriteDocument(ours));
    FsmDocument theirs = base; // without the empty column, and one more at the end
    theirs = FsmDocument();
    for (int state = 1; state <= 99; ++state)
        theirs.State(state).Name = "S" + std::to_string(state);
    theirs.State(100).Name = "Theirs";
    FsmDocument width = base;
    width.State(3).Tooltip = "changed";
    const MergeResult both = review::Merge(base, width, theirs);
    EXPECT_THAT(Asked(both), IsEmpty());
    EXPECT_EQ(both.Document.State(100).Name, "Theirs");
}

TEST(Merge, WithoutQuestionsOursCounts) {
    SmallTable ours = Pump();
    ours.Cell(1, 6, 3).Name(2, "Run", ";fast");
    SmallTable theirs = Pump();
    theirs.Cell(1, 6, 1).Name(2, "Run", ";slow");
    const MergeResult result =
        review::Merge(Pump().Document(), ours.Document(), theirs.Document(), Contradictions::OursCounts);
    EXPECT_THAT(Asked(result), IsEmpty());
    EXPECT_EQ(WriteDocument(result.Document), WriteDocument(ours.Document()));
}

} // namespace
} // namespace orvane::test
