// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/TableCommands.h"

#include "kit/UserMessageBox.h"
#include "session/Commands.h"
#include "session/Session.h"
#include "table/RowVisibility.h"
#include "table/StructuralEdits.h"

#include <algorithm>

namespace orvane {

namespace {

using Refusal = std::optional<UserMessage>;
using Extent = Touched::Extent;

// Edits of the pressed cell, its row or its column.
struct CellEdit {
    Command Id;
    Extent Drawn;
    void (*Change)(const Editable& open, Cell at);
};

constexpr auto kEdits = std::to_array<CellEdit>({
    {Command::DeleteEvent, Extent::Everything,
     [](const Editable& open, Cell at) { DeleteEvent(open.Document, open.Clipboard, at.Row); }},
    {Command::DeleteState, Extent::AllColumns,
     [](const Editable& open, Cell at) { DeleteState(open.Document, open.Clipboard, at.State); }},
    // The cell shows that its action is gone when its column is next drawn.
    {Command::CutEntryAction, Extent::Nothing,
     [](const Editable& open, Cell at) { CutEntryAction(open.Document, open.Clipboard, at.State); }},
    {Command::DeleteEntryAction, Extent::Everything,
     [](const Editable& open, Cell at) { DeleteEntryAction(open.Document, at.State); }},
    {Command::CutAction, Extent::Everything,
     [](const Editable& open, Cell at) { CutTransitionAction(open.Document, open.Clipboard, at); }},
    {Command::CutTransition, Extent::Everything,
     [](const Editable& open, Cell at) { CutTransition(open.Document, open.Clipboard, at); }},
    {Command::PasteState, Extent::Everything,
     [](const Editable& open, Cell at) { PasteState(open.Document, open.Clipboard, at.State); }},
    {Command::PasteEvent, Extent::Everything,
     [](const Editable& open, Cell at) { PasteEvent(open.Document, open.Clipboard, at.Row); }},
    {Command::PasteEntryAction, Extent::Everything,
     [](const Editable& open, Cell at) { PasteEntryAction(open.Document, open.Clipboard, at.State); }},
    {Command::PasteAction, Extent::Everything,
     [](const Editable& open, Cell at) { PasteTransitionAction(open.Document, open.Clipboard, at); }},
    // The cell shows its new content when its column is next drawn.
    {Command::PasteTransition, Extent::Nothing,
     [](const Editable& open, Cell at) { PasteTransition(open.Document, open.Clipboard, at); }},
});

// The edits that can be refused: where the table is full nothing can be put in.
struct Insertion {
    Command Id;
    Extent Drawn;
    Refusal (*Change)(const Editable& open, Cell at);
};

constexpr auto kInsertions = std::to_array<Insertion>({
    {Command::InsertEvent, Extent::Everything,
     [](const Editable& open, Cell at) { return InsertEvent(open.Document, open.Clipboard, at.Row); }},
    {Command::InsertState, Extent::AllColumns,
     [](const Editable& open, Cell at) { return InsertState(open.Document, open.Clipboard, at.State); }},
});

struct CellCopy {
    Command Id;
    void (*Copy)(const FsmDocument& document, TableClipboard& clipboard, Cell at);
};

constexpr auto kCopies = std::to_array<CellCopy>({
    {Command::CopyState, [](const FsmDocument& document, TableClipboard& clipboard,
                            Cell at) { CopyState(document, clipboard, at.State); }},
    {Command::CopyEvent, [](const FsmDocument& document, TableClipboard& clipboard,
                            Cell at) { CopyEvent(document, clipboard, at.Row); }},
    {Command::CopyEntryAction, [](const FsmDocument& document, TableClipboard& clipboard,
                                  Cell at) { CopyEntryAction(document, clipboard, at.State); }},
    {Command::CopyAction, [](const FsmDocument& document, TableClipboard& clipboard,
                             Cell at) { CopyTransitionAction(document, clipboard, at); }},
    {Command::CopyTransition, [](const FsmDocument& document, TableClipboard& clipboard,
                                 Cell at) { CopyTransition(document, clipboard, at); }},
});

struct RowToggle {
    Command Id;
    SpecialRow Row;
};

constexpr auto kToggles = std::to_array<RowToggle>({{Command::ShowExitAction, SpecialRow::ExitAction},
                                                    {Command::ShowElse, SpecialRow::Else},
                                                    {Command::ShowTimingMode, SpecialRow::TimingMode},
                                                    {Command::ShowTimeTarget, SpecialRow::TimeTarget}});

// The row of the table that has this command; the end when none has.
template <typename Table>
auto Find(const Table& table, Command command) {
    return std::find_if(table.begin(), table.end(), [command](const auto& row) { return row.Id == command; });
}

} // namespace

void TableCommands::Run(Command command) {
    if (const auto edit = Find(kEdits, command); edit != kEdits.end())
        Edit(*edit);
    else if (const auto insertion = Find(kInsertions, command); insertion != kInsertions.end())
        Edit(*insertion);
    else if (const auto copy = Find(kCopies, command); copy != kCopies.end())
        session_.Copy([&](const FsmDocument& document, TableClipboard& clipboard) {
            copy->Copy(document, clipboard, session_.Pressed());
        });
    else if (const auto toggle = Find(kToggles, command); toggle != kToggles.end())
        session_.Edit({EntryOf(command).Caption, {}, EditKind::ToggledRows}, [&](const Editable& open) {
            ToggleRow(open.Document.View, toggle->Row, session_.StandardHeight());
        });
    else if (command == Command::Polytask)
        session_.Edit({EntryOf(command).Caption, {}, EditKind::Multitasking}, [](const Editable& open) {
            open.Document.View.Polytask = !open.Document.View.Polytask;
        });
}

template <typename Row>
void TableCommands::Edit(const Row& edit) {
    if (!IsWanted(edit.Id))
        return;
    const Cell at = session_.Pressed();
    const Refusal refusal = session_.Edit({EntryOf(edit.Id).Step, {edit.Drawn, {}}},
                                          [&](const Editable& open) { return edit.Change(open, at); });
    session_.EnablePasteItems(); // a cut fills the clipboard, a column that moves can empty it
    if (refusal)
        Show(&window_, *refusal);
}

// Nothing is asked inside an edit.
bool TableCommands::IsWanted(Command command) {
    if (command != Command::DeleteEvent)
        return true;
    const Refusal question = QuestionBeforeDeleteEvent(session_.Document(), session_.Pressed().Row);
    return !question || Show(&window_, *question) == QMessageBox::Yes;
}

} // namespace orvane
