// SPDX-License-Identifier: GPL-3.0-or-later
// What went wrong with a file, as values and as sentences.
#pragma once

#include "files/FileSystem.h"

#include <optional>
#include <string>

namespace orvane {

// What was being done when it went wrong.
enum class FileStep {
    Find,
    AskToWrite,
    Create,
    Open,
    Read,
    Write,
    KeepRights,
    Sync,
    Close,
    Replace,
    SyncFolder
};

struct FileError {
    FileStep Step = FileStep::Find;
    std::error_code Reason;
    // Set when the file was refused for what it is: nothing was opened.
    std::optional<FileKind> Refused = std::nullopt;

    bool operator==(const FileError&) const = default;
};

// What is no file.
FileError Refusal(FileKind kind);

// In the words that all systems share, as "No space left on device": a system's own may be in another
// encoding.
std::string ReasonText(std::error_code reason);
std::string ReasonText(const FileError& error);

// What the user should know and can do, without the stop: "The disk is full. Make room on it, or ...".
std::string Sentence(const FileError& error);

// What was done all the same, and what came out otherwise than it was.
enum class FileNote {
    OtherNames, // the file had other names (hard links), which keep the old bytes
    Owner,      // the file belongs to another user now
    Group,      // ... to another group, and whoever is in that has the rights of everybody
    Rights,     // the permissions could not be set: only its owner may read it
    Attributes, // the access list or extended attributes are not all there
    Unsynced,   // the folder cannot be made to wait for the disk: a power failure may bring the old file back
    LeftBehind, // a temporary file could not be removed; it goes with a later save
};

std::string Sentence(FileNote note);

} // namespace orvane
