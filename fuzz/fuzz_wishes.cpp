// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are read as what a user says of identities; what is understood can be followed.
#include "Require.h"
#include "review/Match.h"
#include "review/WishReader.h"

#include <cstdint>
#include <string_view>

using namespace orvane;

namespace {

FsmDocument SmallMachine() {
    FsmDocument document;
    document.Event(6) = {"Start", ";start?", "", 0};
    document.Event(7) = {"a=b", ";stop?", "", 0};
    document.State(1).Name = "Idle";
    document.State(1).Targets[6] = 2;
    document.State(2).Name = "Run=";
    document.State(2).Targets[7] = 1;
    document.State(3).Name = "K\xFChl";
    document.State(4).Name = "K\xFChl";
    return document;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const FsmDocument machine = SmallMachine();
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    review::Wishes wishes;
    for (int wish = 0; wish < 8 && !rest.empty(); ++wish) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
        const auto fault = line.find('=') == std::string_view::npos
                               ? review::AddDifferent(wishes, line, machine)
                               : review::AddSame(wishes, line, {machine, machine});
        Require(!fault || !fault->empty(), "a fault says something");
    }
    const review::Matching matching = review::Match(machine, machine, wishes);
    for (const review::Wish<StateNumber>& wish : wishes.States) {
        if (wish.Old)
            Require(matching.States.NewOf(*wish.Old) == wish.New.value_or(StateNumber()),
                    "what was wished is followed");
    }
    return 0;
}
