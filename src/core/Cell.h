// SPDX-License-Identifier: GPL-3.0-or-later
// The coordinates of the table. A state's number is its column, so a place is a row and a state; each is a
// type of its own, because to exchange the two is a mistake that no test of a square table notices.
#pragma once

#include "core/TableGeometry.h"

#include <compare>

namespace orvane {

// A row of the table: 0..54, heads included; 4..54 where transitions are meant.
class RowNumber {
  public:
    constexpr RowNumber() = default;
    constexpr RowNumber(int number) : number_(number) {} // a plain number may become either kind ...
    constexpr int Number() const { return number_; }     // ... but the one kind never the other

    constexpr auto operator<=>(const RowNumber&) const = default;
    constexpr bool operator==(const RowNumber&) const = default;

  private:
    int number_ = kHeadRow;
};

// A state, which is a column of the table: 1..100; 0 is none, in the table the column of the row heads.
class StateNumber {
  public:
    constexpr StateNumber() = default;
    constexpr StateNumber(int number) : number_(number) {}
    constexpr int Number() const { return number_; }

    constexpr auto operator<=>(const StateNumber&) const = default;
    constexpr bool operator==(const StateNumber&) const = default;

  private:
    int number_ = kNoState;
};

// A place in the table, heads included.
struct Cell {
    RowNumber Row;
    StateNumber State;

    constexpr bool operator==(const Cell&) const = default;
};

} // namespace orvane
