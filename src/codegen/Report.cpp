// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/Report.h"

#include "text/AnsiText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane {

namespace {

std::string_view Prefix(Severity severity) {
    switch (severity) {
    case Severity::Note:
        return "Note: ";
    case Severity::Warning:
        return "Warning: ";
    case Severity::Error:
        break;
    }
    return "** Error ** ";
}

void AppendLine(std::string& text, std::string_view line) { text.append(line).append(kLineEnd); }

// A message from a foreign file may hold line ends of any kind.
std::size_t LineCount(std::string_view message) {
    std::size_t lines = 1;
    for (std::size_t i = 0; i < message.size(); ++i) {
        const bool insidePair = message[i] == '\n' && i > 0 && message[i - 1] == '\r';
        if ((message[i] == '\r' || message[i] == '\n') && !insidePair)
            ++lines;
    }
    return lines;
}

std::string CountText(const Report& report, Severity severity) {
    return SignedNumberText(static_cast<std::int64_t>(report.Count(severity)));
}

} // namespace

std::string_view SeverityName(Severity severity) {
    switch (severity) {
    case Severity::Note:
        return "note";
    case Severity::Warning:
        return "warning";
    case Severity::Error:
        break;
    }
    return "error";
}

std::size_t Report::Count(Severity severity) const {
    const auto matches = [severity](const Finding& finding) { return finding.Kind == severity; };
    return static_cast<std::size_t>(std::count_if(Findings.begin(), Findings.end(), matches));
}

std::string ReportText(const Report& report) {
    std::string text;
    if (!report.EndedEarly)
        AppendLine(text, "Errors and warnings");
    for (const Finding& finding : report.Findings)
        AppendLine(text, std::string(Prefix(finding.Kind)) + finding.Message);
    if (report.EndedEarly)
        return text;
    if (report.Count(Severity::Note) != 0)
        AppendLine(text, CountText(report, Severity::Note) + " Notes");
    if (report.Count(Severity::Warning) != 0)
        AppendLine(text, CountText(report, Severity::Warning) + " Warnings");
    if (report.Count(Severity::Error) != 0)
        AppendLine(text, "****" + CountText(report, Severity::Error) + " Errors ****");
    return text;
}

const Finding* FindingAtLine(const Report& report, std::size_t line) {
    std::size_t next = report.EndedEarly ? 0 : 1; // the first line of the finding looked at
    for (const Finding& finding : report.Findings) {
        const std::size_t lines = LineCount(finding.Message);
        if (line >= next && line < next + lines)
            return &finding;
        next += lines;
    }
    return nullptr;
}

} // namespace orvane
