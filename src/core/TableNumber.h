// SPDX-License-Identifier: GPL-3.0-or-later
// Whole numbers that cannot be mixed up. Each kind is a type of its own: to exchange a row and a state is a
// mistake that no test of a square table notices. A plain number may become any kind, one kind never another
// and none a plain number again without asking for it by name.
#pragma once

namespace orvane {

template <typename Kind>
class TableNumber {
  public:
    constexpr TableNumber() = default;
    constexpr TableNumber(int number) : number_(number) {}
    constexpr int Number() const { return number_; }

    constexpr TableNumber& operator++() {
        ++number_;
        return *this;
    }
    constexpr TableNumber& operator--() {
        --number_;
        return *this;
    }
    friend constexpr TableNumber operator+(TableNumber from, int steps) { return from.number_ + steps; }
    friend constexpr TableNumber operator-(TableNumber from, int steps) { return from.number_ - steps; }
    friend constexpr int operator-(TableNumber to, TableNumber from) { return to.number_ - from.number_; }

    friend constexpr bool operator==(const TableNumber&, const TableNumber&) = default;
    friend constexpr bool operator<(TableNumber a, TableNumber b) { return a.number_ < b.number_; }
    friend constexpr bool operator>(TableNumber a, TableNumber b) { return a.number_ > b.number_; }
    friend constexpr bool operator<=(TableNumber a, TableNumber b) { return a.number_ <= b.number_; }
    friend constexpr bool operator>=(TableNumber a, TableNumber b) { return a.number_ >= b.number_; }

    // For messages of tests.
    template <typename Stream>
    friend Stream& operator<<(Stream& stream, TableNumber number) {
        stream << number.number_;
        return stream;
    }

  private:
    int number_ = 0;
};

// A row of the table: 0..54, heads included; 4..54 where transitions are meant.
using RowNumber = TableNumber<struct RowKind>;

// A state, which is a column of the table: 1..100; 0 is none, in the table the column of the row heads.
using StateNumber = TableNumber<struct StateKind>;

} // namespace orvane
