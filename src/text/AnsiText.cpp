// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/AnsiText.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

constexpr unsigned char kFirstSpecial = 0x80;
constexpr unsigned char kLastSpecial = 0x9F;

// Bytes 0x80..0x9F; all others are the character of the same number.
constexpr std::array<char16_t, 32> kSpecials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& utf8, char32_t character) {
    const auto tail = [character](int shift) {
        return static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    };
    if (character < 0x80) {
        utf8 += static_cast<char>(character);
    } else if (character < 0x800) {
        utf8 += static_cast<char>(0xC0 | (character >> 6));
        utf8 += tail(0);
    } else {
        utf8 += static_cast<char>(0xE0 | (character >> 12));
        utf8 += tail(6);
        utf8 += tail(0);
    }
}

// The first character of a non-empty text, taken off its front; none (and one byte taken) when malformed.
std::optional<char32_t> TakeCharacter(std::string_view& utf8) {
    const auto lead = static_cast<unsigned char>(utf8.front());
    utf8.remove_prefix(1);
    if (lead < 0x80)
        return lead;
    const std::size_t tails = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead > 0xF4 || utf8.size() < tails)
        return std::nullopt;
    char32_t character = lead & (0x3Fu >> tails);
    for (const char byte : utf8.substr(0, tails)) {
        const auto tail = static_cast<unsigned char>(byte);
        if ((tail & 0xC0) != 0x80)
            return std::nullopt;
        character = (character << 6) | (tail & 0x3Fu);
    }
    constexpr std::array<char32_t, 4> smallest = {0, 0x80, 0x800, 0x10000};
    if (character < smallest[tails])
        return std::nullopt;
    utf8.remove_prefix(tails);
    return character;
}

} // namespace

char32_t ToUnicode(char ansi) {
    const auto byte = static_cast<unsigned char>(ansi);
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
    for (const char byte : ansi)
        AppendUtf8(utf8, ToUnicode(byte));
    return utf8;
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
    const auto byte = static_cast<unsigned char>(ansi);
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
