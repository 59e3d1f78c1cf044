// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/JsonReport.h"

#include "cli/MessageText.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::cli {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

bool IsTail(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// The number of bytes of the character at the front of a non-empty text, 0 when it is malformed.
std::size_t CharacterLength(std::string_view utf8) {
    const auto at = [utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    if (at(0) < 0x80)
        return 1;
    const std::size_t length = at(0) >= 0xF0 ? 4 : at(0) >= 0xE0 ? 3 : 2;
    if (at(0) < 0xC2 || at(0) > 0xF4 || utf8.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsTail(utf8[i]))
            return 0;
    }
    const bool overlong = (at(0) == 0xE0 && at(1) < 0xA0) || (at(0) == 0xF0 && at(1) < 0x90);
    const bool surrogate = at(0) == 0xED && at(1) >= 0xA0;
    const bool tooLarge = at(0) == 0xF4 && at(1) >= 0x90;
    return overlong || surrogate || tooLarge ? 0 : length;
}

void AppendAscii(std::string& json, char character) {
    constexpr std::string_view digits = "0123456789abcdef";
    const auto code = static_cast<unsigned char>(character);
    if (character == '\n') {
        json += "\\n";
    } else if (character == '\t') {
        json += "\\t";
    } else if (code < 0x20 || code == 0x7F) {
        json.append("\\u00") += digits[code >> 4];
        json += digits[code & 0xF];
    } else {
        if (character == '"' || character == '\\')
            json += '\\';
        json += character;
    }
}

std::string NumberOrNull(std::int64_t number) { return number == 0 ? "null" : NumberText(number); }

std::string FindingObject(const Finding& finding, const FsmDocument& document) {
    const std::string stateName = finding.Place.State == kNoState
                                      ? "null"
                                      : JsonString(ToUtf8(document.State(finding.Place.State).Name));
    return "{\"severity\":" + JsonString(SeverityName(finding.Level())) +
           ",\"kind\":" + JsonString(KindName(finding.Kind)) +
           ",\"state\":" + NumberOrNull(finding.Place.State.Number()) + ",\"stateName\":" + stateName +
           ",\"row\":" + NumberOrNull(finding.Place.Row.Number()) +
           ",\"message\":" + JsonString(StreamText(finding.Message)) + "}";
}

std::string MessageObject(const ReaderMessage& message) {
    return "{\"line\":" + NumberOrNull(static_cast<std::int64_t>(message.Line)) +
           ",\"message\":" + JsonString(ShownMessage(message)) + "}";
}

template <typename Item, typename Object>
std::string Array(const std::vector<Item>& items, Object object) {
    std::string array = "[";
    for (const Item& item : items)
        array.append(array.size() > 1 ? "," : "").append(object(item));
    return array + "]";
}

} // namespace

std::string JsonString(std::string_view utf8) {
    std::string json = "\"";
    while (!utf8.empty()) {
        const std::size_t length = CharacterLength(utf8);
        if (length == 1)
            AppendAscii(json, utf8.front());
        else
            json.append(length == 0 ? kReplacement : utf8.substr(0, length));
        utf8.remove_prefix(length == 0 ? 1 : length);
    }
    return json + "\"";
}

std::string JsonLine(const CheckedDocument& checked) {
    const auto count = [&](Severity severity) {
        return NumberText(static_cast<std::int64_t>(checked.Findings.Count(severity)));
    };
    const auto finding = [&](const Finding& item) { return FindingObject(item, checked.Document); };
    return "{\"path\":" + JsonString(checked.Path) +
           ",\"complete\":" + (checked.Complete ? "true" : "false") +
           ",\"counts\":{\"notes\":" + count(Severity::Note) + ",\"warnings\":" + count(Severity::Warning) +
           ",\"errors\":" + count(Severity::Error) +
           "},\"findings\":" + Array(checked.Findings.Findings, finding) +
           ",\"messages\":" + Array(checked.Messages, MessageObject) + "}\n";
}

} // namespace orvane::cli
