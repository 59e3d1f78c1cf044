// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestWords.h"

#include "run/TestWriter.h"
#include "support/Property.h"
#include "support/RandomTestFile.h"

#include <gmock/gmock.h>

namespace orvane::run {
namespace {

// The words with a letter for each kind in front.
std::string Marked(std::string_view line) {
    std::string marked;
    for (const TestWord& word : TestWordsIn(line)) {
        marked += marked.empty() ? "" : " ";
        marked += "HTDCNQ1S;!"[static_cast<int>(word.Kind)];
        marked += '(' + std::string(line.substr(word.Begin, word.End - word.Begin)) + ')';
    }
    return marked;
}

TEST(TestWords, TellWhatEachWordOfAStepIs) {
    EXPECT_EQ(
        Marked("+99 pulse Start on B => Run  via Start runs \"a b\"  ran 2 ; why"),
        "S(+) 1(99) D(pulse) N(Start) D(on) N(B) S(=>) N(Run) C(via) N(Start) C(runs) Q(\"a b\") C(ran) "
        "1(2) ;(; why)");
    EXPECT_EQ(Marked("  +0.5 min => 3:Idle => B via Timeout not runs x timer T = 5 s"),
              "S(+) 1(0.5) 1(min) S(=>) N(3:Idle) S(=>) N(B) C(via) C(Timeout) C(not) C(runs) N(x) C(timer) "
              "N(T) S(=) 1(5) 1(s)");
    EXPECT_EQ(Marked("limit Run = 10 scan 3"), "D(limit) N(Run) S(=) 1(10) D(scan) 1(3)");
}

TEST(TestWords, ANameThatIsAWordOfTheLanguageIsAName) {
    EXPECT_EQ(Marked("=> stays stays"), "S(=>) N(stays) C(stays)");
    EXPECT_EQ(Marked("pulse \"on\" => A via stays"), "D(pulse) Q(\"on\") S(=>) N(A) C(via) N(stays)");
}

TEST(TestWords, TellWhatEachWordOfAHeadIs) {
    EXPECT_EQ(Marked("test that \"runs\" => on ; x"), "H(test) T(that \"runs\" => on) ;(; x)");
    EXPECT_EQ(Marked("event Lost = not (flame or test)"),
              "H(event) N(Lost) S(=) H(not) S(() N(flame) H(or) N(test) S())");
    EXPECT_EQ(Marked("reading at-limit"), "H(reading) H(at-limit)");
    EXPECT_EQ(Marked("unit 0.1 s"), "H(unit) 1(0.1) 1(s)");
    EXPECT_EQ(Marked("names 1:Idle e6:Start"), "H(names) N(1:Idle) N(e6:Start)");
    EXPECT_EQ(Marked("constant LONG = 600"), "H(constant) N(LONG) S(=) 1(600)");
}

TEST(TestWords, WhatCannotBeReadIsMarkedFromWhereItBegins) {
    EXPECT_EQ(Marked("pulse \xC3\xBC \"open"), "D(pulse) N(\xC3\xBC) !(\"open)");
    EXPECT_EQ(Marked("=> A > B"), "S(=>) N(A) !(> B)");
    EXPECT_EQ(Marked("on \xFF x"), "!(on \xFF x)"); // the line is no text at all
    EXPECT_EQ(Marked(""), "");
    EXPECT_EQ(Marked(" \t"), "");
    EXPECT_EQ(Marked(";"), ";(;)");
}

// Whatever stands there: the words are in order, do not overlap, and leave out blanks alone.
TEST(TestWords, CoverEveryLine) {
    const auto covers = [](std::string_view line) {
        std::size_t at = 0;
        for (const TestWord& word : TestWordsIn(line)) {
            RC_ASSERT(word.Begin >= at);
            RC_ASSERT(word.End > word.Begin);
            RC_ASSERT(word.End <= line.size());
            RC_ASSERT(line.substr(at, word.Begin - at).find_first_not_of(" \t") == std::string_view::npos);
            at = word.End;
        }
        RC_ASSERT(line.substr(at).find_first_not_of(" \t") == std::string_view::npos);
    };
    test::ExpectProperty({.Cases = 300, .LargestSize = 50}, [&] {
        std::string text = WriteTestFile(*test::AnyTestFile()) + *test::TestWordSoup();
        for (std::string_view rest = text; !rest.empty();) {
            const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
            covers(rest.substr(0, end));
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    });
}

} // namespace
} // namespace orvane::run
