// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/RenumberTargets.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(RenumberTargets, EveryCellRowOfTheStatesFollowsAndNothingElse) {
    FsmDocument document;
    for (const RowNumber row : CellRows())
        document.State(1).Targets[row] = row.Number() % 2 == 0 ? 7 : 6;
    TableClipboard clipboard;
    RenumberTargets(document, clipboard, StateNumbers(), {7, 8});
    for (const RowNumber row : CellRows())
        EXPECT_EQ(document.State(1).Targets[row], row.Number() % 2 == 0 ? 8 : 6);
}

TEST(RenumberTargets, StatesOutsideTheRangeKeepTheirTargets) {
    FsmDocument document;
    TableClipboard clipboard;
    for (const int state : {1, 99, 100})
        document.State(state).Targets[6] = 7;
    RenumberTargets(document, clipboard, {1, 99}, {7, 6});
    EXPECT_EQ(document.State(1).Targets[6], 6);
    EXPECT_EQ(document.State(99).Targets[6], 6);
    EXPECT_EQ(document.State(100).Targets[6], 7);
}

TEST(RenumberTargets, TheClipboardFollowsWhateverItsKindButNotACopiedEvent) {
    FsmDocument document;
    TableClipboard clipboard;
    clipboard.ClipState.Targets[kElseRow] = 7;
    clipboard.ClipTarget = 7;
    clipboard.ClipEventTargets[0] = 7;
    RenumberTargets(document, clipboard, {1, 99}, {7, 6});
    EXPECT_EQ(clipboard.ClipState.Targets[kElseRow], 6);
    EXPECT_EQ(clipboard.ClipTarget, 6);
    EXPECT_EQ(clipboard.ClipEventTargets[0], 7);
}

} // namespace
} // namespace orvane
