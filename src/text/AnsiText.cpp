// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/AnsiText.h"

#include "text/ByteOf.h"
#include "text/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace orvane {

namespace {

constexpr unsigned char kFirstSpecial = 0x80;
constexpr unsigned char kLastSpecial = 0x9F;

// Bytes 0x80..0x9F; all others are the character of the same number.
constexpr std::array<char16_t, 32> kSpecials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// How many ASCII bytes stand at the front, looked for by words: most texts hold nothing else.
std::size_t AsciiRun(std::string_view text) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::size_t length = 0;
    for (std::uint64_t word = 0; length + sizeof(word) <= text.size(); length += sizeof(word)) {
        std::memcpy(&word, text.data() + length, sizeof(word));
        if ((word & highBits) != 0)
            break;
    }
    while (length < text.size() && ByteOf(text[length]) < 0x80)
        ++length;
    return length;
}

} // namespace

char32_t ToUnicode(char ansi) {
    const auto byte = ByteOf(ansi);
    return byte >= kFirstSpecial && byte <= kLastSpecial ? kSpecials[byte - kFirstSpecial] : byte;
}

std::optional<char> ToAnsi(char32_t character) {
    const auto* special = std::find(kSpecials.begin(), kSpecials.end(), character);
    if (special != kSpecials.end())
        return static_cast<char>(kFirstSpecial + (special - kSpecials.begin()));
    const bool sameNumber = character < kFirstSpecial || (character > kLastSpecial && character <= 0xFF);
    return sameNumber ? std::optional(static_cast<char>(character)) : std::nullopt;
}

std::string ToUtf8(std::string_view ansi) {
    std::string utf8;
    utf8.reserve(ansi.size());
    while (true) {
        const std::size_t run = AsciiRun(ansi);
        utf8.append(ansi.substr(0, run));
        if (run == ansi.size())
            return utf8;
        AppendUtf8(utf8, ToUnicode(ansi[run]));
        ansi.remove_prefix(run + 1);
    }
}

std::string FromUtf8(std::string_view utf8, char substitute) {
    std::string ansi;
    ansi.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::optional<char32_t> character = TakeCharacter(utf8);
        ansi += character ? ToAnsi(*character).value_or(substitute) : substitute;
    }
    return ansi;
}

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Replace(std::string_view text, char from, char to) {
    std::string replaced(text);
    std::replace(replaced.begin(), replaced.end(), from, to);
    return replaced;
}

char ToUpper(char ansi) {
    const auto byte = ByteOf(ansi);
    const bool plain = byte >= 'a' && byte <= 'z';
    const bool accented = byte >= 0xE0 && byte <= 0xFE && byte != 0xF7;
    if (plain || accented)
        return static_cast<char>(byte - 0x20);
    switch (byte) {
    case 0x9A: // s, oe and z with caron and ligature stand 0x10 above their capitals
    case 0x9C:
    case 0x9E:
        return static_cast<char>(byte - 0x10);
    case 0xFF: // y with diaeresis
        return '\x9F';
    default:
        return ansi;
    }
}

std::string ToUpper(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char c) { return ToUpper(c); });
    return upper;
}

} // namespace orvane
