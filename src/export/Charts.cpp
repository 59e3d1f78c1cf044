// SPDX-License-Identifier: GPL-3.0-or-later
// The two text forms of state charts that documentation tools draw.
#include "export/Exports.h"
#include "export/Names.h"
#include "text/AnsiText.h"
#include "text/Ascii.h"
#include "text/ByteOf.h"
#include "text/NumberText.h"

#include <map>

namespace orvane::exports {

namespace {

bool IsPlain(char character) {
    const char upper = AsciiUpper(character);
    return (upper >= 'A' && upper <= 'Z') || IsAsciiDigit(character) || ByteOf(character) >= 0x80 ||
           std::string_view(" _.,()+*/?!=").find(character) != std::string_view::npos;
}

// Anything that could be markup as an entity: ";" would end a label, "::" the line, "a<b" begin a tag.
std::string MermaidText(std::string_view ansi) {
    std::string text;
    for (const char character : ToUtf8(ansi))
        text += IsPlain(character) ? std::string(1, character) : "#" + NumberText(ByteOf(character)) + ";";
    return text;
}

std::string PlantUmlText(std::string_view ansi) {
    std::string text;
    for (const char character : ToUtf8(ansi)) {
        const std::string code = HexText(ByteOf(character));
        text += IsPlain(character) ? std::string(1, character)
                                   : "<U+" + std::string(4 - code.size(), '0') + code + ">";
    }
    return text;
}

std::string Node(StateNumber state) { return "s" + NumberText(state.Number()); }

// By target: what leads there, separated by commas.
std::map<StateNumber, std::string> Ways(const FsmDocument& document, StateNumber state) {
    const StateRecord& record = document.State(state);
    std::map<StateNumber, std::string> ways;
    for (const RowNumber row : CellRows()) {
        if (record.Targets[row] == kNoState)
            continue;
        std::string& label = ways[record.Targets[row]];
        label +=
            (label.empty() ? "" : ", ") + (row == kTimeoutRow ? TimeoutText(record) : RowText(document, row));
    }
    return ways;
}

template <typename Escape>
std::string Transitions(const FsmDocument& document, const std::string& indent, Escape escape) {
    std::string text;
    const std::vector<StateNumber> states = UsedStates(document);
    if (!states.empty() && states.front() == StateNumbers().First())
        text += indent + "[*] --> s1\n";
    for (const StateNumber state : states) {
        for (const auto& [target, label] : Ways(document, state))
            text += indent + Node(state) + " --> " + Node(target) + " : " + escape(label) + "\n";
    }
    return text;
}

} // namespace

std::string MermaidOf(const FsmDocument& document) {
    std::string text = "stateDiagram-v2\n";
    for (const StateNumber state : UsedStates(document))
        text += "    " + Node(state) + " : " + MermaidText(StateText(document, state)) + "\n";
    return text + Transitions(document, "    ", MermaidText);
}

std::string PlantUmlOf(const FsmDocument& document) {
    std::string text = "@startuml\n";
    for (const StateNumber state : UsedStates(document))
        text += "state \"" + PlantUmlText(StateText(document, state)) + "\" as " + Node(state) + "\n";
    return text + Transitions(document, "", PlantUmlText) + "@enduml\n";
}

} // namespace orvane::exports
