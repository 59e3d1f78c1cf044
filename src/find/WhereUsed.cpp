// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/WhereUsed.h"

#include "core/StateLabel.h"
#include "core/TimingMode.h"
#include "text/AnsiText.h"

namespace orvane::find {

namespace {

std::string TimerUse(const StateRecord& state) {
    if (StartsTiming(state.TimingMode))
        return "starts the timer";
    return state.TimingMode == kNoTiming ? "has the timer's name" : "goes on with the timer";
}

// What the table itself says.
struct TableUses {
    const FsmDocument& Document;

    std::vector<Use> operator()(const OfState& wanted) const {
        std::vector<Use> uses;
        for (const StateNumber state : StateNumbers()) {
            for (const RowNumber row : CellRows()) {
                if (Document.State(state).Targets[row] == wanted.State)
                    uses.push_back({{row, state}, std::nullopt, "leads here"});
            }
        }
        return uses;
    }
    std::vector<Use> operator()(const OfEvent& event) const {
        std::vector<Use> uses;
        for (const StateNumber state : StateNumbers()) {
            const StateNumber target = Document.State(state).Targets[event.Row];
            if (target != kNoState)
                uses.push_back({{event.Row, state},
                                std::nullopt,
                                "leads to " + StateLabel(target, Document.State(target).Name)});
        }
        return uses;
    }
    std::vector<Use> operator()(const OfTimer& timer) const {
        const std::string_view id = Trim(timer.Id);
        std::vector<Use> uses;
        for (const StateNumber state : StateNumbers()) {
            const StateRecord& record = Document.State(state);
            const bool hasIt = Trim(record.TimerId) == id;
            if (hasIt && (!id.empty() || record.TimingMode != kNoTiming))
                uses.push_back({{kTimingModeRow, state}, std::nullopt, TimerUse(record)});
        }
        return uses;
    }
    std::vector<Use> operator()(const OfMachine&) const { return {}; }
    std::vector<Use> operator()(const OfWord&) const { return {}; }
};

std::string WhatOf(const FsmDocument& document, const TextUse& use) {
    const std::string found = TextAt(document, use.Place).substr(use.Start, use.Length);
    switch (use.Kind) {
    case UseKind::Label:
        return "label " + found;
    case UseKind::Symbol:
        return "symbol that begins with " + found;
    case UseKind::Name:
    case UseKind::Word:
        break;
    }
    return "word " + found;
}

} // namespace

std::vector<Use> UsesOf(const FsmDocument& document, const Subject& subject) {
    std::vector<Use> uses = std::visit(TableUses{document}, subject);
    for (TextUse& text : TextUsesOf(document, subject, NameOf(document, subject))) {
        if (text.Kind == UseKind::Name)
            continue; // that is the thing itself
        std::string what = WhatOf(document, text);
        const Cell at = text.Place.At;
        uses.push_back({at, std::move(text), std::move(what)});
    }
    return uses;
}

} // namespace orvane::find
