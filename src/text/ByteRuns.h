// SPDX-License-Identifier: GPL-3.0-or-later
// Texts that are escaped consist of long runs that stay as they are: those are copied whole, not letter by
// letter.
#pragma once

#include "text/ByteOf.h"

#include <array>
#include <string>
#include <string_view>

namespace orvane {

// Which of all bytes are meant.
using ByteSet = std::array<bool, 256>;

// The bytes that `isMeant` says true of.
template <typename IsMeant>
constexpr ByteSet BytesThat(IsMeant isMeant) {
    ByteSet set{};
    for (unsigned byte = 0; byte < set.size(); ++byte)
        set[byte] = isMeant(static_cast<unsigned char>(byte));
    return set;
}

constexpr bool Has(const ByteSet& set, char byte) { return set[ByteOf(byte)]; }

// How many bytes stand in front of the first one of the set; all of them when there is none.
inline std::size_t RunBefore(const ByteSet& set, std::string_view text) {
    std::size_t length = 0;
    while (length < text.size() && !Has(set, text[length]))
        ++length;
    return length;
}

// Appends the text; where a byte of the set stands, `write(out, rest)` appends what goes in its place. The
// rest begins with that byte.
template <typename Write>
void AppendReplaced(std::string& out, std::string_view text, const ByteSet& set, Write write) {
    out.reserve(out.size() + text.size());
    while (true) {
        const std::size_t run = RunBefore(set, text);
        out.append(text.substr(0, run));
        if (run == text.size())
            return;
        text.remove_prefix(run);
        write(out, text);
        text.remove_prefix(1);
    }
}

} // namespace orvane
