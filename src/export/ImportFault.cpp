// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/ImportFault.h"

#include "text/AnsiText.h"
#include "text/Utf8.h"

namespace orvane::exports {

std::string DocumentText(std::string_view utf8, std::size_t line) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::optional<char32_t> character = TakeCharacter(utf8);
        const std::optional<char> ansi = character ? ToAnsi(*character) : std::nullopt;
        if (!ansi)
            throw ImportFault{"A character that is not in Windows-1252 cannot stand in a document", line};
        if (*ansi == kDelimiter)
            throw ImportFault{"The character " + std::string(1, kDelimiter) + " cannot stand in a document",
                              line};
        text += *ansi;
    }
    return text;
}

} // namespace orvane::exports
