// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/PatternProgram.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

namespace orvane::find {

// A piece of a line.
struct Span {
    std::size_t Start = 0;
    std::size_t End = 0;
};

// Groups by number, 0 the whole match; none for a group that took no part.
using GroupSpans = std::vector<std::optional<Span>>;

// Runs a program over lines. All ways through the program are gone at a time, a character after the other,
// and two that meet are one: the work is at most the length of the line times that of the program.
class ExpressionMatcher {
  public:
    // The program must outlive the matcher. With groups, matches cost more.
    ExpressionMatcher(const PatternProgram& program, bool withGroups);

    // The first match from `from` on that is not empty, none when there is none or the work is used up.
    std::optional<Span> Next(std::string_view line, std::size_t from);
    // Of the last match.
    GroupSpans Groups() const;

    // Steps that may still be done, in all lines together.
    void Allow(std::uint64_t steps) { left_ = steps; }
    std::uint64_t Left() const { return left_; }

  private:
    static constexpr std::size_t kNowhere = std::numeric_limits<std::size_t>::max();

    // The places of the program that wait for a character or have matched, those that are preferred first,
    // each with where it has been.
    struct Front {
        std::vector<std::size_t> Places;
        std::vector<std::uint64_t> Reached; // by place: the round in which it was last reached
        std::uint64_t Round = 0;
        std::vector<std::size_t> Slots; // slots_ for each place of the program
    };

    // What Enter still has to look at: a place, or a slot that gets its old value back.
    struct Pending {
        std::size_t Place = kNowhere;
        std::size_t Slot = 0;
        std::size_t Old = 0;
    };

    std::optional<Span> MatchAt(std::string_view line, std::size_t from);
    std::size_t NextBeginning(std::string_view line, std::size_t at) const;
    void Clear(Front& front);
    void Enter(Front& front, std::size_t place, std::string_view line, std::size_t at);
    void Follow(Front& front, std::size_t place, std::string_view line, std::size_t at);
    bool Step(std::string_view line, std::size_t at);

    const PatternProgram& program_;
    const std::size_t slots_;
    Front now_;
    Front next_;
    std::vector<std::size_t> been_; // the slots of the way that is being followed
    std::vector<std::size_t> matched_;
    std::vector<Pending> pending_;
    std::uint64_t left_ = std::numeric_limits<std::uint64_t>::max();
};

} // namespace orvane::find
