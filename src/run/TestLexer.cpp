// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestLexer.h"

#include "text/ByteOf.h"
#include "text/Utf8.h"

#include <algorithm>
#include <array>

namespace orvane::run {

namespace {

constexpr std::string_view kSymbols = "+=>(),";

bool IsBlank(char byte) { return byte == ' ' || byte == '\t'; }
bool EndsWord(char byte) {
    return IsBlank(byte) || byte == ';' || byte == '"' || kSymbols.find(byte) != std::string_view::npos;
}
bool IsTail(char byte) { return (ByteOf(byte) & 0xC0) == 0x80; }

std::string_view WithoutBlanksAtTheEnd(std::string_view text) {
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

// "3:" and "e6:", in front of a quoted name.
bool IsNumberPart(std::string_view word) {
    if (word.starts_with('e'))
        word.remove_prefix(1);
    if (word.size() < 2 || word.back() != ':')
        return false;
    return word.find_first_not_of("0123456789") == word.size() - 1;
}

class LineLexer {
  public:
    LineLexer(std::string_view line, std::size_t begin, std::size_t number)
        : line_(line), begin_(begin), number_(number) {}

    LexedLine Run() {
        CheckEncoding();
        while (!lexed_.Slip && Next()) {
            if (lexed_.Tokens.front().Text == "test" && lexed_.Tokens.front().Kind == TokenKind::Word)
                SkipFreeText();
        }
        const std::size_t from = lexed_.Tokens.empty() ? 0 : lexed_.Tokens.front().Where.End - begin_;
        std::string_view rest = line_.substr(from, std::max(from, comment_.value_or(line_.size())) - from);
        while (!rest.empty() && IsBlank(rest.front()))
            rest.remove_prefix(1);
        lexed_.Rest = WithoutBlanksAtTheEnd(rest);
        return std::move(lexed_);
    }

  private:
    void CheckEncoding() {
        const std::size_t sound = SoundLength(line_);
        if (sound == line_.size())
            return;
        while (at_ < sound)
            Advance();
        SlipAt(Here(), "here is a byte that is not UTF-8; save the file in that encoding");
    }

    bool Next() {
        while (at_ < line_.size() && IsBlank(line_[at_]))
            Advance();
        if (at_ == line_.size())
            return false;
        if (line_[at_] == ';')
            return TakeComment();
        if (line_[at_] == '"')
            return TakeQuoted({});
        if (kSymbols.find(line_[at_]) != std::string_view::npos)
            return TakeSymbol();
        return TakeWord();
    }

    // What a test is called is text to the end of the line; quotes and signs mean nothing in it.
    void SkipFreeText() {
        while (at_ < line_.size() && line_[at_] != ';')
            Advance();
    }

    bool TakeComment() {
        comment_ = at_;
        lexed_.Comment = WithoutBlanksAtTheEnd(line_.substr(at_ + 1));
        return false;
    }

    bool TakeSymbol() {
        const std::size_t length = line_.substr(at_).starts_with("=>") ? 2 : 1;
        if (line_[at_] == '>')
            return SlipAt(Here(), "\">\" stands alone; an arrow is \"=>\"");
        Token token = Begin(TokenKind::Symbol);
        token.Text = line_.substr(at_, length);
        for (std::size_t i = 0; i < length; ++i)
            Advance();
        return Put(std::move(token));
    }

    bool TakeWord() {
        Token token = Begin(TokenKind::Word);
        const std::size_t from = at_;
        while (at_ < line_.size() && !EndsWord(line_[at_]))
            Advance();
        token.Text = line_.substr(from, at_ - from);
        if (at_ < line_.size() && line_[at_] == '"') {
            if (!IsNumberPart(token.Text))
                return SlipAt(Here(), "a quote stands in the middle of a word");
            return TakeQuoted(std::move(token));
        }
        return Put(std::move(token));
    }

    // `before` is the number in front of the quote, when there is one.
    bool TakeQuoted(std::optional<Token> before) {
        Token token = before.value_or(Begin(TokenKind::Quoted));
        token.Kind = TokenKind::Quoted;
        token.NumberPart = before ? before->Text : "";
        token.Text.clear();
        const Place quote = Here();
        Advance();
        while (at_ < line_.size() && line_[at_] != '"') {
            const bool escaped = line_[at_] == '\\' && at_ + 1 < line_.size() &&
                                 (line_[at_ + 1] == '"' || line_[at_ + 1] == '\\');
            if (escaped)
                Advance();
            token.Text += line_[at_];
            Advance();
        }
        if (at_ == line_.size())
            return SlipAt(quote, "the quote is not closed");
        Advance();
        return Put(std::move(token));
    }

    Token Begin(TokenKind kind) const {
        Token token;
        token.Kind = kind;
        token.At = Here();
        token.Where.Begin = begin_ + at_;
        return token;
    }
    bool Put(Token token) {
        token.Where.End = begin_ + at_;
        token.Length = column_ - token.At.Column;
        lexed_.Tokens.push_back(std::move(token));
        return true;
    }
    bool SlipAt(Place place, const char* what) {
        lexed_.Slip = {place, what};
        return false;
    }
    Place Here() const { return {number_, column_}; }
    void Advance() {
        ++at_;
        if (at_ == line_.size() || !IsTail(line_[at_]))
            ++column_;
    }

    std::string_view line_;
    std::size_t begin_;
    std::size_t number_;
    std::size_t at_ = 0;
    std::size_t column_ = 1;
    std::optional<std::size_t> comment_;
    LexedLine lexed_;
};

// Words that mean something where a name may stand.
constexpr std::array kWordsOfTheLanguage{"on",    "off",   "pulse",   "limit", "timeout", "scan",
                                         "via",   "stays", "not",     "runs",  "ran",     "timer",
                                         "again", "spins", "Timeout", "ELSE",  "and",     "or"};

} // namespace

LexedLine LexLine(std::string_view line, std::size_t begin, std::size_t number) {
    return LineLexer(line, begin, number).Run();
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char byte : text) {
        if (byte == '"' || byte == '\\')
            quoted += '\\';
        quoted += byte;
    }
    return quoted + '"';
}

std::string QuotedWhereNeeded(std::string_view text) {
    const bool bare =
        !text.empty() && std::none_of(text.begin(), text.end(), EndsWord) &&
        text.find('\\') == std::string_view::npos && text.front() != '#' &&
        text.find(':') == std::string_view::npos &&
        std::find(kWordsOfTheLanguage.begin(), kWordsOfTheLanguage.end(), text) == kWordsOfTheLanguage.end();
    return bare ? std::string(text) : Quoted(text);
}

} // namespace orvane::run
