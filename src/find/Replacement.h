// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Pattern.h"
#include "find/Search.h"
#include "find/TextChange.h"

#include <string>
#include <vector>

namespace orvane::find {

struct ReplacementPlan {
    std::vector<TextChange> Changes; // in the order of the document's file
    SearchEnd End = SearchEnd::Complete;
    std::string Fault;         // why nothing can be replaced; empty when it can
    std::size_t LeftAlone = 0; // matches in what undo does not bring back: the builder script's path
};

// What replacing every match would do. Behind an expression $1 to $9 in the replacement are what the groups
// matched, $0 is the whole match, $$ a $ and \t a tab. What takes a name away is told by what comes after.
ReplacementPlan PlanReplacement(const FsmDocument& document, const Pattern& pattern,
                                const std::string& replacement, const SearchLimits& limits = {});

} // namespace orvane::find
