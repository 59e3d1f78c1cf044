// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/JsonValue.h"

#include "export/ImportFault.h"
#include "text/Ascii.h"
#include "text/ByteOf.h"
#include "text/Utf8.h"

namespace orvane::exports {

namespace {

class JsonParser {
  public:
    explicit JsonParser(std::string_view text) : text_(text) {
        constexpr std::string_view mark = "\xEF\xBB\xBF";
        if (text_.starts_with(mark))
            at_ = mark.size();
    }

    JsonValue Parse() {
        JsonValue value = Value(0);
        SkipBlanks();
        if (at_ < text_.size())
            Fail("Nothing may stand behind the end of the JSON text");
        return value;
    }

  private:
    [[noreturn]] void Fail(const char* why) const { throw ImportFault{why, line_}; }

    char Peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }

    void SkipBlanks() {
        while (at_ < text_.size() && std::string_view(" \t\r\n").find(text_[at_]) != std::string_view::npos)
            line_ += text_[at_++] == '\n' ? 1 : 0;
    }

    bool Take(char expected) {
        SkipBlanks();
        if (Peek() != expected)
            return false;
        ++at_;
        return true;
    }

    JsonValue Value(int depth) {
        constexpr int deepest = 64;
        if (depth > deepest)
            Fail("The JSON text is too deep");
        SkipBlanks();
        JsonValue value;
        value.Line = line_;
        if (Take('{')) {
            value.Kind = JsonValue::Type::Object;
            Members(value, depth);
        } else if (Take('[')) {
            value.Kind = JsonValue::Type::List;
            Items(value, depth);
        } else if (Take('"')) {
            value.Kind = JsonValue::Type::Text;
            value.Text = Text();
        } else {
            Word(value);
        }
        return value;
    }

    void Members(JsonValue& object, int depth) {
        if (Take('}'))
            return;
        do {
            if (!Take('"'))
                Fail("The name of a member is missing");
            std::string name = Text();
            if (!Take(':'))
                Fail("A \":\" is missing");
            object.Names.push_back(std::move(name));
            object.List.push_back(Value(depth + 1));
        } while (Take(','));
        if (!Take('}'))
            Fail("A \",\" or \"}\" is missing");
    }

    void Items(JsonValue& list, int depth) {
        if (Take(']'))
            return;
        do
            list.List.push_back(Value(depth + 1));
        while (Take(','));
        if (!Take(']'))
            Fail("A \",\" or \"]\" is missing");
    }

    std::string Text() {
        std::string text;
        for (;;) {
            if (at_ >= text_.size() || ByteOf(text_[at_]) < 0x20)
                Fail("A text is not closed");
            const char character = text_[at_++];
            if (character == '"')
                return text;
            if (character != '\\')
                text += character;
            else
                AppendEscaped(text);
        }
    }

    void AppendEscaped(std::string& text) {
        constexpr std::string_view signs = "\"\\/bfnrt";
        constexpr std::string_view meant = "\"\\/\b\f\n\r\t";
        const char sign = Peek();
        const std::size_t known = sign == '\0' ? std::string_view::npos : signs.find(sign);
        ++at_;
        if (known != std::string_view::npos)
            text += meant[known];
        else if (sign == 'u')
            AppendUtf8(text, CodePoint());
        else
            Fail("An escape is unknown");
    }

    char32_t CodePoint() {
        const char32_t unit = Hexadecimal();
        const bool isHigh = unit >= 0xD800 && unit < 0xDC00;
        if (isHigh && text_.substr(at_, 2) == "\\u") {
            at_ += 2;
            const char32_t low = Hexadecimal();
            if (low >= 0xDC00 && low < 0xE000)
                return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
        }
        if (unit >= 0xD800 && unit < 0xE000)
            Fail("Half of a surrogate pair is no character");
        return unit;
    }

    char32_t Hexadecimal() {
        char32_t number = 0;
        for (int digit = 0; digit < 4; ++digit, ++at_) {
            const std::size_t value = std::string_view("0123456789ABCDEF").find(AsciiUpper(Peek()));
            if (at_ >= text_.size() || value == std::string_view::npos)
                Fail("An escape \\u needs four hexadecimal digits");
            number = number * 16 + char32_t(value);
        }
        return number;
    }

    void Word(JsonValue& value) {
        const std::size_t begin = at_;
        while (at_ < text_.size() && (IsAsciiDigit(text_[at_]) || AsciiUpper(text_[at_]) != text_[at_] ||
                                      std::string_view("+-.E").find(text_[at_]) != std::string_view::npos))
            ++at_;
        value.Text = text_.substr(begin, at_ - begin);
        if (value.Text == "true" || value.Text == "false")
            value.Kind = JsonValue::Type::Boolean;
        else if (!value.Text.empty() && (IsAsciiDigit(value.Text.back()) && value.Text != "null"))
            value.Kind = JsonValue::Type::Number;
        else if (value.Text != "null")
            Fail("A value is missing");
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
};

} // namespace

JsonValue ParseJson(std::string_view utf8) { return JsonParser(utf8).Parse(); }

} // namespace orvane::exports
