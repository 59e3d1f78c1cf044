// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/CharacterSets.h"

#include "find/WordBorders.h"
#include "text/AnsiText.h"
#include "text/Ascii.h"
#include "text/ByteOf.h"

#include <vector>

namespace orvane::find {

namespace {

template <typename Belongs>
ByteSet SetWhere(Belongs belongs) {
    ByteSet set;
    for (unsigned byte = 0; byte < set.size(); ++byte)
        set[byte] = belongs(static_cast<char>(byte));
    return set;
}

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\xA0'; }
bool IsAsciiLetter(char c) { return AsciiUpper(c) >= 'A' && AsciiUpper(c) <= 'Z'; }

struct BracketEnd {
    ByteSet Set;
    std::optional<char> Alone; // the one character of it, which a range can begin or end with
};

std::optional<BracketEnd> TakeEnd(std::string_view& rest) {
    const char c = rest.front();
    rest.remove_prefix(1);
    if (c != '\\')
        return BracketEnd{SetOf(c), c};
    if (rest.empty())
        return std::nullopt;
    const char escaped = rest.front();
    rest.remove_prefix(1);
    const std::optional<ByteSet> set = SetOfEscape(escaped);
    if (!set)
        return std::nullopt;
    if (escaped == 't')
        return BracketEnd{*set, '\t'};
    return BracketEnd{*set, set->count() == 1 ? std::optional(escaped) : std::nullopt};
}

ByteSet Range(char first, char last) {
    return SetWhere([&](char c) { return ByteOf(c) >= ByteOf(first) && ByteOf(c) <= ByteOf(last); });
}

} // namespace

ByteSet SetOf(char c) { return ByteSet().set(ByteOf(c)); }

std::optional<ByteSet> SetOfEscape(char c) {
    switch (c) {
    case 'd':
        return SetWhere(IsAsciiDigit);
    case 'D':
        return ~SetWhere(IsAsciiDigit);
    case 'w':
        return SetWhere(IsOfWord);
    case 'W':
        return ~SetWhere(IsOfWord);
    case 's':
        return SetWhere(IsBlank);
    case 'S':
        return ~SetWhere(IsBlank);
    case 't':
        return SetOf('\t');
    default:
        break;
    }
    if (IsAsciiLetter(c) || IsAsciiDigit(c))
        return std::nullopt;
    return SetOf(c);
}

ByteSet WithBothCases(const ByteSet& set) {
    ByteSet capitals;
    for (unsigned byte = 0; byte < set.size(); ++byte) {
        if (set[byte])
            capitals.set(ByteOf(ToUpper(static_cast<char>(byte))));
    }
    return set | SetWhere([&](char c) { return capitals[ByteOf(ToUpper(c))]; });
}

BracketItem TakeBracketItem(std::string_view& rest) {
    const std::optional<BracketEnd> first = TakeEnd(rest);
    if (!first)
        return {{}, "A \\ stands before something that is not known in the ["};
    const bool isRange = rest.size() > 1 && rest.front() == '-' && rest[1] != ']';
    if (!isRange)
        return {first->Set, {}};
    rest.remove_prefix(1);
    const std::optional<BracketEnd> last = TakeEnd(rest);
    if (!last || !first->Alone || !last->Alone || ByteOf(*first->Alone) > ByteOf(*last->Alone))
        return {{}, "A range such as a-z goes from a character to a later one in the ["};
    return {Range(*first->Alone, *last->Alone), {}};
}

// Borders are taken to hold: a set that is too large costs a look, one that is too small a match.
ByteSet BeginningsOf(const PatternProgram& program) {
    ByteSet set;
    std::vector<bool> seen(program.Steps.size());
    std::vector<std::size_t> open = {0};
    while (!open.empty()) {
        const std::size_t at = open.back();
        open.pop_back();
        if (seen[at])
            continue;
        seen[at] = true;
        const PatternInstruction& step = program.Steps[at];
        const auto go = [&](int way) { open.push_back(at + static_cast<std::size_t>(way)); };
        if (step.Op == PatternOp::Byte)
            set |= program.Sets[step.Index];
        else if (step.Op == PatternOp::Save || step.Op == PatternOp::Assert)
            go(1);
        else if (step.Op != PatternOp::Match)
            go(step.First);
        if (step.Op == PatternOp::Split)
            go(step.Second);
    }
    return set;
}

} // namespace orvane::find
