// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are read and a program is generated: the same input gives the same bytes, errors of the report
// stand in the text, and in a program without errors every jump has its label and every label one place.
#include "Require.h"
#include "codegen/CodeGenerator.h"
#include "codegen/Labels.h"
#include "core/DocumentReader.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

using namespace orvane;

namespace {

std::vector<std::string_view> LinesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find("\r\n");
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 2);
    }
    return lines;
}

// The document with every user text made harmless, so that each line that looks like a jump or a label is the
// generator's own. Cells, timing modes and the order of the timers stay.
FsmDocument WithoutUserCode(FsmDocument document) {
    document.General.FsmName = document.General.FsmName.empty() ? "" : "P";
    for (std::string* text :
         {&document.General.HeaderComment, &document.General.CodeSeg, &document.General.InitSeg,
          &document.General.NvEm0Data, &document.General.TestSeg, &document.General.Instances})
        *text = text->empty() ? "" : ";";
    for (const RowNumber row : CellRows())
        document.Event(row).Code = document.Event(row).Code.empty() ? "" : ";";
    for (const StateNumber number : StateNumbers()) {
        StateRecord& state = document.State(number);
        for (std::string* text : {&state.Name, &state.EntryCode, &state.TimeConst, &state.TimingVar})
            *text = text->empty() ? "" : "S";
        state.EntryCode.clear();
        state.TimerId.clear();
        for (const RowNumber row : CellRows())
            state.Actions[row] = state.Actions[row].empty() ? "" : ";";
    }
    return document;
}

bool IsJump(std::string_view word) {
    constexpr std::string_view jumps[] = {"GoTo", "GoIfF", "GoIfT", "GoifT", "fGoIfNeg"};
    return std::find(std::begin(jumps), std::end(jumps), word) != std::end(jumps);
}

void CheckJumps(std::string_view text) {
    std::set<std::string_view> labels;
    std::set<std::string_view> targets;
    for (const std::string_view line : LinesOf(text)) {
        if (line.empty() || line[0] == ';')
            continue;
        if (line[0] != '\t') {
            const bool isNew = labels.insert(line.substr(0, line.find(':'))).second;
            Require(isNew || line == "S", "a label stands in one place");
            continue;
        }
        const std::size_t tab = line.find('\t', 1);
        if (tab != std::string_view::npos && IsJump(line.substr(1, tab - 1)))
            targets.insert(line.substr(tab + 1));
    }
    for (const std::string_view target : targets)
        Require(labels.count(target) == 1, "a jump has its label");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const FsmDocument document = ReadDocument(bytes).Document;
    const GenerationContext context = {"/work/pump.zfsm", "16/11/2026 01:02:03"};
    const GeneratedProgram program = GenerateProgram(document, context);

    Require(GenerateProgram(document, context).Text == program.Text, "the same input gives the same bytes");
    for (const Finding& finding : program.Findings.Findings)
        Require(finding.Level() != Severity::Error ||
                    program.Text.find("Orvane reports " + finding.Message + "\r\n") != std::string::npos,
                "an error is marked in the program");

    const GeneratedProgram bare = GenerateProgram(WithoutUserCode(document), context);
    if (!bare.Findings.HasErrors())
        CheckJumps(bare.Text);
    return 0;
}
