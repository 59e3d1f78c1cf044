// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Markers.h"

#include "support/ProgramLines.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::test {

namespace {

std::string Marker(std::string_view word, const std::string& operand) {
    return "\t" + std::string(word) + "\t" + operand;
}

void Mark(std::string& text, const std::string& marker) {
    if (!text.empty())
        text = marker;
}

void MarkState(StateRecord& state, StateNumber number) {
    const std::string name = NumberText(number.Number());
    Mark(state.EntryCode, Marker(kDo, "entry_" + name));
    Mark(state.ExitCode, Marker(kDo, "exit_" + name));
    for (const RowNumber row : CellRows()) // of two lines, so that texts of several lines are walked too
        Mark(state.Actions[row],
             Marker(kDo, "action_" + name + "_" + NumberText(row.Number())) + "\r\n;second line");
    if (!Trim(state.TimingVar).empty())
        state.TimingVar = Marker(kLoad, name);
    if (!Trim(state.TimeConst).empty())
        state.TimeConst = NumberText(number.Number() % 6);
}

} // namespace

FsmDocument WithMarkers(FsmDocument document) {
    for (const StateNumber number : StateNumbers())
        MarkState(document.State(number), number);
    for (const RowNumber row : EventRows())
        Mark(document.Event(row).Code, Marker(kTest, NumberText(row.Number())));
    GeneralCode& general = document.General;
    Mark(general.HeaderComment, ";header");
    // Without multitasking the program runs through the code segment into the first state.
    Mark(general.CodeSeg, document.View.Polytask ? Marker(kDo, "code") : ";code");
    Mark(general.InitSeg, Marker(kDo, "init"));
    Mark(general.TestSeg, Marker(kDo, "test"));
    Mark(general.NvEm0Data, Marker(kDo, "data"));
    return document;
}

std::vector<std::string> MarkersIn(std::string_view userText) {
    std::vector<std::string> markers;
    for (const ProgramLine& line : ParseProgram(userText)) {
        if (line.Kind == LineKind::Instruction && line.Word == kDo)
            markers.push_back(line.Operand);
    }
    return markers;
}

} // namespace orvane::test
