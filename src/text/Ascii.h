// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// The letters A to Z in one case or the other; every other byte stays as it is, so that the result does not
// depend on a code page or a locale. Texts of a document have more letters than these: see ToUpper in
// text/AnsiText.h.
constexpr char AsciiUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
constexpr char AsciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
std::string AsciiUpper(std::string_view text);
std::string AsciiLower(std::string_view text);

constexpr bool IsAsciiDigit(char c) { return c >= '0' && c <= '9'; }

} // namespace orvane
