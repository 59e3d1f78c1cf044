// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/Names.h"

#include "codegen/DesignChecks.h"
#include "core/TimingMode.h"
#include "text/Ascii.h"
#include "text/EscapedUtf8.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>

namespace orvane::exports {

namespace {

constexpr ByteSet kControls = BytesThat([](unsigned char byte) { return byte < 0x20 || byte == 0x7F; });
constexpr ByteSet kReturns = EscapedBytes([](unsigned char byte) { return byte == '\r'; });

} // namespace

std::vector<StateNumber> UsedStates(const FsmDocument& document) {
    std::array<bool, kStateCount + 1> isUsed{};
    for (const StateNumber state : StateNumbers()) {
        const StateRecord& record = document.State(state);
        isUsed[state.Number()] = isUsed[state.Number()] || !IsEmpty(record);
        for (const RowNumber row : CellRows()) {
            RequireInRange(record.Targets[row], TargetNumbers(), "target");
            isUsed[record.Targets[row].Number()] = true;
        }
    }
    std::vector<StateNumber> used;
    std::copy_if(StateNumbers().begin(), StateNumbers().end(), std::back_inserter(used),
                 [&](StateNumber state) { return isUsed[state.Number()]; });
    return used;
}

std::vector<RowNumber> UsedRows(const FsmDocument& document) {
    std::vector<RowNumber> used;
    for (const RowNumber row : CellRows()) {
        const auto hasCell = [&](StateNumber state) {
            const StateRecord& record = document.State(state);
            return record.Targets[row] != kNoState || !record.Actions[row].empty();
        };
        if (!IsEmpty(document.Event(row)) ||
            std::any_of(StateNumbers().begin(), StateNumbers().end(), hasCell))
            used.push_back(row);
    }
    return used;
}

std::string StateText(const FsmDocument& document, StateNumber state) {
    return OneLine(StateTitle(document, state));
}

std::string RowText(const FsmDocument& document, RowNumber row) {
    if (row == kTimeoutRow)
        return "timeout";
    if (row == kElseRow)
        return "ELSE";
    const std::string name = OneLine(document.Event(row).Name);
    return name.empty() ? "e" + NumberText(row.Number()) : name;
}

std::string TimeoutText(const StateRecord& state) {
    if (HasVariableLimit(state.TimingMode))
        return "timeout, variable";
    const std::string limit = HasConstantLimit(state.TimingMode) ? OneLine(state.TimeConst) : "";
    return limit.empty() ? "timeout" : "timeout " + limit;
}

std::string OneLine(std::string_view text) {
    std::string line;
    AppendReplaced(line, text, kControls, [](std::string& out, std::string_view) {
        if (!out.empty() && out.back() != ' ')
            out += ' ';
    });
    return std::string(Trim(line));
}

std::string Utf8Lines(std::string_view ansi) {
    std::string lines;
    AppendEscaped(lines, ansi, kReturns, [](std::string& out, std::string_view rest) {
        if (!rest.starts_with("\r\n"))
            out += '\n';
    });
    return lines;
}

std::string Identifier(char kind, int number, std::string_view name) {
    std::string identifier = kind + NumberText(number);
    const std::string trimmed = OneLine(name);
    if (!trimmed.empty())
        identifier += '_';
    for (const char character : trimmed) {
        const char upper = AsciiUpper(character);
        const bool isPlain = (upper >= 'A' && upper <= 'Z') || IsAsciiDigit(character);
        identifier += isPlain ? character : '_';
    }
    return identifier;
}

} // namespace orvane::exports
