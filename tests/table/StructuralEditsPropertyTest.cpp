// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "table/StructuralEdits.h"

namespace orvane {
namespace {

using namespace test;

template <typename Number>
rc::Gen<int> AnyOf(NumberRange<Number> range) {
    return rc::gen::inRange(range.First().Number(), range.Last().Number() + 1);
}

// A clipboard with a state of the document on it.
TableClipboard WithCopiedState(const FsmDocument& document) {
    TableClipboard clipboard;
    CopyState(document, clipboard, *AnyOf(StateNumbers()));
    return clipboard;
}

// Any table without an event, a transition or an action in the bottom row, and without an action in the row
// above, from where it would come down and stay.
FsmDocument WithRoomForAnEvent() {
    FsmDocument document = *AnyDocument();
    document.Event(kLastRow) = {};
    for (const StateNumber state : StateNumbers()) {
        document.State(state).Targets[kLastRow] = kNoState;
        document.State(state).Actions[kLastRow - 1].clear();
        document.State(state).Actions[kLastRow].clear();
    }
    return document;
}

// Any table whose last two columns are empty and to whose last column no transition leads.
FsmDocument WithRoomForAState() {
    FsmDocument document = *AnyDocument();
    document.State(kStateCount - 1) = document.StateTemplate();
    document.State(kStateCount) = document.StateTemplate();
    for (const StateNumber state : StateNumbers())
        for (const RowNumber row : CellRows())
            if (document.State(state).Targets[row] == kStateCount)
                document.State(state).Targets[row] = kStateCount - 1;
    return document;
}

TEST(InsertedEvent, DeletedAgainGivesTheTableBackWhenTheBottomRowsWereEmpty) {
    ExpectProperty({.Cases = 300}, [] {
        const FsmDocument original = WithRoomForAnEvent();
        FsmDocument document = original;
        const TableClipboard copied = WithCopiedState(document);
        TableClipboard clipboard = copied;
        const int row = *AnyOf(EventRows());
        RC_ASSERT(!InsertEvent(document, clipboard, row));
        RC_ASSERT(!QuestionBeforeDeleteEvent(document, row));
        DeleteEvent(document, clipboard, row);
        RC_ASSERT(document == original);
        RC_ASSERT(clipboard == copied);
    });
}

TEST(InsertedState, DeletedAgainGivesTheTableBackWhenTheLastColumnsWereEmpty) {
    ExpectProperty({.Cases = 300}, [] {
        const FsmDocument original = WithRoomForAState();
        FsmDocument document = original;
        const TableClipboard copied = WithCopiedState(document);
        TableClipboard clipboard = copied;
        const int state = *AnyOf(StateRange(1, kStateCount - 1));
        RC_ASSERT(!InsertState(document, clipboard, state));
        DeleteState(document, clipboard, state);
        RC_ASSERT(document == original);
        RC_ASSERT(clipboard == copied);
    });
}

TEST(InsertedState, EveryTransitionStillLeadsFromTheSameToTheSameState) {
    ExpectProperty({.Cases = 300}, [] {
        const FsmDocument before = WithRoomForAState();
        FsmDocument after = before;
        TableClipboard clipboard;
        const int inserted = *AnyOf(StateRange(1, kStateCount - 1));
        const auto moved = [inserted](StateNumber state) { return state < inserted ? state : state + 1; };
        RC_ASSERT(!InsertState(after, clipboard, inserted));
        for (int state = 1; state < kStateCount; ++state) {
            StateRecord expected = before.State(state);
            for (const RowNumber row : CellRows())
                expected.Targets[row] = moved(expected.Targets[row]);
            RC_ASSERT(after.State(moved(state)) == expected);
        }
        RC_ASSERT(after.State(inserted) == after.StateTemplate());
    });
}

} // namespace
} // namespace orvane
