// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/DocumentTexts.h"
#include "find/ExpressionMatcher.h"
#include "find/Pattern.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace orvane::find {

// A match, and where it stands. Line and column count from 1 in the text, the column in characters.
struct Hit {
    TextPlace Place;
    std::size_t Start = 0; // in the text, bytes
    std::size_t Length = 0;
    std::size_t Line = 1;
    std::size_t Column = 1;

    bool operator==(const Hit&) const = default;
};

// What a search may cost. Beyond it the search ends and says so, with what it has found.
struct SearchLimits {
    std::size_t Hits = 10'000;
    std::uint64_t Steps = 50'000'000; // of an expression, see find/ExpressionMatcher.h; well below a second
};

enum class SearchEnd { Complete, TooManyHits, TooMuchWork };

struct SearchResult {
    std::vector<Hit> Hits; // in the order of the document's file
    SearchEnd End = SearchEnd::Complete;
};

SearchResult Search(const FsmDocument& document, const Pattern& pattern, const SearchLimits& limits = {});

// What a search that was not completed has to tell; nothing when it was.
std::string_view TextOf(SearchEnd end);

// The line of the text in which a place stands, without its end.
std::string_view LineAt(std::string_view text, std::size_t place);

} // namespace orvane::find
