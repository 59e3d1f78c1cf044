// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/TestArguments.h"

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace orvane::cli {

// The options of the verb `test`. The parser writes into them, so that they have to stay where they are from
// AddTo on.
class TestOptions {
  public:
    void AddTo(CLI::App& verb);

    // What was asked for; once, after the command line was parsed.
    TestArguments Take();

  private:
    void AddReports(CLI::App& verb);
    void AddRunning(CLI::App& verb);

    TestArguments arguments_;
    std::vector<std::string> readings_;
    std::string coverage_; // "true" for no number
};

} // namespace orvane::cli
