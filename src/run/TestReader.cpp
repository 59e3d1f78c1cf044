// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestReader.h"

#include "run/LineReader.h"
#include "run/TestLexer.h"

#include <algorithm>

namespace orvane::run {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

class FileReader {
  public:
    explicit FileReader(std::string_view bytes) : bytes_(bytes) {}

    TestReadResult Run() {
        std::size_t begin = bytes_.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
        while (begin < bytes_.size() && result_.Slips.size() < kMostSlips) {
            const std::size_t end = std::min(bytes_.find('\n', begin), bytes_.size());
            std::string_view line = bytes_.substr(begin, end - begin);
            if (line.ends_with('\r'))
                line.remove_suffix(1);
            Take(line, begin);
            begin = end + 1;
        }
        return std::move(result_);
    }

  private:
    void Take(std::string_view text, std::size_t begin) {
        const std::size_t number = result_.File.Lines.size() + 1;
        const LexedLine lexed = LexLine(text, begin, number);
        TestLine line;
        line.At = {number, 1};
        line.Comment = lexed.Comment;
        std::optional<TestMessage> slip = lexed.Slip;
        if (!slip && !lexed.Tokens.empty())
            slip = LineReader(lexed).Read(line);
        if (!slip)
            slip = WrongPlace(line);
        if (slip) {
            line.What = std::monostate();
            result_.Slips.push_back(*std::move(slip));
        }
        result_.File.Lines.push_back(std::move(line));
    }

    std::optional<TestMessage> WrongPlace(const TestLine& line) {
        if (std::holds_alternative<TestHead>(line.What))
            inTest_ = true;
        if (std::holds_alternative<TestStep>(line.What) && !inTest_)
            return TestMessage{
                line.At, "a step stands before the first test; begin one with \"test\" and what it shows"};
        return std::nullopt;
    }

    std::string_view bytes_;
    bool inTest_ = false;
    TestReadResult result_;
};

} // namespace

TestReadResult ReadTestFile(std::string_view bytes) { return FileReader(bytes).Run(); }

} // namespace orvane::run
