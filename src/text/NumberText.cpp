// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/NumberText.h"

#include "text/Ascii.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace orvane {

std::int64_t ParseNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    std::uint64_t digits = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), digits);
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (result.ec == std::errc::result_out_of_range || digits > largest)
        return negative ? std::numeric_limits<std::int64_t>::min() : std::numeric_limits<std::int64_t>::max();
    const auto magnitude = static_cast<std::int64_t>(digits);
    return negative ? -magnitude : magnitude;
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
