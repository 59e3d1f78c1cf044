// SPDX-License-Identifier: GPL-3.0-or-later
// The labels of the generated program. All of them take their prefix from the machine's name.
#pragma once

#include "core/FsmDocument.h"

#include <string>
#include <string_view>

namespace orvane {

std::string SpacesToUnderscores(std::string_view text);

// Where transitions into a state jump to: its entry code runs from here.
std::string StateEntryLabel(const FsmDocument& document, StateNumber state);

// Where the state's polling loop starts.
std::string StateLoopLabel(const FsmDocument& document, StateNumber state);

// The timer of the given id; an empty id is the default timer.
std::string TimerLabel(const FsmDocument& document, std::string_view timerId);

// The entry point of the machine's task.
std::string LaunchLabel(const FsmDocument& document);

// Behind the action of a transition that is not taken; the counter numbers the actions of one state from 0.
std::string ActionSkipLabel(const FsmDocument& document, StateNumber state, unsigned counter);

// What follows a timer's definition: a tab and the number of instances, or nothing when there is none.
std::string InstanceSuffix(const FsmDocument& document);

} // namespace orvane
