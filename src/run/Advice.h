// SPDX-License-Identifier: GPL-3.0-or-later
// What can be known of all that a machine will ever do, and what of it its author should know. It is advice:
// the program is sound without it.
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"

#include <array>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::run {

// Tools know the kinds by their words, so no word ever changes.
enum class AdviceKind {
    StartNot1,
    DeadTimeout,
    TimerNeverStarted,
    NeverYields,
    NoWayBack,
    Trap,
    SameTest,
    LabelTwice,
    SameName,
    TimerBlanks,
    Oscillates
};

inline constexpr auto kAdviceKinds = std::to_array(
    {AdviceKind::StartNot1, AdviceKind::DeadTimeout, AdviceKind::TimerNeverStarted, AdviceKind::NeverYields,
     AdviceKind::NoWayBack, AdviceKind::Trap, AdviceKind::SameTest, AdviceKind::LabelTwice,
     AdviceKind::SameName, AdviceKind::TimerBlanks, AdviceKind::Oscillates});

// The word that tools know the kind by, such as "dead-timeout".
std::string_view AdviceKindName(AdviceKind kind);

struct Advice {
    AdviceKind Kind{};
    Cell Place;          // kNoState when it concerns the machine as a whole, kNoRow when it concerns no row
    std::string Message; // document text on one line

    bool operator==(const Advice&) const = default;
};

struct AdviceResult {
    std::vector<Advice> List; // by kind, then by place
    bool Complete = true;     // the whole machine could be looked at
};

// Of a document that cannot be run only what can be told without running it.
// Throws BoundsError when a transition leads to a state that the table does not have.
// Once somebody says stop, what comes back is not complete.
AdviceResult AdviceOn(const FsmDocument& document, const std::stop_token& stop = {});

} // namespace orvane::run
