// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// The timers that the states of a program start, in order of first use.
//
// The ids stand in one text, each ended by the delimiter, and an id counts as listed when it and a delimiter
// occur anywhere in that text. So an id that is the tail of one listed before ("A" after "BA") is not added,
// and gets no definition: programs have always been generated like this, and their authors define such timers
// themselves.
class TimerList {
  public:
    // The id as the state holds it, blanks included. The empty id is the default timer.
    void Add(std::string_view timerId);

    bool DefaultTimerUsed() const { return defaultTimerUsed_; }
    std::vector<std::string> Ids() const;

  private:
    std::string list_;
    bool defaultTimerUsed_ = false;
};

} // namespace orvane
