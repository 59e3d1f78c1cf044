// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/Replacement.h"

#include "find/TextSearch.h"
#include "text/Ascii.h"

namespace orvane::find {

namespace {

std::string Filled(std::string_view replacement, std::string_view text, const GroupSpans& groups) {
    std::string filled;
    while (!replacement.empty()) {
        const char c = replacement.front();
        const char next = replacement.size() > 1 ? replacement[1] : '\0';
        const bool isGroup = c == '$' && IsAsciiDigit(next);
        const bool isMark = (c == '$' && next == '$') || (c == '\\' && next == 't');
        replacement.remove_prefix(isGroup || isMark ? 2 : 1);
        if (!isGroup) {
            filled += isMark && next == 't' ? '\t' : c;
            continue;
        }
        const std::size_t group = std::size_t(next - '0');
        if (group < groups.size() && groups[group])
            filled += text.substr(groups[group]->Start, groups[group]->End - groups[group]->Start);
    }
    return filled;
}

} // namespace

ReplacementPlan PlanReplacement(const FsmDocument& document, const Pattern& pattern,
                                const std::string& replacement, const SearchLimits& limits) {
    ReplacementPlan plan;
    plan.Fault = FaultOfText(replacement);
    if (!plan.Fault.empty())
        return plan;
    const bool isExpression = std::holds_alternative<PatternProgram>(pattern);
    TextSearch search(pattern, isExpression, limits.Steps);
    ForEachText(document, [&](const TextPlace& place, const std::string& text) {
        const bool isDesigned = KindOf(place).IsDesigned;
        search.Each(text, [&](Span match) {
            if (plan.Changes.size() == limits.Hits)
                plan.End = SearchEnd::TooManyHits;
            if (plan.End != SearchEnd::Complete)
                return false;
            plan.LeftAlone += isDesigned ? 0 : 1;
            if (isDesigned)
                plan.Changes.push_back(
                    {place, match.Start, match.End - match.Start,
                     isExpression ? Filled(replacement, text, search.Groups()) : replacement, true});
            return true;
        });
        if (search.IsExhausted())
            plan.End = SearchEnd::TooMuchWork;
    });
    return plan;
}

} // namespace orvane::find
