// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TestEdits.h"

#include "run/TestWriter.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane::run {

namespace {

// A kept number would be one of many: a new name is unique, or the number still tells it from its like.
std::string NewText(const TestName& written, const std::string& newName) {
    TestName name = NameOf(newName);
    name.Number = written.Number;
    return NameText(name);
}

void AddEntries(std::vector<TextEdit>& edits, const NamesHead& head, const Renamed& renamed) {
    for (const NamesHead::Entry& entry : head.Entries) {
        if (entry.IsEvent == renamed.IsEvent && entry.Name.Text == renamed.Written.Text)
            edits.push_back(
                {entry.Name.Where, (entry.IsEvent ? "e" : "") + NewText(entry.Name, renamed.NewName)});
    }
}

std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

} // namespace

std::vector<TextEdit> RenameEdits(const TestFile& file, const TestPlan& plan) {
    std::vector<TextEdit> edits;
    for (const Renamed& renamed : plan.Renames) {
        edits.push_back({renamed.Written.Where, NewText(renamed.Written, renamed.NewName)});
        for (const TestLine& line : file.Lines) {
            if (const auto* head = std::get_if<NamesHead>(&line.What))
                AddEntries(edits, *head, renamed);
        }
    }
    return edits;
}

std::vector<TextEdit> UpdateEdits(const TestPlan& plan, const TestRunner& runner) {
    std::vector<TextEdit> edits;
    for (const PlannedTest& test : plan.Tests) {
        for (const TestRunner::NewExpectation& changed : runner.Update(test))
            edits.push_back({changed.Step->Expect->Where, ExpectationText(changed.Expect)});
    }
    return edits;
}

std::string WithEdits(std::string_view bytes, std::vector<TextEdit> edits) {
    std::sort(edits.begin(), edits.end(),
              [](const TextEdit& one, const TextEdit& other) { return one.Where.Begin < other.Where.Begin; });
    std::string text;
    std::size_t done = 0;
    for (const TextEdit& edit : edits) {
        if (edit.Where.Begin < done)
            continue; // the same place twice: a names line has each name once, but is asked for each use
        text.append(bytes.substr(done, edit.Where.Begin - done)).append(edit.Text);
        done = edit.Where.End;
    }
    return text.append(bytes.substr(done));
}

std::string ChangedLines(const std::string& name, std::string_view before, std::string_view after) {
    std::string shown;
    for (std::int64_t number = 1; !before.empty() || !after.empty(); ++number) {
        const std::string_view old = TakeLine(before);
        const std::string_view now = TakeLine(after);
        if (old == now)
            continue;
        shown.append(name).append(":").append(NumberText(number)).append(":\n-").append(old);
        shown.append("\n+").append(now).append("\n");
    }
    return shown;
}

} // namespace orvane::run
