// SPDX-License-Identifier: GPL-3.0-or-later
// How the guesses are made. What two states have in common shows only where their targets have been
// recognised, and those are recognised by what leads to them. So everything without a name of its own is
// assigned anew, each time seen through the last assignment, until nothing changes any more. That can end in
// more than one place, depending on where it began: it is begun three times, and the shortest list of changes
// wins.
#include "review/Match.h"

#include "core/DocumentWriter.h"
#include "review/Assignment.h"
#include "review/DocumentPair.h"
#include "review/Likeness.h"
#include "review/ListLength.h"

#include <algorithm>
#include <map>

namespace orvane::review {

namespace {

constexpr double kLikeEnough = 0.5; // half of the content
constexpr double kLikeAtAll = 0.1;  // a tenth: enough where that takes less to tell than two things
constexpr int kMostRounds = 10;

// One kind of thing, states or events, on both sides.
template <typename Number>
struct Lists {
    std::vector<Number> Old;
    std::vector<Number> New;
};

// Those whose key, which is not 0, is unique on both sides.
template <typename Number, typename OldKey, typename NewKey>
void JoinByUniqueKey(Pairing<Number>& pairing, const Lists<Number>& free, OldKey oldKey, NewKey newKey) {
    struct Found {
        std::vector<Number> Old;
        std::vector<Number> New;
    };
    std::map<int, Found> byKey;
    for (const Number number : free.Old)
        byKey[oldKey(number)].Old.push_back(number);
    for (const Number number : free.New)
        byKey[newKey(number)].New.push_back(number);
    for (const auto& [key, found] : byKey) {
        if (key != TextIds::kNoText && found.Old.size() == 1 && found.New.size() == 1)
            pairing.Join(found.Old.front(), found.New.front());
    }
}

class Matcher {
  public:
    Matcher(const DocumentPair& documents, const Wishes& wishes)
        : old_(documents.Old, ids_), new_(documents.New, ids_) {
        Follow(wishes.States, known_.States, states_ = {old_.States(), new_.States()});
        Follow(wishes.Rows, known_.Rows, rows_ = {old_.Events(), new_.Events()});
        JoinByNames();
    }

    Matching Best() {
        Matching best = known_;
        if ((!states_.Old.empty() && !states_.New.empty()) || (!rows_.Old.empty() && !rows_.New.empty())) {
            const std::vector<Matching> starts = {known_, BySameNumbers(), ByOrder()};
            std::optional<std::size_t> shortest;
            for (const Matching& start : starts) {
                const Matching found = Settled(start);
                const std::size_t length = ListLength(old_, new_, found);
                if (shortest && length >= *shortest)
                    continue;
                shortest = length;
                best = found;
            }
            best = WithCheapGuesses(WithoutCostlyGuesses(best));
        }
        best.States.MarkMoves();
        best.Rows.MarkMoves();
        return best;
    }

  private:
    template <typename Number>
    void Follow(const std::vector<Wish<Number>>& wishes, Pairing<Number>& pairing, Lists<Number>& free);
    void JoinByNames();
    template <typename Number>
    static void KeepFree(Lists<Number>& sides, const Pairing<Number>& pairing);

    Matching BySameNumbers() const;
    Matching ByOrder() const;
    Matching Settled(Matching matching);
    void AssignStates(Matching& next, const Matching& seenThrough);
    void AssignEvents(Matching& next, const Matching& seenThrough);
    Matching WithoutCostlyGuesses(Matching matching) const;
    Matching WithCheapGuesses(Matching matching);
    template <typename Number, typename LikenessOf>
    void JoinCheap(Matching& matching, Pairing<Number> Matching::*kind, const Lists<Number>& sides,
                   LikenessOf likenessOf) const;
    template <typename Number>
    void PartCostly(Matching& matching, Pairing<Number> Matching::*kind, const Lists<Number>& sides) const;

    TextIds ids_;
    MachineDigest old_;
    MachineDigest new_;
    Matching known_;
    Lists<StateNumber> states_; // those that are to be guessed
    Lists<RowNumber> rows_;
};

template <typename Number>
void Matcher::Follow(const std::vector<Wish<Number>>& wishes, Pairing<Number>& pairing, Lists<Number>& free) {
    for (const Wish<Number>& wish : wishes) {
        const auto isFree = [](const std::vector<Number>& numbers, std::optional<Number> number) {
            return !number || std::find(numbers.begin(), numbers.end(), *number) != numbers.end();
        };
        if (!isFree(free.Old, wish.Old) || !isFree(free.New, wish.New))
            continue;
        if (wish.Old && wish.New)
            pairing.Join(*wish.Old, *wish.New);
        std::erase_if(free.Old, [&](Number number) { return number == wish.Old; });
        std::erase_if(free.New, [&](Number number) { return number == wish.New; });
    }
}

template <typename Number>
void Matcher::KeepFree(Lists<Number>& sides, const Pairing<Number>& pairing) {
    std::erase_if(sides.Old, [&](Number number) { return pairing.HasNew(number); });
    std::erase_if(sides.New, [&](Number number) { return pairing.HasOld(number); });
}

void Matcher::JoinByNames() {
    JoinByUniqueKey(
        known_.States, states_, [this](StateNumber state) { return old_.State(state).Name; },
        [this](StateNumber state) { return new_.State(state).Name; });
    KeepFree(states_, known_.States);
    JoinByUniqueKey(
        known_.Rows, rows_, [this](RowNumber row) { return old_.Event(row).Name; },
        [this](RowNumber row) { return new_.Event(row).Name; });
    KeepFree(rows_, known_.Rows);
    JoinByUniqueKey(
        known_.Rows, rows_, [this](RowNumber row) { return old_.Event(row).Code; },
        [this](RowNumber row) { return new_.Event(row).Code; });
    KeepFree(rows_, known_.Rows);
}

template <typename Number>
void JoinSameNumbers(Pairing<Number>& pairing, const Lists<Number>& free) {
    for (const Number number : free.Old) {
        if (std::find(free.New.begin(), free.New.end(), number) != free.New.end())
            pairing.Join(number, number, true);
    }
}

template <typename Number>
void JoinInOrder(Pairing<Number>& pairing, const Lists<Number>& free) {
    for (std::size_t i = 0; i < std::min(free.Old.size(), free.New.size()); ++i)
        pairing.Join(free.Old[i], free.New[i], true);
}

Matching Matcher::BySameNumbers() const {
    Matching matching = known_;
    JoinSameNumbers(matching.States, states_);
    JoinSameNumbers(matching.Rows, rows_);
    return matching;
}

Matching Matcher::ByOrder() const {
    Matching matching = known_;
    JoinInOrder(matching.States, states_);
    JoinInOrder(matching.Rows, rows_);
    return matching;
}

Matching Matcher::Settled(Matching matching) {
    for (int round = 0; round < kMostRounds; ++round) {
        Matching next = known_;
        next.Rows = matching.Rows;
        AssignStates(next, matching);
        const Matching seenThrough = next;
        next.Rows = known_.Rows;
        AssignEvents(next, seenThrough);
        if (next == matching)
            break;
        matching = next;
    }
    return matching;
}

template <typename Number, typename LikenessOf>
void JoinAssigned(Pairing<Number>& pairing, const Lists<Number>& free, LikenessOf likenessOf) {
    Worths worths(free.Old.size(), free.New.size());
    for (std::size_t row = 0; row < free.Old.size(); ++row) {
        for (std::size_t column = 0; column < free.New.size(); ++column) {
            const double likeness = likenessOf(free.Old[row], free.New[column]);
            worths.At(row, column) = likeness >= kLikeEnough ? likeness : 0;
        }
    }
    const std::vector<std::optional<std::size_t>> columns = BestAssignment(worths);
    for (std::size_t row = 0; row < columns.size(); ++row) {
        if (columns[row])
            pairing.Join(free.Old[row], free.New[*columns[row]], true);
    }
}

void Matcher::AssignStates(Matching& next, const Matching& seenThrough) {
    const Likeness likeness({old_, new_}, seenThrough, ids_);
    JoinAssigned(next.States, states_, [&](StateNumber oldState, StateNumber newState) {
        return likeness.OfStates(oldState, newState);
    });
}

void Matcher::AssignEvents(Matching& next, const Matching& seenThrough) {
    const Likeness likeness({old_, new_}, seenThrough, ids_);
    JoinAssigned(next.Rows, rows_,
                 [&](RowNumber oldRow, RowNumber newRow) { return likeness.OfEvents(oldRow, newRow); });
}

// A guess that takes more to tell than one that went and one that came is none.
Matching Matcher::WithoutCostlyGuesses(Matching matching) const {
    PartCostly(matching, &Matching::States, states_);
    PartCostly(matching, &Matching::Rows, rows_);
    return matching;
}

template <typename Number>
void Matcher::PartCostly(Matching& matching, Pairing<Number> Matching::*kind,
                         const Lists<Number>& sides) const {
    std::size_t length = ListLength(old_, new_, matching);
    for (const Number number : sides.Old) {
        if (!(matching.*kind).HasNew(number))
            continue;
        Matching parted = matching;
        (parted.*kind).Part(number);
        const std::size_t partedLength = ListLength(old_, new_, parted);
        if (partedLength >= length)
            continue;
        matching = parted;
        length = partedLength;
    }
}

// What was renamed and edited all over is still the same one when the list gets shorter by that. With nothing
// in common it is not: one that went and one that came can be small enough to make a shorter list together.
Matching Matcher::WithCheapGuesses(Matching matching) {
    const Matching seenThrough = matching;
    const Likeness likeness({old_, new_}, seenThrough, ids_);
    JoinCheap(matching, &Matching::States, states_, [&](StateNumber oldState, StateNumber newState) {
        return likeness.OfStates(oldState, newState);
    });
    JoinCheap(matching, &Matching::Rows, rows_,
              [&](RowNumber oldRow, RowNumber newRow) { return likeness.OfEvents(oldRow, newRow); });
    return matching;
}

template <typename Number, typename LikenessOf>
void Matcher::JoinCheap(Matching& matching, Pairing<Number> Matching::*kind, const Lists<Number>& sides,
                        LikenessOf likenessOf) const {
    std::size_t length = ListLength(old_, new_, matching);
    for (const Number oldOne : sides.Old) {
        if ((matching.*kind).HasNew(oldOne))
            continue;
        std::optional<Matching> shorter;
        for (const Number newOne : sides.New) {
            if ((matching.*kind).HasOld(newOne) || likenessOf(oldOne, newOne) < kLikeAtAll)
                continue;
            Matching joined = matching;
            (joined.*kind).Join(oldOne, newOne, true);
            const std::size_t joinedLength = ListLength(old_, new_, joined);
            if (joinedLength >= length)
                continue;
            length = joinedLength;
            shorter = joined;
        }
        matching = shorter.value_or(matching);
    }
}

Matching NumberByNumber(const FsmDocument& document) {
    TextIds ids;
    const MachineDigest digest(document, ids);
    Matching matching;
    for (const StateNumber state : digest.States())
        matching.States.Join(state, state);
    for (const RowNumber row : digest.Events())
        matching.Rows.Join(row, row);
    return matching;
}

template <typename Number>
std::vector<Wish<Number>> MirroredWishes(std::vector<Wish<Number>> wishes) {
    for (Wish<Number>& wish : wishes)
        std::swap(wish.Old, wish.New);
    return wishes;
}

} // namespace

Wishes Wishes::Mirrored() const { return {MirroredWishes(States), MirroredWishes(Rows)}; }

// The two sides are told apart by their bytes, so that it makes no difference which one is called old.
Matching Match(const FsmDocument& oldOne, const FsmDocument& newOne, const Wishes& wishes) {
    const std::string oldBytes = WriteDocument(oldOne);
    const std::string newBytes = WriteDocument(newOne);
    if (oldBytes == newBytes && wishes.States.empty() && wishes.Rows.empty())
        return NumberByNumber(oldOne);
    if (oldBytes <= newBytes)
        return Matcher({oldOne, newOne}, wishes).Best();
    return Matcher({newOne, oldOne}, wishes.Mirrored()).Best().Mirrored();
}

} // namespace orvane::review
