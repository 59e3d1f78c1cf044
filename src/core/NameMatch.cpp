// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/NameMatch.h"

#include "core/BoundsError.h"
#include "core/StateLabel.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <string>

namespace orvane {

namespace {

// How well a text fits, the best first.
enum class Fit { Number, Name, NameBegins, NumberBegins, Somewhere, NotAtAll };

std::string Key(std::string_view text) { return ToUpper(Trim(text)); }

Fit FitOfName(std::string_view name, std::string_view wanted) {
    const std::string key = Key(name);
    if (key == wanted)
        return Fit::Name;
    if (key.starts_with(wanted))
        return Fit::NameBegins;
    return key.find(wanted) != std::string::npos ? Fit::Somewhere : Fit::NotAtAll;
}

Fit FitOfState(const FsmDocument& document, StateNumber state, std::string_view wanted) {
    const std::string number = NumberText(state.Number());
    if (number == wanted)
        return Fit::Number;
    const StateRecord& record = document.State(state);
    if (IsEmpty(record))
        return Fit::NotAtAll;
    const Fit fit = FitOfName(record.Name, wanted);
    if (fit == Fit::Name || fit == Fit::NameBegins)
        return fit;
    if (number.starts_with(wanted))
        return Fit::NumberBegins;
    return FitOfName(StateLabel(state, record.Name), wanted) == Fit::NotAtAll ? Fit::NotAtAll
                                                                              : Fit::Somewhere;
}

struct Match {
    Fit How;
    Cell Place;
};

} // namespace

std::optional<StateNumber> StateCalled(const FsmDocument& document, std::string_view name) {
    const std::string wanted = Key(name);
    std::optional<StateNumber> found;
    for (const StateNumber state : StateNumbers()) {
        if (wanted.empty() || Key(document.State(state).Name) != wanted)
            continue;
        if (found)
            return std::nullopt;
        found = state;
    }
    return found;
}

std::optional<StateNumber> TargetMeant(const FsmDocument& document, std::string_view text) {
    const std::string_view label = Trim(text);
    if (label.empty())
        return kNoState;
    const std::string_view digits = label.substr(0, label.find(':'));
    if (!digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos)
        return NumberIn(TargetNumbers(), ParseNumber(digits));
    return StateCalled(document, label);
}

std::vector<StateNumber> StatesMatching(const FsmDocument& document, std::string_view text) {
    const std::string wanted = Key(text);
    std::vector<Match> matches;
    for (const StateNumber state : StateNumbers()) {
        const Fit fit = FitOfState(document, state, wanted);
        if (fit != Fit::NotAtAll)
            matches.push_back({wanted.empty() ? Fit::Somewhere : fit, {kHeadRow, state}});
    }
    std::stable_sort(matches.begin(), matches.end(),
                     [](const Match& a, const Match& b) { return a.How < b.How; });
    std::vector<StateNumber> states;
    for (const Match& match : matches)
        states.push_back(match.Place.State);
    return states;
}

std::optional<Cell> PlaceMatching(const FsmDocument& document, std::string_view text) {
    const std::string wanted = Key(text);
    if (wanted.empty())
        return std::nullopt;
    Match best{Fit::NotAtAll, {}};
    for (const StateNumber state : StateNumbers()) {
        if (const Fit fit = FitOfState(document, state, wanted); fit < best.How)
            best = {fit, {kHeadRow, state}};
    }
    for (const RowNumber row : EventRows()) {
        if (const Fit fit = FitOfName(document.Event(row).Name, wanted); fit < best.How)
            best = {fit, {row, kNoState}};
    }
    if (best.How == Fit::NotAtAll)
        return std::nullopt;
    return best.Place;
}

} // namespace orvane
