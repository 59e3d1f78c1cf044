// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/ExpressionReader.h"

#include "find/CharacterSets.h"
#include "find/WordBorders.h"
#include "text/Ascii.h"
#include "text/NumberText.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace orvane::find {

namespace {

using Piece = std::vector<PatternInstruction>;

constexpr int kMostTimes = 1000; // of a counted repetition

// Ends the reading from anywhere.
struct Broken {
    std::string Why;
};

struct Times {
    int Least = 0;
    std::optional<int> Most; // none: without end
    bool AsFew = false;
};

int LengthOf(const Piece& piece) { return static_cast<int>(piece.size()); }

// Where the way goes into the piece first, or past it.
PatternInstruction Branch(int into, int past, bool asFew) {
    PatternInstruction split{.Op = PatternOp::Split, .First = into, .Second = past};
    if (asFew)
        std::swap(split.First, split.Second);
    return split;
}

class Reader {
  public:
    explicit Reader(const SearchQuery& query) : query_(query), rest_(query.Text) {}

    PatternProgram Read();

  private:
    Piece ReadAlternatives();
    Piece ReadSequence();
    Piece ReadRepeated();
    Piece ReadOne();
    Piece ReadGroup();
    Piece ReadBracket();
    Piece ReadEscape();
    std::optional<Times> ReadTimes();
    Times ReadCounts();
    int ReadCount();
    Piece Repeat(const Piece& piece, const Times& times);
    void AddOptional(Piece& whole, const Piece& piece, const Times& times);

    char Take();
    bool TakeIf(char c);
    bool Sees(char c) const { return !rest_.empty() && rest_.front() == c; }
    // Character of the expression, from 1: the one that was taken last.
    std::string Here() const { return " at character " + NumberText(query_.Text.size() - rest_.size()); }

    Piece OneOf(ByteSet set);
    static Piece Assert(Border border) { return {{.Op = PatternOp::Assert, .At = border}}; }
    static Piece Save(std::size_t slot) { return {{.Op = PatternOp::Save, .Index = slot}}; }
    // The pieces one behind the other; one that has grown too large is refused before it takes memory.
    static void Append(Piece& whole, const Piece& piece);

    const SearchQuery& query_;
    std::string_view rest_;
    PatternProgram program_;
    int depth_ = 0;
};

PatternProgram Reader::Read() {
    Piece body = ReadAlternatives();
    if (!rest_.empty()) {
        Take();
        throw Broken{"The )" + Here() + " closes no group"};
    }
    Piece whole = Save(0);
    if (query_.WholeWord)
        Append(whole, Assert(Border::NotInsideWord));
    Append(whole, body);
    if (query_.WholeWord)
        Append(whole, Assert(Border::NotInsideWord));
    Append(whole, Save(1));
    Append(whole, {PatternInstruction{}});
    program_.Steps = std::move(whole);
    return std::move(program_);
}

Piece Reader::ReadAlternatives() {
    Piece either = ReadSequence();
    while (TakeIf('|')) {
        const Piece other = ReadSequence();
        Piece both = {Branch(1, LengthOf(either) + 2, false)};
        Append(both, either);
        Append(both, {{.Op = PatternOp::Jump, .First = LengthOf(other) + 1}});
        Append(both, other);
        either = std::move(both);
    }
    return either;
}

Piece Reader::ReadSequence() {
    Piece sequence;
    while (!rest_.empty() && !Sees('|') && !Sees(')'))
        Append(sequence, ReadRepeated());
    return sequence;
}

Piece Reader::ReadRepeated() {
    Piece piece = ReadOne();
    while (const std::optional<Times> times = ReadTimes())
        piece = Repeat(piece, *times);
    return piece;
}

Piece Reader::ReadOne() {
    const char c = Take();
    switch (c) {
    case '(':
        return ReadGroup();
    case '[':
        return ReadBracket();
    case '\\':
        return ReadEscape();
    case '.':
        return OneOf(~ByteSet());
    case '^':
        return Assert(Border::LineStart);
    case '$':
        return Assert(Border::LineEnd);
    case '*':
    case '+':
    case '?':
    case '{':
        throw Broken{"Nothing stands before the " + std::string(1, c) + Here()};
    default:
        return OneOf(SetOf(c));
    }
}

Piece Reader::ReadGroup() {
    const std::string here = Here();
    if (++depth_ > kDeepestGroup)
        throw Broken{"Groups stand in each other too deeply" + here};
    std::optional<std::size_t> number;
    if (!TakeIf('?'))
        number = ++program_.Groups;
    else if (!TakeIf(':'))
        throw Broken{"A group begins with ( or (?:, nothing else of (? is known" + here};
    Piece group = number ? Save(2 * *number) : Piece();
    Append(group, ReadAlternatives());
    if (!TakeIf(')'))
        throw Broken{"The (" + here + " is not closed"};
    if (number)
        Append(group, Save(2 * *number + 1));
    --depth_;
    return group;
}

Piece Reader::ReadBracket() {
    const std::string here = Here();
    const bool others = TakeIf('^');
    ByteSet set;
    for (bool isFirst = true; isFirst || !Sees(']'); isFirst = false) {
        if (rest_.empty())
            throw Broken{"The [" + here + " is not closed"};
        const BracketItem item = TakeBracketItem(rest_);
        if (!item.Fault.empty())
            throw Broken{item.Fault + here};
        set |= item.Set;
    }
    Take();
    if (!query_.MatchCase)
        set = WithBothCases(set); // before it is turned around, or [^a] would match an a
    return OneOf(others ? ~set : set);
}

Piece Reader::ReadEscape() {
    if (rest_.empty())
        throw Broken{"Nothing stands behind the \\" + Here()};
    const char c = Take();
    if (c == 'b')
        return Assert(Border::OfWord);
    if (c == 'B')
        return Assert(Border::NotOfWord);
    if (const std::optional<ByteSet> set = SetOfEscape(c))
        return OneOf(*set);
    if (IsAsciiDigit(c))
        throw Broken{"\\" + std::string(1, c) + Here() +
                     " would lead back into the match, which is not known"};
    throw Broken{"\\" + std::string(1, c) + Here() + " is not known"};
}

std::optional<Times> Reader::ReadTimes() {
    Times times;
    if (TakeIf('*'))
        times = {0, std::nullopt};
    else if (TakeIf('+'))
        times = {1, std::nullopt};
    else if (TakeIf('?'))
        times = {0, 1};
    else if (TakeIf('{'))
        times = ReadCounts();
    else
        return std::nullopt;
    times.AsFew = TakeIf('?');
    return times;
}

Times Reader::ReadCounts() {
    Times times;
    times.Least = ReadCount();
    times.Most = times.Least;
    if (TakeIf(',')) {
        times.Most.reset();
        if (!Sees('}'))
            times.Most = ReadCount();
    }
    if (!TakeIf('}'))
        throw Broken{"Behind { stands how often, such as {2} or {2,5}" + Here()};
    if (times.Most && *times.Most < times.Least)
        throw Broken{"In { } the smaller number comes first" + Here()};
    return times;
}

int Reader::ReadCount() {
    if (rest_.empty() || !IsAsciiDigit(rest_.front()))
        throw Broken{"Behind { stands how often, such as {2} or {2,5}" + Here()};
    int count = 0;
    while (!rest_.empty() && IsAsciiDigit(rest_.front())) {
        count = std::min(10 * count + (Take() - '0'), kMostTimes + 1);
        if (count > kMostTimes)
            throw Broken{"Nothing is repeated more than " + NumberText(kMostTimes) + " times" + Here()};
    }
    return count;
}

Piece Reader::Repeat(const Piece& piece, const Times& times) {
    Piece whole;
    for (int i = 0; i < times.Least; ++i)
        Append(whole, piece);
    if (times.Most) {
        AddOptional(whole, piece, times);
        return whole;
    }
    const int length = LengthOf(piece);
    Append(whole, {Branch(1, length + 2, times.AsFew)});
    Append(whole, piece);
    Append(whole, {{.Op = PatternOp::Jump, .First = -length - 1}});
    return whole;
}

// Each of what may come once more leads past all the others.
void Reader::AddOptional(Piece& whole, const Piece& piece, const Times& times) {
    const int length = LengthOf(piece) + 1;
    for (int more = *times.Most - times.Least; more > 0; --more) {
        if (LengthOf(whole) + more * length > static_cast<int>(kMostInstructions))
            throw Broken{"The expression is too large"};
        Append(whole, {Branch(1, more * length, times.AsFew)});
        Append(whole, piece);
    }
}

char Reader::Take() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
}

bool Reader::TakeIf(char c) {
    if (!Sees(c))
        return false;
    Take();
    return true;
}

Piece Reader::OneOf(ByteSet set) {
    if (!query_.MatchCase)
        set = WithBothCases(set);
    const auto known = std::find(program_.Sets.begin(), program_.Sets.end(), set);
    const auto index = static_cast<std::size_t>(known - program_.Sets.begin());
    if (known == program_.Sets.end())
        program_.Sets.push_back(set);
    return {{.Op = PatternOp::Byte, .Index = index}};
}

void Reader::Append(Piece& whole, const Piece& piece) {
    if (whole.size() + piece.size() > kMostInstructions)
        throw Broken{"The expression is too large"};
    whole.insert(whole.end(), piece.begin(), piece.end());
}

} // namespace

std::variant<PatternProgram, PatternFault> ReadExpression(const SearchQuery& query) {
    try {
        PatternProgram program = Reader(query).Read();
        program.Begins = BeginningsOf(program);
        return program;
    } catch (const Broken& broken) {
        return PatternFault{broken.Why};
    }
}

} // namespace orvane::find
