// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellEdit.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

FsmDocument OneTransition() {
    FsmDocument document;
    document.State(3).Targets[6] = 7;
    document.State(3).Actions[6] = ";act";
    return document;
}

TEST(CellEdit, ATransitionCannotBeEnteredInAnUnnamedEventRow) {
    FsmDocument document;
    document.Event(6).Name = "Start";
    document.Event(7).Code = ";code alone does not make an event";
    EXPECT_TRUE(CanEditCell(document, kTimeoutRow));
    EXPECT_TRUE(CanEditCell(document, kElseRow));
    EXPECT_TRUE(CanEditCell(document, 6));
    EXPECT_FALSE(CanEditCell(document, 7));
    EXPECT_FALSE(CanEditCell(document, kLastRow));
}

TEST(CellEdit, TheEditorStartsWithTheNumberOfTheTarget) {
    const FsmDocument document = OneTransition();
    EXPECT_EQ(CellEditText(document, {6, 3}), "7");
    EXPECT_EQ(CellEditText(document, {7, 3}), "");
}

TEST(CellEdit, ATypedNumberBecomesTheTargetAndTheActionStays) {
    FsmDocument document = OneTransition();
    EXPECT_EQ(StoreTypedTarget(document, {6, 3}, "12"), std::nullopt);
    EXPECT_EQ(document.State(3).Targets[6], 12);
    EXPECT_EQ(document.State(3).Actions[6], ";act");
}

TEST(CellEdit, AnyColumnWillDoAsATargetNamedOrNot) {
    FsmDocument document = OneTransition();
    for (const StateNumber target : StateNumbers()) {
        EXPECT_EQ(StoreTypedTarget(document, {6, 3}, std::to_string(target.Number())), std::nullopt);
        EXPECT_EQ(document.State(3).Targets[6], target);
    }
}

TEST(CellEdit, ZeroOrNothingRemovesTargetAndAction) {
    for (const char* typed : {"", "0", "000"}) {
        FsmDocument document = OneTransition();
        EXPECT_EQ(StoreTypedTarget(document, {6, 3}, typed), std::nullopt);
        EXPECT_EQ(document, FsmDocument()) << typed;
    }
}

TEST(CellEdit, ZeroRemovesAnActionThatHadNoTarget) {
    FsmDocument document;
    document.State(1).Actions[8] = ";act";
    StoreTypedTarget(document, {8, 1}, "");
    EXPECT_EQ(document, FsmDocument());
}

TEST(CellEdit, ANumberThatIsNoColumnIsToldAndTheOldTargetStays) {
    for (const char* typed : {"101", "-1", "32768", "65537", "99999999999999999999"}) {
        FsmDocument document = OneTransition();
        const std::optional<UserMessage> message = StoreTypedTarget(document, {6, 3}, typed);
        ASSERT_TRUE(message) << typed;
        EXPECT_EQ(*message,
                  (UserMessage{.Text = "The transition cell must point to a \r\n valid state column.",
                               .Title = "Orvane",
                               .Icon = MessageIcon::None,
                               .Buttons = MessageButtons::Ok}));
        EXPECT_EQ(document, OneTransition());
    }
}

TEST(Stepping, FollowsTheTransitionOfTheCurrentState) {
    FsmDocument document = OneTransition();
    document.State(3).Targets[kTimeoutRow] = 9;
    EXPECT_EQ(StepTarget(document, {6, 3}), 7);
    EXPECT_EQ(StepTarget(document, {kTimeoutRow, 3}), 9);
}

TEST(Stepping, GoesNowhereWithoutACurrentStateOrATransition) {
    const FsmDocument document = OneTransition();
    EXPECT_EQ(StepTarget(document, {6, 0}), 0);
    EXPECT_EQ(StepTarget(document, {7, 3}), 0);
    for (int row = 0; row < kFirstCellRow; ++row)
        EXPECT_EQ(StepTarget(document, {row, 3}), 0);
}

} // namespace
} // namespace orvane
