// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// A text in UTF-8 as a string of JSON, quotes included. Malformed bytes become U+FFFD, so that the file stays
// valid.
std::string JsonString(std::string_view utf8);

// The same of document text.
std::string JsonStringOfAnsi(std::string_view ansi);
void AppendJsonStringOfAnsi(std::string& json, std::string_view ansi);

} // namespace orvane
