// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/Subject.h"

#include "find/PlaceText.h"
#include "text/AnsiText.h"

namespace orvane::find {

namespace {

struct Namer {
    const FsmDocument& Document;

    std::string operator()(const OfState& state) const { return Document.State(state.State).Name; }
    std::string operator()(const OfEvent& event) const { return Document.Event(event.Row).Name; }
    std::string operator()(const OfTimer& timer) const { return std::string(Trim(timer.Id)); }
    std::string operator()(const OfMachine&) const { return Document.General.FsmName; }
    std::string operator()(const OfWord& word) const { return word.Word; }
};

struct Titler {
    const FsmDocument& Document;

    std::string operator()(const OfState& state) const {
        return CellTitle(Document, {kHeadRow, state.State});
    }
    std::string operator()(const OfEvent& event) const { return CellTitle(Document, {event.Row, kNoState}); }
    std::string operator()(const OfTimer& timer) const {
        return timer.Id.empty() ? "Default timer" : "Timer " + std::string(Trim(timer.Id));
    }
    std::string operator()(const OfMachine&) const { return "Machine " + Document.General.FsmName; }
    std::string operator()(const OfWord& word) const { return "Word " + word.Word; }
};

} // namespace

std::string NameOf(const FsmDocument& document, const Subject& subject) {
    return std::visit(Namer{document}, subject);
}

std::vector<Subject> BearersOf(const FsmDocument& document, const Subject& subject, std::string_view name) {
    std::vector<Subject> bearers;
    const auto add = [&](const auto& all, auto subjectOf) {
        for (const auto number : all) {
            const Subject one = subjectOf(number);
            if (NameOf(document, one) == name)
                bearers.push_back(one);
        }
    };
    if (std::holds_alternative<OfState>(subject))
        add(StateNumbers(), [](StateNumber state) { return Subject(OfState{state}); });
    else if (std::holds_alternative<OfEvent>(subject))
        add(EventRows(), [](RowNumber row) { return Subject(OfEvent{row}); });
    return bearers;
}

std::string TitleOf(const FsmDocument& document, const Subject& subject) {
    return std::visit(Titler{document}, subject);
}

} // namespace orvane::find
