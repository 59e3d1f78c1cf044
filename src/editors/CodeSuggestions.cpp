// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/CodeSuggestions.h"

namespace orvane {

namespace {

std::string NameOrStandIn(std::string_view fsmName) { return std::string(fsmName.empty() ? "XXX" : fsmName); }

} // namespace

std::string CodeSuggestion(std::string_view fsmName) {
    const std::string name = NameOrStandIn(fsmName);
    return name + "_Init:\tLaunchTask\t" + name + "_Launch";
}

std::string InitSuggestion(std::string_view fsmName) {
    return "\tGoSub\t" + NameOrStandIn(fsmName) + "_Init";
}

} // namespace orvane
