// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/NumberText.h"

#include "text/Ascii.h"

#include <array>
#include <charconv>
#include <limits>

namespace orvane {

std::int64_t ParseNumber(std::string_view text) {
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end && (*at == ' ' || *at == '\t'))
        ++at;
    const bool negative = at != end && *at == '-';
    if (negative || (at != end && *at == '+'))
        ++at;
    constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
    std::uint64_t magnitude = 0;
    for (; at != end && IsAsciiDigit(*at) && magnitude <= largest / 10; ++at)
        magnitude = magnitude * 10 + std::uint64_t(*at - '0');
    if (magnitude > largest || (at != end && IsAsciiDigit(*at)))
        return negative ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
    return negative ? -std::int64_t(magnitude) : std::int64_t(magnitude);
}

std::string NumberText(std::int64_t number) { return std::to_string(number); }

void AppendNumber(std::string& text, std::int64_t number) {
    std::array<char, std::numeric_limits<std::int64_t>::digits10 + 2> digits{}; // and a sign
    const auto result = std::to_chars(digits.begin(), digits.end(), number);
    text.append(digits.begin(), result.ptr);
}

std::string HexText(unsigned number) {
    std::array<char, 8> digits{};
    const auto result = std::to_chars(digits.begin(), digits.end(), number, 16);
    return AsciiUpper(std::string_view(digits.begin(), result.ptr));
}

std::string SignedNumberText(std::int64_t number) {
    return number < 0 ? NumberText(number) : " " + NumberText(number);
}

} // namespace orvane
