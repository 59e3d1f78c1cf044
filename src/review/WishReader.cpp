// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/WishReader.h"

#include "review/Presence.h"
#include "text/AnsiText.h"
#include "text/Ascii.h"
#include "text/NumberText.h"
#include "text/Utf8.h"

#include <algorithm>
#include <variant>

namespace orvane::review {

namespace {

// A longer text names nothing: it would be tried at each of its "=".
constexpr std::size_t kLongestWish = 1000;

struct Named {
    std::variant<std::monostate, StateNumber, RowNumber> What;
    std::string Fault; // when there is nothing
};

bool IsNumber(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), IsAsciiDigit);
}

class Side {
  public:
    Side(const FsmDocument& document, const char* which)
        : document_(document),
          which_(which),
          states_(PresentStates(document)),
          events_(PresentEvents(document)) {}

    Named Find(std::string_view text) const {
        const std::size_t colon = text.find(':');
        if (IsNumber(text))
            return FindState(ParseNumber(text), std::nullopt, text);
        if (colon != std::string_view::npos && IsNumber(text.substr(0, colon)))
            return FindState(ParseNumber(text.substr(0, colon)), text.substr(colon + 1), text);
        Named byName = FindName(text);
        if (!byName.Fault.empty() && text.starts_with('e') && IsNumber(text.substr(1)))
            return FindRow(ParseNumber(text.substr(1)), text);
        return byName;
    }

  private:
    Named FindState(std::int64_t number, std::optional<std::string_view> name, std::string_view text) const {
        const std::optional<StateNumber> state = NumberIn(StateNumbers(), number);
        if (!state || std::find(states_.begin(), states_.end(), *state) == states_.end() ||
            (name && Trim(document_.State(*state).Name) != AnsiOf(*name)))
            return {{}, Missing("state", text)};
        return {*state, {}};
    }

    Named FindRow(std::int64_t number, std::string_view text) const {
        const std::optional<RowNumber> row = NumberIn(EventRows(), number);
        if (!row || std::find(events_.begin(), events_.end(), *row) == events_.end())
            return {{}, Missing("event", text)};
        return {*row, {}};
    }

    Named FindName(std::string_view text) const {
        std::vector<Named> called;
        for (const StateNumber state : states_) {
            if (!text.empty() && Trim(document_.State(state).Name) == AnsiOf(text))
                called.push_back({state, {}});
        }
        if (called.size() > 1)
            return {{}, Several("states", text)};
        for (const RowNumber row : events_) {
            if (called.empty() && !text.empty() && Trim(document_.Event(row).Name) == AnsiOf(text))
                return FindEventName(text, row);
        }
        return called.empty() ? Named{{}, Missing("state or event", text)} : called.front();
    }

    Named FindEventName(std::string_view text, RowNumber first) const {
        for (const RowNumber row : events_) {
            if (row != first && Trim(document_.Event(row).Name) == AnsiOf(text))
                return {{}, Several("events", text)};
        }
        return {first, {}};
    }

    // A name with a character that no document holds is nobody's.
    static std::string AnsiOf(std::string_view utf8) { return std::string(Trim(FromUtf8(utf8, kDelimiter))); }
    std::string Missing(const char* what, std::string_view text) const {
        return std::string("the ") + which_ + " document has no " + what + " \"" + ValidUtf8(text) + "\"";
    }
    std::string Several(const char* what, std::string_view text) const {
        return std::string("several ") + what + " of the " + which_ + " document are called \"" +
               ValidUtf8(text) + "\"; give the number";
    }

    const FsmDocument& document_;
    const char* which_;
    std::vector<StateNumber> states_;
    std::vector<RowNumber> events_;
};

template <typename Number>
bool IsWishedAlready(const std::vector<Wish<Number>>& wishes, const Wish<Number>& wish) {
    return std::any_of(wishes.begin(), wishes.end(), [&](const Wish<Number>& other) {
        return (wish.Old && other.Old == wish.Old) || (wish.New && other.New == wish.New);
    });
}

template <typename Number>
std::optional<std::string> Add(std::vector<Wish<Number>>& wishes, const Wish<Number>& wish,
                               std::string_view text) {
    if (IsWishedAlready(wishes, wish))
        return "\"" + ValidUtf8(text) + "\" says again what the same state or event is";
    wishes.push_back(wish);
    return std::nullopt;
}

} // namespace

std::optional<std::string> AddSame(Wishes& wishes, std::string_view text, const DocumentPair& documents) {
    if (text.size() > kLongestWish)
        return "a text of " + NumberText(std::int64_t(text.size())) + " bytes names no state or event";
    const Side oldSide(documents.Old, "old");
    const Side newSide(documents.New, "new");
    std::optional<std::string> fault;
    for (std::size_t at = text.find('='); at != std::string_view::npos; at = text.find('=', at + 1)) {
        const Named oldName = oldSide.Find(text.substr(0, at));
        const Named newName = newSide.Find(text.substr(at + 1));
        const auto* oldState = std::get_if<StateNumber>(&oldName.What);
        const auto* newState = std::get_if<StateNumber>(&newName.What);
        if (oldState && newState)
            return Add(wishes.States, {*oldState, *newState}, text);
        const auto* oldRow = std::get_if<RowNumber>(&oldName.What);
        const auto* newRow = std::get_if<RowNumber>(&newName.What);
        if (oldRow && newRow)
            return Add(wishes.Rows, {*oldRow, *newRow}, text);
        if (!fault)
            fault = !oldName.Fault.empty()   ? oldName.Fault
                    : !newName.Fault.empty() ? newName.Fault
                                             : "a state is no event: \"" + ValidUtf8(text) + "\"";
    }
    return fault ? fault : "\"" + ValidUtf8(text) + "\" is not OLD=NEW";
}

std::optional<std::string> AddDifferent(Wishes& wishes, std::string_view text, const FsmDocument& oldOne) {
    const Named named = Side(oldOne, "old").Find(text);
    if (const auto* state = std::get_if<StateNumber>(&named.What))
        return Add(wishes.States, {*state, std::nullopt}, text);
    if (const auto* row = std::get_if<RowNumber>(&named.What))
        return Add(wishes.Rows, {*row, std::nullopt}, text);
    return named.Fault;
}

} // namespace orvane::review
