// SPDX-License-Identifier: GPL-3.0-or-later
// What is drawn in the program that is to be killed, stroke by stroke: the program is told how many, and who
// kills it knows what must be there then.
#pragma once

#include <cstdint>

namespace orvane::test {

enum class StrokeKind : std::uint8_t { Target, Undo, Redo, Save };

struct Stroke {
    StrokeKind Kind = StrokeKind::Target;
    int Row = 0; // of the cell, and the state that it leads to from there on
    int State = 0;
    int Target = 0;
};

// Every tenth is a save, and a step back comes often enough to meet one.
constexpr Stroke StrokeOf(int number) {
    constexpr StrokeKind kinds[] = {
        StrokeKind::Target, StrokeKind::Target, StrokeKind::Undo,   StrokeKind::Target, StrokeKind::Save,
        StrokeKind::Undo,   StrokeKind::Redo,   StrokeKind::Target, StrokeKind::Target, StrokeKind::Save};
    return {kinds[number % 10], 6 + number % 2, 1 + number % 5, 1 + number * 7 % 100};
}

// What is typed last and not entered.
inline constexpr Stroke kHalfTyped{StrokeKind::Target, 7, 6, 42};

// What the program tells beside the number of the stroke that it begins.
inline constexpr std::int32_t kHalfTypedIsKept = -1;

} // namespace orvane::test
