// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/RunArguments.h"

#include <string>

namespace CLI {
class App;
}

namespace orvane::cli {

// The arguments of the verbs that look into one machine. The parser writes into them, so that they have to
// stay where they are once a verb was added.
class MachineOptions {
  public:
    void AddSimulate(CLI::App& verb);
    void AddExplore(CLI::App& verb);
    void AddTour(CLI::App& verb);

    // Once, after the command line was parsed.
    std::string TakeDocument();
    SimulateArguments TakeSimulate();
    ExploreArguments TakeExplore();
    TourArguments TakeTour() const { return tour_; }

  private:
    void AddDocument(CLI::App& verb);

    std::string document_;
    SimulateArguments simulate_;
    ExploreArguments explore_;
    TourArguments tour_;
};

} // namespace orvane::cli
