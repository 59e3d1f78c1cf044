// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

enum class Severity { Note, Warning, Error };

// "note", "warning" or "error".
std::string_view SeverityName(Severity severity);

// Something a generation run found in the design, and where.
struct Finding {
    Severity Kind = Severity::Note;
    Cell Place; // kNoState when it concerns the machine as a whole, kNoRow when it concerns no row
    std::string Message;

    bool operator==(const Finding&) const = default;
};

// What a run found, in the order in which it was found.
struct Report {
    std::vector<Finding> Findings;
    bool EndedEarly = false; // the run stopped at its first finding: no heading and no summary

    std::size_t Count(Severity severity) const;
    bool HasErrors() const { return Count(Severity::Error) != 0; }
};

// The report as the error pane shows it, CR LF line ends: the heading, a line for each finding, the counts.
std::string ReportText(const Report& report);

// The finding that a line of that text tells of, lines counted from 0; null for the heading and the counts.
// The report must outlive the pointer.
const Finding* FindingAtLine(const Report& report, std::size_t line);

} // namespace orvane
