// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/XmlScanner.h"

#include "export/ImportFault.h"
#include "text/Ascii.h"
#include "text/ByteOf.h"
#include "text/Utf8.h"

#include <algorithm>
#include <array>

namespace orvane::exports {

namespace {

bool IsBlank(char character) {
    return character == ' ' || character == '\t' || character == '\r' || character == '\n';
}

bool IsOfName(char character) {
    const char upper = AsciiUpper(character);
    return (upper >= 'A' && upper <= 'Z') || IsAsciiDigit(character) || ByteOf(character) >= 0x80 ||
           std::string_view("_-.:").find(character) != std::string_view::npos;
}

// The number of "#65" or "#x41"; none when it is no character.
std::optional<char32_t> CharacterOf(std::string_view reference) {
    const bool isHexadecimal = reference.starts_with("#x");
    const std::string_view digits = reference.substr(isHexadecimal ? 2 : 1);
    char32_t number = 0;
    for (const char digit : digits) {
        const std::size_t value = std::string_view("0123456789ABCDEF").find(AsciiUpper(digit));
        if (value >= (isHexadecimal ? 16u : 10u) || number > 0x10FFFF)
            return std::nullopt;
        number = number * (isHexadecimal ? 16 : 10) + char32_t(value);
    }
    const bool isSurrogate = number >= 0xD800 && number < 0xE000;
    if (digits.empty() || number == 0 || number > 0x10FFFF || isSurrogate)
        return std::nullopt;
    return number;
}

} // namespace

std::string XmlTag::Attribute(std::string_view name) const {
    const auto found = std::find_if(Attributes.begin(), Attributes.end(),
                                    [&](const auto& each) { return each.first == name; });
    return found == Attributes.end() ? "" : found->second;
}

void XmlScanner::Fail(const std::string& why) const { throw ImportFault{why, line_}; }

void XmlScanner::Advance(std::size_t count) {
    const std::string_view passed = text_.substr(at_, count);
    line_ += std::size_t(std::count(passed.begin(), passed.end(), '\n'));
    at_ += passed.size();
}

void XmlScanner::SkipTo(std::string_view end) {
    const std::size_t found = text_.find(end, at_);
    if (found == std::string_view::npos)
        Fail("\"" + std::string(end) + "\" is missing");
    Advance(found + end.size() - at_);
}

void XmlScanner::SkipBlanks() {
    while (at_ < text_.size() && IsBlank(text_[at_]))
        Advance(1);
}

// Comments, instructions, sections of text, and the type of the document.
bool XmlScanner::SkipNoElement() {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kinds{
        {{"<!--", "-->"}, {"<?", "?>"}, {"<![CDATA[", "]]>"}, {"<!", ">"}}};
    for (const auto& [begin, end] : kinds) {
        if (StandsHere(begin)) {
            Advance(begin.size());
            SkipTo(end);
            return true;
        }
    }
    return false;
}

std::optional<XmlTag> XmlScanner::Next() {
    do {
        const std::size_t next = text_.find('<', at_);
        if (next == std::string_view::npos) {
            if (!open_.empty())
                Fail("The element \"" + open_.back() + "\" is not closed");
            return std::nullopt;
        }
        Advance(next - at_);
    } while (SkipNoElement());
    XmlTag tag;
    tag.Line = line_;
    Advance(1);
    tag.Closes = StandsHere("/");
    tag.Opens = !tag.Closes;
    Advance(tag.Closes ? 1 : 0);
    tag.Name = TakeName();
    for (SkipBlanks(); !StandsHere(">") && !StandsHere("/>"); SkipBlanks())
        TakeAttribute(tag);
    if (StandsHere("/"))
        tag.Closes = true;
    SkipTo(">");
    Track(tag);
    return tag;
}

std::string XmlScanner::TakeName() {
    const std::size_t begin = at_;
    while (at_ < text_.size() && IsOfName(text_[at_]))
        Advance(1);
    const std::string_view name = text_.substr(begin, at_ - begin);
    if (name.empty())
        Fail("A name is missing");
    return std::string(name.substr(name.find(':') == std::string_view::npos ? 0 : name.find(':') + 1));
}

void XmlScanner::TakeAttribute(XmlTag& tag) {
    std::string name = TakeName();
    SkipBlanks();
    if (!StandsHere("="))
        Fail("The attribute \"" + name + "\" has no value");
    Advance(1);
    SkipBlanks();
    if (!StandsHere("\"") && !StandsHere("'"))
        Fail("The value of \"" + name + "\" is not in quotes");
    const std::string_view quote = text_.substr(at_, 1);
    Advance(1);
    const std::size_t begin = at_;
    SkipTo(quote);
    tag.Attributes.emplace_back(std::move(name), Resolved(text_.substr(begin, at_ - 1 - begin)));
}

std::string XmlScanner::Resolved(std::string_view value) const {
    constexpr std::array<std::pair<std::string_view, char>, 5> entities{
        {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}}};
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        if (value[at] != '&') {
            text += value[at];
            continue;
        }
        const std::size_t end = value.find(';', at);
        if (end == std::string_view::npos)
            Fail("A \"&\" begins no entity");
        const std::string_view name = value.substr(at + 1, end - at - 1);
        const auto known = std::find_if(entities.begin(), entities.end(),
                                        [&](const auto& entity) { return entity.first == name; });
        const auto character = name.starts_with('#') ? CharacterOf(name) : std::nullopt;
        if (known == entities.end() && !character)
            Fail("The entity \"" + std::string(name) + "\" is unknown");
        AppendUtf8(text, known != entities.end() ? char32_t(known->second) : *character);
        at = end;
    }
    return text;
}

void XmlScanner::Track(const XmlTag& tag) {
    if (tag.Opens)
        open_.push_back(tag.Name);
    if (!tag.Closes)
        return;
    if (open_.empty() || open_.back() != tag.Name)
        Fail("The end of \"" + tag.Name + "\" has no begin");
    open_.pop_back();
}

} // namespace orvane::exports
