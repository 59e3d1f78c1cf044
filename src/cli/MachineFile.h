// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Outcome.h"
#include "cli/TestFiles.h"
#include "core/FsmDocument.h"

#include <memory>
#include <string>

namespace orvane::cli {

// The document of a machine that is to be run; none when it could not be read to its end. The outcome says
// what there is to say about it.
std::shared_ptr<const FsmDocument> ReadMachine(const TestFiles& files, const std::string& name,
                                               Outcome& outcome);

// What keeps the machine from being run is told as errors of the design; false then.
bool CanBeRun(const FsmDocument& document, const std::string& name, Outcome& outcome);

} // namespace orvane::cli
