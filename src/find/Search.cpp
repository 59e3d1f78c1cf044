// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/Search.h"

#include "find/TextSearch.h"

#include <algorithm>

namespace orvane::find {

namespace {

// Counts the lines of a text up to places that only move forward. A line ends with CR LF, LF or CR.
class LineCounter {
  public:
    explicit LineCounter(std::string_view text) : text_(text) {}

    void MoveTo(std::size_t place) {
        for (; at_ < place; ++at_) {
            const bool ends = text_[at_] == '\n' || (text_[at_] == '\r' && !IsFollowedByLf());
            if (!ends)
                continue;
            ++line_;
            lineStart_ = at_ + 1;
        }
    }
    std::size_t Line() const { return line_; }
    std::size_t Column() const { return at_ - lineStart_ + 1; }

  private:
    bool IsFollowedByLf() const { return at_ + 1 < text_.size() && text_[at_ + 1] == '\n'; }

    std::string_view text_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
    std::size_t lineStart_ = 0;
};

} // namespace

SearchResult Search(const FsmDocument& document, const Pattern& pattern, const SearchLimits& limits) {
    SearchResult result;
    TextSearch search(pattern, false, limits.Steps);
    ForEachText(document, [&](const TextPlace& place, const std::string& text) {
        if (result.End != SearchEnd::Complete)
            return;
        LineCounter lines(text);
        search.Each(text, [&](Span match) {
            if (result.Hits.size() == limits.Hits) {
                result.End = SearchEnd::TooManyHits;
                return false;
            }
            lines.MoveTo(match.Start);
            result.Hits.push_back(
                {place, match.Start, match.End - match.Start, lines.Line(), lines.Column()});
            return true;
        });
        if (search.IsExhausted())
            result.End = SearchEnd::TooMuchWork;
    });
    return result;
}

std::string_view TextOf(SearchEnd end) {
    switch (end) {
    case SearchEnd::TooManyHits:
        return "There are more matches than are shown; look for more of the text";
    case SearchEnd::TooMuchWork:
        return "The expression takes too long on these texts; not all of them were looked through";
    case SearchEnd::Complete:
        break;
    }
    return {};
}

std::string_view LineAt(std::string_view text, std::size_t place) {
    place = std::min(place, text.size());
    const std::size_t before = text.substr(0, place).find_last_of("\r\n");
    const std::size_t start = before == std::string_view::npos ? 0 : before + 1;
    return text.substr(start, text.find_first_of("\r\n", place) - start);
}

} // namespace orvane::find
