// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "run/TestLexer.h"
#include "run/TestText.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::run {

// Understands one line of a test file that has at least one token.
class LineReader {
  public:
    explicit LineReader(const LexedLine& line) : line_(line) {}

    // Fills line.What, or returns the first slip.
    std::optional<TestMessage> Read(TestLine& line);

  private:
    struct Stop { // thrown at a slip, inside this class only
        TestMessage Slip;
    };

    void ReadInto(TestLine& line);
    MachineHead ReadMachine();
    ConstantHead ReadConstant();
    SignalHead ReadSignal();
    EventHead ReadEvent();
    NamesHead ReadNames();
    ReadingHead ReadReading();
    TestHead ReadTest();
    TestStep ReadStep();

    void ReadOr(std::vector<TestTerm>& terms);
    void ReadAnd(std::vector<TestTerm>& terms);
    void ReadNot(std::vector<TestTerm>& terms);

    std::optional<TestDoing> ReadDoing();
    void CheckDoings(const TestStep& step);
    TestExpectation ReadExpectation();
    TestCheck ReadCheck();

    const Token* Peek() const { return at_ < line_.Tokens.size() ? &line_.Tokens[at_] : nullptr; }
    bool PeekWord(std::string_view word) const;
    bool PeekName() const;
    bool TakeWord(std::string_view word);
    bool TakeSymbol(std::string_view symbol);
    void NeedSymbol(std::string_view symbol, const char* where);
    const Token& Need(const char* what);
    TestName NeedName(const char* what);
    TestTime NeedTime();
    std::int64_t NeedNumber(const char* what);

    [[noreturn]] void Slip(Place place, std::string text);
    Place Here() const;

    const LexedLine& line_;
    std::size_t at_ = 0;
    int depth_ = 0; // of parentheses and nots
};

} // namespace orvane::run
