// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogue of commands: menus and keys are made from it, tests and the check of the help read it.
#pragma once

#include "text/Ordinal.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace orvane {

enum class Command : unsigned char {
    FileMenu,
    FileNew,
    FileOpen,
    FileSave,
    FileSaveAs,
    FileRecentMenu,
    RecoverWork,
    FileExport,
    FileImport,
    FilePrint,
    FileQuit,
    EditMenu,
    Undo,
    Redo,
    CutCell,
    CopyCell,
    PasteCell,
    ClearCell,
    ChooseTarget,
    Find,
    WhereUsed,
    Rename,
    Move,
    GoTo,
    CodeMenu,
    GeneralCode,
    Generate,
    Builder,
    BuildAndTest,
    PreferencesMenu,
    ShowExitAction,
    ShowElse,
    ShowTimingMode,
    ShowTimeTarget,
    Polytask,
    ViewMenu,
    ViewCell,
    ViewFind,
    ViewDiagram,
    ViewRun,
    ViewFindings,
    NextFinding,
    PreviousFinding,
    CompareWith,
    ZoomIn,
    ZoomOut,
    ZoomReset,
    FitColumns,
    RunMenu,
    PowerOn,
    StepTime,
    StepBack,
    ToTimeout,
    SaveAsTest,
    RunTests,
    Tour,
    HelpMenu,
    HelpPages,
    RecentMenu,
    About,
    StateMenu,
    CopyState,
    PasteState,
    InsertState,
    DeleteState,
    SetCurrentState,
    Backtrack,
    StateUses,
    RenameState,
    MoveState,
    EventMenu,
    InsertEvent,
    DeleteEvent,
    CopyEvent,
    PasteEvent,
    EventUses,
    RenameEvent,
    MoveEvent,
    TransitionMenu,
    ActionMenu,
    EditAction,
    CopyAction,
    CutAction,
    PasteAction,
    WholeTransitionMenu,
    CopyTransition,
    CutTransition,
    PasteTransition,
    EntryActionMenu,
    CopyEntryAction,
    PasteEntryAction,
    DeleteEntryAction,
    CutEntryAction,
    Divider, // the line between two groups of a menu; always the last
};

// How many there are, without the divider; a command's number is its place among them.
constexpr std::size_t IndexOf(Command command) { return Ordinal(command); }
inline constexpr std::size_t kCommandCount = IndexOf(Command::Divider);

// What an entry of the catalogue becomes. An item belongs to the menu above it, a sub-item to the submenu
// above it.
enum class EntryKind { BarMenu, PopUpMenu, SubMenu, Item, Toggle, SubItem, Divider };

// What must be there for a command to be possible.
enum class Need {
    Nothing,
    OlderStep,
    NewerStep,
    StateToPaste,
    EventToPaste,
    EntryActionToPaste,
    TransitionToPaste,
    ActionToPaste,
    Finding,        // something to be told of the design
    UnreachedState, // the pressed one: only a state that no path from state 1 reaches can be deleted
};

// What happens to a target that is being typed in a cell when the command comes.
enum class Typing { Stays, IsTaken, IsDropped };

// Where the keys of a command are heard. What Delete or Ctrl+C means in the table, it means nowhere else.
enum class HeardIn { TheWindow, TheTable };

struct CommandEntry {
    Command Id;
    EntryKind Kind;
    std::string_view Name;      // of the menu or menu item, as an object
    std::string_view Caption;   // shown; a mark "&" stands before the letter to press
    std::string_view Keys = {}; // as text: "Ctrl+Shift+S"
    Need Needs = Need::Nothing;
    Typing Typed = Typing::Stays;
    std::string_view Step = {}; // what the status bar tells when it is undone, of commands that edit
    HeardIn Where = HeardIn::TheWindow;
};

// In menu order.
inline constexpr auto kCommands = std::to_array<CommandEntry>({
    {Command::FileMenu, EntryKind::BarMenu, "mnuFile", "File"},
    {Command::FileNew, EntryKind::Item, "mnuFNew", "New", "Ctrl+N", Need::Nothing, Typing::IsTaken},
    {Command::FileOpen, EntryKind::Item, "mnuFOpen", "Open", "Ctrl+O", Need::Nothing, Typing::IsTaken},
    {Command::FileSave, EntryKind::Item, "mnuFSave", "Save", "Ctrl+S", Need::Nothing, Typing::IsTaken},
    {Command::FileSaveAs, EntryKind::Item, "mnuFSaveAs", "Save &As", "Ctrl+Shift+S", Need::Nothing,
     Typing::IsTaken},
    {Command::Divider, EntryKind::Divider, "", ""},
    {Command::FileRecentMenu, EntryKind::SubMenu, "mnuFRecent", "Recent"},
    {Command::RecoverWork, EntryKind::Item, "mnuFRecover", "Recover earlier work"},
    {Command::FileExport, EntryKind::Item, "mnuFExport", "Export...", "", Need::Nothing, Typing::IsTaken},
    {Command::FileImport, EntryKind::Item, "mnuFImport", "Import...", "", Need::Nothing, Typing::IsTaken,
     "import"},
    {Command::FilePrint, EntryKind::Item, "mnuFPrint", "Print...", "Ctrl+P", Need::Nothing, Typing::IsTaken},
    {Command::FileQuit, EntryKind::Item, "mnuFQuit", "Quit", "Ctrl+Q", Need::Nothing, Typing::IsTaken},
    {Command::EditMenu, EntryKind::BarMenu, "mnuEdit", "Edit"},
    {Command::Undo, EntryKind::Item, "mnuUndo", "Undo", "Ctrl+Z", Need::OlderStep, Typing::IsDropped},
    {Command::Redo, EntryKind::Item, "mnuRedo", "Redo", "Ctrl+Y", Need::NewerStep, Typing::IsDropped},
    {Command::Divider, EntryKind::Divider, "", ""},
    {Command::CutCell, EntryKind::Item, "mnuCutCell", "Cut", "Ctrl+X", Need::Nothing, Typing::IsTaken,
     "cut cells", HeardIn::TheTable},
    {Command::CopyCell, EntryKind::Item, "mnuCopyCell", "Copy", "Ctrl+C", Need::Nothing, Typing::IsTaken, "",
     HeardIn::TheTable},
    {Command::PasteCell, EntryKind::Item, "mnuPasteCell", "Paste", "Ctrl+V", Need::Nothing, Typing::IsTaken,
     "paste cells", HeardIn::TheTable},
    {Command::ClearCell, EntryKind::Item, "mnuClearCell", "Clear", "Del", Need::Nothing, Typing::IsTaken,
     "clear cells", HeardIn::TheTable},
    {Command::ChooseTarget, EntryKind::Item, "mnuChooseTarget", "Choose target", "Ctrl+Space", Need::Nothing,
     Typing::IsTaken, "transition", HeardIn::TheTable},
    {Command::Find, EntryKind::Item, "mnuFind", "Find", "Ctrl+Shift+F"},
    {Command::WhereUsed, EntryKind::Item, "mnuWhereUsed", "Where used", "Shift+F12", Need::Nothing,
     Typing::IsTaken},
    {Command::Rename, EntryKind::Item, "mnuRename", "Rename", "Ctrl+R", Need::Nothing, Typing::IsTaken,
     "rename"},
    {Command::Move, EntryKind::Item, "mnuMove", "Move", "", Need::Nothing, Typing::IsTaken, "move"},
    {Command::GoTo, EntryKind::Item, "mnuGoTo", "Go to", "Ctrl+G", Need::Nothing, Typing::IsTaken},
    {Command::CodeMenu, EntryKind::BarMenu, "mnuCode", "Code"},
    {Command::GeneralCode, EntryKind::Item, "mnuGeneralCode", "Edit general code", "", Need::Nothing,
     Typing::Stays, "general code"},
    {Command::Generate, EntryKind::Item, "mnuCodeGenerate", "Generate", "F5", Need::Nothing, Typing::IsTaken},
    {Command::Divider, EntryKind::Divider, "div3", ""},
    {Command::Builder, EntryKind::Item, "mnuBuilder", "Builder script"},
    {Command::BuildAndTest, EntryKind::Item, "mnuBuildAndTest", "Build and Test", "", Need::Nothing,
     Typing::IsTaken},
    {Command::PreferencesMenu, EntryKind::BarMenu, "mnuPref", "Preferences"},
    {Command::ShowExitAction, EntryKind::Toggle, "mnuShowExitAction", "Show exit action row"},
    {Command::ShowElse, EntryKind::Toggle, "mnuShowElse", "Show Else row"},
    {Command::Divider, EntryKind::Divider, "div2", ""},
    {Command::ShowTimingMode, EntryKind::Toggle, "mnuShowTimingMode", "Show timeout mode"},
    {Command::ShowTimeTarget, EntryKind::Toggle, "mnuShowTimeTarget", "Show timeout target"},
    {Command::Divider, EntryKind::Divider, "div4", ""},
    {Command::Polytask, EntryKind::Toggle, "mnuPolytask", "Polytask"},
    {Command::ViewMenu, EntryKind::BarMenu, "mnuView", "View"},
    {Command::ViewCell, EntryKind::Toggle, "mnuViewCell", "Cell", "F4"},
    {Command::ViewFindings, EntryKind::Toggle, "mnuViewFindings", "Findings"},
    {Command::ViewFind, EntryKind::Toggle, "mnuViewFind", "Find and where used"},
    {Command::ViewDiagram, EntryKind::Toggle, "mnuViewDiagram", "Diagram"},
    {Command::ViewRun, EntryKind::Toggle, "mnuViewRun", "Run the machine"},
    {Command::CompareWith, EntryKind::Item, "mnuCompareWith", "Compare with...", "", Need::Nothing,
     Typing::IsTaken, "take over a change"},
    {Command::NextFinding, EntryKind::Item, "mnuNextFinding", "Next finding", "F8", Need::Finding,
     Typing::IsTaken},
    {Command::PreviousFinding, EntryKind::Item, "mnuPreviousFinding", "Previous finding", "Shift+F8",
     Need::Finding, Typing::IsTaken},
    {Command::Divider, EntryKind::Divider, "", ""},
    {Command::ZoomIn, EntryKind::Item, "mnuZoomIn", "Zoom in", "Ctrl++"},
    {Command::ZoomOut, EntryKind::Item, "mnuZoomOut", "Zoom out", "Ctrl+-"},
    {Command::ZoomReset, EntryKind::Item, "mnuZoomReset", "Normal size", "Ctrl+0"},
    {Command::FitColumns, EntryKind::Item, "mnuFitColumns", "Fit columns"},
    {Command::RunMenu, EntryKind::BarMenu, "mnuRun", "Run"},
    {Command::PowerOn, EntryKind::Item, "mnuPowerOn", "Power on", "", Need::Nothing, Typing::IsTaken},
    {Command::StepTime, EntryKind::Item, "mnuStep", "Step", "", Need::Nothing, Typing::IsTaken},
    {Command::StepBack, EntryKind::Item, "mnuStepBack", "Step back", "", Need::Nothing, Typing::IsTaken},
    {Command::ToTimeout, EntryKind::Item, "mnuToTimeout", "To the next timeout", "", Need::Nothing,
     Typing::IsTaken},
    {Command::Divider, EntryKind::Divider, "", ""},
    {Command::SaveAsTest, EntryKind::Item, "mnuSaveAsTest", "Save as test", "", Need::Nothing,
     Typing::IsTaken},
    {Command::RunTests, EntryKind::Item, "mnuRunTests", "Run tests", "", Need::Nothing, Typing::IsTaken},
    {Command::Tour, EntryKind::Item, "mnuTour", "Make a tour", "", Need::Nothing, Typing::IsTaken},
    {Command::HelpMenu, EntryKind::BarMenu, "mnuHelp", "Help"},
    {Command::HelpPages, EntryKind::Item, "mnuHelpPages", "Help pages"},
    {Command::RecentMenu, EntryKind::SubMenu, "mnuRecent", "Recent files"},
    {Command::Divider, EntryKind::Divider, "", ""},
    {Command::About, EntryKind::Item, "mnuAbout", "About Orvane"},
    {Command::StateMenu, EntryKind::PopUpMenu, "mnuColumnHead", "ColumnHead"},
    {Command::CopyState, EntryKind::Item, "mnuCopyState", "Copy state"},
    {Command::PasteState, EntryKind::Item, "mnuPasteState", "Paste state", "", Need::StateToPaste,
     Typing::IsTaken, "paste state"},
    {Command::InsertState, EntryKind::Item, "mnuInsertState", "Insert state", "", Need::Nothing,
     Typing::IsTaken, "insert state"},
    {Command::DeleteState, EntryKind::Item, "mnuDeleteState", "Delete state", "", Need::UnreachedState,
     Typing::IsTaken, "delete state"},
    {Command::Divider, EntryKind::Divider, "div1", ""},
    {Command::SetCurrentState, EntryKind::Item, "mnuCurrentState", "Set current state"},
    {Command::Backtrack, EntryKind::Item, "mnuBacktrack", "Backtrack"},
    {Command::Divider, EntryKind::Divider, "", ""},
    {Command::StateUses, EntryKind::Item, "mnuStateUses", "Where used", "", Need::Nothing, Typing::IsTaken},
    {Command::RenameState, EntryKind::Item, "mnuRenameState", "Rename", "", Need::Nothing, Typing::IsTaken,
     "rename"},
    {Command::MoveState, EntryKind::Item, "mnuMoveState", "Move", "", Need::Nothing, Typing::IsTaken, "move"},
    {Command::EventMenu, EntryKind::PopUpMenu, "mnuEventLabel", "EventLabel"},
    {Command::InsertEvent, EntryKind::Item, "mnuInsertEvent", "Insert Event", "", Need::Nothing,
     Typing::IsTaken, "insert event"},
    {Command::DeleteEvent, EntryKind::Item, "mnuDeleteEvent", "Delete event", "", Need::Nothing,
     Typing::IsTaken, "delete event"},
    {Command::CopyEvent, EntryKind::Item, "mnuCopyEvent", "Copy event"},
    {Command::PasteEvent, EntryKind::Item, "mnuPasteEvent", "Paste event", "", Need::EventToPaste,
     Typing::IsTaken, "paste event"},
    {Command::Divider, EntryKind::Divider, "", ""},
    {Command::EventUses, EntryKind::Item, "mnuEventUses", "Where used", "", Need::Nothing, Typing::IsTaken},
    {Command::RenameEvent, EntryKind::Item, "mnuRenameEvent", "Rename", "", Need::Nothing, Typing::IsTaken,
     "rename"},
    {Command::MoveEvent, EntryKind::Item, "mnuMoveEvent", "Move", "", Need::Nothing, Typing::IsTaken, "move"},
    {Command::TransitionMenu, EntryKind::PopUpMenu, "mnuTranCell", "TransitionCell"},
    {Command::ActionMenu, EntryKind::SubMenu, "mnuTransAct", "Action ..."},
    {Command::EditAction, EntryKind::SubItem, "mnuEditTransAct", "Edit", "", Need::Nothing, Typing::IsTaken,
     "transition action"},
    {Command::CopyAction, EntryKind::SubItem, "mnuCopyTransAct", "Copy"},
    {Command::CutAction, EntryKind::SubItem, "mnuCutTransAct", "Cut", "", Need::Nothing, Typing::IsTaken,
     "cut transition action"},
    {Command::PasteAction, EntryKind::SubItem, "mnuPasteTransAct", "Paste", "", Need::ActionToPaste,
     Typing::IsTaken, "paste transition action"},
    {Command::WholeTransitionMenu, EntryKind::SubMenu, "mnuWholeTransition", "Action + Transition ..."},
    {Command::CopyTransition, EntryKind::SubItem, "mnuCopyTransition", "Copy"},
    {Command::CutTransition, EntryKind::SubItem, "mnuCutTransition", "Cut", "", Need::Nothing,
     Typing::IsTaken, "cut transition"},
    {Command::PasteTransition, EntryKind::SubItem, "mnuPasteTransition", "Paste", "", Need::TransitionToPaste,
     Typing::IsTaken, "paste transition"},
    {Command::EntryActionMenu, EntryKind::PopUpMenu, "mnuEntryAction", "EntryAction"},
    {Command::CopyEntryAction, EntryKind::Item, "mnuCopyEntryAction", "Copy entry action"},
    {Command::PasteEntryAction, EntryKind::Item, "mnuPasteEntryAction", "Paste entry action", "",
     Need::EntryActionToPaste, Typing::IsTaken, "paste entry action"},
    {Command::DeleteEntryAction, EntryKind::Item, "mnuDeleteEntryAction", "Delete entry action", "",
     Need::Nothing, Typing::IsTaken, "delete entry action"},
    {Command::CutEntryAction, EntryKind::Item, "mnuCutEntryAction", "Cut entry action", "", Need::Nothing,
     Typing::IsTaken, "cut entry action"},
});

// The command's one entry.
constexpr const CommandEntry& EntryOf(Command command) {
    for (const CommandEntry& entry : kCommands) {
        if (entry.Id == command)
            return entry;
    }
    return kCommands.front(); // not reached: below it is checked that every command has an entry
}

constexpr bool EveryCommandHasOneEntry() {
    std::array<int, kCommandCount + 1> entries{};
    for (const CommandEntry& entry : kCommands)
        ++entries[IndexOf(entry.Id)];
    for (std::size_t command = 0; command < kCommandCount; ++command) {
        if (entries[command] != 1)
            return false;
    }
    return true;
}
static_assert(EveryCommandHasOneEntry());

} // namespace orvane
