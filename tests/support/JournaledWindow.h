// SPDX-License-Identifier: GPL-3.0-or-later
// What a window does to its journal, without the window: a document whose images are short texts, its
// history, and the calls that tell the writer.
#pragma once

#include "session/JournalReader.h"
#include "session/JournalWriter.h"

#include <string>
#include <utility>
#include <vector>

namespace orvane::test {

inline JournalTime& TestTime() {
    static JournalTime now{std::chrono::seconds(1'790'000'000)};
    return now;
}
inline JournalTime TestClock() { return TestTime(); }

class JournaledWindow final : public JournalSource {
  public:
    explicit JournaledWindow(JournalPlace place, std::string image = "0 first")
        : Writer(std::move(place), *this), Images{{std::move(image), "", {}}}, Saved(Images.front().Image) {}

    void Edit(std::string image, std::string name = "edit") {
        const std::string before = Present();
        Images.resize(Current + 1);
        Images.push_back({std::move(image), std::move(name), {}});
        if (Images.size() > kMostImages)
            Images.erase(Images.begin());
        Current = Images.size() - 1;
        Writer.Committed(before, Present(), Images.back().Name);
    }
    bool Move(int steps) {
        const std::size_t to = Current + static_cast<std::size_t>(steps);
        if (to >= Images.size())
            return false;
        Current = to;
        Writer.Moved(steps, Present());
        return true;
    }
    void Type(JournalDraft draft) {
        ForgetDraft(draft);
        Drafts.push_back(draft);
        Writer.DraftTyped(draft);
    }
    void CloseEditor(const JournalDraft& editor) {
        ForgetDraft(editor);
        Writer.DraftGone(editor);
    }
    void Save() {
        Saved = Present();
        Stamp = JournalStamp{Saved.size(), 1, {}};
        Writer.Saved(Path, *Stamp);
    }
    // As the program does after recovery.
    void Continue(AdoptedJournal adopted) {
        const RecoveredJournal& journal = adopted.Journal;
        Images = journal.History;
        Current = journal.Current;
        Saved = journal.SavedImage.value_or("");
        Drafts = journal.Drafts;
        Path = journal.Head.Path;
        Stamp = journal.Head.Stamp;
        Writer.Adopt(std::move(adopted.Files), journal.Changes);
    }
    const std::string& Present() const { return Images[Current].Image; }

    JournalState State() const override {
        JournalState state;
        state.Path = Path;
        state.Stamp = Stamp;
        state.Document = Document;
        state.ImagesFallShort = ImagesFallShort;
        state.Oldest = Images.front().Image;
        for (std::size_t i = 1; i < Images.size(); ++i)
            state.Steps.push_back({Images[i].Name, Difference(Images[i - 1].Image, Images[i].Image)});
        state.Current = Current;
        state.SavedImage = Saved;
        state.View = View;
        state.Drafts = Drafts;
        return state;
    }

    std::string DocumentText() const override { return Document; }

    JournalWriter Writer;
    std::vector<JournalStep> Images;
    std::size_t Current = 0;
    std::string Saved;
    std::string Path = "/work/pump.zfsm";
    std::optional<JournalStamp> Stamp;
    std::string Document;
    bool ImagesFallShort = false;
    JournalView View;
    std::vector<JournalDraft> Drafts;

  private:
    void ForgetDraft(const JournalDraft& editor) {
        std::erase_if(Drafts, [&](const JournalDraft& draft) { return draft.IsSameEditor(editor); });
    }
};

// What is different between a journal and the window that wrote it; empty when nothing is.
inline std::string Differences(const RecoveredJournal& journal, const JournaledWindow& window) {
    std::string differences;
    if (journal.History.size() != window.Images.size())
        return "other number of images: " + std::to_string(journal.History.size());
    for (std::size_t i = 0; i < window.Images.size(); ++i) {
        if (journal.History[i].Image != window.Images[i].Image)
            differences += "image " + std::to_string(i) + "; ";
        if (i > 0 && journal.History[i].Name != window.Images[i].Name)
            differences += "name " + std::to_string(i) + "; ";
    }
    if (journal.Current != window.Current)
        differences += "present image; ";
    if (journal.SavedImage != window.Saved)
        differences += "saved image; ";
    if (journal.Drafts != window.Drafts)
        differences += "drafts; ";
    if (journal.Head.Path != window.Path || journal.Head.Stamp != window.Stamp)
        differences += "path or stamp; ";
    return differences;
}

} // namespace orvane::test
