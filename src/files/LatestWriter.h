// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileError.h"

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace orvane {

// What became of a text that was to be written.
struct WriteOutcome {
    std::string Failure; // why it was not written, for the user, UTF-8, without the stop; else empty
    std::filesystem::path Copy = {}; // of what another program had put in its place; empty without
    std::vector<FileNote> Notes = {};
};

// Writes one version of a file after the other, and lets nobody at the keyboard wait for a slow drive.
//
// While the drive answers in time a text is written before Write returns. Behind a slower one a thread
// writes, and of the texts that come meanwhile only the newest counts: what a drive cannot keep up with would
// be overwritten anyway. Every outcome is handed out, the one of a thread as soon as somebody asks; of a text
// that was written while a newer one waited, the newer one's takes its place.
class LatestWriter {
  public:
    // How a text is written: all that has to do with the drive. It is called by Write or in the writing
    // thread, never by both at once, and by nobody once Finish has returned.
    class Target {
      public:
        virtual WriteOutcome WriteTo(const std::filesystem::path& path, std::string_view text) = 0;

      protected:
        ~Target() = default;
    };

    // How long Write waits for a drive; for one that has taken longer for the last text it does not wait.
    static constexpr std::chrono::milliseconds kPatience{50};

    // Is told in the writing thread that an outcome can be taken.
    class Listener {
      public:
        virtual void OutcomeIsThere() = 0;

      protected:
        ~Listener() = default;
    };

    // Both outlive the writer.
    LatestWriter(Target& target, Listener& listener, std::chrono::milliseconds patience = kPatience);
    LatestWriter(const LatestWriter&) = delete;
    LatestWriter& operator=(const LatestWriter&) = delete;
    // Waits until the newest text is written.
    ~LatestWriter();

    // The outcome, when the drive has answered in time; of an older text that a thread has still to write the
    // newer one takes the place.
    std::optional<WriteOutcome> Write(const std::filesystem::path& path, std::string text);

    // Of the newest text, once a thread has written it and nobody has asked since.
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

    Target& target_;
    Listener& listener_;
    std::chrono::milliseconds patience_;

    mutable std::mutex mutex_; // guards all below
    std::condition_variable changed_;
    std::optional<Job> waiting_;
    bool busy_ = false;
    bool ending_ = false;
    bool isAwaited_ = false; // by Write or Finish: the listener need not be told
    std::optional<WriteOutcome> outcome_;
    std::optional<std::chrono::steady_clock::duration> took_; // the last text
    std::thread thread_; // from the first text on that no quick drive is known for
};

} // namespace orvane
