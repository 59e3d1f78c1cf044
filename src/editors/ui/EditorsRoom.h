// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/Room.h"
#include "session/Draft.h"

namespace orvane {

class EditorDialog;
class frmEventEdit;
class frmGeneralCodeEdit;
class frmStateEdit;
class frmTransitionAction;

// The dialogs that edit pieces of the document. Each is made when it is first wanted and kept; what it holds
// while it is open is a draft, and one edit of the document when it closes, whichever button closes it.
class EditorsRoom final : public Room, public DraftSource {
    Q_OBJECT

  public:
    explicit EditorsRoom(const RoomPlace& place);
    ~EditorsRoom() override;

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    bool Listens() const override { return true; }
    void Told(const Change& change) override;
    void EditPlace(Cell place) override;
    void EditPiece(const TextPiece& piece) override;

    std::optional<Draft> CurrentDraft() const override;

  private:
    void EditState(Cell place);
    void EditEvent(RowNumber row);
    void EditGeneralCode();
    void EditTransitionAction(Cell place);
    void WriteGeneralCodeThrough();

    // The dialog, made with the words of the language when it is not there yet.
    template <typename Dialog>
    Dialog& Made(Dialog*& dialog);
    void BeginDraft(Cell place, EditorDialog& dialog);

    Session& session_;
    const Vocabulary& words_;
    QMainWindow& window_;
    frmStateEdit* frmStateEdit_ = nullptr;
    frmEventEdit* frmEventEdit_ = nullptr;
    frmGeneralCodeEdit* frmGeneralCodeEdit_ = nullptr;
    frmTransitionAction* frmTransitionAction_ = nullptr;
    Cell edited_;           // what the open dialog edits
    bool hasDraft_ = false; // something was edited there
    bool exitTab_ = true;   // which tabs the state editor shows: they go with rows of the table
    bool timeoutTab_ = true;
};

} // namespace orvane
