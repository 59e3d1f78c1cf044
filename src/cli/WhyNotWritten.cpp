// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/WhyNotWritten.h"

#include "cli/DocumentPath.h"
#include "cli/MessageText.h"

namespace orvane::cli {

std::string WhyNotWritten(const FileError& error, const std::filesystem::path& target) {
    std::string reason = ReasonText(error);
    if (error.Step != FileStep::Create)
        return reason;
    const std::filesystem::path folder = target.parent_path();
    const std::string name = folder.empty() ? "." : ShownName(Utf8(folder));
    const bool isMissing = error.Reason == std::errc::no_such_file_or_directory;
    return (isMissing ? "there is no folder " : "no file can be made in the folder ") + name + ": " + reason;
}

} // namespace orvane::cli
