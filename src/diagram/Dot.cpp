// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Dot.h"

#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::diagram {

namespace {

// In quotes: a backslash would begin an escape, and entities are resolved there, too.
std::string Quoted(const std::string& ansi) {
    std::string quoted;
    for (const char character : ToUtf8(ansi)) {
        if (character == '&')
            quoted += "&amp;";
        else if (character == '"' || character == '\\')
            quoted += std::string("\\") + character;
        else
            quoted += character;
    }
    return quoted;
}

std::string Node(StateNumber state) { return "s" + NumberText(state.Number()); }

std::string LabelText(const std::vector<LabelLine>& lines, const char* end) {
    std::string text;
    for (const LabelLine& line : lines)
        text +=
            std::string(line.Loop ? "again: " : "") + (line.Clock ? "after " : "") + Quoted(line.Text) + end;
    return text;
}

std::string NodeLine(const SceneState& state) {
    const std::string styles =
        std::string(state.IsUnreachable ? "rounded,dashed" : "rounded") + (state.IsStart ? ",bold" : "");
    const std::string lines = state.Lines.empty() ? "" : "\\n" + LabelText(state.Lines, "\\l");
    return "    " + Node(state.Number) + " [label=\"" + (state.HasError ? "(!) " : "") + Quoted(state.Title) +
           lines + "\", style=\"" + styles + "\"" + (state.HasError ? ", color=red" : "") + "];\n";
}

std::string EdgeLine(const SceneEdge& edge) {
    std::string label = LabelText(edge.Label, "\\n");
    label.resize(label.size() - 2); // the last line end
    return "    " + Node(edge.From) + " -> " + Node(edge.To) + " [label=\"" + label + "\"" +
           (edge.IsDashed ? ", style=dashed" : "") + "];\n";
}

} // namespace

std::string DotOf(const Scene& scene, Direction direction) {
    std::string dot = "digraph machine {\n    charset=\"UTF-8\";\n    rankdir=";
    dot += direction == Direction::LeftToRight ? "LR" : "TB";
    dot += ";\n    node [shape=box, fontname=\"Helvetica\", fontsize=12];\n"
           "    edge [fontname=\"Helvetica\", fontsize=10];\n";
    for (const SceneState& state : scene.States) {
        if (state.IsStart)
            dot += "    start [shape=point, width=0.15];\n    start -> " + Node(state.Number) + ";\n";
        dot += NodeLine(state);
    }
    for (const SceneEdge& edge : scene.Edges)
        dot += EdgeLine(edge);
    return dot + "}\n";
}

} // namespace orvane::diagram
