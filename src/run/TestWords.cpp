// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestWords.h"

#include "run/TestLexer.h"
#include "text/Ascii.h"

#include <algorithm>
#include <array>
#include <span>

namespace orvane::run {

namespace {

using Words = std::span<const std::string_view>;

bool IsOneOf(std::string_view word, Words words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

constexpr auto kHeads = std::to_array<std::string_view>(
    {"machine", "unit", "constant", "signal", "event", "names", "reading", "test"});
constexpr auto kDoings = std::to_array<std::string_view>({"on", "off", "pulse", "limit", "timeout", "scan"});
constexpr auto kChecks =
    std::to_array<std::string_view>({"via", "stays", "not", "runs", "ran", "timer", "again", "spins"});
constexpr auto kUnits = std::to_array<std::string_view>({"ms", "s", "min", "h"});
constexpr auto kOperators = std::to_array<std::string_view>({"and", "or", "not"});

bool BeginsWithDigit(std::string_view word) { return !word.empty() && IsAsciiDigit(word.front()); }

class Marker {
  public:
    explicit Marker(std::string_view line) : line_(line), lexed_(LexLine(line, 0, 1)) {}

    std::vector<TestWord> Run() {
        for (const Token& token : lexed_.Tokens) {
            words_.push_back({token.Where.Begin, token.Where.End, KindOf(token)});
            before_ = &token;
        }
        if (head_ == "test")
            AddTitle();
        if (lexed_.Slip) // it is behind the last word
            Add(SkipBlanks(End()), line_.size(), TestWordKind::Wrong);
        else if (lexed_.Comment)
            Add(line_.find(';', End()), line_.size(), TestWordKind::Comment);
        return std::move(words_);
    }

  private:
    TestWordKind KindOf(const Token& token) {
        if (token.Kind == TokenKind::Quoted)
            return TestWordKind::Quoted;
        if (token.Kind == TokenKind::Symbol) {
            arrow_ = arrow_ || (token.Text == "=>" && head_.empty());
            return TestWordKind::Sign;
        }
        if (before_ == nullptr && IsOneOf(token.Text, kHeads)) {
            head_ = token.Text;
            return TestWordKind::Head;
        }
        if (!head_.empty())
            return KindInHead(token.Text);
        if (IsTime(token.Text))
            return TestWordKind::Time;
        return arrow_ ? KindBehindArrow(token.Text) : KindInFront(token.Text);
    }

    TestWordKind KindInHead(std::string_view word) const {
        if (IsTime(word) && head_ != "names" && head_ != "machine")
            return TestWordKind::Time;
        const bool keyword = head_ == "reading" || (head_ == "event" && IsOneOf(word, kOperators));
        return keyword ? TestWordKind::Head : TestWordKind::Name;
    }
    static TestWordKind KindInFront(std::string_view word) {
        return IsOneOf(word, kDoings) ? TestWordKind::Doing : TestWordKind::Name;
    }
    TestWordKind KindBehindArrow(std::string_view word) const {
        const bool isName = Follows("=>"); // also of a state that is called like a check
        const bool isRow = Follows("via") && (word == "Timeout" || word == "ELSE");
        if (!isName && !Follows("via") && IsOneOf(word, kChecks))
            return TestWordKind::Check;
        return isRow ? TestWordKind::Check : TestWordKind::Name;
    }

    bool Follows(std::string_view word) const {
        return before_ != nullptr && before_->Kind != TokenKind::Quoted && before_->Text == word;
    }
    // A number, or its unit; not "3:Idle".
    bool IsTime(std::string_view word) const {
        const bool isNumber = BeginsWithDigit(word) && word.find(':') == std::string_view::npos;
        const bool isUnit = before_ != nullptr && before_->Kind == TokenKind::Word &&
                            BeginsWithDigit(before_->Text) && IsOneOf(word, kUnits);
        return (isNumber && !Follows("=>")) || isUnit;
    }

    void AddTitle() {
        const std::size_t begin = SkipBlanks(End());
        Add(begin, begin + lexed_.Rest.size(), TestWordKind::Title);
    }

    void Add(std::size_t begin, std::size_t end, TestWordKind kind) {
        if (begin < end)
            words_.push_back({begin, end, kind});
    }
    std::size_t End() const { return words_.empty() ? 0 : words_.back().End; }

    std::size_t SkipBlanks(std::size_t at) const {
        return std::min(line_.find_first_not_of(" \t", at), line_.size());
    }

    std::string_view line_;
    const LexedLine lexed_;
    std::string_view head_;
    bool arrow_ = false;
    const Token* before_ = nullptr;
    std::vector<TestWord> words_;
};

} // namespace

std::vector<TestWord> TestWordsIn(std::string_view line) { return Marker(line).Run(); }

} // namespace orvane::run
