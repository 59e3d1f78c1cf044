// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/BuildArguments.h"
#include "cli/ExportArguments.h"
#include "cli/FindArguments.h"
#include "cli/Outcome.h"
#include "cli/ReviewArguments.h"
#include "cli/RunArguments.h"
#include "cli/TestArguments.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace orvane::cli {

enum class Verb {
    Generate,
    Check,
    Format,
    Find,
    Test,
    Simulate,
    Explore,
    Tour,
    Diagram,
    Export,
    Import,
    Diff,
    Show,
    Merge,
    Conflicts,
    Git
};

// The verbs of the machine of one document.
constexpr bool LooksIntoOne(Verb verb) {
    return verb == Verb::Simulate || verb == Verb::Explore || verb == Verb::Tour;
}

// The verbs that give one document another form.
constexpr bool GivesAnotherForm(Verb verb) {
    return verb == Verb::Diagram || verb == Verb::Export || verb == Verb::Import;
}

// The verbs about several versions of one document.
constexpr bool ComparesVersions(Verb verb) {
    return verb == Verb::Diff || verb == Verb::Show || verb == Verb::Merge || verb == Verb::Conflicts ||
           verb == Verb::Git;
}

inline constexpr const char* kStandardOutput = "-";
inline constexpr const char* kStandardInput = "-"; // of the verbs of a build

struct Arguments {
    Verb What = Verb::Check;
    // At least one but for a project, as they were given; of Test files and folders, too.
    std::vector<std::string> Documents;
    std::optional<std::string> Output; // a path or kStandardOutput; only with one document
    BuildArguments Building;
    FindArguments Finding;
    TestArguments Testing;
    SimulateArguments Simulating;
    ExploreArguments Exploring;
    TourArguments Touring;
    DiagramArguments Drawing;
    ExportArguments Exporting;
    ReviewArguments Reviewing;
};

// What the words behind the program's name ask for. When there is nothing to do, or no way to do it, the
// outcome of that: the help or version text, or what is wrong with the usage.
std::variant<Arguments, Outcome> ParseArguments(const std::vector<std::string>& words);

Outcome WrongUsage(const std::string& what);

} // namespace orvane::cli
