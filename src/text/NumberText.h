// SPDX-License-Identifier: GPL-3.0-or-later
// Whole numbers as text, independent of the locale.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

// Reads blanks, a sign and digits, up to the first other character; no digits give 0. A number beyond 64 bits
// gives the nearest 64-bit number, which no field takes.
std::int64_t ParseNumber(std::string_view text);

// Decimal text without blanks, a sign only for negative numbers.
std::string NumberText(std::int64_t number);
void AppendNumber(std::string& text, std::int64_t number);

// Upper-case hexadecimal text without leading zeros: 0, 1, ..., 9, A, B, ...
std::string HexText(unsigned number);

// A count as the report writes it: a leading blank in the place of the sign, then the digits.
std::string SignedNumberText(std::int64_t number);

} // namespace orvane
