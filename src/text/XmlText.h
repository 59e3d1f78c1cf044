// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// Document text as the content of an element, or of an attribute in quotes, of an XML or HTML file in UTF-8.
// Line ends are LF. The control characters that no such file may hold become U+FFFD.
std::string XmlText(std::string_view ansi);
void AppendXmlText(std::string& xml, std::string_view ansi);

// The same of UTF-8. Malformed bytes become U+FFFD.
std::string XmlTextOfUtf8(std::string_view utf8);

} // namespace orvane
