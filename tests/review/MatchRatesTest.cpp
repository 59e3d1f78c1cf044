// SPDX-License-Identifier: GPL-3.0-or-later
// How well states and events are recognised after random work whose truth is known. The number of machines is
// ORVANE_REVIEW_CASES, when that is set; scripts/review-figures tries 1,000 of each kind.
#include "review/Compare.h"
#include "review/Match.h"
#include "support/MachineJson.h"
#include "support/Versions.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

namespace orvane::test {
namespace {

int Cases(int otherwise) {
    const char* asked = std::getenv("ORVANE_REVIEW_CASES");
    return asked == nullptr ? otherwise : std::max(1, std::atoi(asked));
}

struct Rates {
    int Machines = 0;
    int NotLonger = 0;    // lists that are no longer than what was really done
    int FalseGuesses = 0; // guesses that the book does not have
    double PerCent() const { return 100.0 * NotLonger / Machines; }
};

template <typename Number>
int FalsePairs(const review::Pairing<Number>& found, const review::Pairing<Number>& truth) {
    int count = 0;
    for (const Number number : found.Numbers())
        count += found.HasNew(number) && found.NewOf(number) != truth.NewOf(number) ? 1 : 0;
    return count;
}

struct Task {
    int Edits;
    int BlankNames; // per cent
};

// A real machine, or one at random where there are none here.
Version Start(int machine, int blankNames, Dice& dice) {
    static const std::vector<NamedDocument> real = RealMachines();
    if (real.empty() || machine % 2 == 0)
        return RandomMachine(dice, {.BlankNames = blankNames});
    Version version = VersionOf(real[std::size_t(machine / 2) % real.size()].Document);
    for (const StateNumber state : StateNumbers()) {
        if (Roll(dice, 100) < blankNames)
            version.Document.State(state).Name.clear();
    }
    for (const RowNumber row : EventRows()) {
        if (Roll(dice, 100) < blankNames)
            version.Document.Event(row) = {};
    }
    return VersionOf(version.Document);
}

Rates Try(Task task, int machines) {
    Dice dice(unsigned(task.Edits * 1000 + task.BlankNames));
    Rates rates;
    for (; rates.Machines < machines; ++rates.Machines) {
        const Version oldOne = Start(rates.Machines, task.BlankNames, dice);
        Version newOne = oldOne;
        for (int edit = 0; edit < task.Edits; ++edit)
            EditAtRandom(newOne, dice);
        const review::Matching truth = TrueMatching(oldOne, newOne);
        const review::Matching found = review::Match(oldOne.Document, newOne.Document);
        const auto length = [&](const review::Matching& matching) {
            return review::Compare(oldOne.Document, newOne.Document, matching).Changes.size();
        };
        rates.NotLonger += length(found) <= length(truth) ? 1 : 0;
        rates.FalseGuesses += FalsePairs(found.States, truth.States) + FalsePairs(found.Rows, truth.Rows);
    }
    std::cout << task.Edits << " edits, " << task.BlankNames << " % without names: " << rates.PerCent()
              << " % no longer than what was done, " << rates.FalseGuesses << " false identities in "
              << machines << " machines\n";
    return rates;
}

TEST(MatchRates, WithNamesTheListIsHardlyEverLongerThanWhatWasDone) {
    for (const int edits : {1, 5, 20}) {
        const Rates rates = Try({edits, 0}, Cases(100));
        EXPECT_GE(rates.PerCent(), 99);
        EXPECT_EQ(rates.FalseGuesses, 0) << "with names nothing is taken for something else";
    }
}

TEST(MatchRates, WithAThirdOfTheNamesGoneItSeldomIs) { EXPECT_GE(Try({5, 30}, Cases(100)).PerCent(), 98); }

} // namespace
} // namespace orvane::test
