// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::test {

enum class LineKind { Nothing, Label, Timer, Instruction, Unknown };

// One line of a program as an assembler sees it. Comments and empty lines are nothing.
struct ProgramLine {
    LineKind Kind = LineKind::Nothing;
    std::string Name;    // of a label or timer
    std::string Word;    // of an instruction
    std::string Operand; // of an instruction
    std::size_t Number = 0;
};

std::vector<ProgramLine> ParseProgram(std::string_view text);

// The state whose entry label this is, by the "_Set" and number at its end.
std::optional<int> StateOfEntryLabel(std::string_view label);

bool IsJump(std::string_view word);

// The operand of STTest, taken apart: the last comma stands between timer and limit.
struct TimerAndLimit {
    std::string Timer;
    std::string Limit;
};
TimerAndLimit SplitTimeTest(std::string_view operand);

} // namespace orvane::test
