// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/JsonString.h"

#include "text/EscapedUtf8.h"

namespace orvane {

namespace {

constexpr bool IsSpecialInJson(unsigned char byte) {
    return byte < 0x20 || byte == 0x7F || byte == '"' || byte == '\\';
}

void AppendEscape(std::string& json, std::string_view rest) {
    constexpr std::string_view digits = "0123456789abcdef";
    const char character = rest.front();
    const auto code = ByteOf(character);
    if (character == '\n')
        json += "\\n";
    else if (character == '\r')
        json += "\\r";
    else if (character == '\t')
        json += "\\t";
    else if (character == '"' || character == '\\')
        (json += '\\') += character;
    else
        ((json += "\\u00") += digits[code >> 4]) += digits[code & 0xF];
}

} // namespace

std::string JsonString(std::string_view utf8) {
    static constexpr ByteSet special = BytesThat(IsSpecialInJson);
    std::string json = "\"";
    AppendReplaced(json, ValidUtf8(utf8), special, AppendEscape);
    return json += '"';
}

std::string JsonStringOfAnsi(std::string_view ansi) {
    std::string json;
    AppendJsonStringOfAnsi(json, ansi);
    return json;
}

void AppendJsonStringOfAnsi(std::string& json, std::string_view ansi) {
    static constexpr ByteSet special = EscapedBytes(IsSpecialInJson);
    json += '"';
    AppendEscaped(json, ansi, special, AppendEscape);
    json += '"';
}

} // namespace orvane
