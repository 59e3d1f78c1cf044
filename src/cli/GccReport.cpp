// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/GccReport.h"

#include "cli/FindingLine.h"
#include "cli/MessageText.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::cli {

namespace {

std::string Line(const CheckedDocument& checked, std::size_t line, std::string_view severity,
                 std::string_view message, std::string_view kind) {
    return ShownName(checked.Path) + ":" + NumberText(line) + ": " + std::string(severity) + ": " +
           OneLine(message) + " [" + std::string(kind) + "]\n";
}

} // namespace

std::string OneLine(std::string_view ansi) {
    std::string line;
    for (const char byte : ansi) {
        if (byte != '\r')
            line += byte == '\n' ? ' ' : byte;
    }
    return ShownName(ToUtf8(line));
}

std::string GccReport(const CheckedDocument& checked) {
    std::string report;
    for (const Finding& finding : checked.Findings.Findings)
        report +=
            Line(checked, LineOf(finding, checked.Document, checked.Starts),
                 SeverityName(checked.Findings.LevelOf(finding)), finding.Message, KindName(finding.Kind));
    if (checked.Advice != nullptr) {
        for (const run::Advice& advice : *checked.Advice)
            report += Line(checked, LineOf(advice, checked.Starts), "note", advice.Message,
                           AdviceKindName(advice.Kind));
    }
    return report;
}

} // namespace orvane::cli
