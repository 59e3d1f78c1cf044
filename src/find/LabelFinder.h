// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/ExpressionMatcher.h"
#include "find/LiteralSearch.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orvane::find {

// Looks for many labels in one pass over a text: all begin with the same prefix, so that only where that
// stands there is something to look up.
class LabelFinder {
  public:
    using Changes = std::vector<std::pair<std::string, std::string>>;

    // An empty prefix has no labels: there is no program then.
    LabelFinder(const std::string& prefix, const Changes& labels);

    // Calls visit(span, after, spelt) for each label that stands as a whole, `after` being what it becomes
    // and `spelt` whether it has the same capitals.
    template <typename Visit>
    void Each(std::string_view text, Visit visit) const {
        if (!prefix_)
            return;
        std::size_t at = 0;
        while ((at = prefix_->Next(text, at)) != std::string_view::npos) {
            const std::optional<Found> found = LabelAt(text, at);
            if (found)
                visit(Span{at, at + found->Length}, *found->After, found->IsSpeltSo);
            at += found ? found->Length : 1;
        }
    }

  private:
    struct Found {
        std::size_t Length;
        const std::string* After;
        bool IsSpeltSo;
    };

    std::optional<Found> LabelAt(std::string_view text, std::size_t at) const;
    std::optional<Found> LookUp(std::string_view word) const;

    std::optional<LiteralSearch> prefix_;
    std::unordered_map<std::string, std::string> spelt_;
    std::unordered_map<std::string, std::string> folded_; // in capitals
    std::vector<std::size_t> oddLengths_; // of labels that are more than one word, the longest first
};

} // namespace orvane::find
