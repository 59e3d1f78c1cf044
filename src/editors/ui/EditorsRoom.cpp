// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/EditorsRoom.h"

#include "editors/PlaceFields.h"
#include "editors/ui/TextField.h"
#include "editors/ui/frmEventEdit.h"
#include "editors/ui/frmGeneralCodeEdit.h"
#include "editors/ui/frmStateEdit.h"
#include "editors/ui/frmTransitionAction.h"
#include "kit/AnsiString.h"
#include "session/CommandState.h"
#include "session/Session.h"

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

namespace orvane {

namespace {

using Extent = Touched::Extent;

constexpr std::string_view kGeneralCodeStep = EntryOf(Command::GeneralCode).Step;

// Which script the document names is no business of the dialog's.
void TakeGeneralCode(FsmDocument& document, const GeneralCode& code) {
    std::string buildFile = std::move(document.General.BuildFile);
    document.General = code;
    document.General.BuildFile = std::move(buildFile);
}

} // namespace

EditorsRoom::EditorsRoom(const RoomPlace& place)
    : session_(place.Open), words_(place.Words), window_(place.Window) {
    session_.AddDraftSource(*this);
}

EditorsRoom::~EditorsRoom() { session_.RemoveDraftSource(*this); }

std::span<const Command> EditorsRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>({Command::GeneralCode, Command::EditAction});
    return commands;
}

void EditorsRoom::Run(Command command) {
    EditPlace(command == Command::GeneralCode ? Cell{} : session_.Pressed());
}

void EditorsRoom::EditPlace(Cell place) {
    if (place == Cell{})
        EditGeneralCode();
    else if (place.State == kNoState)
        EditEvent(place.Row);
    else if (place.Row < kFirstCellRow)
        EditState(place);
    else
        EditTransitionAction(place);
}

// The dialog comes up with its own first field; what was asked for follows as soon as it is there.
void EditorsRoom::EditPiece(const TextPiece& piece) {
    if (piece.Place == PlaceOfText(&GeneralCode::BuildFile)) // no dialog has the path
        return Q_EMIT CommandWanted(Command::Builder);
    const std::string text = TextAt(session_.Document(), piece.Place);
    QTimer::singleShot(0, this, [piece, text] {
        if (QWidget* dialog = QApplication::activeModalWidget())
            ShowPiece(*dialog, piece, text);
    });
    EditPlace(piece.Place.At);
}

ObserverRank EditorsRoom::Rank() const { return ObserverRank::Rooms; }

// All tabs show until a command hides or shows a row, or a row is forced into sight.
void EditorsRoom::Told(const Change& change) {
    if (change.Kind == ChangeKind::Replaced)
        exitTab_ = timeoutTab_ = true;
    if (change.Kind == ChangeKind::RowsToggled) {
        exitTab_ = IsChecked(session_, Command::ShowExitAction);
        timeoutTab_ =
            IsChecked(session_, Command::ShowTimingMode) || IsChecked(session_, Command::ShowTimeTarget);
    }
    if (change.RowsForced && IsChecked(session_, Command::ShowTimingMode))
        timeoutTab_ = true;
}

template <typename Dialog>
Dialog& EditorsRoom::Made(Dialog*& dialog) {
    if (dialog == nullptr) {
        dialog = new Dialog(&window_);
        if constexpr (requires { dialog->SetVocabulary(words_); })
            dialog->SetVocabulary(words_);
        connect(dialog, &EditorDialog::Edited, this, [this] {
            hasDraft_ = true;
            session_.TellDraft();
            session_.WantProgram();
        });
    }
    return *dialog;
}

void EditorsRoom::BeginDraft(Cell place, EditorDialog& dialog) {
    dialog.SetEdited(FromAnsi(PlaceInWords(session_.Document(), place)));
    edited_ = place;
    hasDraft_ = false;
}

void EditorsRoom::EditState(Cell place) {
    frmStateEdit& dialog = Made(frmStateEdit_);
    dialog.SetExitTabVisible(exitTab_);
    dialog.SetTimeoutTabVisible(timeoutTab_);
    BeginDraft(place, dialog);
    StateRecord record = session_.Document().State(place.State);
    dialog.Execute(place.Row, record);
    hasDraft_ = false;
    session_.Edit({"state", {Extent::AllColumns, {}}},
                  [&](const Editable& open) { open.Document.State(place.State) = record; });
}

void EditorsRoom::EditEvent(RowNumber row) {
    frmEventEdit& dialog = Made(frmEventEdit_);
    BeginDraft({row, kNoState}, dialog);
    EventRecord record = session_.Document().Event(row);
    dialog.Execute(record);
    hasDraft_ = false;
    session_.Edit({"event", {Extent::RowHeads, {}}},
                  [&](const Editable& open) { open.Document.Event(row) = record; });
}

// Each letter is in the document at once, so that the program made meanwhile shows it; the step comes when
// the dialog closes.
void EditorsRoom::EditGeneralCode() {
    const bool isNew = frmGeneralCodeEdit_ == nullptr;
    frmGeneralCodeEdit& dialog = Made(frmGeneralCodeEdit_);
    if (isNew) {
        disconnect(&dialog, &EditorDialog::Edited, this, nullptr);
        connect(&dialog, &EditorDialog::Edited, this, &EditorsRoom::WriteGeneralCodeThrough);
    }
    BeginDraft({}, dialog);
    dialog.ShowGeneralCode(session_.Document().General);
    dialog.Execute(session_.Document().View.Polytask);
    hasDraft_ = false;
    session_.Edit({kGeneralCodeStep, {Extent::RowHeads, {}}},
                  [&](const Editable& open) { TakeGeneralCode(open.Document, dialog.Code()); });
}

void EditorsRoom::WriteGeneralCodeThrough() {
    hasDraft_ = true;
    const GeneralCode code = frmGeneralCodeEdit_->Code();
    // Of all the texts only the name stands in the table.
    const bool isRenamed = code.FsmName != session_.Document().General.FsmName;
    session_.Edit({kGeneralCodeStep, {isRenamed ? Extent::RowHeads : Extent::Nothing, {}}, EditKind::Typing},
                  [&code](const Editable& open) { TakeGeneralCode(open.Document, code); });
}

void EditorsRoom::EditTransitionAction(Cell place) {
    frmTransitionAction& dialog = Made(frmTransitionAction_);
    BeginDraft(place, dialog);
    dialog.SetCode(session_.Document().State(place.State).Actions[place.Row]);
    dialog.Execute();
    hasDraft_ = false;
    session_.Edit(
        {EntryOf(Command::EditAction).Step, {Extent::Column, place.State}},
        [&](const Editable& open) { open.Document.State(place.State).Actions[place.Row] = dialog.Code(); });
}

std::optional<Draft> EditorsRoom::CurrentDraft() const {
    if (!hasDraft_)
        return std::nullopt;
    if (edited_ == Cell{})
        return Draft{edited_, frmGeneralCodeEdit_->Code()};
    if (edited_.State == kNoState)
        return Draft{edited_, frmEventEdit_->Typed()};
    if (edited_.Row < kFirstCellRow)
        return Draft{edited_, frmStateEdit_->Typed()};
    return Draft{edited_, ActionText{frmTransitionAction_->Code()}};
}

} // namespace orvane
