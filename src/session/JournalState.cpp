// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/JournalState.h"

#include <utility>

namespace orvane {

namespace {

class Beginning {
  public:
    Beginning(std::string_view salt, JournalTime time) : salt_(salt), time_(time) {
        file_.Bytes = EncodeJournalHead(salt);
    }

    void Add(RecordContent content) {
        failed_ = failed_ || !AppendRecord({file_.Records++, time_, std::move(content)}, salt_, file_.Bytes);
    }
    void AddImage(std::string_view image, bool countsAsSaved) {
        Add(ImageRecord{Difference(std::exchange(image_, image), image), countsAsSaved});
    }
    std::optional<JournalFile> Finish() {
        if (failed_)
            return std::nullopt;
        return std::move(file_);
    }

  private:
    std::string_view salt_;
    JournalTime time_;
    std::string_view image_; // the one before
    JournalFile file_;
    bool failed_ = false;
};

// The saved image may be one that no step leads to: then it stands in front, and the history begins anew.
void AddHistory(const JournalState& state, Beginning& file) {
    if (!state.SavedImage.empty() && state.SavedImage != state.Oldest)
        file.AddImage(state.SavedImage, true);
    file.AddImage(state.Oldest, state.SavedImage == state.Oldest);
    for (const JournalChange& step : state.Steps)
        file.Add(CommitRecord{step.Name, step.Change});
    const std::size_t undone = state.Steps.size() - state.Current;
    if (undone > 0)
        file.Add(MoveRecord{-static_cast<std::int64_t>(undone)});
}

} // namespace

std::optional<JournalFile> BeginJournal(const JournalBeginning& beginning, const JournalState& state) {
    Beginning file(beginning.Salt, beginning.Time);
    file.Add(HeadRecord{{beginning.Program, state.Path, state.Stamp, beginning.Replaces}});
    file.Add(DocumentRecord{{0, 0, state.Document}, state.ImagesFallShort});
    AddHistory(state, file);
    file.Add(ViewRecord{state.View});
    for (const JournalDraft& draft : state.Drafts)
        file.Add(DraftRecord{draft});
    file.Add(StandRecord{beginning.Changes});
    return file.Finish();
}

} // namespace orvane
