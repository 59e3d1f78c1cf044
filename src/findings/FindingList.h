// SPDX-License-Identifier: GPL-3.0-or-later
// What there is to be told of a design in one list: what the generator has found, and advice.
#pragma once

#include "core/DesignFinding.h"
#include "core/FsmDocument.h"

#include <stop_token>
#include <string>
#include <vector>

namespace orvane::findings {

// Errors first, advice last, each in its own order: that of the report, and of the advice that the table
// alone gives. Quick enough for every edit.
std::vector<DesignFinding> FindingList(std::vector<DesignFinding> report, const FsmDocument& document);

// The advice that takes a look at all that the machine can do, beyond what stands in the list already.
struct Explored {
    std::vector<DesignFinding> Advice;
    bool Complete = true; // the whole machine could be looked at
};
Explored Explore(const FsmDocument& document, const std::stop_token& stop);

// "3:Opening, on Button", "State 3:Opening", "Event Button", "The machine"; document text.
std::string PlaceText(const FsmDocument& document, Cell place);

} // namespace orvane::findings
