// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Utf8.h"

#include "text/ByteOf.h"

#include <array>
#include <cstddef>

namespace orvane {

namespace {

constexpr std::size_t kTailBits = 6;

bool IsTail(char byte) { return (ByteOf(byte) & 0xC0) == 0x80; }

// How many bytes follow a leading one.
std::size_t TailsOf(unsigned lead) { return lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0x80 ? 1 : 0; }

bool IsCharacter(char32_t code, std::size_t tails) {
    constexpr std::array<char32_t, 4> smallest = {0, 0x80, 0x800, 0x10000};
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code >= smallest[tails] && code <= 0x10FFFF && !surrogate;
}

} // namespace

std::optional<char32_t> TakeCharacter(std::string_view& utf8) {
    const unsigned lead = ByteOf(utf8.front());
    const std::size_t tails = TailsOf(lead);
    utf8.remove_prefix(1);
    if ((lead >= 0x80 && lead < 0xC0) || lead >= 0xF8 || utf8.size() < tails)
        return std::nullopt;
    char32_t character = tails == 0 ? lead : lead & (0x3Fu >> tails);
    for (const char byte : utf8.substr(0, tails)) {
        if (!IsTail(byte))
            return std::nullopt;
        character = character << kTailBits | (ByteOf(byte) & 0x3F);
    }
    if (!IsCharacter(character, tails))
        return std::nullopt;
    utf8.remove_prefix(tails);
    return character;
}

void AppendUtf8(std::string& utf8, char32_t character) {
    constexpr std::array<unsigned char, 4> leads = {0, 0xC0, 0xE0, 0xF0};
    const std::size_t tails = character < 0x80 ? 0 : character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    std::size_t shift = tails * kTailBits;
    utf8 += static_cast<char>(leads[tails] | character >> shift);
    while (shift != 0) {
        shift -= kTailBits;
        utf8 += static_cast<char>(0x80 | (character >> shift & 0x3F));
    }
}

std::size_t CharacterLength(std::string_view utf8) {
    const std::size_t before = utf8.size();
    return TakeCharacter(utf8) ? before - utf8.size() : 0;
}

std::size_t SoundLength(std::string_view utf8) {
    std::size_t length = 0;
    while (length < utf8.size()) {
        const std::size_t character = CharacterLength(utf8.substr(length));
        if (character == 0)
            break;
        length += character;
    }
    return length;
}

std::string ValidUtf8(std::string_view utf8) {
    std::string valid;
    while (true) {
        const std::size_t sound = SoundLength(utf8);
        valid.append(utf8.substr(0, sound));
        if (sound == utf8.size())
            return valid;
        valid += "\xEF\xBF\xBD";
        utf8.remove_prefix(sound + 1);
    }
}

} // namespace orvane
