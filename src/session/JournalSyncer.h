// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "session/RecoveryFiles.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace orvane {

// Waits for the disk, so that nobody at the keyboard has to: a second after a journal was first written to, a
// thread syncs it. After a power failure no more is missing than that second and what one sync takes.
class JournalSyncer {
  public:
    enum class How { ByThread, WhenTold };

    static constexpr std::chrono::milliseconds kDelay{1000};

    // Everything is in that folder. The file system must bear calls from two threads, unless nothing is done
    // but when told.
    JournalSyncer(FileSystem& files, FileSystem::Path folder, How how,
                  std::chrono::milliseconds delay = kDelay);
    JournalSyncer(const JournalSyncer&) = delete;
    JournalSyncer& operator=(const JournalSyncer&) = delete;
    ~JournalSyncer(); // what waits is not done

    // The file has been written to. It stays open until it is finished or forgotten.
    void Want(FileHandle file);
    // The file is new; once the disk has it and its name these go.
    void WantNew(FileHandle file, std::vector<RetiredJournal> retired);

    // Does now what waits.
    void Finish();
    // What waits is not done any more; what is being done is waited for. Gives back what was to go.
    std::vector<RetiredJournal> Forget();

    // Why something could not be done, once.
    std::error_code TakeFailure();

  private:
    void Wait(FileHandle file);
    void Run();
    void DoWaiting(std::unique_lock<std::mutex>& lock);
    std::error_code Sync(FileHandle file, bool isNew);

    FileSystem& files_;
    FileSystem::Path folder_;
    How how_;
    std::chrono::milliseconds delay_;

    std::mutex mutex_; // guards all below
    std::condition_variable changed_;
    std::optional<FileHandle> waiting_; // to be synced
    std::chrono::steady_clock::time_point due_;
    bool isNew_ = false;                  // the folder is to be synced too
    std::vector<RetiredJournal> retired_; // to go after the next sync that succeeds
    bool busy_ = false;
    bool ending_ = false;
    std::error_code failure_;
    std::thread thread_; // from the first file on
};

} // namespace orvane
