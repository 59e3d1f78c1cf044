// SPDX-License-Identifier: GPL-3.0-or-later
// The recovery folder of the user who runs the program.
#pragma once

#include "files/FileSystem.h"
#include "session/JournalRecord.h"

#include <optional>
#include <string_view>

namespace orvane {

JournalTime TimeNow();

// Full; it need not be there yet. None when the environment names no place for it.
std::optional<FileSystem::Path> UserRecoveryFolder();

// Keeps the bytes of a file that is about to be replaced, and waits for the disk. Gives the path of the copy.
Result<FileSystem::Path> KeepForUser(FileSystem& files, const FileSystem::Path& replaced,
                                     std::string_view bytes);

} // namespace orvane
