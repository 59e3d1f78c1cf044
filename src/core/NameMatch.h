// SPDX-License-Identifier: GPL-3.0-or-later
// States and events found by what the user types: a number or a part of a name. Capitals do not matter, nor
// do blanks at the ends.
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"

#include <optional>
#include <string_view>
#include <vector>

namespace orvane {

// The one state with just this name, not empty; none when two have it.
std::optional<StateNumber> StateCalled(const FsmDocument& document, std::string_view name);

// The target that a text typed for one means: nothing is kNoState, a number 0..100 is its state, with or
// without a name behind it (7:Stopped), else the one state with this name. None for any other text.
std::optional<StateNumber> TargetMeant(const FsmDocument& document, std::string_view text);

// The states that the text may mean, the likeliest first: the one with this number, whether it is used or
// not, then those whose name is the text, begins with it, whose number begins with it, whose label "12:Wait"
// has it somewhere. For no text all that are used.
std::vector<StateNumber> StatesMatching(const FsmDocument& document, std::string_view text);

// The head of the state or event that the text means most likely, a state before an event; none without.
std::optional<Cell> PlaceMatching(const FsmDocument& document, std::string_view text);

} // namespace orvane
