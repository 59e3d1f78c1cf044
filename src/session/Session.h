// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DesignFinding.h"
#include "core/FsmDocument.h"
#include "core/UserMessage.h"
#include "session/Change.h"
#include "session/Draft.h"
#include "session/JournalContent.h"
#include "session/RunPicture.h"
#include "table/TableClipboard.h"
#include "table/UndoRing.h"

#include <bitset>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace orvane {

enum class Command : unsigned char;

// What kind of thing an edit changes.
enum class EditKind {
    Design,       // what is generated: one undo step
    Typing,       // the same, letter by letter; the step is the Design edit that ends it
    View,         // how the document is looked at: no step, no program
    ToggledRows,  // the same, by the command of a special row
    Multitasking, // no step, but another program
};

// An edit, as everybody is told of it.
struct EditStep {
    std::string_view Name; // in the words of the user: "insert state"; lives as long as the program
    Touched Where;
    EditKind Kind = EditKind::Design;
};

// What an edit may change.
struct Editable {
    FsmDocument& Document;
    TableClipboard& Clipboard;
};

// A document with its history, as a journal gives it back.
struct RestoredWork {
    FsmDocument Document;
    std::string Path;
    std::optional<JournalStamp> Stamp;
    UndoHistory History;
    std::optional<std::string> Script; // of the builder, as it was being edited; UTF-8
};

// What the last run of the generator has found out.
struct ProgramState {
    bool Written = false;                    // its file is that of the document as it stands
    std::bitset<kTableColumns> Reached = {}; // which states a path from state 1 leads to
};

// The one owner of what is open: the document, its file, its history, the clipboard of the table, and where
// the user is in it. Nobody else can change the document, and whoever has to know of a change is told.
class Session {
  public:
    Session() = default;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    const FsmDocument& Document() const { return document_; } // stays at its address
    const std::string& Path() const { return path_; }         // full, UTF-8; empty without a file
    // What that file was when this program last read or wrote it; none without a file.
    const std::optional<JournalStamp>& Stamp() const { return stamp_; }

    // The one door for edits: runs the change on an Editable, keeps the step, and tells every observer. A
    // change that returns a UserMessage has refused: the document is as it was, nobody is told, and the
    // message comes back. A dialog runs before its edit, never inside.
    template <typename Action>
    std::optional<UserMessage> Edit(const EditStep& step, Action&& change) {
        if constexpr (std::is_void_v<std::invoke_result_t<Action, Editable>>)
            change(Editable{document_, clipboard_});
        else if (std::optional<UserMessage> refusal = change(Editable{document_, clipboard_}))
            return refusal;
        FinishEdit(step);
        return std::nullopt;
    }

    // Another document takes the place of this one and begins its history; it counts as saved. The stamp is
    // that of its file.
    void Replace(FsmDocument document, std::string path, std::optional<JournalStamp> stamp = {});

    // The same with work that has a history already: undo goes on where it was.
    void Restore(RestoredWork work);

    // The builder script of work that was restored, for whoever shows it; none once it was taken, and with
    // the next document.
    bool HasRestoredScript() const { return script_.has_value(); }
    std::optional<std::string> TakeRestoredScript() { return std::exchange(script_, std::nullopt); }

    // The file has the document as it stands.
    void MarkSaved(std::string path, std::optional<JournalStamp> stamp = {});

    // The program ends; what is not saved is not wanted.
    void Leave();

    // Differs from what was saved, opened or begun with.
    bool IsModified() const { return undo_.IsModified(); }

    // What went wrong with the step's image comes back, empty for all that this program has made.
    std::vector<std::string> Undo();
    std::vector<std::string> Redo();
    bool CanUndo() const { return undo_.CanUndo(); }
    bool CanRedo() const { return undo_.CanRedo(); }
    const UndoRing& History() const { return undo_; }

    // Copies into the clipboard; the document stays.
    template <typename Action>
    void Copy(Action&& copy) {
        copy(Document(), clipboard_);
    }
    const TableClipboard& Clipboard() const { return clipboard_; }
    // What can be pasted, as of the last time that this was asked anew: some kinds of content leave some of
    // the commands as they were.
    const PasteItems& Pasteable() const { return pasteable_; }
    void EnablePasteItems() { pasteable_ = orvane::EnablePasteItems(clipboard_.Kind, pasteable_); }

    // Where the user is: the cell that a mouse button was last pressed on, the state that stepping has
    // reached (0 is none), whether Shift is held in the table.
    Cell Pressed() const { return pressed_; }
    void Press(Cell cell) { pressed_ = cell; }
    // The cell with the frame, which the keys work on; a press of the mouse chooses it too.
    Cell CurrentCell() const { return currentCell_; }
    void SetCurrentCell(Cell cell);
    StateNumber CurrentState() const { return currentState_; }
    void SetCurrentState(StateNumber state);
    bool ShiftHeld() const { return shiftHeld_; }
    void HoldShift(bool held);

    // The machine that runs, while the user looks at it. Where it is, is the current state.
    const std::optional<RunPicture>& Run() const { return run_; }
    void ShowRun(std::optional<RunPicture> run);

    // Which panes stand beside the table, by the commands that show and hide them.
    bool IsPaneShown(Command toggle) const;
    void SetPaneShown(Command toggle, bool shown);

    // The height of an ordinary row in the table's font: what a special row comes into sight with.
    Twips StandardHeight() const { return standardHeight_; }
    void SetStandardHeight(Twips height) { standardHeight_ = height; }

    // What open editors hold. A source is asked for its draft whenever somebody wants it; one that goes takes
    // itself off the list.
    void AddDraftSource(const DraftSource& source) { draftSources_.push_back(&source); }
    void RemoveDraftSource(const DraftSource& source);
    std::vector<Draft> Drafts() const;
    // The draft of some editor is another now.
    void TellDraft();

    // Asks for the program of the document as it stands; the answer is there when this returns.
    void WantProgram();
    const ProgramState& Program() const { return program_; }
    void SetProgram(const ProgramState& program) { program_ = program; }

    // What the generator's last run has found, in its order.
    const std::vector<DesignFinding>& Report() const { return report_; }
    void SetReport(std::vector<DesignFinding> report) { report_ = std::move(report); }
    // All that there is to be told of the design, errors first; whoever gathers it shows it to all others.
    const std::vector<DesignFinding>& Findings() const { return findings_; }
    void ShowFindings(std::vector<DesignFinding> findings);

    // Observers are told in the order of their ranks, those of one rank in the order in which they came.
    void Observe(ObserverRank rank, SessionObserver& observer);

  private:
    struct Listener {
        ObserverRank Rank;
        SessionObserver* Observer;
    };

    void FinishEdit(const EditStep& step);
    bool ForceRows(const Touched& where);
    void Install(FsmDocument document, std::string path, std::optional<JournalStamp> stamp);
    std::vector<std::string> ShowStep(ChangeKind kind, const std::string* image, std::string_view name);
    void Tell(const Change& change);

    FsmDocument document_;
    std::string path_;
    std::optional<JournalStamp> stamp_;
    UndoRing undo_;
    TableClipboard clipboard_;
    PasteItems pasteable_;
    Cell pressed_;
    Cell currentCell_;
    StateNumber currentState_;
    bool shiftHeld_ = false;
    std::optional<RunPicture> run_;
    std::vector<Command> shownPanes_;
    Twips standardHeight_ = 0;
    ProgramState program_;
    std::vector<DesignFinding> report_;
    std::vector<DesignFinding> findings_;
    std::optional<std::string> script_;
    std::vector<const DraftSource*> draftSources_;
    std::vector<Listener> listeners_;
};

} // namespace orvane
