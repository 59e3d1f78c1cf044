// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/TextFitting.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::size_t kFirstTrial = 32; // characters; more than most columns hold

} // namespace

std::string FitTextToColumn(std::string_view text, Twips columnWidth, const TextMeasurer& measure) {
    const auto fits = [&](std::size_t length) {
        return measure(text.substr(0, length)) + kColumnMargin < columnWidth;
    };
    std::size_t shortest = 0; // of the beginnings, one that fits or none at all
    std::size_t longest = std::min(kFirstTrial, text.size());
    while (fits(longest)) {
        if (longest == text.size())
            return std::string(text);
        shortest = longest;
        longest = std::min(2 * longest, text.size());
    }
    while (shortest + 1 < longest) {
        const std::size_t middle = shortest + (longest - shortest) / 2;
        (fits(middle) ? shortest : longest) = middle;
    }
    return shortest == 0 ? std::string() : std::string(text.substr(0, shortest)) + "..";
}

} // namespace orvane
