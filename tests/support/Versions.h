// SPDX-License-Identifier: GPL-3.0-or-later
// Random machines and random work on them, with a book of which state and event is which.
#pragma once

#include "core/FsmDocument.h"
#include "review/Pairing.h"

#include <array>
#include <random>

namespace orvane::test {

using Dice = std::mt19937;

// A whole number from 0 up to one below the count, the same on every system.
int Roll(Dice& dice, int count);

struct Version {
    FsmDocument Document;
    std::array<int, kTableColumns> StateIds{}; // by number; 0 of a column without a state
    std::array<int, kTableRows> EventIds{};
    int LastId = 0;
};

struct MachineShape {
    int MostStates = 40;
    int MostEvents = 20;
    int BlankNames = 0; // per cent of the states without a name and the events without name and code
};

Version RandomMachine(Dice& dice, const MachineShape& shape = {});

// A machine that exists, with every state and event in the book.
Version VersionOf(const FsmDocument& document);

// Does one thing that a user does: types into a cell, renames, puts in, takes out, moves.
void EditAtRandom(Version& version, Dice& dice);

// What is the same in two versions that came from one.
review::Matching TrueMatching(const Version& oldOne, const Version& newOne);

} // namespace orvane::test
