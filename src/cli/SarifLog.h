// SPDX-License-Identifier: GPL-3.0-or-later
// What was found in all documents of a run as one SARIF 2.1.0 log, which code hosts and editors show.
#pragma once

#include "cli/CheckedDocument.h"
#include "cli/GccReport.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orvane::cli {

// The parts of a log that tell of one document: objects with commas between them.
struct SarifPart {
    std::string Results;
    std::string Notifications; // what the reader says, and files that could not be read or written
    bool Failed = false;       // a document was not read to its end, or a program not written
};

std::string SarifResult(std::string_view path, const Remark& remark);

SarifPart SarifOf(const CheckedDocument& checked);

// Parts that could not be made leave no trace, so that the log is whole whatever happens.
std::string SarifLog(const std::vector<SarifPart>& parts);

// A name from the command line as the reference that a log needs: a relative path stays relative.
std::string UriOf(std::string_view name);

} // namespace orvane::cli
