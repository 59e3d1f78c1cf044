// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane {

// How one text became another: what they have in common at both ends, and what stands between in the new one.
// An edit of a document changes one place, so this is nearly as short as a difference can be, and finding it
// is two comparisons of memory.
struct TextDelta {
    std::size_t Prefix = 0;  // bytes
    std::size_t Suffix = 0;  // bytes; the two ends do not overlap in either text
    std::string_view Middle; // lives where the new text lives

    bool operator==(const TextDelta&) const = default;

    // Whether a text of that size can be changed so, and the size that it has then.
    bool Fits(std::size_t size) const { return Prefix <= size && Suffix <= size - Prefix; }
    std::size_t NewSize() const { return Prefix + Middle.size() + Suffix; }
};

TextDelta Difference(std::string_view before, std::string_view after);

// The delta must fit the text.
void Apply(const TextDelta& delta, std::string& text);

} // namespace orvane
