// SPDX-License-Identifier: GPL-3.0-or-later
#include "builder/ProgramList.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::string_view kListHead = "#---";
constexpr std::string_view kBlanks = " \t\r";

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

} // namespace

std::vector<ListedProgram> ProgramsIn(std::string_view script) {
    std::vector<ListedProgram> programs;
    bool inList = false;
    for (std::size_t line = 1; !script.empty(); ++line) {
        const std::size_t end = std::min(script.find('\n'), script.size());
        const std::string_view whole = WithoutBlanks(script.substr(0, end));
        script.remove_prefix(std::min(end + 1, script.size()));
        const std::string_view path = WithoutBlanks(whole.substr(0, whole.find(';')));
        if (whole.starts_with(kListHead))
            inList = true;
        else if (inList && !path.empty())
            programs.push_back({std::string(path), line});
    }
    return programs;
}

} // namespace orvane
