// SPDX-License-Identifier: GPL-3.0-or-later
// Work that a window has left behind, as the list of it says it.
#pragma once

#include "recovery/FileFate.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

namespace orvane {

// As the user's clock and calendar show it.
struct LocalMinute {
    std::chrono::year_month_day Day = {};
    int Hour = 0;   // 0..23
    int Minute = 0; // 0..59
};

struct LeftWork {
    std::string Path = {}; // of the document, full, UTF-8; empty when it has no file
    LocalMinute LastChange = {};
    std::uint64_t Changes = 0;   // that were not saved
    std::size_t OpenEditors = 0; // with something typed in them
    bool IsPartlyLost = false;   // some of it cannot be read any more
    FileFate File = FileFate::NeverSaved;
};

// UTF-8.
struct WorkRow {
    std::string Document;
    std::string Folder;
    std::string LastChange;
    std::string Changes;
    std::string File;

    bool operator==(const WorkRow&) const = default;
};

WorkRow RowOf(const LeftWork& work, const LocalMinute& now);

} // namespace orvane
