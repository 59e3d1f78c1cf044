// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/BoundsError.h"
#include "core/TableGeometry.h"
#include "review/IncreasingRun.h"

#include <array>
#include <vector>

namespace orvane::review {

constexpr StateRange NumbersOfKind(StateNumber) { return StateNumbers(); }
constexpr RowRange NumbersOfKind(RowNumber) { return CellRows(); }

// Which number of an old document stands for which one of a new document; each for one at most. 0 is none.
template <typename Number>
class Pairing {
  public:
    static constexpr NumberRange<Number> Numbers() { return NumbersOfKind(Number()); }

    // Both must be without a partner. A guess was made from the content, not from a name.
    void Join(Number oldOne, Number newOne, bool isGuess = false) {
        newOf_[Index(oldOne)] = newOne;
        oldOf_[Index(newOne)] = oldOne;
        isGuess_[Index(oldOne)] = isGuess;
    }
    void Part(Number oldOne) {
        oldOf_[Index(NewOf(oldOne))] = Number();
        newOf_[Index(oldOne)] = Number();
        isGuess_[Index(oldOne)] = false;
    }

    Number NewOf(Number oldOne) const { return newOf_[Index(oldOne)]; }
    Number OldOf(Number newOne) const { return oldOf_[Index(newOne)]; }
    bool HasNew(Number oldOne) const { return NewOf(oldOne) != Number(); }
    bool HasOld(Number newOne) const { return OldOf(newOne) != Number(); }
    bool IsGuess(Number oldOne) const { return isGuess_[Index(oldOne)]; }

    // Whether it has changed places with others. Being pushed along by what came or went in front is no move.
    bool HasMoved(Number oldOne) const { return hasMoved_[Index(oldOne)]; }

    // Marks as moved the fewest that have to be moved to get the new order. Between equally few it decides by
    // the side that counts as the old one, so a pairing is mirrored after this and not before.
    void MarkMoves();

    // The same read from the new document.
    Pairing Mirrored() const {
        Pairing mirrored;
        for (const Number number : Numbers()) {
            if (!HasNew(number))
                continue;
            mirrored.Join(NewOf(number), number, IsGuess(number));
            mirrored.hasMoved_[Index(NewOf(number))] = HasMoved(number);
        }
        return mirrored;
    }

    bool operator==(const Pairing&) const = default;

  private:
    static constexpr std::size_t kCount =
        IndexIn(NumbersOfKind(Number()), NumbersOfKind(Number()).Last()) + 1;

    static std::size_t Index(Number number) {
        RequireInRange(number, Numbers(), "paired number");
        return IndexIn(Numbers(), number);
    }

    std::array<Number, kCount> newOf_{};
    std::array<Number, kCount> oldOf_{};
    std::array<bool, kCount> isGuess_{};
    std::array<bool, kCount> hasMoved_{};
};

template <typename Number>
void Pairing<Number>::MarkMoves() {
    std::vector<Number> kept;
    std::vector<int> newNumbers;
    for (const Number number : Numbers()) {
        if (!HasNew(number))
            continue;
        kept.push_back(number);
        newNumbers.push_back(NewOf(number).Number());
    }
    const std::vector<bool> stays = LongestIncreasingRun(newNumbers);
    for (std::size_t i = 0; i < kept.size(); ++i)
        hasMoved_[Index(kept[i])] = !stays[i];
}

// What is the same in two documents. Timeout and ELSE are always themselves; a state or event without a
// partner is there on one side only.
struct Matching {
    Matching() {
        Rows.Join(kTimeoutRow, kTimeoutRow);
        Rows.Join(kElseRow, kElseRow);
    }

    // Where a target of the old document leads in the new one; none when that state is gone, too.
    StateNumber NewTarget(StateNumber oldTarget) const {
        return oldTarget == kNoState ? oldTarget : States.NewOf(oldTarget);
    }

    Matching Mirrored() const {
        Matching mirrored;
        mirrored.States = States.Mirrored();
        mirrored.Rows = Rows.Mirrored();
        return mirrored;
    }

    bool operator==(const Matching&) const = default;

    Pairing<StateNumber> States;
    Pairing<RowNumber> Rows;
};

} // namespace orvane::review
