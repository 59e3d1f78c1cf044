// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/Pattern.h"

#include "find/ExpressionReader.h"
#include "find/WordBorders.h"

#include <algorithm>

namespace orvane::find {

namespace {

bool IsLiteral(std::string_view expression) {
    return expression.find_first_of("\\.[]()*+?{}|^$") == std::string_view::npos;
}

} // namespace

std::variant<Pattern, PatternFault> ReadPattern(const SearchQuery& query) {
    if (query.Text.empty())
        return PatternFault{"There is nothing to look for"};
    if (std::any_of(query.Text.begin(), query.Text.end(), IsLineEnd))
        return PatternFault{"A line end cannot be looked for: texts are looked through line by line"};
    if (!query.IsExpression || IsLiteral(query.Text))
        return Pattern(Literal{query.Text, query.MatchCase, query.WholeWord});
    std::variant<PatternProgram, PatternFault> read = ReadExpression(query);
    if (auto* fault = std::get_if<PatternFault>(&read))
        return std::move(*fault);
    return Pattern(std::get<PatternProgram>(std::move(read)));
}

} // namespace orvane::find
