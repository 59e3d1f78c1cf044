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

RestoredWork WorkOf(RecoveredJournal& journal) {
    RestoredWork work{.Document = std::move(journal.Document),
                      .Path = journal.Head.Path,
                      .Stamp = journal.Head.Stamp,
                      .History = {},
                      .Script = {}};
    for (JournalStep& step : journal.History)
        work.History.Snapshots.push_back({std::move(step.Image), std::move(step.Name)});
    work.History.Current = journal.Current;
    work.History.SavedText = journal.SavedImage.value_or(std::string());
    return work;
}

// As a step of the session would be; what was undone before ends there.
bool AddStep(RestoredWork& work) {
    std::vector<Snapshot>& steps = work.History.Snapshots;
    std::string image = Pack(work.Document);
    if (image == steps[work.History.Current].Image)
        return false;
    steps.resize(work.History.Current + 1);
    steps.push_back({std::move(image), std::string(kTyping)});
    work.History.Current = steps.size() - 1;
    return true;
}

// Before the session has the work: a step that was made afterwards would be in no journal for a moment. How
// many steps there are more.
std::uint64_t AddDrafts(const std::vector<JournalDraft>& drafts, RestoredWork& work) {
    std::uint64_t added = 0;
    for (const JournalDraft& draft : drafts) {
        if (std::optional<std::string> script = ScriptOf(draft))
            work.Script = std::move(script);
        ApplyDraft(draft, work.Document);
        added += AddStep(work) ? 1 : 0;
    }
    return added;
}

} // namespace

Journal::Journal(Session& session, JournalPlace place)
    : session_(session), writer_(std::move(place), *this), view_(ViewOf(session.Document())) {
    session_.Observe(ObserverRank::Journal, *this);
}

void Journal::Told(const Change& change) {
    if (keeps_)
        Write(change);
}

// Steps that are not told would be missing in front of the next one, which says only what it changed: a
// journal that is kept again begins anew.
void Journal::Keep(bool keep) {
    if (!std::exchange(keeps_, keep) || keep)
        return;
    writer_.Closed(JournalClose::NothingUnsaved);
    pace_.Written();
    drafts_.clear();
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
    case ChangeKind::Ran:
    case ChangeKind::Judged:
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
    RestoredWork work = WorkOf(recovered.Journal);
    const std::uint64_t changes = recovered.Journal.Changes + AddDrafts(recovered.Journal.Drafts, work);
    session_.Restore(std::move(work));
    if (keeps_)
        writer_.Adopt(std::move(recovered.Files), changes);
}

std::string Journal::DocumentText() const { return WriteDocument(session_.Document()); }

JournalState Journal::State() const {
    JournalState state;
    state.Path = session_.Path();
    state.Stamp = session_.Stamp();
    state.Document = DocumentText();
    state.ImagesFallShort = FallsShort(session_.Document());
    UndoStory story = session_.History().Story();
    state.Oldest = std::move(story.Oldest);
    for (const UndoStory::Step& step : story.Steps)
        state.Steps.push_back({step.Name, step.Change});
    state.Current = story.Current;
    state.SavedImage = story.SavedText;
    state.View = ViewOf(session_.Document());
    for (const Draft& draft : session_.Drafts())
        state.Drafts.push_back(JournalDraftOf(draft));
    return state;
}

} // namespace orvane
