// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/BuildArguments.h"

#include <string>

namespace CLI {
class App;
}

namespace orvane::cli {

// The options of generate, check and format. The parser writes into them, so that they have to stay where
// they are once a verb was added.
class BuildOptions {
  public:
    void AddGenerate(CLI::App& verb);
    void AddCheck(CLI::App& verb);
    void AddFormat(CLI::App& verb);

    // Once, after the command line was parsed.
    BuildArguments Take();

  private:
    void AddReport(CLI::App& verb);
    void AddJobs(CLI::App& verb);

    BuildArguments arguments_;
    std::string format_ = "text";
};

} // namespace orvane::cli
