// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <cstddef>
#include <string>

namespace orvane::exports {

// A number and a name as in "3:Idle"; 0 is no number.
struct NumberedName {
    int Number = 0;
    std::string Name;
};

// The text before ":" counts as a number when it is one of 1..999.
NumberedName SplitNumber(std::string_view text);

// Gives the states and events of a text their numbers, as they come.
class ImportNames {
  public:
    explicit ImportNames(FsmDocument& document) : document_(document) {}

    // The state that the text means: by number and name, by one of them, or a new one. The text is ANSI and
    // not empty. Throws ImportFault when there is no room, or a number means two names.
    StateNumber State(std::string_view text, std::size_t line);

    // The same with rows: 4 is also called timeout, 5 ELSE, and rows without a name e6 and so on.
    RowNumber Row(std::string_view text, std::size_t line);

  private:
    void Name(std::string& place, const std::string& name, std::size_t line) const;

    FsmDocument& document_;
    int states_ = 0; // the highest that was given
    int row_ = kFirstEventRow - 1;
};

} // namespace orvane::exports
