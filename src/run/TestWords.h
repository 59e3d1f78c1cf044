// SPDX-License-Identifier: GPL-3.0-or-later
// What the words of a line of tests are, for those who colour them while they are typed: nothing needs to be
// right, or finished, for that.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace orvane::run {

enum class TestWordKind {
    Head,    // machine, unit, test and the like; and, or, not in front of names
    Title,   // what a test is called
    Doing,   // on, pulse, limit and the like
    Check,   // via, stays, runs and the like; Timeout and ELSE behind via
    Name,    // of a state, an input, a file
    Quoted,  // a name or a text in quotes
    Time,    // numbers, and what they are of
    Sign,    // + => = ( ) ,
    Comment, // from ";" on
    Wrong    // what cannot be read
};

struct TestWord {
    std::size_t Begin = 0; // in bytes of the line
    std::size_t End = 0;
    TestWordKind Kind = TestWordKind::Name;

    bool operator==(const TestWord&) const = default;
};

// The words of one line without its end, in order; blanks belong to none.
std::vector<TestWord> TestWordsIn(std::string_view line);

} // namespace orvane::run
