// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/NearestName.h"

#include "run/TestLexer.h"
#include "text/Ascii.h"

#include <algorithm>
#include <utility>

namespace orvane::run {

namespace {

constexpr std::size_t kLongestName = 200; // bytes; the way is as long as the product of two names

std::size_t Distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> beforeLast;
    std::vector<std::size_t> last(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        last[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::vector<std::size_t> row(b.size() + 1, i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t change = a[i - 1] == b[j - 1] ? 0 : 1;
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + change});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
        beforeLast = std::exchange(last, std::move(row));
    }
    return last[b.size()];
}

} // namespace

std::string NearestName(std::string_view written, const std::vector<std::string>& candidates) {
    if (written.size() > kLongestName)
        return "";
    std::string nearest;
    std::size_t least = kLongestName;
    for (const std::string& candidate : candidates) {
        if (candidate.empty() || candidate.size() > kLongestName)
            continue;
        const std::size_t distance = Distance(AsciiLower(written), AsciiLower(candidate));
        const std::size_t most = std::max<std::size_t>(1, candidate.size() / 3);
        if (distance <= most && distance < least && distance < candidate.size()) {
            nearest = candidate;
            least = distance;
        }
    }
    return nearest;
}

std::string DidYouMean(std::string_view written, const std::vector<std::string>& candidates) {
    const std::string nearest = NearestName(written, candidates);
    return nearest.empty() ? "" : "; did you mean " + Quoted(nearest) + "?";
}

} // namespace orvane::run
