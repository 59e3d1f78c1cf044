// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/Titles.h"

#include "core/StateLabel.h"
#include "text/AnsiText.h"
#include "text/ByteOf.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>

namespace orvane::review {

namespace {

constexpr std::array kCodeTags = {tag::kCodeSeg, tag::kHeaderComment, tag::kInitSeg, tag::kNvEm0Data,
                                  tag::kTestSeg, tag::kCode,          tag::kEntry,   tag::kExit,
                                  tag::kAction,  tag::kTimingVar};

bool IsControl(char32_t character) { return character < 0x20 || (character >= 0x7F && character < 0xA0); }

std::string Shown(std::string_view documentText, bool withTabs) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string shown;
    for (const char byte : documentText) {
        if (!IsControl(ToUnicode(byte)) || (withTabs && byte == '\t')) {
            shown += ToUtf8({&byte, 1});
            continue;
        }
        shown += "\\x";
        shown += digits[ByteOf(byte) >> 4];
        shown += digits[ByteOf(byte) & 0xF];
    }
    return shown;
}

struct ValueTexts {
    const FsmDocument& Document;

    std::string operator()(const std::string& text) const { return text.empty() ? "empty" : OneLine(text); }
    std::string operator()(bool mark) const { return mark ? "yes" : "no"; }
    std::string operator()(std::int32_t number) const { return NumberText(number); }
    std::string operator()(Twips length) const { return NumberText(length.Count()); }
    std::string operator()(StateNumber target) const { return StateTitle(Document, target); }
};

} // namespace

std::string OneLine(std::string_view documentText) { return Shown(documentText, false); }

std::string CodeLine(std::string_view documentText) { return Shown(documentText, true); }

std::string NumberedTitle(int number, std::string_view name) {
    return Trim(name).empty() ? NumberText(number) : OneLine(StateLabel(number, name));
}

std::string StateTitle(const FsmDocument& document, StateNumber state) {
    return state == kNoState ? "none" : NumberedTitle(state.Number(), document.State(state).Name);
}

std::string EventTitle(const FsmDocument& document, RowNumber row) {
    return NumberedTitle(row.Number(), document.Event(row).Name);
}

std::string RowTitle(const FsmDocument& document, RowNumber row) {
    if (row == kTimeoutRow)
        return "Timeout";
    if (row == kElseRow)
        return "ELSE";
    const std::string_view name = Trim(document.Event(row).Name);
    return name.empty() ? "row " + NumberText(row.Number()) : OneLine(name);
}

std::string ValueTitle(const FsmDocument& document, const FieldValue& value) {
    return std::visit(ValueTexts{document}, value);
}

bool IsCode(std::string_view tag) {
    return std::find(kCodeTags.begin(), kCodeTags.end(), tag) != kCodeTags.end();
}

} // namespace orvane::review
