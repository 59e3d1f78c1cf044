// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Session.h"

#include "core/TightPacked.h"
#include "table/RowVisibility.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr Touched kEverything{Touched::Extent::Everything, {}};

ChangeKind KindOf(EditKind edit) {
    switch (edit) {
    case EditKind::Typing:
        return ChangeKind::Typed;
    case EditKind::View:
        return ChangeKind::Viewed;
    case EditKind::ToggledRows:
        return ChangeKind::RowsToggled;
    case EditKind::Multitasking:
        return ChangeKind::Multitasking;
    case EditKind::Design:
        break;
    }
    return ChangeKind::Edited;
}

} // namespace

void Session::FinishEdit(const EditStep& step) {
    const bool forced = ForceRows(step.Where);
    const bool committed = step.Kind == EditKind::Design && undo_.Commit(Pack(document_), step.Name);
    Tell({KindOf(step.Kind), step.Where, step.Name, committed, forced});
}

// What is drawn anew shows its rows, whatever their marks were: a timeout nobody sees would be a trap.
bool Session::ForceRows(const Touched& where) {
    switch (where.What) {
    case Touched::Extent::Nothing:
    case Touched::Extent::RowHeads:
        return false;
    case Touched::Extent::Column:
        return ForceRowsForState(document_, where.State, standardHeight_);
    case Touched::Extent::AllColumns:
    case Touched::Extent::Everything:
        break;
    }
    return ForceRowsForContents(document_, standardHeight_);
}

void Session::Replace(FsmDocument document, std::string path, std::optional<JournalStamp> stamp) {
    const bool discarded = IsModified();
    Install(std::move(document), std::move(path), stamp);
    undo_.Reset(Pack(document_));
    Tell({.Kind = ChangeKind::Replaced,
          .Where = kEverything,
          .RowsForced = ForceRows(kEverything),
          .Discarded = discarded});
}

void Session::Restore(RestoredWork work) {
    const bool discarded = IsModified();
    Install(std::move(work.Document), std::move(work.Path), work.Stamp);
    undo_.Restore(std::move(work.History));
    script_ = std::move(work.Script);
    Tell({.Kind = ChangeKind::Replaced,
          .Where = kEverything,
          .RowsForced = ForceRows(kEverything),
          .Discarded = discarded});
}

// Nothing of one document shows in the next.
void Session::Install(FsmDocument document, std::string path, std::optional<JournalStamp> stamp) {
    document_ = std::move(document);
    path_ = std::move(path);
    stamp_ = stamp;
    currentState_ = kNoState;
    program_ = {};
    script_.reset();
}

void Session::MarkSaved(std::string path, std::optional<JournalStamp> stamp) {
    path_ = std::move(path);
    stamp_ = stamp;
    undo_.MarkSaved(Pack(document_));
    Tell({.Kind = ChangeKind::Saved, .Where = {}});
}

void Session::Leave() { Tell({.Kind = ChangeKind::Left, .Where = {}, .Discarded = IsModified()}); }

std::vector<std::string> Session::Undo() {
    const std::string& name = undo_.UndoName();
    return ShowStep(ChangeKind::Undone, undo_.UndoStep(), name);
}

std::vector<std::string> Session::Redo() {
    const std::string& name = undo_.RedoName();
    return ShowStep(ChangeKind::Redone, undo_.RedoStep(), name);
}

std::vector<std::string> Session::ShowStep(ChangeKind kind, const std::string* image, std::string_view name) {
    std::vector<std::string> faults;
    if (image != nullptr)
        faults = Unpack(*image, document_);
    Tell({.Kind = kind,
          .Where = image != nullptr ? kEverything : Touched{},
          .Name = name,
          .RowsForced = image != nullptr && ForceRows(kEverything)});
    return faults;
}

void Session::SetCurrentCell(Cell cell) {
    if (std::exchange(currentCell_, cell) == cell)
        return;
    Tell({.Kind = ChangeKind::Moved, .Where = {}});
}

void Session::SetCurrentState(StateNumber state) {
    currentState_ = state;
    Tell({.Kind = ChangeKind::Moved, .Where = {}});
}

void Session::HoldShift(bool held) {
    if (std::exchange(shiftHeld_, held) == held)
        return;
    Tell({.Kind = ChangeKind::Moved, .Where = {}});
}

void Session::ShowRun(std::optional<RunPicture> run) {
    run_ = std::move(run);
    if (run_ && run_->State != kNoState)
        currentState_ = run_->State;
    Tell({.Kind = ChangeKind::Ran, .Where = {}});
}

void Session::ShowFindings(std::vector<DesignFinding> findings) {
    if (findings == findings_)
        return;
    findings_ = std::move(findings);
    Tell({.Kind = ChangeKind::Judged, .Where = {}});
}

bool Session::IsPaneShown(Command toggle) const {
    return std::find(shownPanes_.begin(), shownPanes_.end(), toggle) != shownPanes_.end();
}

void Session::SetPaneShown(Command toggle, bool shown) {
    if (IsPaneShown(toggle) == shown)
        return;
    if (shown)
        shownPanes_.push_back(toggle);
    else
        std::erase(shownPanes_, toggle);
    Tell({.Kind = ChangeKind::Moved, .Where = {}});
}

void Session::RemoveDraftSource(const DraftSource& source) { std::erase(draftSources_, &source); }

std::vector<Draft> Session::Drafts() const {
    std::vector<Draft> drafts;
    for (const DraftSource* source : draftSources_) {
        if (std::optional<Draft> draft = source->CurrentDraft())
            drafts.push_back(std::move(*draft));
    }
    return drafts;
}

void Session::TellDraft() { Tell({.Kind = ChangeKind::Drafted, .Where = {}}); }

void Session::WantProgram() { Tell({.Kind = ChangeKind::ProgramWanted, .Where = {}}); }

void Session::Observe(ObserverRank rank, SessionObserver& observer) {
    const auto behind = std::upper_bound(listeners_.begin(), listeners_.end(), rank,
                                         [](ObserverRank r, const Listener& l) { return r < l.Rank; });
    listeners_.insert(behind, {rank, &observer});
}

// By index, because an observer may make another one by what it does.
void Session::Tell(const Change& change) {
    for (std::size_t i = 0; i < listeners_.size(); ++i)
        listeners_[i].Observer->Told(change);
}

} // namespace orvane
