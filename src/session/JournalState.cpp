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
    void AddStep(const JournalImage& step) {
        Add(CommitRecord{step.Name, Difference(std::exchange(image_, step.Image), step.Image)});
    }
    std::optional<JournalFile> Finish() {
        if (failed_)
            return std::nullopt;
        return std::move(file_);
    }

  private:
    std::string_view salt_;
    JournalTime time_;
    std::string_view image_; // the present one
    JournalFile file_;
    bool failed_ = false;
};

// The saved image may be one that no step leads to: then it stands in front, and the history begins anew.
void AddHistory(const JournalState& state, Beginning& file) {
    const std::string_view oldest = state.History.front().Image;
    if (!state.SavedImage.empty() && state.SavedImage != oldest)
        file.AddImage(state.SavedImage, true);
    file.AddImage(oldest, state.SavedImage == oldest);
    for (std::size_t i = 1; i < state.History.size(); ++i)
        file.AddStep(state.History[i]);
    const std::size_t undone = state.History.size() - 1 - state.Current;
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
