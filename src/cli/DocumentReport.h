// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/BuildArguments.h"
#include "cli/CheckedDocument.h"

#include <string>

namespace orvane::cli {

struct ReportStyle {
    ReportFormat Format = ReportFormat::Text;
    bool Headed = false; // the report as text begins with the document's name
    bool Quiet = false;  // nothing of a document of which there is nothing to tell
};

// What stands by itself for one document: nothing in a log of all.
std::string DocumentReport(const CheckedDocument& checked, const ReportStyle& style);

} // namespace orvane::cli
