// SPDX-License-Identifier: GPL-3.0-or-later
// Another order of the columns, or of the rows of events, as an arrangement: which number everything has
// afterwards. All commands that move are one of these, so that what has to go along goes along in one place.
#pragma once

#include "core/FsmDocument.h"
#include "table/TableClipboard.h"

#include <array>

namespace orvane {

// Where each number of a range goes: a number of the range, no two to one place. kNoState and kNoRow stay.
template <typename Number, int kFirst, int kLast>
class Arrangement {
  public:
    // Everything stays.
    Arrangement() {
        for (const Number number : All())
            to_[Index(number)] = number;
    }

    static constexpr NumberRange<Number> All() { return {kFirst, kLast}; }

    // Numbers outside the range stay what they are.
    Number NewOf(Number old) const { return All().Contains(old) ? to_[Index(old)] : old; }

    // Takes the number out of the row and puts it where `to` is; those between close up.
    static Arrangement Moving(Number from, Number to) {
        Arrangement moved;
        const int step = to > from ? -1 : 1;
        for (Number number = from; !(number == to);) {
            number = number - step;
            moved.to_[Index(number)] = number + step;
        }
        moved.to_[Index(from)] = to;
        return moved;
    }
    static Arrangement Swapping(Number one, Number other) {
        Arrangement swapped;
        swapped.to_[Index(one)] = other;
        swapped.to_[Index(other)] = one;
        return swapped;
    }
    // The numbers in their new order; those that are not in the list follow in the old one. None may stand in
    // it twice.
    template <typename Numbers>
    static Arrangement InOrder(const Numbers& numbers) {
        Arrangement ordered;
        std::array<bool, kCount> taken{};
        Number next = kFirst;
        const auto place = [&](Number number) {
            ordered.to_[Index(number)] = next;
            taken[Index(number)] = true;
            ++next;
        };
        for (const Number number : numbers)
            place(number);
        for (const Number number : All()) {
            if (!taken[Index(number)])
                place(number);
        }
        return ordered;
    }

    // What brings everything back.
    Arrangement Inverse() const {
        Arrangement back;
        for (const Number number : All())
            back.to_[Index(NewOf(number))] = number;
        return back;
    }
    bool KeepsAll() const { return *this == Arrangement(); }

    bool operator==(const Arrangement&) const = default;

  private:
    static constexpr std::size_t kCount = kLast - kFirst + 1;
    static std::size_t Index(Number number) {
        RequireInRange(number, All(), "place");
        return IndexIn(All(), number);
    }

    std::array<Number, kCount> to_;
};

using StateOrder = Arrangement<StateNumber, 1, kStateCount>;
using EventOrder = Arrangement<RowNumber, kFirstEventRow, kLastRow>;

// States change their columns: records with all that is in them, widths too, and every transition leads to
// the state it led to. The clipboard keeps in step, a copied event with its cells as well.
void Rearrange(FsmDocument& document, TableClipboard& clipboard, const StateOrder& order);

// Of that only what no undo step brings back: widths, the editors' last tabs, and the clipboard.
void RearrangeUnkept(FsmDocument& document, TableClipboard& clipboard, const StateOrder& order);
void RearrangeUnkept(FsmDocument& document, TableClipboard& clipboard, const EventOrder& order);

// Events change their rows, with the cells of all states and of a copied one.
void Rearrange(FsmDocument& document, TableClipboard& clipboard, const EventOrder& order);

} // namespace orvane
