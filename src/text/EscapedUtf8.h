// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "text/AnsiText.h"
#include "text/ByteRuns.h"
#include "text/Utf8.h"

namespace orvane {

// The bytes of document text that something else stands for in an output: those that `isMeant` says true of,
// and all that are several bytes in UTF-8.
template <typename IsMeant>
constexpr ByteSet EscapedBytes(IsMeant isMeant) {
    return BytesThat([&](unsigned char byte) { return byte >= 0x80 || isMeant(byte); });
}

// Appends document text as UTF-8, in one pass. `escape(utf8, rest)` appends what stands for the byte that the
// rest begins with; it is asked for those of the set that are ASCII.
template <typename Escape>
void AppendEscaped(std::string& utf8, std::string_view ansi, const ByteSet& escapedBytes, Escape escape) {
    AppendReplaced(utf8, ansi, escapedBytes, [&](std::string& out, std::string_view rest) {
        if (ByteOf(rest.front()) >= 0x80)
            AppendUtf8(out, ToUnicode(rest.front()));
        else
            escape(out, rest);
    });
}

} // namespace orvane
