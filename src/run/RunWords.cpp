// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/RunWords.h"

#include "codegen/DesignChecks.h"
#include "codegen/Labels.h"
#include "run/StepCheck.h"
#include "text/AnsiText.h"

#include <algorithm>
#include <vector>

namespace orvane::run {

namespace {

std::string Title(const FsmDocument& document, int state) { return ToUtf8(StateTitle(document, state)); }

// The states that the machine goes round through at the end of its log, each once.
std::string Ring(const FsmDocument& document, const History& history) {
    std::vector<int> states;
    for (auto entry = history.Log().rbegin(); entry != history.Log().rend(); ++entry) {
        if (std::find(states.begin(), states.end(), entry->To) != states.end())
            break;
        states.push_back(entry->To);
    }
    std::string text;
    for (auto state = states.rbegin(); state != states.rend(); ++state)
        text += (text.empty() ? "" : ", ") + Title(document, *state);
    return text;
}

} // namespace

std::string OutcomeText(const FsmDocument& document, const History& history) {
    const StateNumber state = history.Now().Where().State;
    switch (history.End()) {
    case Outcome::Quiet:
        break;
    case Outcome::Again:
        return Title(document, state.Number()) + " enters itself anew at every scan";
    case Outcome::Oscillates:
        return "it goes round through " + Ring(document, history) +
               " and never comes to rest: which of them a controller is in depends on how often it scans";
    case Outcome::Spins:
        return "it goes round through " + Ring(document, history) +
               " within one scan, which never ends: the controller would do nothing else any more";
    case Outcome::LimitMissing:
        return "the limit of " + Title(document, state.Number()) + " is not known; give it below";
    case Outcome::Endless:
        return "more happens than a run can hold";
    }
    return {};
}

std::string EntryText(const FsmDocument& document, const LogEntry& entry) {
    if (entry.IsPowerOn())
        return "Power on: " + Title(document, entry.To);
    const std::string by = " by " + RowText(document, RowNumber(entry.Row));
    if (entry.Holds)
        return Title(document, entry.To) + " is held" + by;
    return Title(document, entry.From) + " \u2192 " + Title(document, entry.To) + by;
}

std::string TimerName(const FsmDocument& document, const Machine& machine, std::size_t timer) {
    for (const StateNumber state : StateNumbers()) {
        const std::string& id = document.State(state).TimerId;
        if (!Trim(id).empty() && TimerLabel(document, id) == machine.Timers()[timer])
            return ToUtf8(Trim(id));
    }
    return "default timer";
}

} // namespace orvane::run
