// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <string>
#include <vector>

namespace orvane::run {

// Why a machine cannot be run, one line of document text each; empty when it can: errors of the design,
// labels that stand twice in its program, no state that has a block, constant limits that no timer can reach.
std::vector<std::string> Obstacles(const FsmDocument& document);

} // namespace orvane::run
