// SPDX-License-Identifier: GPL-3.0-or-later
// The two text forms of state charts that documentation tools draw.
#include "export/Exports.h"
#include "export/Names.h"
#include "export/Titles.h"
#include "text/Append.h"
#include "text/Ascii.h"
#include "text/EscapedUtf8.h"
#include "text/NumberText.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace orvane::exports {

namespace {

constexpr bool IsPlain(char character) {
    const char upper = AsciiUpper(character);
    return (upper >= 'A' && upper <= 'Z') || IsAsciiDigit(character) ||
           std::string_view(" _.,()+*/?!=").find(character) != std::string_view::npos;
}

constexpr ByteSet kEscapedInCharts =
    EscapedBytes([](unsigned char byte) { return !IsPlain(static_cast<char>(byte)); });

// Anything that could be markup as an entity: ";" would end a label, "::" the line, "a<b" begin a tag.
std::string MermaidText(std::string_view ansi) {
    std::string text;
    AppendEscaped(text, ansi, kEscapedInCharts, [](std::string& out, std::string_view rest) {
        Append(out, "#", NumberText(ByteOf(rest.front())), ";");
    });
    return text;
}

std::string PlantUmlText(std::string_view ansi) {
    std::string text;
    AppendEscaped(text, ansi, kEscapedInCharts, [](std::string& out, std::string_view rest) {
        const std::string code = HexText(ByteOf(rest.front()));
        Append(out, "<U+", std::string(4 - code.size(), '0'), code, ">");
    });
    return text;
}

std::string Node(StateNumber state) { return "s" + NumberText(state.Number()); }

// The cells that lead on, by target and then by row.
std::vector<std::pair<StateNumber, RowNumber>> Ways(const StateRecord& record) {
    std::vector<std::pair<StateNumber, RowNumber>> ways;
    for (const RowNumber row : CellRows()) {
        if (record.Targets[row] != kNoState)
            ways.emplace_back(record.Targets[row], row);
    }
    std::sort(ways.begin(), ways.end());
    return ways;
}

class ChartWriter {
  public:
    ChartWriter(const FsmDocument& document, std::string (*escape)(std::string_view))
        : document_(document),
          states_(UsedStates(document)),
          escape_(escape),
          titles_([&](StateNumber state) { return escape(StateText(document, state)); },
                  [&](RowNumber row) { return escape(RowText(document, row)); }) {}

    // `line(text, node, title)` appends the line that says what a state is called.
    template <typename StateLine>
    void WriteStates(StateLine line) {
        for (const StateNumber state : states_)
            line(text_, Node(state), titles_.Of(state));
    }

    void WriteTransitions(std::string_view indent) {
        if (!states_.empty() && states_.front() == StateNumbers().First())
            Append(text_, indent, "[*] --> s1\n");
        for (const StateNumber state : states_)
            WriteTransitions(indent, state);
    }

    std::string Take() { return std::move(text_); }

  private:
    // One line for each target: what leads there, separated by commas.
    void WriteTransitions(std::string_view indent, StateNumber state) {
        const StateRecord& record = document_.State(state);
        StateNumber line = kNoState;
        for (const auto& [target, row] : Ways(record)) {
            if (target == line)
                text_ += ", ";
            else
                Append(text_, line == kNoState ? "" : "\n", indent, Node(state), " --> ", Node(target),
                       " : ");
            text_ += row == kTimeoutRow ? escape_(TimeoutText(record)) : titles_.Of(row);
            line = target;
        }
        text_ += line == kNoState ? "" : "\n";
    }

    const FsmDocument& document_;
    const std::vector<StateNumber> states_;
    std::string (*escape_)(std::string_view);
    const Titles titles_;
    std::string text_;
};

} // namespace

std::string MermaidOf(const FsmDocument& document) {
    ChartWriter chart(document, MermaidText);
    chart.WriteStates([](std::string& text, const std::string& node, const std::string& title) {
        Append(text, "    ", node, " : ", title, "\n");
    });
    chart.WriteTransitions("    ");
    return "stateDiagram-v2\n" + chart.Take();
}

std::string PlantUmlOf(const FsmDocument& document) {
    ChartWriter chart(document, PlantUmlText);
    chart.WriteStates([](std::string& text, const std::string& node, const std::string& title) {
        Append(text, "state \"", title, "\" as ", node, "\n");
    });
    chart.WriteTransitions("");
    return "@startuml\n" + chart.Take() + "@enduml\n";
}

} // namespace orvane::exports
