// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/GccReport.h"

#include "cli/FindingLine.h"
#include "cli/MessageText.h"
#include "text/AnsiText.h"
#include "text/NumberText.h"

namespace orvane::cli {

std::string GccLine(std::string_view path, const Remark& remark) {
    return ShownName(path) + ":" + NumberText(remark.Line) + ": " + std::string(remark.Severity) + ": " +
           OneLine(remark.Message) + " [" + std::string(remark.Kind) + "]\n";
}

std::string OneLine(std::string_view ansi) {
    std::string line;
    for (const char byte : ansi) {
        if (byte != '\r')
            line += byte == '\n' ? ' ' : byte;
    }
    return ShownName(ToUtf8(line));
}

Remark RemarkOf(const Finding& finding, const CheckedDocument& checked) {
    return {LineOf(finding, checked.Document, checked.Starts),
            SeverityName(checked.Findings.LevelOf(finding)), finding.Message, KindName(finding.Kind)};
}

Remark RemarkOf(const run::Advice& advice, const CheckedDocument& checked) {
    return {LineOf(advice, checked.Starts), "note", advice.Message, AdviceKindName(advice.Kind)};
}

std::string GccReport(const CheckedDocument& checked) {
    std::string report;
    for (const Finding& finding : checked.Findings.Findings)
        report += GccLine(checked.Path, RemarkOf(finding, checked));
    if (checked.Advice != nullptr) {
        for (const run::Advice& advice : *checked.Advice)
            report += GccLine(checked.Path, RemarkOf(advice, checked));
    }
    return report;
}

} // namespace orvane::cli
