// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/LineReader.h"

#include "run/NearestName.h"
#include "text/NumberText.h"
#include "text/Ordinal.h"

#include <algorithm>
#include <array>

namespace orvane::run {

namespace {

constexpr int kDeepest = 100; // parentheses in parentheses
constexpr std::size_t kMostDigits = 15;

const std::vector<std::string> kLineWords = {"machine", "unit",    "constant", "signal", "event",
                                             "names",   "reading", "test",     "on",     "off",
                                             "pulse",   "limit",   "timeout",  "scan"};
const std::vector<std::string> kCheckWords = {"via", "stays", "not",   "runs",
                                              "ran", "timer", "again", "spins"};
const std::vector<std::string> kReadings = {"at-limit", "after-limit", "unstarted-since-power-on",
                                            "unstarted-expired"};
constexpr std::array<std::string_view, 5> kSuffixes = {"", "ms", "s", "min", "h"};

bool IsDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool IsDecimal(std::string_view text) {
    const std::size_t point = text.find('.');
    if (point == std::string_view::npos)
        return IsDigits(text);
    return IsDigits(text.substr(0, point)) && IsDigits(text.substr(point + 1));
}

// A name with its number in front (3:Idle) or a number alone (#3).
TestName NameIn(const Token& token) {
    TestName name{token.Text, std::nullopt, token.Kind == TokenKind::Quoted, token.At, token.Where};
    std::string_view number = token.NumberPart;
    if (token.Kind == TokenKind::Word) {
        const std::size_t colon = token.Text.find(':');
        if (token.Text.starts_with('#') && IsDigits(std::string_view(token.Text).substr(1))) {
            number = std::string_view(token.Text).substr(1);
            name.Text.clear();
        } else if (colon != std::string::npos && IsDigits(std::string_view(token.Text).substr(0, colon))) {
            number = std::string_view(token.Text).substr(0, colon);
            name.Text = token.Text.substr(colon + 1);
        }
    }
    if (!number.empty())
        name.Number = static_cast<int>(std::min<std::int64_t>(ParseNumber(number), 1000));
    return name;
}

} // namespace

std::optional<TestMessage> LineReader::Read(TestLine& line) {
    try {
        ReadInto(line);
        if (const Token* left = Peek())
            Slip(left->At, "nothing is expected here, but there is " + Quoted(left->Text));
    } catch (const Stop& stop) {
        return stop.Slip;
    }
    return std::nullopt;
}

void LineReader::ReadInto(TestLine& line) {
    line.At = Here();
    if (TakeWord("machine"))
        line.What = ReadMachine();
    else if (TakeWord("unit"))
        line.What = UnitHead{NeedTime()};
    else if (TakeWord("constant"))
        line.What = ReadConstant();
    else if (TakeWord("signal"))
        line.What = ReadSignal();
    else if (TakeWord("event"))
        line.What = ReadEvent();
    else if (TakeWord("names"))
        line.What = ReadNames();
    else if (TakeWord("reading"))
        line.What = ReadReading();
    else if (TakeWord("test"))
        line.What = ReadTest();
    else
        line.What = ReadStep();
}

MachineHead LineReader::ReadMachine() {
    TestName file = NeedName("the name of a document");
    if (file.Number) { // no number of anything, but part of the path
        const Token& token = line_.Tokens[at_ - 1];
        file.Text = token.NumberPart + token.Text;
        file.Number.reset();
    }
    return {std::move(file)};
}

ConstantHead LineReader::ReadConstant() {
    ConstantHead head{NeedName("the name of a constant"), 0};
    NeedSymbol("=", "behind the name of a constant");
    head.Value = NeedNumber("a number of units");
    return head;
}

SignalHead LineReader::ReadSignal() {
    SignalHead head;
    do
        head.Names.push_back(NeedName("the name of a signal"));
    while (Peek() != nullptr);
    return head;
}

EventHead LineReader::ReadEvent() {
    EventHead head{NeedName("the name of an event"), {}};
    NeedSymbol("=", "behind the name of an event");
    ReadOr(head.Follows);
    return head;
}

void LineReader::ReadOr(std::vector<TestTerm>& terms) {
    ReadAnd(terms);
    while (TakeWord("or")) {
        ReadAnd(terms);
        terms.push_back({TestOperator::Or, {}});
    }
}

void LineReader::ReadAnd(std::vector<TestTerm>& terms) {
    ReadNot(terms);
    while (TakeWord("and")) {
        ReadNot(terms);
        terms.push_back({TestOperator::And, {}});
    }
}

void LineReader::ReadNot(std::vector<TestTerm>& terms) {
    if (++depth_ > kDeepest)
        Slip(Here(), "the expression is nested too deeply");
    if (TakeWord("not")) {
        ReadNot(terms);
        terms.push_back({TestOperator::Not, {}});
    } else if (TakeSymbol("(")) {
        ReadOr(terms);
        NeedSymbol(")", "at the end of what is in parentheses");
    } else {
        terms.push_back({TestOperator::Name, NeedName("the name of a signal or an event")});
    }
    --depth_;
}

NamesHead LineReader::ReadNames() {
    NamesHead head;
    while (const Token* token = Peek()) {
        Token plain = *token;
        const bool isEvent = (plain.NumberPart.empty() ? plain.Text : plain.NumberPart).starts_with('e');
        if (isEvent)
            (plain.NumberPart.empty() ? plain.Text : plain.NumberPart).erase(0, 1);
        TestName name = NameIn(plain);
        if (!name.Number || name.Text.empty())
            Slip(token->At, "names are written as 3:Idle for a state and e6:Start for an event");
        head.Entries.push_back({isEvent, std::move(name)});
        ++at_;
    }
    return head;
}

ReadingHead LineReader::ReadReading() {
    const Token& word = Need("a reading");
    const auto found = std::find(kReadings.begin(), kReadings.end(), word.Text);
    if (found == kReadings.end())
        Slip(word.At, "there is no reading " + Quoted(word.Text) + DidYouMean(word.Text, kReadings));
    return {FromOrdinal<ReadingChoice>(found - kReadings.begin())};
}

TestHead LineReader::ReadTest() {
    at_ = line_.Tokens.size();
    if (line_.Rest.empty())
        Slip(Here(), "the test has no name; say behind \"test\" what it shows");
    return {line_.Rest};
}

TestStep LineReader::ReadStep() {
    TestStep step;
    if (TakeSymbol("+"))
        step.Wait = NeedTime();
    while (std::optional<TestDoing> doing = ReadDoing())
        step.Doings.push_back(*std::move(doing));
    if (const Token* token = Peek();
        token != nullptr && token->Text == "=>" && token->Kind == TokenKind::Symbol)
        step.Expect = ReadExpectation();
    const bool nothing = !step.Wait && step.Doings.empty() && !step.Expect;
    if (const Token* token = Peek(); token != nullptr && !step.Expect) {
        const std::string what = nothing ? "no line begins with " : "nothing can be done by ";
        Slip(token->At, what + Quoted(token->Text) + DidYouMean(token->Text, kLineWords));
    }
    CheckDoings(step);
    return step;
}

std::optional<TestDoing> LineReader::ReadDoing() {
    TestDoing doing;
    doing.At = Here();
    constexpr std::array words{"on", "off", "pulse"};
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (!TakeWord(words[i]))
            continue;
        doing.What = FromOrdinal<Doing>(i);
        do
            doing.Inputs.push_back(NeedName("the name of an event or a signal"));
        while (PeekName());
        return doing;
    }
    if (TakeWord("limit")) {
        doing.What = Doing::Limit;
        doing.State = NeedName("the name of a state");
        NeedSymbol("=", "behind the state whose limit it is");
        doing.Limit = NeedTime();
        return doing;
    }
    if (TakeWord("timeout")) {
        doing.What = Doing::Timeout;
        return doing;
    }
    if (!TakeWord("scan"))
        return std::nullopt;
    doing.What = Doing::Scan;
    if (const Token* count = Peek(); count != nullptr && count->Kind == TokenKind::Word) {
        if (!IsDigits(count->Text) || ParseNumber(count->Text) < 1 || ParseNumber(count->Text) > 1'000'000)
            Slip(count->At, "a number of scans is 1 to 1000000");
        doing.Count = static_cast<int>(ParseNumber(count->Text));
        ++at_;
    }
    return doing;
}

void LineReader::CheckDoings(const TestStep& step) {
    const auto find = [&](Doing what) {
        const auto found = std::find_if(step.Doings.begin(), step.Doings.end(),
                                        [&](const TestDoing& doing) { return doing.What == what; });
        return found == step.Doings.end() ? nullptr : &*found;
    };
    const TestDoing* timeout = find(Doing::Timeout);
    const TestDoing* scan = find(Doing::Scan);
    if (timeout != nullptr && step.Wait)
        Slip(timeout->At, "\"timeout\" and \"+\" both say how long to wait; one line takes one of them");
    if (scan != nullptr && find(Doing::Pulse) != nullptr)
        Slip(scan->At, "\"pulse\" is one scan by itself; use \"on\" with \"scan\"");
}

TestExpectation LineReader::ReadExpectation() {
    TestExpectation expect;
    expect.At = Here();
    expect.Where.Begin = Peek()->Where.Begin;
    while (TakeSymbol("=>"))
        expect.Way.push_back(NeedName("the name of a state"));
    while (Peek() != nullptr)
        expect.Checks.push_back(ReadCheck());
    expect.Where.End = line_.Tokens.back().Where.End;
    return expect;
}

TestCheck LineReader::ReadCheck() {
    TestCheck check;
    check.At = Here();
    check.Where.Begin = Peek()->Where.Begin;
    if (TakeWord("via")) {
        check.What = Check::Via;
        check.Name = NeedName("an event, Timeout or ELSE");
    } else if (TakeWord("stays")) {
        check.What = Check::Stays;
    } else if (TakeWord("not")) {
        check.What = Check::NotRuns;
        if (!TakeWord("runs"))
            Slip(Here(), "behind \"not\" stands \"runs\"");
        check.Name = NeedName("a text of the code");
    } else if (TakeWord("runs")) {
        check.What = Check::Runs;
        check.Name = NeedName("a text of the code");
    } else if (TakeWord("ran")) {
        check.What = Check::Ran;
        check.Count = NeedNumber("how many texts ran");
    } else if (TakeWord("timer")) {
        check.What = Check::Timer;
        check.Name = NeedName("the id of a timer; the one without an id is \"\"");
        NeedSymbol("=", "behind the id of a timer");
        check.Time = NeedTime();
    } else if (TakeWord("again")) {
        check.What = Check::Again;
    } else if (TakeWord("spins")) {
        check.What = Check::Spins;
    } else {
        const Token& word = *Peek();
        Slip(word.At, "nothing can be expected by " + Quoted(word.Text) + DidYouMean(word.Text, kCheckWords));
    }
    check.Where.End = line_.Tokens[at_ - 1].Where.End;
    return check;
}

bool LineReader::PeekWord(std::string_view word) const {
    const Token* token = Peek();
    return token != nullptr && token->Kind == TokenKind::Word && token->Text == word;
}

// A name, where a word of the language would begin something else.
bool LineReader::PeekName() const {
    const Token* token = Peek();
    if (token == nullptr || token->Kind == TokenKind::Symbol)
        return false;
    constexpr std::array words{"on", "off", "pulse", "limit", "timeout", "scan"};
    return std::none_of(words.begin(), words.end(), [&](const char* word) { return PeekWord(word); });
}

bool LineReader::TakeWord(std::string_view word) {
    const bool there = PeekWord(word);
    at_ += there ? 1 : 0;
    return there;
}

bool LineReader::TakeSymbol(std::string_view symbol) {
    const Token* token = Peek();
    const bool there = token != nullptr && token->Kind == TokenKind::Symbol && token->Text == symbol;
    at_ += there ? 1 : 0;
    return there;
}

void LineReader::NeedSymbol(std::string_view symbol, const char* where) {
    if (!TakeSymbol(symbol))
        Slip(Here(), Quoted(symbol) + " is missing " + where);
}

const Token& LineReader::Need(const char* what) {
    const Token* token = Peek();
    if (token == nullptr || token->Kind == TokenKind::Symbol)
        Slip(Here(), std::string("here should stand ") + what);
    ++at_;
    return *token;
}

TestName LineReader::NeedName(const char* what) { return NameIn(Need(what)); }

std::int64_t LineReader::NeedNumber(const char* what) {
    const Token& token = Need(what);
    if (token.Kind != TokenKind::Word || !IsDigits(token.Text) || token.Text.size() > kMostDigits)
        Slip(token.At, "here should stand " + std::string(what) + ", a whole number from 0 on, not " +
                           Quoted(token.Text));
    return ParseNumber(token.Text);
}

TestTime LineReader::NeedTime() {
    const Token& token = Need("a time");
    const std::size_t digits = std::min(token.Text.find_first_not_of("0123456789."), token.Text.size());
    TestTime time{token.Text.substr(0, digits), TimeSuffix::None, token.At};
    std::string suffix = token.Text.substr(digits);
    const auto known = [](std::string_view text) {
        return std::find(kSuffixes.begin(), kSuffixes.end(), text);
    };
    if (const Token* next = Peek(); suffix.empty() && next != nullptr && next->Kind == TokenKind::Word &&
                                    known(next->Text) != kSuffixes.end()) {
        suffix = next->Text;
        ++at_;
    }
    const auto found = known(suffix);
    const bool number =
        token.Kind == TokenKind::Word && IsDecimal(time.Number) && time.Number.size() <= kMostDigits;
    if (!number || found == kSuffixes.end())
        Slip(token.At, "a time is a whole number of units, or a number with ms, s, min or h, not " +
                           Quoted(token.Text));
    time.Suffix = FromOrdinal<TimeSuffix>(found - kSuffixes.begin());
    if (time.Suffix == TimeSuffix::None && !IsDigits(time.Number))
        Slip(token.At,
             "a time without ms, s, min or h is a whole number of units, not " + Quoted(token.Text));
    return time;
}

void LineReader::Slip(Place place, std::string text) { throw Stop{{place, std::move(text)}}; }

// At the end of the line: behind its last token.
Place LineReader::Here() const {
    if (const Token* token = Peek())
        return token->At;
    const Token& last = line_.Tokens.back();
    return {last.At.Line, last.At.Column + last.Length};
}

} // namespace orvane::run
