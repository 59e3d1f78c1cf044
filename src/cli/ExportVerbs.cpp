// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ExportVerbs.h"

#include "cli/DiagramVerb.h"
#include "cli/ExportVerb.h"
#include "cli/ImportVerb.h"
#include "cli/MessageText.h"

#include <exception>
#include <utility>

namespace orvane::cli {

Outcome RunExportVerb(const Arguments& arguments, const TestFiles& files) noexcept {
    try {
        if (arguments.What == Verb::Export)
            return RunExport(arguments, files);
        if (arguments.What == Verb::Import)
            return RunImport(arguments, files);
        return RunDiagram(arguments, files);
    } catch (const std::exception& error) {
        return {{}, FailureLine(arguments.Documents.front(), error.what()), kFileError};
    }
}

void WriteOutput(const Arguments& arguments, const TestFiles& files, std::string bytes, Outcome& outcome) {
    if (!arguments.Output || *arguments.Output == kStandardOutput)
        outcome.Output = std::move(bytes);
    else
        files.WriteReport(*arguments.Output, bytes, outcome);
}

} // namespace orvane::cli
