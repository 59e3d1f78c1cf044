// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/XmlText.h"

#include "text/EscapedUtf8.h"

namespace orvane {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

constexpr bool IsSpecialInXml(unsigned char byte) {
    const bool isMarkup = std::string_view("&<>\"'").find(static_cast<char>(byte)) != std::string_view::npos;
    return isMarkup || (byte < 0x20 && byte != '\n' && byte != '\t');
}

std::string_view EntityOf(char character) {
    switch (character) {
    case '&':
        return "&amp;";
    case '<':
        return "&lt;";
    case '>':
        return "&gt;";
    case '"':
        return "&quot;";
    case '\'':
        return "&#39;";
    case '\r':
        return "\n";
    default:
        return kReplacement;
    }
}

void AppendEntity(std::string& xml, std::string_view rest) {
    if (!rest.starts_with("\r\n"))
        xml += EntityOf(rest.front());
}

} // namespace

std::string XmlTextOfUtf8(std::string_view utf8) {
    static constexpr ByteSet special = BytesThat(IsSpecialInXml);
    std::string xml;
    AppendReplaced(xml, ValidUtf8(utf8), special, AppendEntity);
    return xml;
}

std::string XmlText(std::string_view ansi) {
    std::string xml;
    AppendXmlText(xml, ansi);
    return xml;
}

void AppendXmlText(std::string& xml, std::string_view ansi) {
    static constexpr ByteSet special = EscapedBytes(IsSpecialInXml);
    AppendEscaped(xml, ansi, special, AppendEntity);
}

} // namespace orvane
