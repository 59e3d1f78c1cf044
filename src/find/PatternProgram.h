// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace orvane::find {

using ByteSet = std::bitset<256>;

enum class PatternOp : std::uint8_t { Byte, Split, Jump, Save, Assert, Match };

// What must hold between two characters, or at an end of the line.
enum class Border : std::uint8_t { LineStart, LineEnd, OfWord, NotOfWord, NotInsideWord };

// One step of a program. Ways are relative to the instruction itself, so that a piece of program can be put
// anywhere, and more than once.
struct PatternInstruction {
    PatternOp Op = PatternOp::Match;
    Border At = Border::LineStart; // of Assert
    int First = 0;                 // of Split the way that is preferred, of Jump the only one
    int Second = 0;                // of Split
    std::size_t Index = 0;         // of Byte the set, of Save the slot
};

// An expression as a machine that is in many places at a time.
struct PatternProgram {
    std::vector<PatternInstruction> Steps;
    std::vector<ByteSet> Sets;
    std::size_t Groups = 0; // with a number; slots 2n and 2n + 1 are begin and end of group n, 0 the match
    ByteSet Begins;         // what a match can begin with
};

} // namespace orvane::find
