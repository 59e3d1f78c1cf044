// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/WorkRow.h"

#include <string_view>

namespace orvane {

namespace {

using std::chrono::days;
using std::chrono::sys_days;

std::string TwoDigits(unsigned number) {
    return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

// In a form that nobody reads as another day.
std::string DateText(const std::chrono::year_month_day& day) {
    return std::to_string(int(day.year())) + "-" + TwoDigits(unsigned(day.month())) + "-" +
           TwoDigits(unsigned(day.day()));
}

std::string TimeText(const LocalMinute& time, const LocalMinute& now) {
    const auto age = sys_days(now.Day) - sys_days(time.Day);
    const std::string day = age == days(0) ? "today" : age == days(1) ? "yesterday" : DateText(time.Day);
    return day + " " + TwoDigits(unsigned(time.Hour)) + ":" + TwoDigits(unsigned(time.Minute));
}

std::string ChangesText(const LeftWork& work) {
    std::string text = std::to_string(work.Changes);
    if (work.OpenEditors == 1)
        text += " and an open editor";
    else if (work.OpenEditors > 1)
        text += " and " + std::to_string(work.OpenEditors) + " open editors";
    if (work.IsPartlyLost)
        text += ", not all readable";
    return text;
}

std::string_view FateText(FileFate fate) {
    switch (fate) {
    case FileFate::AsItWas:
        return "as it was";
    case FileFate::ChangedSince:
        return "changed since";
    case FileFate::SavedHere:
        return "saved already";
    case FileFate::Gone:
        return "gone";
    case FileFate::Unreadable:
        return "cannot be read";
    case FileFate::NeverSaved:
        break;
    }
    return "never saved";
}

// A journal may come from another system, so both separators count; a folder keeps the one of a root.
struct SplitPath {
    std::string_view Folder;
    std::string_view Name;
};

SplitPath Split(std::string_view path) {
    const std::size_t end = path.find_last_of("/\\");
    if (end == std::string_view::npos)
        return {{}, path};
    const bool isRoot = end == 0 || path[end - 1] == ':';
    return {path.substr(0, isRoot ? end + 1 : end), path.substr(end + 1)};
}

} // namespace

WorkRow RowOf(const LeftWork& work, const LocalMinute& now) {
    const SplitPath path = Split(work.Path);
    return {.Document = work.Path.empty() ? "[Untitled]" : std::string(path.Name),
            .Folder = std::string(path.Folder),
            .LastChange = TimeText(work.LastChange, now),
            .Changes = ChangesText(work),
            .File = std::string(FateText(work.File))};
}

} // namespace orvane
