// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/ExpressionMatcher.h"
#include "find/LiteralSearch.h"
#include "find/Pattern.h"
#include "find/WordBorders.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <variant>

namespace orvane::find {

// A pattern looked for in one text after the other.
class TextSearch {
  public:
    // The pattern must outlive the search.
    TextSearch(const Pattern& pattern, bool withGroups, std::uint64_t steps);

    // Calls visit(span) for each match until it returns false. Returns false then, or when the work is used
    // up.
    template <typename Visit>
    bool Each(std::string_view text, Visit visit) {
        return literal_ ? EachLiteral(text, visit) : EachExpression(text, visit);
    }

    bool IsExhausted() const { return matcher_ && matcher_->Left() == 0; }
    // Of the match that is being visited, in the text.
    GroupSpans Groups() const;

  private:
    template <typename Visit>
    bool EachLiteral(std::string_view text, Visit visit) {
        std::size_t from = 0;
        while ((from = literal_->Next(text, from)) != std::string_view::npos) {
            if (!visit(Span{from, from + literal_->Length()}))
                return false;
            from += literal_->Length();
        }
        return true;
    }
    template <typename Visit>
    bool EachExpression(std::string_view text, Visit visit) {
        for (lineStart_ = 0; lineStart_ < text.size(); ++lineStart_) {
            const auto* end = std::find_if(text.begin() + lineStart_, text.end(), IsLineEnd);
            const std::string_view line =
                text.substr(lineStart_, std::size_t(end - text.begin()) - lineStart_);
            std::size_t from = 0;
            while (const std::optional<Span> match = matcher_->Next(line, from)) {
                if (!visit(Span{lineStart_ + match->Start, lineStart_ + match->End}))
                    return false;
                from = match->End;
            }
            lineStart_ += line.size();
        }
        return !IsExhausted();
    }

    std::optional<LiteralSearch> literal_;
    std::optional<ExpressionMatcher> matcher_;
    std::size_t lineStart_ = 0;
};

} // namespace orvane::find
