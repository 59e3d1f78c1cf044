// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileWriter.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace orvane {

// What became of a text that was to be written.
struct WriteOutcome {
    std::filesystem::path Path;
    WrittenFile Written;
};

// Writes one version of a file after the other, and lets nobody at the keyboard wait for a slow drive.
//
// While the drive answers in time a text is written before Write returns. Behind a slower one a thread
// writes, and of the texts that come meanwhile only the newest counts: what a drive cannot keep up with would
// be overwritten anyway. Every outcome is handed out, the one of a thread as soon as somebody asks.
class LatestWriter {
  public:
    using How = WrittenFile (*)(FileSystem& files, const std::filesystem::path& path, std::string_view text);

    // How long Write waits for a drive.
    static constexpr std::chrono::milliseconds kPatience{50};

    // Is told in the writing thread that an outcome can be taken.
    class Listener {
      public:
        virtual void OutcomeIsThere() = 0;

      protected:
        ~Listener() = default;
    };

    // All outlive the writer. The file system must bear calls from two threads.
    LatestWriter(FileSystem& files, How how, Listener& listener,
                 std::chrono::milliseconds patience = kPatience);
    LatestWriter(const LatestWriter&) = delete;
    LatestWriter& operator=(const LatestWriter&) = delete;
    // Waits until the newest text is written.
    ~LatestWriter();

    // The outcome, when the drive has answered in time; of an older text that a thread has still to write the
    // newer one takes the place.
    std::optional<WriteOutcome> Write(const std::filesystem::path& path, std::string text);

    // Of a text that a thread has written since this was last asked; the newest, when there are several.
    std::optional<WriteOutcome> TakeOutcome();

    // Waits until the newest text is written; gives its outcome unless that has been taken.
    std::optional<WriteOutcome> Finish();

    bool IsWriting() const;

  private:
    struct Job {
        std::filesystem::path Path;
        std::string Text;
    };

    void Run();

    FileSystem& files_;
    How how_;
    Listener& listener_;
    std::chrono::milliseconds patience_;
    bool isQuick_ = false; // the drive has answered the last text in time; only Write looks at it

    mutable std::mutex mutex_; // guards all below
    std::condition_variable changed_;
    std::optional<Job> waiting_;
    bool busy_ = false;
    bool ending_ = false;
    bool isAwaited_ = false; // by Write or Finish: the listener need not be told
    std::optional<WriteOutcome> outcome_;
    std::chrono::steady_clock::duration took_{};
    std::thread thread_; // from the first text on that no quick drive is known for
};

} // namespace orvane
