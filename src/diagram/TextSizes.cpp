// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/TextSizes.h"

#include "text/AnsiText.h"
#include "text/ByteOf.h"

#include <algorithm>

namespace orvane::diagram {

namespace {

constexpr std::string_view kDots = "...";
// No picture has room for more, and to measure a megabyte again and again takes long.
constexpr std::size_t kLongestName = 200; // bytes

bool IsControl(char character) { return ByteOf(character) < 0x20 || ByteOf(character) == 0x7F; }

std::string OnOneLine(std::string_view ansi) {
    std::string line(ansi.substr(0, kLongestName));
    std::replace_if(line.begin(), line.end(), IsControl, ' ');
    const auto bothBlank = [](char a, char b) { return a == ' ' && b == ' '; };
    line.erase(std::unique(line.begin(), line.end(), bothBlank), line.end());
    return std::string(Trim(line));
}

} // namespace

std::string FittedLine(std::string_view ansi, int width, TextRole role, const TextSizes& sizes) {
    std::string line = OnOneLine(ansi);
    if (ansi.size() <= kLongestName && sizes.Width(line, role) <= width)
        return line;
    while (!line.empty() && sizes.Width(line + std::string(kDots), role) > width)
        line.pop_back();
    return std::string(Trim(line)) + std::string(kDots);
}

} // namespace orvane::diagram
