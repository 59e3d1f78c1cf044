// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace orvane {

// Takes the first character off the front of a text that is not empty. Malformed bytes are taken one at a
// time and give none: what is cut off, longer than needed, half of a surrogate pair, or beyond U+10FFFF.
std::optional<char32_t> TakeCharacter(std::string_view& utf8);

// The character must be one that TakeCharacter can give.
void AppendUtf8(std::string& utf8, char32_t character);

// The number of bytes of the character at the front of a non-empty text, 0 when it is malformed.
std::size_t CharacterLength(std::string_view utf8);

// How many bytes from the front on are sound; all of them when the text is UTF-8.
std::size_t SoundLength(std::string_view utf8);

// The text with U+FFFD in place of each malformed byte.
std::string ValidUtf8(std::string_view utf8);

} // namespace orvane
