// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/TimerList.h"

#include "core/TightPacked.h"
#include "text/AnsiText.h"

#include <algorithm>
#include <functional>

namespace orvane {

namespace {

// Linear in both texts whatever they hold, so that no document can make a run last.
bool Contains(std::string_view text, std::string_view part) {
    const std::boyer_moore_searcher searcher(part.begin(), part.end());
    return std::search(text.begin(), text.end(), searcher) != text.end();
}

} // namespace

void TimerList::Add(std::string_view timerId) {
    if (timerId.empty()) {
        defaultTimerUsed_ = true;
        return;
    }
    const std::string entry = std::string(timerId) + kDelimiter;
    if (!Contains(list_, entry))
        list_ += entry;
}

std::vector<std::string> TimerList::Ids() const {
    std::vector<std::string> ids;
    std::string_view rest = list_;
    while (!rest.empty() && rest != std::string_view(&kDelimiter, 1))
        ids.emplace_back(TakeStringField(rest));
    return ids;
}

} // namespace orvane
