// SPDX-License-Identifier: GPL-3.0-or-later
// What other programs make of a document's bytes.
#pragma once

#include "core/DocumentReader.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// A document that an editor has saved as UTF-8, as the bytes that it should have.
struct Utf8Document {
    std::string Bytes;
    bool IsWhole = true; // false: some characters were none that a document can hold, and are "?" now
};

// None for bytes that do not begin as a document in UTF-8 does, or are not UTF-8 up to their end.
std::optional<Utf8Document> ReadAsUtf8(std::string_view bytes);

// The lines, from 1, that a version control system has put around what two people have changed.
std::vector<std::size_t> ConflictMarkers(std::string_view bytes);

// What there is to tell of both where nobody can be asked. Nothing stops for it: the document is read as it
// stands.
std::vector<ReaderMessage> ForeignMessages(std::string_view bytes);

} // namespace orvane
