// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "codegen/FindingKind.h"
#include "core/Cell.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// Something a generation run found in the design, and where.
struct Finding {
    FindingKind Kind{};
    Cell Place; // kNoState when it concerns the machine as a whole, kNoRow when it concerns no row
    std::string Message;

    Severity Level() const { return SeverityOf(Kind); }
    bool operator==(const Finding&) const = default;
};

// What a run found, in the order in which it was found.
struct Report {
    std::vector<Finding> Findings;
    bool EndedEarly = false;        // the run stopped at its first finding: no heading and no summary
    bool WarningsAreErrors = false; // whoever asked for the run takes them so

    Severity LevelOf(const Finding& finding) const {
        const bool raised = WarningsAreErrors && finding.Level() == Severity::Warning;
        return raised ? Severity::Error : finding.Level();
    }
    std::size_t Count(Severity severity) const;
    bool HasErrors() const { return Count(Severity::Error) != 0; }
};

// The report as the error pane shows it, CR LF line ends: the heading, a line for each finding, the counts.
std::string ReportText(const Report& report);

// A line of the report as a window shows it.
struct ReportLine {
    std::string Text; // without a line end
    Cell Place;       // of its finding; kNoState for lines that lead nowhere

    bool operator==(const ReportLine&) const = default;
};

// The lines of that text. A finding whose message has line ends, which may be of any kind in a document from
// elsewhere, has several lines, all with its place.
std::vector<ReportLine> ReportLines(const Report& report);

} // namespace orvane
