// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/MessageText.h"

#include "text/AnsiText.h"
#include "text/ByteOf.h"
#include "text/NumberText.h"

namespace orvane::cli {

namespace {

void AppendEscaped(std::string& shown, char byte) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto code = ByteOf(byte);
    shown += "\\x";
    shown += digits[code >> 4];
    shown += digits[code & 0xF];
}

bool IsControl(char32_t character) { return character < 0x20 || (character >= 0x7F && character < 0xA0); }

} // namespace

std::string ShownName(std::string_view name) {
    std::string shown;
    for (const char byte : name) {
        const auto code = ByteOf(byte);
        if (code < 0x80 && IsControl(code)) // bytes above are parts of UTF-8 characters
            AppendEscaped(shown, byte);
        else
            shown += byte;
    }
    return shown;
}

std::string ShownMessage(const ReaderMessage& message) {
    std::string shown;
    for (const char byte : message.Text) {
        if (IsControl(ToUnicode(byte)))
            AppendEscaped(shown, byte);
        else
            shown += ToUtf8({&byte, 1});
    }
    return shown;
}

std::string MessageLine(std::string_view document, const ReaderMessage& message) {
    const std::string line = message.Line == 0 ? "" : ":" + NumberText(message.Line);
    return ShownName(document) + line + ": " + ShownMessage(message) + "\n";
}

std::string FailureLine(std::string_view document, std::string_view what, std::string_view reason) {
    const std::string why = reason.empty() ? "" : " (" + std::string(reason) + ")";
    return "orvanec: " + ShownName(document) + ": " + std::string(what) + why + "\n";
}

std::string StreamText(std::string_view ansi) {
    std::string text = ToUtf8(ansi);
    for (std::size_t at = text.find(kLineEnd); at != std::string::npos; at = text.find(kLineEnd, at + 1))
        text.erase(at, 1);
    return text;
}

} // namespace orvane::cli
