// SPDX-License-Identifier: GPL-3.0-or-later
// Reads a file as a whole, for both programs: all of it or none.
#pragma once

#include "files/FileError.h"
#include "files/FileStamp.h"
#include "files/FileSystem.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

namespace orvane {

struct FileContent {
    std::string_view Bytes() const { return {Buffer.get(), Length}; }

    explicit operator bool() const { return !Failure; }

    std::unique_ptr<char[]> Buffer; // not a string, which would be filled with zeros first
    std::size_t Length = 0;
    FileStamp Stamp; // as the file was before it was read: what was changed meanwhile shows as a difference
    std::optional<FileError> Failure;
};

// Reads all bytes of a regular file. One with more than `limit` is refused unread, with
// std::errc::file_too_large, and so is what is no file, before it is opened: a pipe could keep the reader
// waiting for ever.
FileContent ReadFile(FileSystem& files, const std::filesystem::path& path, std::size_t limit);

// The same of whatever can be read to an end, a pipe or a device too, waiting for whoever writes to it.
FileContent ReadStream(FileSystem& files, const std::filesystem::path& path, std::size_t limit);

} // namespace orvane
