// SPDX-License-Identifier: GPL-3.0-or-later
// What a window tells through a pipe of what it does, so that it is known after it was killed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace orvane {

enum class Doing : std::uint8_t { Starting, Recovering, Drawing, Undoing, Redoing, Saving };
inline constexpr int kDoings = 6;

struct Report {
    Doing Next = Doing::Starting; // what is begun now
    std::string Image;            // of the document before that: all of it is committed
};

// Blocks while the pipe is full.
void Send(int pipe, const Report& report);

// Puts reports together out of what comes through the pipe.
class ReportReader {
  public:
    explicit ReportReader(int pipe) : pipe_(pipe) {}

    // The next one; none when the pipe has ended. A report that broke off is none.
    std::optional<Report> Next();

  private:
    int pipe_;
    std::string bytes_;
};

} // namespace orvane
