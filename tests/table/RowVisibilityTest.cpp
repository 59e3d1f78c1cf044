// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/RowVisibility.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr int kStandard = 300;

TEST(RowVisibility, AFreshDocumentHidesAllFourRows) {
    const ViewOptions view;
    EXPECT_EQ(view.RowVisible, RowHeights{});
    for (const SpecialRow row :
         {SpecialRow::ExitAction, SpecialRow::TimingMode, SpecialRow::TimeTarget, SpecialRow::Else})
        EXPECT_FALSE(IsMarked(view, row));
}

TEST(RowVisibility, EachCommandTurnsItsOwnRowOnAndOff) {
    const auto shown = [](SpecialRow row) {
        ViewOptions view;
        ToggleRow(view, row, kStandard);
        EXPECT_TRUE(IsMarked(view, row));
        const RowHeights heights = view.RowVisible;
        ToggleRow(view, row, kStandard);
        EXPECT_EQ(view, ViewOptions{});
        return heights;
    };
    EXPECT_EQ(shown(SpecialRow::Else), (RowHeights{.Else = kStandard}));
    EXPECT_EQ(shown(SpecialRow::ExitAction), (RowHeights{.ExitAction = kStandard}));
    EXPECT_EQ(shown(SpecialRow::TimingMode), (RowHeights{.TimingMode = kStandard}));
    EXPECT_EQ(shown(SpecialRow::TimeTarget), (RowHeights{.TimeTarget = kStandard}));
}

TEST(RowVisibility, TheMarkOfTheExitActionsFollowsTheHeightOfTheirRow) {
    ViewOptions view;
    view.RowVisible.ExitAction = 450;
    EXPECT_TRUE(IsMarked(view, SpecialRow::ExitAction));
    ToggleRow(view, SpecialRow::ExitAction, kStandard);
    EXPECT_FALSE(IsMarked(view, SpecialRow::ExitAction));
    EXPECT_EQ(view.RowVisible.ExitAction, 0);
}

TEST(RowVisibility, AToggleGivesEveryMarkedRowTheStandardHeight) {
    ViewOptions view;
    view.ShowElse = true; // heights as a file may hold them
    view.RowVisible = {.Else = 0, .ExitAction = 450, .TimingMode = 600, .TimeTarget = 0};
    ToggleRow(view, SpecialRow::TimeTarget, kStandard);
    EXPECT_EQ(view.RowVisible, (RowHeights{kStandard, kStandard, 0, kStandard}));
}

TEST(RowVisibility, ForcingSetsMarksAndHeightsAndTellsAChange) {
    ViewOptions view;
    EXPECT_TRUE(ForceShowTiming(view, kStandard));
    EXPECT_TRUE(view.ShowTimingMode && view.ShowTimeTarget);
    EXPECT_EQ(view.RowVisible, (RowHeights{.TimingMode = kStandard, .TimeTarget = kStandard}));
    EXPECT_FALSE(ForceShowTiming(view, kStandard));
    EXPECT_TRUE(ForceShowElse(view, kStandard));
    EXPECT_TRUE(view.ShowElse);
    EXPECT_EQ(view.RowVisible.Else, kStandard);
    EXPECT_FALSE(ForceShowElse(view, kStandard));
    EXPECT_FALSE(IsMarked(view, SpecialRow::ExitAction));
}

TEST(RowVisibility, AStateWithoutTimingLeavesTheTimingRowsHidden) {
    FsmDocument document;
    document.State(1).Name = "Idle";
    document.State(1).Targets[kTimeoutRow] = 2;
    EXPECT_FALSE(ForceRowsForContents(document, kStandard));
    EXPECT_EQ(document.View, ViewOptions{});
}

TEST(RowVisibility, AnyKnownTimingModeChecksBothTimingRows) {
    for (int mode = 1; mode <= 4; ++mode) {
        FsmDocument document;
        document.State(100).TimingMode = mode;
        EXPECT_TRUE(ForceRowsForContents(document, kStandard));
        EXPECT_TRUE(document.View.ShowTimingMode && document.View.ShowTimeTarget) << mode;
        EXPECT_FALSE(document.View.ShowElse);
    }
}

TEST(RowVisibility, ATimingModeThatNobodyKnowsForcesNothing) {
    for (const std::int32_t mode : {-1, 5, 255}) {
        FsmDocument document;
        document.State(1).TimingMode = mode;
        EXPECT_FALSE(ForceRowsForContents(document, kStandard)) << mode;
    }
}

TEST(RowVisibility, AnElseTransitionChecksTheElseRow) {
    FsmDocument document;
    document.State(2).Targets[kElseRow] = 1;
    EXPECT_FALSE(ForceRowsForState(document, 1, kStandard));
    EXPECT_FALSE(document.View.ShowElse);
    EXPECT_TRUE(ForceRowsForState(document, 2, kStandard));
    EXPECT_TRUE(document.View.ShowElse);
    EXPECT_EQ(document.View.RowVisible, (RowHeights{.Else = kStandard}));
}

} // namespace
} // namespace orvane
