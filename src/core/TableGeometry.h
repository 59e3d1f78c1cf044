// SPDX-License-Identifier: GPL-3.0-or-later
// The fixed geometry of the table: which rows and columns there are and what they hold.
//
// A state's number is its column; a cell's row is the row of its event. Rows 0..3 show fields of the state
// itself, rows 4..54 hold transitions: 4 the timeout, 5 the ELSE, 6..54 the events.
#pragma once

#include "core/TableNumber.h"

#include <cstddef>
#include <iterator>

namespace orvane {

inline constexpr int kStateCount = 100;
inline constexpr int kNoState = 0; // as a target: the cell has no transition

inline constexpr int kNoRow = 0; // of what concerns no cell

inline constexpr int kHeadRow = 0;
inline constexpr int kEntryActionRow = 1;
inline constexpr int kExitActionRow = 2;
inline constexpr int kTimingModeRow = 3;
inline constexpr int kTimeoutRow = 4;
inline constexpr int kElseRow = 5;
inline constexpr int kFirstEventRow = 6;
inline constexpr int kLastRow = 54;
inline constexpr int kFirstCellRow = kTimeoutRow;
inline constexpr int kCellRowCount = kLastRow - kFirstCellRow + 1;

inline constexpr int kTableRows = kLastRow + 1;
inline constexpr int kTableColumns = kStateCount + 1;

// The numbers First..Last of one kind, both included, for range-based for.
template <typename Number>
class NumberRange {
  public:
    class Iterator {
      public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Number;
        using difference_type = std::ptrdiff_t;
        using pointer = const Number*;
        using reference = Number;

        constexpr Iterator() = default;
        constexpr explicit Iterator(Number value) : value_(value) {}
        constexpr Number operator*() const { return value_; }
        constexpr Iterator& operator++() {
            ++value_;
            return *this;
        }
        constexpr Iterator operator++(int) {
            const Iterator before = *this;
            ++value_;
            return before;
        }
        constexpr bool operator==(const Iterator&) const = default;

      private:
        Number value_;
    };

    constexpr NumberRange(Number first, Number last) : first_(first), last_(last) {}
    constexpr Iterator begin() const { return Iterator(first_); }
    constexpr Iterator end() const { return Iterator(last_ + 1); }
    constexpr bool Contains(Number number) const { return number >= first_ && number <= last_; }
    constexpr Number First() const { return first_; }
    constexpr Number Last() const { return last_; }

  private:
    Number first_;
    Number last_;
};

using RowRange = NumberRange<RowNumber>;
using StateRange = NumberRange<StateNumber>;

constexpr StateRange StateNumbers() { return {1, kStateCount}; }
constexpr StateRange TargetNumbers() { return {kNoState, kStateCount}; }
constexpr StateRange TableColumns() { return {kNoState, kStateCount}; } // the row heads' one is 0
constexpr RowRange TableRows() { return {kHeadRow, kLastRow}; }
constexpr RowRange CellRows() { return {kFirstCellRow, kLastRow}; }
constexpr RowRange EventRows() { return {kFirstEventRow, kLastRow}; }

// Where the record of a number stands in an array of all of them.
template <typename Number>
constexpr std::size_t IndexIn(NumberRange<Number> range, Number number) {
    return static_cast<std::size_t>(number - range.First());
}

} // namespace orvane
