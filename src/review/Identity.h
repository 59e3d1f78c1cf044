// SPDX-License-Identifier: GPL-3.0-or-later
// What a state or event of one version may be in the other one, for whoever knows better than Match.
#pragma once

#include "review/ComparedVersions.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::review {

struct Identity {
    std::string What;                // "state 4:Run", UTF-8 on one line
    bool IsOfOld = true;             // that is the old version; else it is only in the new one
    bool IsGuess = false;            // it was recognised by its content
    std::vector<std::string> Others; // what it may be on the other side: none of it first, then each that is
                                     // there
    std::vector<Wishes> AsWished;    // what is to be wished for each of these
    std::size_t Present = 0;         // what it is now, among them
};

// Of the state, or else of the event, that the change is about; none when it is about the machine as a whole.
std::optional<Identity> IdentityOf(const ComparedVersions& versions, const Change& change);

// The wishes with one more, which counts against whatever was wished for the same before.
Wishes Added(Wishes wishes, const Wishes& another);

// The same wishes when the old document has been edited since. The matching leads from it as it was to it as
// it is; a wish for what is gone goes, too.
Wishes CarriedOn(const Wishes& wishes, const Matching& edited);

} // namespace orvane::review
