// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/SarifRules.h"

#include "text/JsonString.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>

namespace orvane::cli {

namespace {

struct Rule {
    std::string_view Kind;
    std::string_view Level;
    std::string_view Says;
};

constexpr auto kRules = std::to_array<Rule>(
    {{"missing-prefix", "error", "The machine has no name, so that its labels have no prefix."},
     {"missing-event-code", "error", "A transition stands in a row whose event has no test code."},
     {"timing-mode-without-timeout", "note", "The state has a timing mode, but no timeout transition."},
     {"missing-time-constant", "error", "The timeout comes after a constant time that is not given."},
     {"missing-variable-time", "error",
      "The timeout comes after a variable time, and the code that loads it is not given."},
     {"missing-timing-mode", "error", "The timeout transition has no known timing mode."},
     {"dead-end", "warning", "No transition leads from the state to another one."},
     {"timeout-and-else", "note", "The state has both a timeout and an ELSE transition."},
     {"unreachable-state", "warning", "The state is in use, but no transition leads there from the start."},
     {"merge-conflict", "warning", "A merge of two versions has left something to decide."},
     {"start-not-1", "note", "The machine starts in another state than state 1."},
     {"dead-timeout", "note", "The state is always left, or entered anew, before its timeout is due."},
     {"timer-never-started", "note", "The state looks at a timer that need not have been started by then."},
     {"never-yields", "note", "States lead to each other, or hold, without letting another machine run."},
     {"no-way-back", "note", "No way leads from the state back to the start."},
     {"trap", "note", "Nothing leads out of the state."},
     {"same-test", "note", "Two events have the same test; only the upper one is ever taken."},
     {"label-twice", "note", "A label stands twice in the program."},
     {"same-name", "note", "Two states, or two events, have the same name."},
     {"timer-blanks", "note", "Two timer ids differ only in blanks."},
     {"oscillates", "note", "States lead to each other by ELSE, so that the machine never rests."},
     {"file-missing", "note", "The builder script lists a file that is not there."},
     {"program-older", "note", "The program is older than its document and not what it gives."},
     {"program-differs", "note", "The program is not what its document gives."},
     {"prefix-twice", "note", "Two machines of a project have the same prefix."},
     {"label-in-two", "note", "A label stands in two programs of a project."},
     {"launch-segments", "note", "A project has only one launch segment, and its tasks need one."},
     {"nv-directories", "note", "A project has only one non-volatile directory, and its data needs one."}});

} // namespace

std::string SarifRules() {
    std::string rules;
    for (const Rule& rule : kRules)
        rules += (rules.empty() ? "" : ",") + std::string("{\"id\":") + JsonString(rule.Kind) +
                 ",\"shortDescription\":{\"text\":" + JsonString(rule.Says) +
                 "},\"defaultConfiguration\":{\"level\":" + JsonString(rule.Level) + "}}";
    return rules;
}

std::size_t SarifRuleIndex(std::string_view kind) {
    const auto* const rule =
        std::find_if(kRules.begin(), kRules.end(), [&](const Rule& each) { return each.Kind == kind; });
    return rule - kRules.begin();
}

} // namespace orvane::cli
