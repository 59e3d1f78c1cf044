// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ExpressionMatcher.h"

#include "find/WordBorders.h"
#include "text/ByteOf.h"

#include <algorithm>
#include <utility>

namespace orvane::find {

namespace {

bool Holds(Border border, std::string_view line, std::size_t at) {
    const bool behindWord = at > 0 && IsOfWord(line[at - 1]);
    const bool beforeWord = at < line.size() && IsOfWord(line[at]);
    switch (border) {
    case Border::LineStart:
        return at == 0;
    case Border::LineEnd:
        return at == line.size();
    case Border::OfWord:
        return behindWord != beforeWord;
    case Border::NotOfWord:
        return behindWord == beforeWord;
    case Border::NotInsideWord:
        break;
    }
    return !(behindWord && beforeWord);
}

} // namespace

ExpressionMatcher::ExpressionMatcher(const PatternProgram& program, bool withGroups)
    : program_(program), slots_(withGroups ? 2 * program.Groups + 2 : 2) {
    for (Front* front : {&now_, &next_}) {
        front->Reached.resize(program.Steps.size());
        front->Slots.resize(program.Steps.size() * slots_);
    }
    been_.resize(slots_);
    matched_.resize(slots_, kNowhere);
}

// An empty match is none, and the search goes on behind its place.
std::optional<Span> ExpressionMatcher::Next(std::string_view line, std::size_t from) {
    while (from < line.size() && left_ > 0) {
        const std::optional<Span> match = MatchAt(line, from);
        if (!match || match->End > match->Start)
            return match;
        from = match->Start + 1;
    }
    return std::nullopt;
}

std::optional<Span> ExpressionMatcher::MatchAt(std::string_view line, std::size_t from) {
    Clear(now_);
    bool matched = false;
    for (std::size_t at = from; left_ > 0; ++at) {
        if (now_.Places.empty()) {
            at = matched ? line.size() : NextBeginning(line, at);
            if (at == line.size())
                break;
        }
        if (!matched && at < line.size()) {
            std::fill(been_.begin(), been_.end(), kNowhere);
            Enter(now_, 0, line, at);
        }
        matched = Step(line, at) || matched;
        std::swap(now_, next_);
        if (at == line.size())
            break;
    }
    return matched && left_ > 0 ? std::optional(Span{matched_[0], matched_[1]}) : std::nullopt;
}

// Where nothing is under way, only what a match can begin with needs a look.
std::size_t ExpressionMatcher::NextBeginning(std::string_view line, std::size_t at) const {
    while (at < line.size() && !program_.Begins[ByteOf(line[at])])
        ++at;
    return at;
}

// Goes on over the character at `at`. A place that has matched ends those that are less preferred.
bool ExpressionMatcher::Step(std::string_view line, std::size_t at) {
    Clear(next_);
    for (const std::size_t place : now_.Places) {
        const PatternInstruction& step = program_.Steps[place];
        const std::size_t* slots = now_.Slots.data() + place * slots_;
        if (step.Op == PatternOp::Match) {
            std::copy_n(slots, slots_, matched_.begin());
            return true;
        }
        if (at < line.size() && program_.Sets[step.Index][ByteOf(line[at])]) {
            std::copy_n(slots, slots_, been_.begin());
            Enter(next_, place + 1, line, at + 1);
        }
    }
    return false;
}

void ExpressionMatcher::Clear(Front& front) {
    front.Places.clear();
    ++front.Round;
}

// Takes all places into the front that are reached without a character. The ways that are still open stand on
// a stack of our own, because a program may be as deep as it is long.
void ExpressionMatcher::Enter(Front& front, std::size_t place, std::string_view line, std::size_t at) {
    pending_.push_back({.Place = place});
    while (!pending_.empty()) {
        const Pending next = pending_.back();
        pending_.pop_back();
        if (next.Place == kNowhere)
            been_[next.Slot] = next.Old;
        else
            Follow(front, next.Place, line, at);
    }
}

void ExpressionMatcher::Follow(Front& front, std::size_t place, std::string_view line, std::size_t at) {
    if (std::exchange(front.Reached[place], front.Round) == front.Round || left_ == 0)
        return;
    --left_;
    const PatternInstruction& step = program_.Steps[place];
    const auto way = [place](int steps) { return Pending{.Place = place + std::size_t(steps)}; };
    switch (step.Op) {
    case PatternOp::Byte:
    case PatternOp::Match:
        front.Places.push_back(place);
        std::copy(been_.begin(), been_.end(), front.Slots.data() + place * slots_);
        return;
    case PatternOp::Split:
        pending_.push_back(way(step.Second));
        pending_.push_back(way(step.First));
        return;
    case PatternOp::Jump:
        return pending_.push_back(way(step.First));
    case PatternOp::Assert:
        if (Holds(step.At, line, at))
            pending_.push_back(way(1));
        return;
    case PatternOp::Save:
        break;
    }
    if (step.Index < slots_) {
        pending_.push_back({.Slot = step.Index, .Old = been_[step.Index]});
        been_[step.Index] = at;
    }
    pending_.push_back(way(1));
}

GroupSpans ExpressionMatcher::Groups() const {
    GroupSpans groups;
    for (std::size_t slot = 0; slot + 1 < slots_; slot += 2) {
        const bool tookPart = matched_[slot] != kNowhere && matched_[slot + 1] != kNowhere;
        groups.push_back(tookPart ? std::optional(Span{matched_[slot], matched_[slot + 1]}) : std::nullopt);
    }
    return groups;
}

} // namespace orvane::find
