// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/XmlText.h"

#include "text/AnsiText.h"
#include "text/ByteOf.h"

namespace orvane {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

void Append(std::string& xml, char character) {
    switch (character) {
    case '&':
        xml += "&amp;";
        break;
    case '<':
        xml += "&lt;";
        break;
    case '>':
        xml += "&gt;";
        break;
    case '"':
        xml += "&quot;";
        break;
    case '\'':
        xml += "&#39;";
        break;
    case '\n':
    case '\t':
        xml += character;
        break;
    default:
        if (ByteOf(character) < 0x20)
            xml += kReplacement;
        else
            xml += character;
    }
}

} // namespace

std::string XmlTextOfUtf8(std::string_view utf8) {
    std::string xml;
    xml.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const bool isLineEnd = utf8[i] == '\r';
        if (isLineEnd && i + 1 < utf8.size() && utf8[i + 1] == '\n')
            continue;
        Append(xml, isLineEnd ? '\n' : utf8[i]);
    }
    return xml;
}

std::string XmlText(std::string_view ansi) { return XmlTextOfUtf8(ToUtf8(ansi)); }

} // namespace orvane
