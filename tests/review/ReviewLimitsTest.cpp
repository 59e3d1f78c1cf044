// SPDX-License-Identifier: GPL-3.0-or-later
// Documents that are as full as the format allows.
#include "core/DocumentWriter.h"
#include "review/Apply.h"
#include "review/Compare.h"
#include "review/ComparedVersions.h"
#include "review/ConflictBlock.h"
#include "review/Merge.h"
#include "review/Presence.h"
#include "text/NumberText.h"

#include <gmock/gmock.h>

namespace orvane::test {
namespace {

using review::ComparedVersions;

// Every cell of every state and event has a target and an action.
FsmDocument FullMachine(const std::string& prefix) {
    FsmDocument document;
    document.General.FsmName = "FULL";
    for (const RowNumber row : EventRows()) {
        document.Event(row).Name = prefix + "E" + NumberText(row.Number());
        document.Event(row).Code = ";test " + document.Event(row).Name;
    }
    for (const StateNumber state : StateNumbers()) {
        StateRecord& record = document.State(state);
        record.Name = prefix + "S" + NumberText(state.Number());
        record.EntryCode = ";entry of " + record.Name;
        for (const RowNumber row : CellRows()) {
            record.Targets[row] = (state.Number() * 7 + row.Number()) % kStateCount + 1;
            record.Actions[row] = ";" + record.Name + " " + NumberText(row.Number());
        }
    }
    return document;
}

// The document with states of this name put into columns from..last.
FsmDocument States(int last, int from, const std::string& prefix, FsmDocument document = FsmDocument()) {
    for (int state = from; state <= last; ++state)
        document.State(state).Name = prefix + NumberText(state);
    return document;
}

TEST(ReviewLimits, TheListOfTwoFullDocumentsLeadsFromOneToTheOther) {
    const FsmDocument oldOne = FullMachine("A");
    FsmDocument newOne = oldOne;
    for (const StateNumber state : StateNumbers()) {
        newOne.State(state).Targets[54] = state;
        newOne.State(state).Actions[kElseRow] += "\r\n;more";
    }
    std::swap(newOne.Event(6), newOne.Event(7));
    const review::ChangeList list = review::Compare(oldOne, newOne);
    EXPECT_GE(list.Changes.size(), 190u);
    EXPECT_EQ(WriteDocument(review::Applied(list, oldOne)), WriteDocument(newOne));
}

TEST(ReviewLimits, TwoFullDocumentsWithNothingInCommonStandBesideEachOther) {
    const FsmDocument oldOne = FullMachine("Old");
    FsmDocument newOne = FullMachine("New");
    for (const StateNumber state : StateNumbers()) {
        for (const RowNumber row : CellRows()) {
            StateNumber& target = newOne.State(state).Targets[row];
            target = target.Number() % 3 == 0 ? kNoState : StateNumber(101 - target.Number());
        }
    }
    const ComparedVersions versions(oldOne, newOne);
    int lines = 0;
    for (int row = 0; row < versions.Table().RowCount(); ++row) {
        for (int column = 0; column < versions.Table().ColumnCount(); ++column)
            lines += versions.Table().TextAt({row, column}).empty() ? 0 : 1;
    }
    EXPECT_GT(lines, 5000);
    EXPECT_LE(versions.Table().ColumnCount(), 201);
    EXPECT_EQ(WriteDocument(review::Applied(versions.List(), oldOne)), WriteDocument(newOne));
}

TEST(ReviewLimits, FullDocumentsAreMergedAsSmallOnesAre) {
    const FsmDocument base = FullMachine("A");
    FsmDocument ours = base;
    ours.State(100).Name = "Ours";
    FsmDocument theirs = base;
    theirs.State(1).Actions[54] = ";theirs";
    const review::MergeResult merged = review::Merge(base, ours, theirs);
    EXPECT_TRUE(merged.Conflicts.empty());
    FsmDocument expected = ours;
    expected.State(1).Actions[54] = ";theirs";
    EXPECT_EQ(WriteDocument(merged.Document), WriteDocument(expected));
}

TEST(ReviewLimits, TheHundredAndFirstStateOfAMergeIsAQuestion) {
    const FsmDocument base = States(60, 1, "Base");
    const FsmDocument ours = States(80, 61, "Ours", base);
    const FsmDocument fits = States(80, 61, "Theirs", base);
    const review::MergeResult full = review::Merge(base, ours, fits);
    EXPECT_TRUE(full.Conflicts.empty());
    EXPECT_EQ(review::PresentStates(full.Document).size(), 100u);
    const FsmDocument oneMore = States(81, 61, "Theirs", base);
    const review::MergeResult over = review::Merge(base, ours, oneMore);
    ASSERT_EQ(over.Conflicts.size(), 1u);
    EXPECT_EQ(over.Conflicts[0].Kind, review::ConflictKind::NoRoom);
    EXPECT_EQ(review::PresentStates(over.Document).size(), 100u);
    EXPECT_EQ(review::FindConflicts(over.Document).size(), 1u);
}

} // namespace
} // namespace orvane::test
