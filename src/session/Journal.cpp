// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/Journal.h"

#include "core/DocumentWriter.h"
#include "core/TightPacked.h"
#include "session/DraftText.h"
#include "session/Session.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr std::string_view kTyping = "recovered typing"; // as the step that a draft becomes is called

// Whether undo cannot carry the document: a text with the delimiter in it breaks the image's order.
bool FallsShort(const FsmDocument& document) {
    FsmDocument unpacked = document;
    return !Unpack(Pack(document), unpacked).empty() || unpacked != document;
}

bool Holds(const std::vector<JournalDraft>& drafts, const JournalDraft& editor) {
    return std::any_of(drafts.begin(), drafts.end(),
                       [&](const JournalDraft& draft) { return draft.IsSameEditor(editor); });
}

} // namespace

Journal::Journal(Session& session, JournalPlace place)
    : session_(session), writer_(std::move(place), *this), view_(ViewOf(session.Document())) {
    session_.Observe(ObserverRank::Journal, *this);
}

void Journal::Told(const Change& change) {
    const bool isOver = change.Kind == ChangeKind::Saved || change.Kind == ChangeKind::Replaced ||
                        change.Kind == ChangeKind::Left;
    if (keeps_)
        Write(change);
    else if (isOver)
        Close(change);
}

// Steps that are not told would be missing in front of the next one, which says only what it changed.
void Journal::Keep(bool keep) {
    keeps_ = keep;
    writer_.Pause();
}

void Journal::Write(const Change& change) {
    switch (change.Kind) {
    case ChangeKind::Edited:
        if (change.Committed)
            writer_.Committed(session_.History().Previous(), session_.History().Current(), change.Name);
        if (!drafts_.empty())
            WriteDrafts(); // the editor has closed
        return WriteView();
    case ChangeKind::Undone:
    case ChangeKind::Redone:
        if (change.Where != Touched{})
            writer_.Moved(change.Kind == ChangeKind::Undone ? -1 : 1, session_.History().Current());
        return WriteView();
    case ChangeKind::Viewed:
    case ChangeKind::RowsToggled:
    case ChangeKind::Multitasking:
        return WriteView();
    case ChangeKind::Typed:
    case ChangeKind::Drafted:
        return pace_.Typed(DraftPace::Clock::now());
    case ChangeKind::Saved:
        return writer_.Saved(session_.Path(), session_.Stamp().value_or(JournalStamp()));
    case ChangeKind::Replaced:
    case ChangeKind::Left:
        return Close(change);
    case ChangeKind::ProgramWanted:
    case ChangeKind::Moved:
        return;
    }
}

void Journal::Close(const Change& change) {
    writer_.Closed(change.Discarded ? JournalClose::Discarded : JournalClose::NothingUnsaved);
    pace_.Written();
    drafts_.clear();
    view_ = ViewOf(session_.Document());
}

void Journal::WriteView() {
    JournalView view = ViewOf(session_.Document());
    if (view == view_)
        return;
    view_ = std::move(view);
    writer_.ViewChanged(view_);
}

void Journal::WriteDrafts() {
    pace_.Written();
    if (!keeps_)
        return;
    std::vector<JournalDraft> drafts;
    for (const Draft& draft : session_.Drafts())
        drafts.push_back(JournalDraftOf(draft));
    for (const JournalDraft& former : std::exchange(drafts_, drafts)) {
        if (!Holds(drafts, former))
            writer_.DraftGone(former);
        else
            std::erase(drafts, former); // it is written as it is
    }
    for (const JournalDraft& draft : drafts)
        writer_.DraftTyped(draft);
}

// The session's document is closed by being replaced; then the journal of the recovered work begins with all
// that its own journal held, and only then that one may go.
void Journal::GoOnWith(AdoptedJournal recovered) {
    RecoveredJournal& journal = recovered.Journal;
    RestoredWork work{std::move(journal.Document), journal.Head.Path, journal.Head.Stamp, {}};
    for (JournalStep& step : journal.History)
        work.History.Snapshots.push_back({std::move(step.Image), std::move(step.Name)});
    work.History.Current = journal.Current;
    work.History.SavedText = journal.SavedImage.value_or(std::string());
    session_.Restore(std::move(work));
    if (keeps_)
        writer_.Adopt(std::move(recovered.Files), journal.Changes);
    for (const JournalDraft& draft : journal.Drafts)
        session_.Edit({kTyping, {Touched::Extent::Everything, {}}},
                      [&draft](const Editable& open) { ApplyDraft(draft, open.Document); });
}

JournalState Journal::State() const {
    JournalState state;
    state.Path = session_.Path();
    state.Stamp = session_.Stamp();
    state.Document = WriteDocument(session_.Document());
    state.ImagesFallShort = FallsShort(session_.Document());
    history_ = session_.History().History();
    for (const Snapshot& snapshot : history_.Snapshots)
        state.History.push_back({snapshot.Image, snapshot.Name});
    state.Current = history_.Current;
    state.SavedImage = history_.SavedText;
    state.View = ViewOf(session_.Document());
    for (const Draft& draft : session_.Drafts())
        state.Drafts.push_back(JournalDraftOf(draft));
    return state;
}

} // namespace orvane
