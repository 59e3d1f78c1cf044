// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Json.h"

#include <charconv>

namespace orvane::test {

class JsonParser {
  public:
    explicit JsonParser(std::string_view text) : text_(text) {}

    JsonValue ParseAll() {
        JsonValue value = ParseValue();
        SkipBlanks();
        if (at_ != text_.size())
            Fail("more text behind the value");
        return value;
    }

  private:
    using Type = JsonValue::Type;

    JsonValue ParseValue() {
        switch (Peek()) {
        case '{':
            return ParseObject();
        case '[':
            return ParseList();
        case '"':
            return Made(Type::Text, ParseText());
        default:
            return ParseWord();
        }
    }

    JsonValue ParseObject() {
        JsonValue object = Made(Type::Object, {});
        Take('{');
        while (Peek() != '}') {
            const std::string name = (SkipBlanks(), ParseText());
            Take(':');
            object.members_[name] = ParseValue();
            if (Peek() != '}')
                Take(',');
        }
        Take('}');
        return object;
    }

    JsonValue ParseList() {
        JsonValue list = Made(Type::List, {});
        Take('[');
        while (Peek() != ']') {
            list.list_.push_back(ParseValue());
            if (Peek() != ']')
                Take(',');
        }
        Take(']');
        return list;
    }

    std::string ParseText() {
        std::string text;
        Take('"');
        for (char next = Next(); next != '"'; next = Next()) {
            if (next == '\\')
                ParseEscape(text);
            else
                text += next;
        }
        return text;
    }

    void ParseEscape(std::string& text) {
        constexpr std::string_view escapes = "\"\\/bfnrt";
        constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
        const char escape = Next();
        if (escape == 'u')
            AppendUtf8(text, ParseHex());
        else if (const std::size_t place = escapes.find(escape); place != std::string_view::npos)
            text += meanings[place];
        else
            Fail("an unknown escape");
    }

    unsigned ParseHex() {
        unsigned code = 0;
        const std::string_view digits = text_.substr(at_, 4);
        const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
        if (result.ptr != digits.data() + 4)
            Fail("four hexadecimal digits expected");
        at_ += 4;
        return code;
    }

    // Surrogates do not occur in our data and come out as they are.
    static void AppendUtf8(std::string& text, unsigned code) {
        if (code < 0x80) {
            text += static_cast<char>(code);
        } else if (code < 0x800) {
            text += static_cast<char>(0xC0 | code >> 6);
            text += static_cast<char>(0x80 | (code & 0x3F));
        } else {
            text += static_cast<char>(0xE0 | code >> 12);
            text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
            text += static_cast<char>(0x80 | (code & 0x3F));
        }
    }

    JsonValue ParseWord() {
        const std::size_t end = std::min(text_.find_first_of(" \t\r\n,]}", at_), text_.size());
        const std::string word(text_.substr(at_, end - at_));
        at_ = end;
        if (word == "null")
            return {};
        if (word == "true" || word == "false")
            return Made(Type::Boolean, word);
        if (word.find_first_not_of("-+.eE0123456789") != std::string::npos || word.empty())
            Fail("a value expected");
        return Made(Type::Number, word);
    }

    static JsonValue Made(Type type, std::string text) {
        JsonValue value;
        value.type_ = type;
        value.text_ = std::move(text);
        return value;
    }

    void SkipBlanks() { at_ = std::min(text_.find_first_not_of(" \t\r\n", at_), text_.size()); }
    char Peek() {
        SkipBlanks();
        if (at_ == text_.size())
            Fail("the text ends too early");
        return text_[at_];
    }
    char Next() {
        if (at_ == text_.size())
            Fail("the text ends too early");
        return text_[at_++];
    }
    void Take(char expected) {
        if (Peek() != expected)
            Fail(std::string("\"") + expected + "\" expected");
        ++at_;
    }
    [[noreturn]] void Fail(const std::string& why) const {
        throw JsonError(why + " at byte " + std::to_string(at_));
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

JsonValue JsonValue::Parse(std::string_view text) { return JsonParser(text).ParseAll(); }

void JsonValue::Require(Type type, const char* name) const {
    if (type_ != type)
        throw JsonError("the value \"" + text_ + "\" is not " + name);
}

const std::string& JsonValue::Text() const {
    Require(Type::Text, "a text");
    return text_;
}

int JsonValue::Number() const {
    Require(Type::Number, "a number");
    int number = 0;
    const auto result = std::from_chars(text_.data(), text_.data() + text_.size(), number);
    if (result.ec != std::errc() || result.ptr != text_.data() + text_.size())
        throw JsonError("the number " + text_ + " is not whole");
    return number;
}

const std::vector<JsonValue>& JsonValue::List() const {
    Require(Type::List, "a list");
    return list_;
}

const std::map<std::string, JsonValue>& JsonValue::Members() const {
    Require(Type::Object, "an object");
    return members_;
}

const JsonValue& JsonValue::operator[](const std::string& member) const {
    const auto found = Members().find(member);
    if (found == members_.end())
        throw JsonError("there is no member " + member);
    return found->second;
}

} // namespace orvane::test
