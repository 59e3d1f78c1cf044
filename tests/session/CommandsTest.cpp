// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/CommandState.h"
#include "session/Session.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

// The menus as indented text, a line an entry.
std::string MenuTree() {
    std::string tree;
    for (const CommandEntry& entry : kCommands) {
        const bool isTop = entry.Kind == EntryKind::BarMenu || entry.Kind == EntryKind::PopUpMenu;
        const bool isDeep = entry.Kind == EntryKind::SubItem;
        tree.append(isTop ? 0 : isDeep ? 4 : 2, ' ');
        tree.append(entry.Name).append(entry.Caption.empty() ? "" : ": ").append(entry.Caption).append("\n");
    }
    return tree;
}

TEST(Commands, TheMenusAreTheGivenOnesWithHelpBehindThem) {
    EXPECT_EQ(MenuTree(), R"(mnuFile: File
  mnuFNew: New
  mnuFOpen: Open
  mnuFSave: Save
  mnuFSaveAs: Save &As
mnuEdit: Edit
  mnuUndo: Undo
  mnuRedo: Redo
mnuCode: Code
  mnuGeneralCode: Edit general code
  mnuCodeGenerate: Generate
  div3
  mnuBuilder: Builder script
  mnuBuildAndTest: Build and Test
mnuPref: Preferences
  mnuShowExitAction: Show exit action row
  mnuShowElse: Show Else row
  div2
  mnuShowTimingMode: Show timeout mode
  mnuShowTimeTarget: Show timeout target
  div4
  mnuPolytask: Polytask
mnuHelp: Help
  mnuHelpPages: Help pages
  mnuRecent: Recent files

  mnuAbout: About Orvane
mnuColumnHead: ColumnHead
  mnuCopyState: Copy state
  mnuPasteState: Paste state
  mnuInsertState: Insert state
  mnuDeleteState: Delete state
  div1
  mnuCurrentState: Set current state
  mnuBacktrack: Backtrack
mnuEventLabel: EventLabel
  mnuInsertEvent: Insert Event
  mnuDeleteEvent: Delete event
  mnuCopyEvent: Copy event
  mnuPasteEvent: Paste event
mnuTranCell: TransitionCell
  mnuTransAct: Action ...
    mnuEditTransAct: Edit
    mnuCopyTransAct: Copy
    mnuCutTransAct: Cut
    mnuPasteTransAct: Paste
  mnuWholeTransition: Action + Transition ...
    mnuCopyTransition: Copy
    mnuCutTransition: Cut
    mnuPasteTransition: Paste
mnuEntryAction: EntryAction
  mnuCopyEntryAction: Copy entry action
  mnuPasteEntryAction: Paste entry action
  mnuDeleteEntryAction: Delete entry action
  mnuCutEntryAction: Cut entry action
)");
}

TEST(Commands, EveryPieceOfTheTableIsPastedOnlyWhenItIsOnTheClipboard) {
    Session session;
    const CommandEntry& paste = EntryOf(Command::PasteState);
    EXPECT_FALSE(IsPossible(session, paste));
    session.Copy(
        [](const FsmDocument& document, TableClipboard& clipboard) { CopyState(document, clipboard, 1); });
    session.EnablePasteItems();
    EXPECT_TRUE(IsPossible(session, paste));
    EXPECT_FALSE(IsPossible(session, EntryOf(Command::PasteEvent)));
    EXPECT_FALSE(IsPossible(session, EntryOf(Command::PasteEntryAction)));
}

TEST(Commands, AStateThatIsReachedIsNotDeleted) {
    Session session;
    ProgramState program;
    program.Reached.set(3);
    session.SetProgram(program);
    session.Press({kHeadRow, 3});
    EXPECT_FALSE(IsPossible(session, EntryOf(Command::DeleteState)));
    session.Press({kHeadRow, 4});
    EXPECT_TRUE(IsPossible(session, EntryOf(Command::DeleteState)));
}

TEST(Commands, TogglesShowWhatTheyTurnOn) {
    Session session;
    FsmDocument document;
    document.View.ShowElse = true;
    document.View.RowVisible.ExitAction = 300;
    session.Replace(document, {});
    EXPECT_TRUE(IsChecked(session, Command::ShowElse));
    EXPECT_TRUE(IsChecked(session, Command::ShowExitAction));
    EXPECT_FALSE(IsChecked(session, Command::ShowTimingMode));
    EXPECT_FALSE(IsChecked(session, Command::ShowTimeTarget));
    EXPECT_FALSE(IsChecked(session, Command::Polytask));
}

} // namespace
} // namespace orvane
