// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/ReviewArguments.h"

#include <string>
#include <utility>
#include <vector>

namespace CLI {
class App;
}

namespace orvane::cli {

// The arguments of the verbs about several versions of a document. The parser writes into them, so that they
// have to stay where they are once a verb was added.
class ReviewOptions {
  public:
    void AddDiff(CLI::App& verb);
    void AddShow(CLI::App& verb);
    void AddMerge(CLI::App& verb);
    void AddConflicts(CLI::App& verb);
    void AddGit(CLI::App& verb);

    // Once, after the command line was parsed.
    std::vector<std::string> TakeDocuments() { return std::move(documents_); }
    ReviewArguments Take();

  private:
    std::vector<std::string> documents_;
    ReviewArguments arguments_;
    std::string format_ = "text";
};

} // namespace orvane::cli
