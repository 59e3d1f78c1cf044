// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvane::cli {

struct GitAnswer {
    std::string Output; // without the last line end
    int Status = 0;     // 0 when git did what it was asked for
};

// Runs git with these arguments and waits for it; what it says beside the output goes where this program's
// errors go. None when there is no git to run.
std::optional<GitAnswer> AskGit(const std::vector<std::string>& arguments);

} // namespace orvane::cli
