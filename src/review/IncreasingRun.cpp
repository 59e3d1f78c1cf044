// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/IncreasingRun.h"

#include <algorithm>
#include <optional>

namespace orvane::review {

std::vector<bool> LongestIncreasingRun(std::span<const int> numbers) {
    std::vector<std::size_t> ends; // by length - 1: where the run of that length with the smallest end ends
    std::vector<std::optional<std::size_t>> before(numbers.size());
    for (std::size_t at = 0; at < numbers.size(); ++at) {
        const auto place =
            std::lower_bound(ends.begin(), ends.end(), numbers[at],
                             [&](std::size_t end, int number) { return numbers[end] < number; });
        if (place != ends.begin())
            before[at] = *(place - 1);
        if (place == ends.end())
            ends.push_back(at);
        else
            *place = at;
    }
    std::vector<bool> belongs(numbers.size());
    std::optional<std::size_t> at = ends.empty() ? std::nullopt : std::optional(ends.back());
    for (; at; at = before[*at])
        belongs[*at] = true;
    return belongs;
}

} // namespace orvane::review
