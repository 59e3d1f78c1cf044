// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/TraceCsv.h"

#include "run/StepCheck.h"
#include "run/TraceText.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::run {

namespace {

std::string Field(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char byte : text)
        quoted.append(byte == '"' ? 2 : 1, byte);
    return quoted + '"';
}

std::string Head(const RunTrace& trace, const FsmDocument& document, const Machine& machine) {
    std::string head = "time,moment,state,state_name,via,ran";
    for (const TraceInput& input : trace.Inputs)
        head += "," + Field(input.Name);
    for (const std::string& id : TimerIds(document, machine))
        head += "," + Field(id.empty() ? "timer" : "timer " + id);
    return head + "\n";
}

// The texts of the code, each on one line, with " | " between them.
std::string RanText(const TraceRow& row, const FsmDocument& document) {
    std::string ran;
    for (const std::string* code : CodeOf(row, document))
        ran += (ran.empty() ? "" : " | ") + CodeOnOneLine(*code);
    return ran;
}

std::string Line(const RunTrace& trace, const TraceRow& row, const FsmDocument& document) {
    const bool moved = row.Kind == TraceKind::Transition;
    std::string line =
        NumberText(row.When) + "," + NumberText(static_cast<std::int64_t>(row.Moment)) + "," +
        NumberText(row.What.To.Number()) + "," + Field(ToUtf8(Trim(document.State(row.What.To).Name))) + "," +
        (moved ? Field(RowText(document, row.What.Row)) : "") + "," + Field(RanText(row, document));
    for (const bool there : trace.InputSets[row.Inputs])
        line += there ? ",1" : ",0";
    return line;
}

} // namespace

std::string TraceCsv(const RunTrace& trace, const FsmDocument& document, const Machine& machine) {
    std::string csv = Head(trace, document, machine);
    TraceTimers timers(machine);
    for (const TraceRow& row : trace.Rows) {
        timers.Add(row);
        csv += Line(trace, row, document);
        for (std::size_t timer = 0; timer < machine.Timers().size(); ++timer) {
            const std::optional<Units> since = timers.Since(timer, row.When);
            csv += since ? "," + NumberText(*since) : ",";
        }
        csv += "\n";
    }
    return csv;
}

} // namespace orvane::run
