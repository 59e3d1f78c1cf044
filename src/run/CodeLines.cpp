// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/CodeLines.h"

#include "core/TimingMode.h"

#include <algorithm>

namespace orvane::run {

void AddCodeOf(std::vector<const std::string*>& ran, const FsmDocument& document, const Taken& taken) {
    if (taken.Holds)
        return;
    const StateRecord& from = document.State(taken.From.Number());
    const bool dropped = taken.Row == kTimeoutRow && HasVariableLimit(from.TimingMode);
    const std::string& action = from.Actions[taken.Row.Number()];
    const std::string& entry = document.State(taken.To.Number()).EntryCode;
    if (!dropped && !action.empty())
        ran.push_back(&action);
    if (!entry.empty())
        ran.push_back(&entry);
}

std::string WithSingleBlanks(std::string_view text) {
    std::string single;
    for (const char byte : text) {
        const bool blank = byte == ' ' || byte == '\t';
        if (!blank)
            single += byte;
        else if (!single.ends_with(' '))
            single += ' ';
    }
    return single;
}

bool HasText(std::string_view code, std::string_view text) {
    while (!code.empty()) {
        const std::size_t end = std::min(code.find_first_of("\r\n"), code.size());
        if (WithSingleBlanks(code.substr(0, end)).find(text) != std::string::npos)
            return true;
        code.remove_prefix(std::min(end + 1, code.size()));
    }
    return false;
}

} // namespace orvane::run
