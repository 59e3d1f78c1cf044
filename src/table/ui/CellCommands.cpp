// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/CellCommands.h"

#include "kit/AnsiString.h"
#include "session/Commands.h"
#include "session/Session.h"
#include "table/CellBlockText.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <span>

namespace orvane {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("CellCommands", text); }

constexpr auto kCopyWholeCell = std::to_array<Command>({Command::CopyTransition, Command::CutTransition});
constexpr auto kCopyAnythingElse =
    std::to_array<Command>({Command::CopyState, Command::CopyEvent, Command::CopyEntryAction,
                            Command::CutEntryAction, Command::CopyAction, Command::CutAction});

bool IsOneOf(std::span<const Command> commands, Command command) {
    return std::find(commands.begin(), commands.end(), command) != commands.end();
}

EditStep StepOf(Command command) { return {EntryOf(command).Step, {Touched::Extent::AllColumns, {}}}; }

} // namespace

QString CellCommands::Run(Command command, const CellChoice& choice) {
    if (choice.IsEmpty())
        return tr("That works on transitions: choose a cell where an event's row and a state's column "
                  "meet.");
    switch (command) {
    case Command::CutCell:
        Offer(choice);
        session_.Edit(StepOf(command),
                      [&](Editable open) { CutCells(open.Document, open.Clipboard, choice); });
        return {};
    case Command::CopyCell:
        Offer(choice);
        session_.Copy([&](const FsmDocument& document, TableClipboard& clipboard) {
            CopyCells(document, clipboard, choice);
        });
        return {};
    case Command::PasteCell:
        return Paste(choice);
    default:
        session_.Edit(StepOf(command), [&](Editable open) { ClearCells(open.Document, choice); });
        return {};
    }
}

QString CellCommands::Paste(const CellChoice& choice) {
    if (const std::optional<QString> text = system_.FromOthers())
        return PasteText(choice, *text);
    return PasteOwn(choice);
}

QString CellCommands::PasteOwn(const CellChoice& choice) {
    if (const std::optional<CellBlock> block = BlockToPaste(session_.Clipboard()))
        return LayDown(choice, *block);
    return tr("There is nothing to paste into a cell: copy a transition first.");
}

QString CellCommands::PasteText(const CellChoice& choice, const QString& text) {
    const ReadBlock read = BlockOfText(session_.Document(), ToAnsi(text).Text);
    if (read.Block)
        return LayDown(choice, *read.Block);
    return tr("Nothing was pasted: \"%1\" is not the number or the name of one state.")
        .arg(FromAnsi(read.Refused).left(60));
}

QString CellCommands::LayDown(const CellChoice& choice, const CellBlock& block) {
    std::size_t leftOut = 0;
    session_.Edit(StepOf(Command::PasteCell),
                  [&](Editable open) { leftOut = orvane::LayDown(open.Document, block, choice); });
    if (leftOut == 0)
        return {};
    return leftOut == 1 ? tr("1 cell was left out: its row has no named event, or it is off the table.")
                        : tr("%1 cells were left out: their rows have no named event, or they are off the "
                             "table.")
                              .arg(leftOut);
}

void CellCommands::Follow(Command command, Cell pressed) {
    if (IsOneOf(kCopyWholeCell, command))
        Offer(ChoiceBetween(session_.Document(), pressed, pressed));
    else if (IsOneOf(kCopyAnythingElse, command))
        system_.CopiedHere();
}

void CellCommands::Offer(const CellChoice& choice) {
    system_.Put(FromAnsi(TextOfCells(session_.Document(), choice)));
}

} // namespace orvane
