// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orvane::find {

// What is asked about: where it is used, what it shall be called.
struct OfState {
    StateNumber State;
    bool operator==(const OfState&) const = default;
};
struct OfEvent {
    RowNumber Row; // 6..54
    bool operator==(const OfEvent&) const = default;
};
struct OfTimer {
    std::string Id; // as a state holds it; empty is the default timer
    bool operator==(const OfTimer&) const = default;
};
struct OfMachine { // its name, which is the prefix of all labels
    bool operator==(const OfMachine&) const = default;
};
struct OfWord {
    std::string Word;
    bool operator==(const OfWord&) const = default;
};
using Subject = std::variant<OfState, OfEvent, OfTimer, OfMachine, OfWord>;

// What it is called now.
std::string NameOf(const FsmDocument& document, const Subject& subject);

// The states or events that have this name, where the subject is one of them; none for other subjects.
std::vector<Subject> BearersOf(const FsmDocument& document, const Subject& subject, std::string_view name);

// What people call it: "State 3:Opening", "Event row 8: Button", "Timer T1", "Machine PMP", "Word PST_Horn".
std::string TitleOf(const FsmDocument& document, const Subject& subject);

} // namespace orvane::find
