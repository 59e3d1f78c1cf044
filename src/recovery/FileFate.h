// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace orvane {

// What has become of a document's file since the window whose work was lost last read or wrote it.
enum class FileFate {
    AsItWas,
    ChangedSince, // somebody else has written to it
    SavedHere,    // by the window itself, which the journal no longer heard of: it has all but open editors
    Gone,
    Unreadable, // it may be as it was, nobody can tell
    NeverSaved, // the document has no file yet
};

// What the journal knows of the file.
struct FileAsKnown {
    std::uint64_t Size = 0;                // bytes
    std::int64_t Modified = 0;             // nanoseconds, as the file system says it
    std::array<std::uint8_t, 32> Sha256{}; // of its bytes

    bool operator==(const FileAsKnown&) const = default;
};

// What is seen of the file now without reading it.
struct FileMeasure {
    std::uint64_t Size = 0;
    std::int64_t Modified = 0;
};

// As far as can be told without reading the file; none when its bytes have to be compared. Another time alone
// says nothing: a copied folder, or a tool that writes the same bytes again, leaves the file as it was.
std::optional<FileFate> FateBySizeAndTime(const FileAsKnown& known, const FileMeasure& now);

FileFate FateByBytes(const FileAsKnown& known, const std::array<std::uint8_t, 32>& sha256);

} // namespace orvane
