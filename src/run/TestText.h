// SPDX-License-Identifier: GPL-3.0-or-later
// A file of tests (.ztest) as it is written: what stands on each line and where, before anybody asks whether
// the machine has such states. All texts are UTF-8. Two of these are equal when they say the same, wherever
// it stands.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace orvane::run {

// Lines and columns count from 1, columns in characters.
struct Place {
    std::size_t Line = 0;
    std::size_t Column = 0;

    bool operator==(const Place&) const { return true; } // says nothing of what is written
};

// A stretch of bytes in the file.
struct Span {
    std::size_t Begin = 0;
    std::size_t End = 0; // behind the last one

    bool operator==(const Span&) const { return true; }
};

// What a state, an event or an input is called by: Idle, "Two Words", 3:Idle among equal names, or #3.
struct TestName {
    std::string Text;          // without quotes; empty when only the number counts
    std::optional<int> Number; // the state's number or the event's row
    bool Quoted = false;       // never a word of the language
    Place At;
    Span Where;

    bool operator==(const TestName&) const = default;
};

enum class TimeSuffix { None, Milliseconds, Seconds, Minutes, Hours };

struct TestTime {
    std::string Number = "0"; // as written: digits, with a point when there is a suffix
    TimeSuffix Suffix = TimeSuffix::None;
    Place At;

    bool operator==(const TestTime&) const = default;
};

// An expression in the order in which it is computed: operands first.
enum class TestOperator { Name, Not, And, Or };
struct TestTerm {
    TestOperator What = TestOperator::Name;
    TestName Name;

    bool operator==(const TestTerm&) const = default;
};

struct MachineHead {
    TestName File;
    bool operator==(const MachineHead&) const = default;
};
struct UnitHead {
    TestTime Length;
    bool operator==(const UnitHead&) const = default;
};
struct ConstantHead {
    TestName Name;
    std::int64_t Value = 0;
    bool operator==(const ConstantHead&) const = default;
};
struct SignalHead {
    std::vector<TestName> Names;
    bool operator==(const SignalHead&) const = default;
};
struct EventHead {
    TestName Event;
    std::vector<TestTerm> Follows;
    bool operator==(const EventHead&) const = default;
};
// What states and events were called when the file was recorded, so that a new name is recognised.
struct NamesHead {
    struct Entry {
        bool IsEvent = false;
        TestName Name; // with its number
        bool operator==(const Entry&) const = default;
    };
    std::vector<Entry> Entries;
    bool operator==(const NamesHead&) const = default;
};
enum class ReadingChoice { AtLimit, AfterLimit, UnstartedSincePowerOn, UnstartedExpired };
struct ReadingHead {
    ReadingChoice Choice = ReadingChoice::AtLimit;
    bool operator==(const ReadingHead&) const = default;
};
struct TestHead {
    std::string Text;
    bool operator==(const TestHead&) const = default;
};

enum class Doing { On, Off, Pulse, Limit, Timeout, Scan };
struct TestDoing {
    Doing What = Doing::On;
    std::vector<TestName> Inputs; // of On, Off and Pulse
    TestName State;               // of Limit
    TestTime Limit;
    int Count = 1; // of Scan
    Place At;

    bool operator==(const TestDoing&) const = default;
};

enum class Check { Via, Stays, Runs, NotRuns, Ran, Timer, Again, Spins };
struct TestCheck {
    Check What = Check::Stays;
    TestName Name;          // the row of Via, the timer of Timer, the text of Runs
    std::int64_t Count = 0; // of Ran
    TestTime Time;          // of Timer
    Place At;
    Span Where;

    bool operator==(const TestCheck&) const = default;
};

struct TestExpectation {
    std::vector<TestName> Way; // where it ends, or all that is passed
    std::vector<TestCheck> Checks;
    Place At;
    Span Where; // from the arrow on

    bool operator==(const TestExpectation&) const = default;
};

struct TestStep {
    std::optional<TestTime> Wait;
    std::vector<TestDoing> Doings;
    std::optional<TestExpectation> Expect;
    bool operator==(const TestStep&) const = default;
};

struct TestLine {
    std::variant<std::monostate, MachineHead, UnitHead, ConstantHead, SignalHead, EventHead, NamesHead,
                 ReadingHead, TestHead, TestStep>
        What;
    std::optional<std::string> Comment; // behind the ";", without blanks at its end
    Place At;

    bool operator==(const TestLine&) const = default;
};

struct TestFile {
    std::vector<TestLine> Lines;
    bool operator==(const TestFile&) const = default;
};

// Something that has to be told about a place in a file. UTF-8, on one line.
struct TestMessage {
    Place At;
    std::string Text;
};

} // namespace orvane::run
