// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "review/Pairing.h"

#include <vector>

namespace orvane::review {

// Of one kind, on both sides.
template <typename Number>
struct PresentOnes {
    std::vector<Number> Old;
    std::vector<Number> New;
};

// Calls went(old), and same(old, new) or came(new), in the order of the new numbers; what went comes behind
// what it stood behind.
template <typename Number, typename Went, typename Same, typename Came>
void InNewOrder(const PresentOnes<Number>& present, const Pairing<Number>& pairing, Went went, Same same,
                Came came) {
    auto next = present.Old.begin();
    const auto tellWentUpTo = [&](Number end) {
        for (; next != present.Old.end() && *next < end; ++next) {
            if (!pairing.HasNew(*next))
                went(*next);
        }
    };
    for (const Number number : present.New) {
        if (!pairing.HasOld(number)) {
            came(number);
            continue;
        }
        if (!pairing.HasMoved(pairing.OldOf(number)))
            tellWentUpTo(pairing.OldOf(number));
        same(pairing.OldOf(number), number);
    }
    tellWentUpTo(pairing.Numbers().Last() + 1);
}

} // namespace orvane::review
