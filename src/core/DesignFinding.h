// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

enum class FindingLevel : unsigned char { Error, Warning, Note, Advice };

// Something that there is to be told of a design: what the generator reports, or advice, which no report has.
struct DesignFinding {
    FindingLevel Level{};
    Cell Place; // kNoState when it concerns an event or the whole machine, kNoRow a state or the machine
    std::string Text; // document text on one line

    bool operator==(const DesignFinding&) const = default;
};

// "error", "warning", "note" or "advice".
std::string_view LevelWord(FindingLevel level);

// "2 errors, 1 warning, 3 notes, 1 advice"; what there is none of is left out. "No findings" for none.
std::string FindingCounts(std::span<const DesignFinding> findings);

} // namespace orvane
