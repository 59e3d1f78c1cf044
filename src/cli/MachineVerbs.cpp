// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/MachineVerbs.h"

#include "cli/ExploreVerb.h"
#include "cli/MessageText.h"
#include "cli/SimulateVerb.h"
#include "cli/TourVerb.h"

#include <exception>

namespace orvane::cli {

Outcome RunMachineVerb(const Arguments& arguments, const TestFiles& files) noexcept {
    try {
        if (arguments.What == Verb::Explore)
            return RunExplore(arguments, files);
        if (arguments.What == Verb::Tour)
            return RunTour(arguments, files);
        return RunSimulate(arguments, files);
    } catch (const std::exception& error) {
        return {{}, FailureLine(arguments.Documents.front(), error.what()), kFileError};
    }
}

} // namespace orvane::cli
