// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/CommandState.h"
#include "session/Session.h"
#include "support/FileBytes.h"
#include "support/Folders.h"

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
        tree.append(entry.Name.empty() ? "(a line)" : entry.Name);
        tree.append(entry.Caption.empty() ? "" : ": ").append(entry.Caption).append("\n");
    }
    return tree;
}

TEST(Commands, TheMenusAreTheGivenOnesWithHelpBehindThem) {
    EXPECT_EQ(MenuTree(), R"(mnuFile: File
  mnuFNew: New
  mnuFOpen: Open
  mnuFSave: Save
  mnuFSaveAs: Save &As
  (a line)
  mnuFRecent: Recent
  mnuFRecover: Recover earlier work
  mnuFExport: Export...
  mnuFImport: Import...
  mnuFPrint: Print...
  mnuFQuit: Quit
mnuEdit: Edit
  mnuUndo: Undo
  mnuRedo: Redo
  (a line)
  mnuCutCell: Cut
  mnuCopyCell: Copy
  mnuPasteCell: Paste
  mnuClearCell: Clear
  mnuChooseTarget: Choose target
  mnuFind: Find
  mnuWhereUsed: Where used
  mnuRename: Rename
  mnuMove: Move
  mnuGoTo: Go to
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
mnuView: View
  mnuViewCell: Cell
  mnuViewFindings: Findings
  mnuViewFind: Find and where used
  mnuViewDiagram: Diagram
  mnuViewRun: Run the machine
  mnuCompareWith: Compare with...
  mnuNextFinding: Next finding
  mnuPreviousFinding: Previous finding
  (a line)
  mnuZoomIn: Zoom in
  mnuZoomOut: Zoom out
  mnuZoomReset: Normal size
  mnuFitColumns: Fit columns
mnuRun: Run
  mnuPowerOn: Power on
  mnuStep: Step
  mnuStepBack: Step back
  mnuToTimeout: To the next timeout
  (a line)
  mnuSaveAsTest: Save as test
  mnuRunTests: Run tests
  mnuTour: Make a tour
mnuHelp: Help
  mnuHelpPages: Help pages
  mnuRecent: Recent files
  (a line)
  mnuAbout: About Orvane
mnuColumnHead: ColumnHead
  mnuCopyState: Copy state
  mnuPasteState: Paste state
  mnuInsertState: Insert state
  mnuDeleteState: Delete state
  div1
  mnuCurrentState: Set current state
  mnuBacktrack: Backtrack
  (a line)
  mnuStateUses: Where used
  mnuRenameState: Rename
  mnuMoveState: Move
mnuEventLabel: EventLabel
  mnuInsertEvent: Insert Event
  mnuDeleteEvent: Delete event
  mnuCopyEvent: Copy event
  mnuPasteEvent: Paste event
  (a line)
  mnuEventUses: Where used
  mnuRenameEvent: Rename
  mnuMoveEvent: Move
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

// A command is named as the menu shows it; what stands in a submenu is in the row of that.
std::map<std::string, std::string> RowsOfTheHelpPage() {
    std::map<std::string, std::string> rows; // by the menu's name: the captions
    std::string menu;
    std::string subMenu;
    for (const CommandEntry& entry : kCommands) {
        if (entry.Kind == EntryKind::Divider)
            continue;
        if (entry.Kind == EntryKind::BarMenu || entry.Kind == EntryKind::PopUpMenu) {
            menu = entry.Name;
            continue;
        }
        if (entry.Kind == EntryKind::SubMenu)
            subMenu = entry.Name;
        std::string caption(entry.Caption);
        std::erase(caption, '&');
        std::string& row = rows[entry.Kind == EntryKind::SubItem ? subMenu : menu];
        row += (row.empty() ? "" : ", ") + caption;
    }
    return rows;
}

TEST(Commands, EveryCommandStandsInTheHelpPageOfTheTableUnderItsMenu) {
    const std::string page = FileBytes(std::string(test::kHelpFolder) + "/4835.htm");
    for (const auto& [menu, captions] : RowsOfTheHelpPage()) {
        const std::size_t begin = page.find("<tr id=\"" + menu + "\">");
        ASSERT_NE(begin, std::string::npos) << menu;
        const std::string row = page.substr(begin, page.find('\n', begin) - begin);
        EXPECT_TRUE(row.ends_with("<td>" + captions + "</td></tr>")) << row << " should tell " << captions;
    }
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
