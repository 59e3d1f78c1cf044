// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileSystem.h"

#include <span>
#include <string>
#include <string_view>

namespace orvane {

// A journal that is over, because a newer one holds everything of it or the user has answered for it. It is
// locked, so that nobody takes it for an orphan before it is gone.
struct RetiredJournal {
    std::string Name;
    FileHandle Lock;
    std::string KeepAs; // its name from then on; empty: it is removed

    bool operator==(const RetiredJournal& other) const { return Name == other.Name; }
};

// All of the bytes, however few the system takes at a time.
[[nodiscard]] std::error_code WriteAll(FileSystem& files, FileHandle file, std::string_view bytes);

// From where the handle stands up to the end.
Result<std::string> ReadAll(FileSystem& files, FileHandle file);

// Removes or renames them and lets them go. One that stays all the same is named by the journal that replaces
// it, which hides it and takes it along when it goes itself.
void PutAway(FileSystem& files, const FileSystem::Path& folder, std::span<const RetiredJournal> retired);

} // namespace orvane
