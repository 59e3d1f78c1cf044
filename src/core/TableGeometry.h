// SPDX-License-Identifier: GPL-3.0-or-later
// The fixed geometry of the table: which rows and columns there are and what they hold.
//
// A state's number is its column; a cell's row is the row of its event. Rows 0..3 show fields of the state
// itself, rows 4..54 hold transitions: 4 the timeout, 5 the ELSE, 6..54 the events.
#pragma once

#include <cstddef>
#include <iterator>

namespace orvane {

inline constexpr int kStateCount = 100;
inline constexpr int kNoState = 0; // as a target: the cell has no transition

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

// Whole numbers First..Last, both included, for range-based for.
class NumberRange {
  public:
    class Iterator {
      public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = int;
        using difference_type = std::ptrdiff_t;
        using pointer = const int*;
        using reference = int;

        constexpr Iterator() = default;
        constexpr explicit Iterator(int value) : value_(value) {}
        constexpr int operator*() const { return value_; }
        constexpr Iterator& operator++() {
            ++value_;
            return *this;
        }
        constexpr Iterator operator++(int) { return Iterator(value_++); }
        constexpr bool operator==(const Iterator&) const = default;

      private:
        int value_ = 0;
    };

    constexpr NumberRange(int first, int last) : first_(first), last_(last) {}
    constexpr Iterator begin() const { return Iterator(first_); }
    constexpr Iterator end() const { return Iterator(last_ + 1); }
    constexpr bool Contains(long long number) const { return number >= first_ && number <= last_; }
    constexpr int First() const { return first_; }
    constexpr int Last() const { return last_; }

  private:
    int first_;
    int last_;
};

constexpr NumberRange StateNumbers() { return {1, kStateCount}; }
constexpr NumberRange TargetNumbers() { return {kNoState, kStateCount}; }
constexpr NumberRange CellRows() { return {kFirstCellRow, kLastRow}; }
constexpr NumberRange EventRows() { return {kFirstEventRow, kLastRow}; }

} // namespace orvane
