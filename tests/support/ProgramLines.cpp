// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ProgramLines.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace orvane::test {

namespace {

ProgramLine Named(LineKind kind, std::string_view name) {
    ProgramLine line;
    line.Kind = kind;
    line.Name = name;
    return line;
}

ProgramLine ParseInstruction(std::string_view text) {
    text.remove_prefix(1);
    const std::size_t tab = text.find('\t');
    ProgramLine line;
    line.Kind = LineKind::Instruction;
    line.Word = text.substr(0, tab);
    if (tab != std::string_view::npos)
        line.Operand = text.substr(tab + 1);
    return line;
}

ProgramLine ParseLine(std::string_view text) {
    if (text.empty() || text.front() == ';')
        return {};
    if (text.front() == '\t')
        return ParseInstruction(text);
    if (const std::size_t end = text.find(":\tdefTIME24"); end != std::string_view::npos)
        return Named(LineKind::Timer, text.substr(0, end));
    if (text.back() == ':')
        return Named(LineKind::Label, text.substr(0, text.size() - 1));
    return Named(LineKind::Unknown, text);
}

} // namespace

std::vector<ProgramLine> ParseProgram(std::string_view text) {
    std::vector<ProgramLine> lines;
    while (!text.empty()) {
        const std::size_t end = text.find("\r\n");
        ProgramLine line = ParseLine(text.substr(0, end));
        line.Number = lines.size() + 1;
        lines.push_back(std::move(line));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 2);
    }
    return lines;
}

std::optional<int> StateOfEntryLabel(std::string_view label) {
    constexpr std::string_view set = "_Set";
    const std::size_t place = label.rfind(set);
    if (place == std::string_view::npos)
        return std::nullopt;
    const std::string_view digits = label.substr(place + set.size());
    int state = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), state);
    if (result.ec != std::errc() || result.ptr != digits.data() + digits.size())
        return std::nullopt;
    return state;
}

bool IsJump(std::string_view word) {
    constexpr std::array<std::string_view, 5> jumps = {"GoTo", "GoifT", "GoIfT", "GoIfF", "fGoIfNeg"};
    return std::find(jumps.begin(), jumps.end(), word) != jumps.end();
}

TimerAndLimit SplitTimeTest(std::string_view operand) {
    const std::size_t comma = operand.rfind(',');
    if (comma == std::string_view::npos)
        return {std::string(operand), {}};
    return {std::string(operand.substr(0, comma)), std::string(operand.substr(comma + 1))};
}

} // namespace orvane::test
