// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/TextSearch.h"

namespace orvane::find {

TextSearch::TextSearch(const Pattern& pattern, bool withGroups, std::uint64_t steps) {
    if (const auto* literal = std::get_if<Literal>(&pattern)) {
        literal_.emplace(*literal);
        return;
    }
    matcher_.emplace(std::get<PatternProgram>(pattern), withGroups);
    matcher_->Allow(steps);
}

GroupSpans TextSearch::Groups() const {
    if (!matcher_)
        return {};
    GroupSpans groups = matcher_->Groups();
    for (std::optional<Span>& group : groups) {
        if (group)
            group = Span{group->Start + lineStart_, group->End + lineStart_};
    }
    return groups;
}

} // namespace orvane::find
