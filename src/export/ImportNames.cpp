// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ImportNames.h"

#include "export/ImportFault.h"
#include "text/AnsiText.h"
#include "text/Ascii.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane::exports {

namespace {

bool IsNumber(std::string_view text) {
    constexpr std::size_t longest = 3;
    return !text.empty() && text.size() <= longest && std::all_of(text.begin(), text.end(), IsAsciiDigit);
}

int NumberOf(std::string_view text) { return int(ParseNumber(text)); }

} // namespace

NumberedName SplitNumber(std::string_view text) {
    const std::size_t colon = text.find(':');
    const std::string_view number = text.substr(0, colon);
    if (!IsNumber(number) || NumberOf(number) == 0)
        return {0, std::string(text)};
    return {NumberOf(number), colon == std::string_view::npos ? "" : std::string(text.substr(colon + 1))};
}

void ImportNames::Name(std::string& place, const std::string& name, std::size_t line) const {
    if (!place.empty() && !name.empty() && place != name)
        throw ImportFault{"One number stands for \"" + place + "\" and for \"" + name + "\"", line};
    if (!name.empty())
        place = name;
}

StateNumber ImportNames::State(std::string_view text, std::size_t line) {
    const NumberedName meant = SplitNumber(text);
    if (meant.Number == 0) {
        for (const StateNumber state : StateNumbers()) {
            if (document_.State(state).Name == meant.Name)
                return state;
        }
    }
    const int number = meant.Number == 0 ? states_ + 1 : meant.Number;
    if (number > kStateCount)
        throw ImportFault{"There is no state " + NumberText(number) + "; a document has 100", line};
    states_ = std::max(states_, number);
    Name(document_.State(number).Name, meant.Name, line);
    return number;
}

RowNumber ImportNames::Row(std::string_view text, std::size_t line) {
    const std::string lower = AsciiLower(text);
    if (lower == "timeout" || lower == "4:timeout")
        return kTimeoutRow;
    if (lower == "else" || lower == "5:else")
        return kElseRow;
    const bool isUnnamed = lower.starts_with('e') && IsNumber(std::string_view(lower).substr(1));
    const NumberedName meant = SplitNumber(isUnnamed ? text.substr(1) : text);
    if (meant.Number == 0) {
        for (const RowNumber row : EventRows()) {
            if (document_.Event(row).Name == meant.Name)
                return row;
        }
    }
    const int row = meant.Number == 0 ? row_ + 1 : meant.Number;
    if (row < kFirstEventRow || row > kLastRow)
        throw ImportFault{"There is no row " + NumberText(row) + " for events; they stand in rows 6 to 54",
                          line};
    row_ = std::max(row_, row);
    Name(document_.Event(row).Name, meant.Name, line);
    return row;
}

} // namespace orvane::exports
