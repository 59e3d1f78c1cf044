// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/TextIds.h"

#include "text/AnsiText.h"

#include <algorithm>
#include <iterator>

namespace orvane::review {

namespace {

std::size_t IndexOf(int id) { return std::size_t(id) - 1; }

} // namespace

int TextIds::Of(std::string_view text) {
    if (text.empty())
        return kNoText;
    const auto [known, isNew] = ids_.try_emplace(text, int(texts_.size()) + 1);
    if (isNew)
        texts_.push_back(text);
    return known->second;
}

double TextIds::Likeness(int one, int other) {
    if (one == other)
        return 1;
    if (one == kNoText || other == kNoText)
        return 0;
    const std::vector<int> lines = LinesOf(one); // asking for the other ones may move these
    const std::vector<int>& others = LinesOf(other);
    std::vector<int> common;
    std::set_intersection(lines.begin(), lines.end(), others.begin(), others.end(),
                          std::back_inserter(common));
    return 2.0 * double(common.size()) / double(lines.size() + others.size());
}

const std::vector<int>& TextIds::LinesOf(int id) {
    if (lines_.size() <= IndexOf(id) || lines_[IndexOf(id)].empty()) {
        std::vector<int> lines;
        std::string_view rest = texts_[IndexOf(id)];
        for (std::size_t end = rest.find(kLineEnd); end != std::string_view::npos;
             end = rest.find(kLineEnd)) {
            lines.push_back(Of(rest.substr(0, end)));
            rest.remove_prefix(end + kLineEnd.size());
        }
        lines.push_back(Of(rest));
        std::sort(lines.begin(), lines.end());
        if (lines_.size() <= IndexOf(id))
            lines_.resize(texts_.size());
        lines_[IndexOf(id)] = std::move(lines);
    }
    return lines_[IndexOf(id)];
}

} // namespace orvane::review
