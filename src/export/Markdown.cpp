// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/Exports.h"
#include "export/Names.h"
#include "export/Titles.h"
#include "text/EscapedUtf8.h"

namespace orvane::exports {

namespace {

constexpr std::size_t kMostColumns = 12;

constexpr ByteSet kMarks = EscapedBytes([](unsigned char byte) {
    return std::string_view("<>&\\`*_{}[]()#+-.!|~").find(static_cast<char>(byte)) != std::string_view::npos;
});

void AppendMark(std::string& plain, char mark) {
    if (mark == '<')
        plain += "&lt;";
    else if (mark == '>')
        plain += "&gt;";
    else if (mark == '&')
        plain += "&amp;";
    else
        (plain += '\\') += mark;
}

// On one line; every sign that could mean something is taken for itself.
std::string Plain(std::string_view ansi) {
    std::string plain;
    AppendEscaped(plain, OneLine(ansi), kMarks,
                  [](std::string& out, std::string_view rest) { AppendMark(out, rest.front()); });
    return plain;
}

// A fence longer than any row of back quotes in the code.
std::string FencedCode(const std::string& title, std::string_view ansi) {
    if (ansi.empty())
        return "";
    const std::string lines = Utf8Lines(ansi);
    std::string fence = "```";
    while (lines.find(fence) != std::string::npos)
        fence += '`';
    return title + ":\n\n" + fence + "\n" + lines + (lines.ends_with('\n') ? "" : "\n") + fence + "\n\n";
}

class MarkdownWriter {
  public:
    explicit MarkdownWriter(const FsmDocument& document)
        : document_(document),
          states_(UsedStates(document)),
          rows_(UsedRows(document)),
          titles_([&](StateNumber state) { return Plain(StateText(document, state)); },
                  [&](RowNumber row) { return Plain(RowText(document, row)); }) {}

    std::string Write() {
        const std::string name = Plain(document_.General.FsmName);
        text_ = "# " + (name.empty() ? "Machine" : name) + "\n\n" +
                FencedCode("Header", document_.General.HeaderComment);
        if (states_.size() <= kMostColumns)
            WriteTable();
        text_ += "## States\n\n";
        for (const StateNumber state : states_)
            WriteState(state);
        text_ += "## Events\n\n";
        for (const RowNumber row : rows_) {
            if (row >= kFirstEventRow)
                text_ += "### " + titles_.Of(row) + "\n\n" + Comment(document_.Event(row).Tooltip) +
                         FencedCode("Test", document_.Event(row).Code);
        }
        text_.resize(text_.size() - 1); // one line end is enough
        return std::move(text_);
    }

  private:
    static std::string Comment(std::string_view comment) {
        return comment.empty() ? "" : Plain(comment) + "\n\n";
    }

    void WriteTable() {
        std::string head = "|";
        std::string line = "|---|";
        for (const StateNumber state : states_) {
            head += " | " + titles_.Of(state);
            line += "---|";
        }
        text_ += head + " |\n" + line + "\n";
        for (const RowNumber row : rows_) {
            text_ += "| " + titles_.Of(row);
            for (const StateNumber state : states_)
                text_ += " | " + CellText(state, row);
            text_ += " |\n";
        }
        text_ += "\n";
    }

    std::string CellText(StateNumber state, RowNumber row) const {
        const StateRecord& record = document_.State(state);
        const StateNumber target = record.Targets[row];
        const std::string text = target == kNoState ? "" : titles_.Of(target);
        return record.Actions[row].empty() ? text : text + "\\*";
    }

    void WriteState(StateNumber state) {
        const StateRecord& record = document_.State(state);
        text_ += "### " + titles_.Of(state) + "\n\n" + Comment(record.Tooltip) +
                 FencedCode("Entry action", record.EntryCode);
        bool hasWays = false;
        for (const RowNumber row : rows_) {
            const StateNumber target = record.Targets[row];
            if (target == kNoState)
                continue;
            const std::string name = row == kTimeoutRow ? Plain(TimeoutText(record)) : titles_.Of(row);
            text_ += "- " + name + ": to " + titles_.Of(target) + "\n";
            hasWays = true;
        }
        text_ += hasWays ? "\n" : "";
        for (const RowNumber row : rows_)
            text_ += FencedCode("Action on " + titles_.Of(row), record.Actions[row]);
        text_ += FencedCode("Exit action", record.ExitCode);
    }

    const FsmDocument& document_;
    const std::vector<StateNumber> states_;
    const std::vector<RowNumber> rows_;
    const Titles titles_;
    std::string text_;
};

} // namespace

std::string MarkdownOf(const FsmDocument& document) { return MarkdownWriter(document).Write(); }

} // namespace orvane::exports
