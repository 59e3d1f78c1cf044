// SPDX-License-Identifier: GPL-3.0-or-later
// Files in and out, binary, as a whole.
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

namespace orvane::cli {

struct FileBytes {
    std::string_view Bytes() const { return {Buffer.get(), Length}; }

    std::unique_ptr<char[]> Buffer; // not a string, which would be filled with zeros first
    std::size_t Length = 0;
    std::error_code Failure;
};

// Reads a file, or anything else that can be read, to its end. One with more than `limit` bytes fails with
// std::errc::file_too_large; of a regular file nothing is read then.
FileBytes ReadWholeFile(const std::filesystem::path& path, std::size_t limit);

// What a file that was written outlives: the end of the process, or that of the machine too. The second waits
// for the disk.
enum class Durability { Flushed, Synced };

// Writes a file, all or nothing: the bytes go to a temporary file beside it that then takes its place, so
// that a failure leaves the older file whole. A link stays a link, and the file keeps its permissions. What
// is no regular file, a device or a pipe, is written to directly.
[[nodiscard]] std::error_code WriteWholeFile(const std::filesystem::path& path, std::string_view bytes,
                                             Durability durability);

} // namespace orvane::cli
