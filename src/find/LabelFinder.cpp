// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/LabelFinder.h"

#include "find/WordBorders.h"
#include "text/AnsiText.h"

#include <algorithm>
#include <functional>

namespace orvane::find {

LabelFinder::LabelFinder(const std::string& prefix, const Changes& labels) {
    if (prefix.empty() || labels.empty())
        return;
    prefix_.emplace(Literal{.Text = prefix});
    for (const auto& [before, after] : labels) {
        spelt_.emplace(before, after);
        folded_.emplace(ToUpper(before), after);
        if (!std::all_of(before.begin(), before.end(), IsOfWord))
            oddLengths_.push_back(before.size());
    }
    std::sort(oddLengths_.begin(), oddLengths_.end(), std::greater<>());
    oddLengths_.erase(std::unique(oddLengths_.begin(), oddLengths_.end()), oddLengths_.end());
}

std::optional<LabelFinder::Found> LabelFinder::LabelAt(std::string_view text, std::size_t at) const {
    if (IsInsideWord(text, at))
        return std::nullopt;
    for (const std::size_t length : oddLengths_) {
        if (at + length > text.size() || IsInsideWord(text, at + length))
            continue;
        if (const std::optional<Found> found = LookUp(text.substr(at, length)))
            return found;
    }
    const auto* end = std::find_if_not(text.begin() + at, text.end(), IsOfWord);
    return LookUp(text.substr(at, std::size_t(end - text.begin()) - at));
}

std::optional<LabelFinder::Found> LabelFinder::LookUp(std::string_view word) const {
    const std::string label(word);
    if (const auto found = spelt_.find(label); found != spelt_.end())
        return Found{word.size(), &found->second, true};
    if (const auto found = folded_.find(ToUpper(label)); found != folded_.end())
        return Found{word.size(), &found->second, false};
    return std::nullopt;
}

} // namespace orvane::find
