// SPDX-License-Identifier: GPL-3.0-or-later
// What may be another thing after a change.
#include "session/Change.h"

#include <gtest/gtest.h>

#include <array>

namespace orvane {
namespace {

constexpr auto kEdits =
    std::to_array({ChangeKind::Replaced, ChangeKind::Edited, ChangeKind::Undone, ChangeKind::Redone});

TEST(Change, AnEditMayChangeEverything) {
    for (const ChangeKind kind : kEdits)
        EXPECT_TRUE(ChangesTheTable(kind) && ChangesTheMachine(kind) && ChangesTexts(kind) &&
                    ChangesTheProgram(kind) && RunsTheGenerator(kind))
            << int(kind);
}

TEST(Change, ALetterOfTheGeneralCodeChangesTheProgramAndNotTheMachine) {
    EXPECT_TRUE(ChangesTexts(ChangeKind::Typed));
    EXPECT_TRUE(ChangesTheProgram(ChangeKind::Typed));
    EXPECT_FALSE(ChangesTheTable(ChangeKind::Typed));
    EXPECT_FALSE(ChangesTheMachine(ChangeKind::Typed));
}

TEST(Change, PolytaskMakesAnotherMachineOfTheSameTable) {
    EXPECT_TRUE(ChangesTheMachine(ChangeKind::Multitasking));
    EXPECT_TRUE(ChangesTheProgram(ChangeKind::Multitasking));
    EXPECT_FALSE(ChangesTheTable(ChangeKind::Multitasking));
    EXPECT_FALSE(ChangesTexts(ChangeKind::Multitasking));
}

TEST(Change, AProgramThatIsAskedForIsMadeOfTheSameMachine) {
    EXPECT_TRUE(RunsTheGenerator(ChangeKind::ProgramWanted));
    EXPECT_FALSE(ChangesTheProgram(ChangeKind::ProgramWanted));
    EXPECT_FALSE(ChangesTheMachine(ChangeKind::ProgramWanted));
}

TEST(Change, WhereTheUserIsChangesNothing) {
    for (const ChangeKind kind :
         {ChangeKind::Drafted, ChangeKind::Viewed, ChangeKind::RowsToggled, ChangeKind::Saved,
          ChangeKind::Left, ChangeKind::Moved, ChangeKind::Ran, ChangeKind::Judged})
        EXPECT_FALSE(ChangesTexts(kind) || ChangesTheMachine(kind) || RunsTheGenerator(kind)) << int(kind);
}

} // namespace
} // namespace orvane
