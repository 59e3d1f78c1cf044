// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TraceText.h"

#include "codegen/DesignChecks.h"
#include "run/CodeLines.h"
#include "run/StepCheck.h"
#include "run/TestLexer.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane::run {

namespace {

constexpr std::size_t kTimeWidth = 8;

// "on A B  off C": what is not as it was.
std::string InputsText(const RunTrace& trace, const std::vector<bool>& now, const std::vector<bool>* before) {
    std::string on;
    std::string off;
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (now[i] == (before != nullptr && (*before)[i]))
            continue;
        (now[i] ? on : off) += " " + QuotedWhereNeeded(trace.Inputs[i].Name);
    }
    const std::string between = on.empty() || off.empty() ? "" : "  ";
    return (on.empty() ? "" : "on" + on) + between + (off.empty() ? "" : "off" + off);
}

std::string RunsText(const TraceRow& row, const FsmDocument& document) {
    std::string text;
    for (const std::string* code : CodeOf(row, document))
        text += (text.empty() ? "  runs " : " ") + Quoted(CodeOnOneLine(*code));
    return text;
}

std::string ViaText(const TraceRow& row, const FsmDocument& document) {
    const std::string text = RowText(document, row.What.Row);
    return row.What.Row < RowNumber(kFirstEventRow) ? text : QuotedWhereNeeded(text);
}

std::string StateText(const TraceRow& row, const FsmDocument& document) {
    return "=> " + ToUtf8(StateTitle(document, row.What.To));
}

} // namespace

std::string TraceLine(const RunTrace& trace, const TraceRow& row, const TraceRow* before,
                      const FsmDocument& document) {
    std::string line = NumberText(row.When);
    line.resize(std::max(line.size(), kTimeWidth), ' ');
    line += "  ";
    const std::vector<bool>& inputs = trace.InputSets[row.Inputs];
    const std::string changed =
        InputsText(trace, inputs, before == nullptr ? nullptr : &trace.InputSets[before->Inputs]);
    switch (row.Kind) {
    case TraceKind::PowerOn:
        return line + (changed.empty() ? "" : changed + "  ") + StateText(row, document) + "  power on" +
               RunsText(row, document);
    case TraceKind::Inputs:
        return line + changed;
    case TraceKind::Transition:
        return line + (row.What.Holds ? "stays" : StateText(row, document)) + "  via " +
               ViaText(row, document) + RunsText(row, document);
    case TraceKind::End:
        break;
    }
    return line + "stays in " + ToUtf8(StateTitle(document, row.What.To));
}

std::string CodeOnOneLine(const std::string& code) {
    std::string line = code;
    std::replace_if(
        line.begin(), line.end(), [](char byte) { return byte == '\r' || byte == '\n'; }, ' ');
    return ToUtf8(Trim(WithSingleBlanks(line)));
}

} // namespace orvane::run
