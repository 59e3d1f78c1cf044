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

// Adds the text line by line. A message of a document from elsewhere may hold line ends of any kind.
void AppendLines(std::vector<ReportLine>& lines, std::string_view text, Cell place) {
    lines.push_back({"", place});
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool insidePair = text[i] == '\n' && i > 0 && text[i - 1] == '\r';
        if (text[i] != '\r' && text[i] != '\n')
            lines.back().Text += text[i];
        else if (!insidePair)
            lines.push_back({"", place});
    }
}

std::string CountText(const Report& report, Severity severity) {
    return SignedNumberText(report.Count(severity));
}

// Gives `take` the report piece by piece: the heading, each finding with its place, the counts.
template <typename Take>
void VisitReport(const Report& report, Take take) {
    if (!report.EndedEarly)
        take("Errors and warnings", Cell());
    for (const Finding& finding : report.Findings)
        take(std::string(Prefix(report.LevelOf(finding))) + finding.Message, finding.Place);
    if (report.EndedEarly)
        return;
    if (report.Count(Severity::Note) != 0)
        take(CountText(report, Severity::Note) + " Notes", Cell());
    if (report.Count(Severity::Warning) != 0)
        take(CountText(report, Severity::Warning) + " Warnings", Cell());
    if (report.Count(Severity::Error) != 0)
        take("****" + CountText(report, Severity::Error) + " Errors ****", Cell());
}

} // namespace

std::size_t Report::Count(Severity severity) const {
    const auto matches = [&](const Finding& finding) { return LevelOf(finding) == severity; };
    return std::count_if(Findings.begin(), Findings.end(), matches);
}

std::string ReportText(const Report& report) {
    std::string text;
    VisitReport(report, [&text](std::string_view line, Cell) { text.append(line).append(kLineEnd); });
    return text;
}

std::vector<ReportLine> ReportLines(const Report& report) {
    std::vector<ReportLine> lines;
    VisitReport(report, [&lines](std::string_view line, Cell place) { AppendLines(lines, line, place); });
    return lines;
}

} // namespace orvane
