// SPDX-License-Identifier: GPL-3.0-or-later
// Comma-separated values as spreadsheets exchange them (RFC 4180): UTF-8 with a mark in front, by which they
// know that it is, and CR LF line ends.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::exports {

inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// A cell of document text. Line ends within it are LF.
std::string CsvCell(std::string_view ansi);

struct CsvLine {
    std::vector<std::string> Cells; // UTF-8
    std::size_t Number = 0;         // of its first line in the text, from 1
};

// The lines of a text whose cells are parted by commas, semicolons or tabs, whichever the first line has most
// of. None when a quote is not closed.
std::optional<std::vector<CsvLine>> CsvLines(std::string_view utf8);

} // namespace orvane::exports
