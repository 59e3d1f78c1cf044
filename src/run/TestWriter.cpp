// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestWriter.h"

#include "run/TestLexer.h"
#include "text/NumberText.h"
#include "text/Ordinal.h"

#include <algorithm>
#include <array>

namespace orvane::run {

namespace {

constexpr std::size_t kWidestLeftPart = 40; // beyond it an arrow stands where it comes
constexpr std::string_view kIndent = "    ";

std::string Names(const std::vector<TestName>& names) {
    std::string text;
    for (const TestName& name : names)
        text += " " + NameText(name);
    return text;
}

// Puts parentheses only where the order of the operators would read it otherwise.
std::string TermsText(const std::vector<TestTerm>& terms) {
    struct Part {
        std::string Text;
        TestOperator Outermost;
    };
    std::vector<Part> parts;
    const auto wrapped = [](const Part& part, bool parentheses) {
        return parentheses ? "(" + part.Text + ")" : part.Text;
    };
    for (const TestTerm& term : terms) {
        if (term.What == TestOperator::Name) {
            parts.push_back({NameText(term.Name), TestOperator::Name});
            continue;
        }
        Part last = std::move(parts.back());
        parts.pop_back();
        if (term.What == TestOperator::Not) {
            const bool simple = last.Outermost == TestOperator::Name || last.Outermost == TestOperator::Not;
            parts.push_back({"not " + wrapped(last, !simple), TestOperator::Not});
            continue;
        }
        // Operators of one kind are read from the left, so that on the right even the same kind is wrapped.
        const bool isAnd = term.What == TestOperator::And;
        const bool wrapLeft = isAnd && parts.back().Outermost == TestOperator::Or;
        const bool wrapRight =
            last.Outermost == TestOperator::Or || (isAnd && last.Outermost == TestOperator::And);
        parts.back() = {wrapped(parts.back(), wrapLeft) + (isAnd ? " and " : " or ") +
                            wrapped(last, wrapRight),
                        term.What};
    }
    return parts.empty() ? "" : parts.back().Text;
}

std::string EntryText(const NamesHead::Entry& entry) {
    const std::string& text = entry.Name.Text;
    return (entry.IsEvent ? "e" : "") + NumberText(entry.Name.Number.value_or(0)) + ":" +
           (entry.Name.Quoted ? Quoted(text) : text);
}

std::string DoingText(const TestDoing& doing) {
    switch (doing.What) {
    case Doing::On:
        return "on" + Names(doing.Inputs);
    case Doing::Off:
        return "off" + Names(doing.Inputs);
    case Doing::Pulse:
        return "pulse" + Names(doing.Inputs);
    case Doing::Limit:
        return "limit " + NameText(doing.State) + " = " + TimeText(doing.Limit);
    case Doing::Timeout:
        return "timeout";
    case Doing::Scan:
        break;
    }
    return "scan " + NumberText(doing.Count);
}

std::string CheckText(const TestCheck& check) {
    switch (check.What) {
    case Check::Via:
        return "via " + NameText(check.Name);
    case Check::Stays:
        return "stays";
    case Check::Runs:
        return "runs " + NameText(check.Name);
    case Check::NotRuns:
        return "not runs " + NameText(check.Name);
    case Check::Ran:
        return "ran " + NumberText(check.Count);
    case Check::Timer:
        return "timer " + NameText(check.Name) + " = " + TimeText(check.Time);
    case Check::Again:
        return "again";
    case Check::Spins:
        break;
    }
    return "spins";
}

// What stands in front of the arrow.
std::string LeftPart(const TestStep& step) {
    std::string text(kIndent);
    text += step.Wait ? "+" + TimeText(*step.Wait) : "";
    text.resize(std::max<std::size_t>(text.size() + (step.Wait ? 1 : 0), 10), ' ');
    for (const TestDoing& doing : step.Doings)
        text += DoingText(doing) + " ";
    return text;
}

class FileWriter {
  public:
    explicit FileWriter(const TestFile& file) : file_(file) {}

    std::string Run() {
        for (std::size_t i = 0; i < file_.Lines.size(); ++i)
            Put(i);
        return std::move(text_);
    }

  private:
    void Put(std::size_t index) {
        const TestLine& line = file_.Lines[index];
        if (std::holds_alternative<TestHead>(line.What))
            arrow_ = ArrowColumn(index + 1);
        std::string text = std::visit([&](const auto& what) { return Text(what); }, line.What);
        text.erase(text.find_last_not_of(' ') + 1);
        if (line.Comment)
            text += (text.empty() ? ";" : "  ;") + *line.Comment;
        text_ += text + "\n";
    }

    std::size_t ArrowColumn(std::size_t from) const {
        std::size_t column = 0;
        for (std::size_t i = from; i < file_.Lines.size(); ++i) {
            if (std::holds_alternative<TestHead>(file_.Lines[i].What))
                break;
            const auto* step = std::get_if<TestStep>(&file_.Lines[i].What);
            if (step != nullptr && step->Expect)
                column = std::max(column, std::min(LeftPart(*step).size(), kWidestLeftPart));
        }
        return column;
    }

    static std::string Text(std::monostate) { return ""; }
    static std::string Text(const MachineHead& head) { return "machine " + NameText(head.File); }
    static std::string Text(const UnitHead& head) { return "unit " + TimeText(head.Length); }
    static std::string Text(const ConstantHead& head) {
        return "constant " + NameText(head.Name) + " = " + NumberText(head.Value);
    }
    static std::string Text(const SignalHead& head) { return "signal" + Names(head.Names); }
    static std::string Text(const EventHead& head) {
        return "event " + NameText(head.Event) + " = " + TermsText(head.Follows);
    }
    static std::string Text(const NamesHead& head) {
        std::string text = "names";
        for (const NamesHead::Entry& entry : head.Entries)
            text += " " + EntryText(entry);
        return text;
    }
    static std::string Text(const ReadingHead& head) {
        constexpr std::array words{"at-limit", "after-limit", "unstarted-since-power-on",
                                   "unstarted-expired"};
        return std::string("reading ") + words.at(Ordinal(head.Choice));
    }
    static std::string Text(const TestHead& head) { return "test " + head.Text; }
    std::string Text(const TestStep& step) const {
        std::string text = LeftPart(step);
        if (!step.Expect)
            return text;
        text.resize(std::max(text.size(), arrow_), ' ');
        return text + ExpectationText(*step.Expect);
    }

    const TestFile& file_;
    std::size_t arrow_ = 0;
    std::string text_;
};

} // namespace

std::string WriteTestFile(const TestFile& file) { return FileWriter(file).Run(); }

std::string NameText(const TestName& name) {
    if (name.Text.empty() && name.Number)
        return "#" + NumberText(*name.Number);
    const std::string number = name.Number ? NumberText(*name.Number) + ":" : "";
    return number + (name.Quoted ? Quoted(name.Text) : name.Text);
}

std::string TimeText(const TestTime& time) {
    constexpr std::array suffixes{"", " ms", " s", " min", " h"};
    return time.Number + suffixes.at(Ordinal(time.Suffix));
}

std::string ExpectationText(const TestExpectation& expectation) {
    std::string text;
    for (const TestName& state : expectation.Way)
        text += (text.empty() ? "=> " : " => ") + NameText(state);
    for (const TestCheck& check : expectation.Checks)
        text += "  " + CheckText(check);
    return text;
}

TestName NameOf(std::string text) {
    const bool bare = QuotedWhereNeeded(text) == text;
    return {std::move(text), std::nullopt, !bare, {}, {}};
}

} // namespace orvane::run
