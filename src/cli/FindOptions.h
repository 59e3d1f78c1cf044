// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/FindArguments.h"

#include <string>
#include <utility>
#include <vector>

namespace CLI {
class App;
}

namespace orvane::cli {

// The arguments of `orvanec find`. The parser writes into them, so that they have to stay where they are once
// the verb was added.
class FindOptions {
  public:
    void AddTo(CLI::App& verb);

    // Once, after the command line was parsed.
    std::vector<std::string> TakeDocuments() { return std::move(documents_); }
    FindArguments Take();

  private:
    std::vector<std::string> documents_;
    FindArguments arguments_;
    std::string format_ = "text";
};

} // namespace orvane::cli
