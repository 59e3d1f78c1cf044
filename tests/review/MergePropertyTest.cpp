// SPDX-License-Identifier: GPL-3.0-or-later
// The laws of merging, on machines that two people worked on. The number of triples is ORVANE_REVIEW_TRIPLES,
// when that is set; scripts/review-figures tries 10,000.
#include "core/DocumentWriter.h"
#include "review/Compare.h"
#include "review/ConflictBlock.h"
#include "review/LineDiff.h"
#include "review/Match.h"
#include "review/Merge.h"
#include "review/Titles.h"
#include "support/Property.h"
#include "support/RandomDocument.h"
#include "support/Versions.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

namespace orvane::test {
namespace {

using review::Change;
using review::ChangeKind;
using review::Conflict;
using review::ConflictKind;
using review::FieldValue;
using review::Merge;
using review::MergeResult;

int Triples(int otherwise) {
    const char* asked = std::getenv("ORVANE_REVIEW_TRIPLES");
    return asked == nullptr ? otherwise : std::max(1, std::atoi(asked));
}

struct Triple {
    Version Base;
    Version Ours;
    Version Theirs;
};

Triple RandomTriple(Dice& dice, int number) {
    const MachineShape shape{
        .MostStates = 4 + number % 20, .MostEvents = 8, .BlankNames = number % 4 == 0 ? 30 : 0};
    Triple triple;
    triple.Base = RandomMachine(dice, shape);
    triple.Ours = triple.Theirs = triple.Base;
    triple.Ours.LastId += 10000; // so that the two sides give no new state the same name ...
    for (int edit = Roll(dice, 8); edit >= 0; --edit)
        EditAtRandom(triple.Ours, dice);
    if (number % 3 == 0) // ... but sometimes
        triple.Theirs.LastId += 10000;
    for (int edit = Roll(dice, 8); edit >= 0; --edit)
        EditAtRandom(triple.Theirs, dice);
    return triple;
}

std::string File(const FsmDocument& document) { return WriteDocument(document); }

template <typename Law>
void ForTriples(int count, Law law) {
    Dice dice(7);
    for (int number = 0; number < count; ++number) {
        law(RandomTriple(dice, number), number);
        if (testing::Test::HasFailure())
            return;
    }
}

TEST(MergeLaws, WithOneSideUnchangedTheOtherSideIsTheResult) {
    ForTriples(Triples(120), [](const Triple& triple, int number) {
        const MergeResult ours = Merge(triple.Base.Document, triple.Ours.Document, triple.Base.Document);
        EXPECT_EQ(File(ours.Document), File(triple.Ours.Document)) << number;
        EXPECT_TRUE(ours.Conflicts.empty()) << number;
        const MergeResult theirs = Merge(triple.Base.Document, triple.Base.Document, triple.Theirs.Document);
        EXPECT_EQ(File(theirs.Document), File(triple.Theirs.Document)) << number;
        EXPECT_TRUE(theirs.Conflicts.empty()) << number;
    });
}

TEST(MergeLaws, WhatBothSidesDidAlikeIsDoneOnce) {
    ForTriples(Triples(120), [](const Triple& triple, int number) {
        const MergeResult both = Merge(triple.Base.Document, triple.Ours.Document, triple.Ours.Document);
        EXPECT_EQ(File(both.Document), File(triple.Ours.Document)) << number;
        EXPECT_TRUE(both.Conflicts.empty()) << number;
    });
}

TEST(MergeLaws, HoldForDocumentsOfAnyKind) {
    ExpectProperty({.Cases = 12, .LargestSize = 30}, [] {
        const FsmDocument base = *AnyDocument();
        FsmDocument changed = base;
        for (const DocumentEdit& edit : *rc::gen::container<std::vector<DocumentEdit>>(AnyEdit()))
            edit.Apply(changed);
        RC_ASSERT(File(Merge(base, changed, base).Document) == File(changed));
        RC_ASSERT(File(Merge(base, base, changed).Document) == File(changed));
        RC_ASSERT(File(Merge(base, changed, changed).Document) == File(changed));
    });
}

TEST(MergeLaws, TheSidesExchangedGiveTheSameButForTheOrder) {
    ForTriples(Triples(120), [](const Triple& triple, int number) {
        const MergeResult one = Merge(triple.Base.Document, triple.Ours.Document, triple.Theirs.Document);
        const MergeResult other = Merge(triple.Base.Document, triple.Theirs.Document, triple.Ours.Document);
        EXPECT_EQ(one.Conflicts.empty(), other.Conflicts.empty()) << number;
        if (!one.Conflicts.empty() || !one.Notes.empty())
            return;
        // What is the same in both results: what was the same state of ours, or else of theirs.
        review::Matching same;
        const auto join = [](auto& pairing, const auto& here, const auto& there) {
            for (const auto side : here.Numbers()) {
                if (here.HasNew(side) && there.HasNew(side) && !pairing.HasNew(here.NewOf(side)) &&
                    !pairing.HasOld(there.NewOf(side)))
                    pairing.Join(here.NewOf(side), there.NewOf(side));
            }
        };
        join(same.States, one.FromOurs.States, other.FromTheirs.States);
        join(same.States, one.FromTheirs.States, other.FromOurs.States);
        join(same.Rows, one.FromOurs.Rows, other.FromTheirs.Rows);
        join(same.Rows, one.FromTheirs.Rows, other.FromOurs.Rows);
        const review::ChangeList list = review::Compare(one.Document, other.Document, same);
        EXPECT_TRUE(list.Changes.empty()) << number;
    });
}

// Looks for every change of a side in what came out, without knowing how it was made.
class Finder {
  public:
    Finder(const FsmDocument& side, const MergeResult& result, const review::Matching& fromSide)
        : side_(side), result_(result), fromSide_(fromSide) {}

    bool Has(const Change& change) const {
        switch (change.Kind) {
        case ChangeKind::MachineField:
            return FieldIsThere(change, {}) || Asked({}, change.Tag);
        case ChangeKind::EventAdded:
        case ChangeKind::StateAdded:
            return ContentIsThere(change);
        case ChangeKind::EventRemoved:
        case ChangeKind::StateRemoved:
        case ChangeKind::EventMoved:
        case ChangeKind::StateMoved:
        case ChangeKind::BlankWidth:
            return true; // looked at by itself, or not of the design
        default:
            return HasInPlace(change);
        }
    }

  private:
    StateNumber Now(StateNumber state) const {
        return state == kNoState ? state : fromSide_.States.NewOf(state);
    }

    bool HasInPlace(const Change& change) const {
        const Cell place = {change.New.Row == kNoRow ? RowNumber() : fromSide_.Rows.NewOf(change.New.Row),
                            Now(change.New.State)};
        if ((change.New.State != kNoState && place.State == kNoState) ||
            (change.New.Row != kNoRow && place.Row == kNoRow))
            return IsGone(change);
        if (change.Kind == ChangeKind::Target)
            return result_.Document.State(place.State).Targets[place.Row] ==
                               Now(std::get<StateNumber>(change.After)) &&
                           (std::get<StateNumber>(change.After) == kNoState ||
                            Now(std::get<StateNumber>(change.After)) != kNoState)
                       ? true
                       : Asked(place, tag::kTarget);
        if (change.Kind == ChangeKind::Action)
            return TextIsThere(std::get<std::string>(change.Before), std::get<std::string>(change.After),
                               result_.Document.State(place.State).Actions[place.Row]) ||
                   Asked(place, tag::kAction);
        return FieldIsThere(change, place) || Asked(place, change.Tag);
    }

    // Of a state or event that is not in the result: the other side removed it. To clear something of it is
    // no loss then; anything else must have been asked.
    bool IsGone(const Change& change) const {
        if ((change.Kind == ChangeKind::Target && change.After == FieldValue(StateNumber())) ||
            (change.Kind == ChangeKind::Action && change.After == FieldValue(std::string())))
            return true;
        const std::string state = "state " + review::StateTitle(side_, change.New.State);
        const std::string event =
            change.New.Row == kNoRow ? state : "event " + review::RowTitle(side_, change.New.Row);
        return std::any_of(result_.Conflicts.begin(), result_.Conflicts.end(), [&](const Conflict& conflict) {
            return (conflict.Kind == ConflictKind::RemovedHere || conflict.Kind == ConflictKind::NoRoom) &&
                   (conflict.What.starts_with(state + " ") || conflict.What.starts_with(event + " "));
        });
    }

    bool ContentIsThere(const Change& change) const {
        const bool isState = change.Kind == ChangeKind::StateAdded;
        const bool isThere =
            isState ? fromSide_.States.HasNew(change.New.State) : fromSide_.Rows.HasNew(change.New.Row);
        if (!isThere)
            return Asked(ConflictKind::NoRoom);
        return std::all_of(change.What.Cells.begin(), change.What.Cells.end(),
                           [&](const review::CellContent& cell) { return CellIsThere(cell); });
    }

    bool CellIsThere(const review::CellContent& cell) const {
        const Cell place = {fromSide_.Rows.NewOf(cell.Place.Row), Now(cell.Place.State)};
        if (place.Row == kNoRow || place.State == kNoState)
            return Asked(ConflictKind::RemovedHere) || Asked(ConflictKind::NoRoom);
        const StateRecord& state = result_.Document.State(place.State);
        const bool target = cell.Target == kNoState ||
                            (Now(cell.Target) != kNoState && state.Targets[place.Row] == Now(cell.Target)) ||
                            Asked(place, tag::kTarget);
        const bool action = cell.Action.empty() || TextIsThere("", cell.Action, state.Actions[place.Row]) ||
                            Asked(place, tag::kAction);
        return target && action;
    }

    bool FieldIsThere(const Change& change, Cell place) const {
        bool isThere = false;
        const auto look = [&](const auto& field, const auto& record) {
            using Value = std::remove_cvref_t<decltype(record.*field.Member)>;
            if constexpr (std::is_same_v<Value, std::string>)
                isThere = TextIsThere(std::get<Value>(change.Before), std::get<Value>(change.After),
                                      record.*field.Member);
            else
                isThere = record.*field.Member == std::get<Value>(change.After);
        };
        const FsmDocument& document = result_.Document;
        if (place.State != kNoState)
            review::VisitStoredField<kStateFields>(
                change.Tag, [&](const auto& field) { look(field, document.State(place.State)); });
        else if (place.Row != kNoRow)
            review::VisitStoredField<kEventFields>(
                change.Tag, [&](const auto& field) { look(field, document.Event(place.Row)); });
        else
            LookIntoMachine(change.Tag, look);
        return isThere;
    }
    template <typename Look>
    void LookIntoMachine(std::string_view tag, Look look) const {
        const FsmDocument& document = result_.Document;
        review::VisitStoredField<kGeneralFields>(tag,
                                                 [&](const auto& field) { look(field, document.General); });
        review::VisitStoredField<kViewFields>(tag, [&](const auto& field) { look(field, document.View); });
    }

    // Every line that came in is there.
    static bool TextIsThere(const std::string& before, const std::string& after, const std::string& now) {
        const review::Lines newLines = review::LinesOf(after);
        const review::Lines linesNow = review::LinesOf(now);
        for (const review::LineChange& change : review::DiffLines(review::LinesOf(before), newLines)) {
            for (std::size_t i = 0; i < change.NewCount; ++i) {
                if (std::find(linesNow.begin(), linesNow.end(), newLines[change.NewFirst + i]) ==
                    linesNow.end())
                    return false;
            }
        }
        return true;
    }

    bool Asked(ConflictKind kind) const {
        return std::any_of(result_.Conflicts.begin(), result_.Conflicts.end(),
                           [&](const Conflict& conflict) { return conflict.Kind == kind; });
    }
    bool Asked(Cell place, std::string_view tag) const {
        return std::any_of(result_.Conflicts.begin(), result_.Conflicts.end(), [&](const Conflict& conflict) {
            return conflict.Place == place && conflict.Tag == tag;
        });
    }

    const FsmDocument& side_;
    const MergeResult& result_;
    const review::Matching& fromSide_;
};

void ExpectNothingMissing(const FsmDocument& base, const FsmDocument& side, const MergeResult& result,
                          const review::Matching& fromSide) {
    const Finder finder(side, result, fromSide);
    for (const Change& change : review::Compare(base, side).WithoutView().Changes)
        EXPECT_TRUE(finder.Has(change)) << ChangeKindName(change.Kind) << " " << change.New.State << " "
                                        << change.New.Row << " " << change.Tag;
}

template <typename Number>
int StillThere(const review::Pairing<Number>& toOurs, const review::Pairing<Number>& toTheirs,
               const review::Pairing<Number>& fromOurs, const review::Pairing<Number>& fromTheirs) {
    int count = 0;
    for (const Number number : toOurs.Numbers()) {
        const bool inOurs = toOurs.HasNew(number);
        const bool inTheirs = toTheirs.HasNew(number);
        if (inOurs != inTheirs)
            count += (inOurs && fromOurs.HasNew(toOurs.NewOf(number))) ||
                             (inTheirs && fromTheirs.HasNew(toTheirs.NewOf(number)))
                         ? 1
                         : 0;
    }
    return count;
}

TEST(MergeLaws, NoChangeOfEitherSideIsMissing) {
    int clean = 0;
    int changes = 0;
    const int count = Triples(200);
    ForTriples(count, [&](const Triple& triple, int number) {
        SCOPED_TRACE(number);
        const FsmDocument& base = triple.Base.Document;
        const MergeResult result = Merge(base, triple.Ours.Document, triple.Theirs.Document);
        ExpectNothingMissing(base, triple.Ours.Document, result, result.FromOurs);
        ExpectNothingMissing(base, triple.Theirs.Document, result, result.FromTheirs);
        // What one side removed is gone, unless that was asked.
        const auto kept =
            std::count_if(result.Conflicts.begin(), result.Conflicts.end(),
                          [](const Conflict& c) { return c.Kind == ConflictKind::ChangedHere; });
        const review::Matching toOurs = review::Match(base, triple.Ours.Document);
        const review::Matching toTheirs = review::Match(base, triple.Theirs.Document);
        EXPECT_EQ(
            StillThere(toOurs.States, toTheirs.States, result.FromOurs.States, result.FromTheirs.States) +
                StillThere(toOurs.Rows, toTheirs.Rows, result.FromOurs.Rows, result.FromTheirs.Rows),
            kept);
        EXPECT_EQ(review::FindConflicts(result.Document).empty(), result.Conflicts.empty());
        clean += result.Conflicts.empty() ? 1 : 0;
        changes += 1;
    });
    std::cout << 100.0 * clean / std::max(1, changes) << " % of " << changes
              << " merges without a question\n";
}

} // namespace
} // namespace orvane::test
