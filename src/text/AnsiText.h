// SPDX-License-Identifier: GPL-3.0-or-later
// Document text: one byte a character in Windows-1252, line ends CR LF. The table of the code page is the one
// that https://encoding.spec.whatwg.org/index-windows-1252.txt publishes: the five bytes that the vendor
// leaves undefined (81, 8D, 8F, 90, 9D) stand for the control characters of the same number, so that every
// byte survives the way to Unicode and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

// Ends every text field in documents and in their images. A text cannot hold it.
inline constexpr char kDelimiter = '\xA4';
inline constexpr std::string_view kLineEnd = "\r\n";

// The character of a document byte, U+0000..U+2122.
char32_t ToUnicode(char ansi);

// The byte of a character, or none when Windows-1252 does not have it.
std::optional<char> ToAnsi(char32_t character);

// Document text as UTF-8; never fails.
std::string ToUtf8(std::string_view ansi);

// UTF-8 as document text. Characters outside Windows-1252 and malformed bytes become `substitute`.
std::string FromUtf8(std::string_view utf8, char substitute);

// Takes blanks (0x20) away at both ends, nothing else.
std::string_view Trim(std::string_view text);

// The text with every tab character replaced by one blank, and so on.
std::string Replace(std::string_view text, char from, char to);

// A to Z for a to z and the code page's accented letters likewise. The letters without a capital in the code
// page (0x83, 0xAA, 0xB5, 0xBA, 0xDF) stay.
char ToUpper(char ansi);
std::string ToUpper(std::string_view text);

} // namespace orvane
