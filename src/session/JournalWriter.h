// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/JournalState.h"
#include "session/JournalSyncer.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// Where journals are kept, and who keeps them.
struct JournalPlace {
    FileSystem& Files;
    FileSystem::Path Folder;
    std::string Program;  // name and version
    JournalTime (*Now)(); // the clock
    JournalSyncer::How Syncing = JournalSyncer::How::ByThread;
    std::chrono::milliseconds SyncDelay = JournalSyncer::kDelay;
};

// The journal of one window: writes down every change before the call returns.
//
// A file is begun at the first change, with all that the source holds then, and again when it has grown past
// its limits or a write failed. A new file is whole under its name from the first moment, and the old one
// goes when the disk has the new one; so whenever the process ends there is a journal of everything up to the
// last call.
//
// A call does not fail, and drawing does not wait for the disk: SyncNow does, and Closed for what is
// discarded. What could not be written is in the file that is begun next; while none can be begun the user is
// told.
class JournalWriter {
  public:
    static constexpr std::size_t kMostBytes = 32u << 20; // written to a file since it was begun
    static constexpr std::uint32_t kMostRecords = 2000;  // likewise
    static constexpr std::chrono::seconds kRetryAfter{5};

    // The source outlives the writer.
    JournalWriter(JournalPlace place, const JournalSource& source);
    JournalWriter(const JournalWriter&) = delete;
    JournalWriter& operator=(const JournalWriter&) = delete;
    // A journal that was not closed stays, for the next start to find.
    ~JournalWriter();

    // There is a new step: the present image was the one before and is the one after. The name says what the
    // user did.
    void Committed(std::string_view before, std::string_view after, std::string_view name);
    // So many steps were redone, or undone when below 0; the image is the present one.
    void Moved(int steps, std::string_view image);
    // Begins no file: to look at a document differently is nothing that somebody would want back alone.
    void ViewChanged(const JournalView& view);
    // What an open editor holds now, and that it holds nothing any more.
    void DraftTyped(const JournalDraft& draft);
    void DraftGone(const JournalDraft& editor);
    // The file of that path has the present image, and the disk has the file.
    void Saved(const std::string& path, const JournalStamp& stamp);
    // The document is left. Its journal goes, or is kept among the discarded ones. The next change begins
    // another one.
    void Closed(JournalClose reason);

    // Goes on with recovered work, which the source holds by now: a new journal is begun with all of it, and
    // the recovered ones go when that is safe.
    void Adopt(std::vector<RetiredJournal> recovered, std::uint64_t changes);

    // Waits until the disk has all of it: before something that may end the process.
    void SyncNow() { syncer_.Finish(); }

    // One line for the status bar: that the journal cannot be written, or can be again. Once each time.
    std::optional<std::string> TakeMessage();

    // The file's name in the folder; empty before the first change.
    const std::string& Name() const { return name_; }

  private:
    struct Created {
        FileHandle File;
        std::string Name;
    };

    bool CanAppend() const { return file_ && sound_; }
    void AppendStep(RecordContent step);
    void Append(std::vector<RecordContent> contents);
    std::error_code Write(std::vector<RecordContent> contents);
    void Renew();
    std::error_code BeginFile();
    Result<Created> CreateFile(std::string_view bytes);
    Result<Created> CreateUnfinished();
    void Forget();

    JournalPlace place_;
    const JournalSource& source_;
    JournalSyncer syncer_;

    FileHandle file_; // locked
    std::string name_;
    std::string salt_;
    bool sound_ = false;        // nothing has failed: the file may be written on
    std::uint64_t goodEnd_ = 0; // where its last whole record ends
    std::uint32_t next_ = 0;    // sequence number
    std::uint64_t begunBytes_ = 0;
    std::uint32_t begunRecords_ = 0;

    std::size_t imageSize_ = 0; // of the present image
    std::uint64_t changes_ = 0; // made and not saved
    // Of a document that images cannot carry: as it was last written down.
    std::optional<std::string> document_;

    std::vector<RetiredJournal> retired_; // to go with the next file that is begun
    std::vector<std::string> replaced_;   // names of all older journals of this work
    bool failing_ = false;
    JournalTime retryAt_;
    std::optional<std::string> message_;
};

} // namespace orvane
