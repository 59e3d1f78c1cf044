// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/DependencyRules.h"

namespace orvane::cli {

namespace {

// A backslash only means something in front of a blank or "#", where it is doubled; elsewhere it stands for
// itself, as in the paths of Windows.
std::string Escaped(std::string_view name) {
    std::string escaped;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (name[i] == ' ' || name[i] == '#') {
            for (std::size_t j = i; j > 0 && name[j - 1] == '\\'; --j)
                escaped += '\\';
            escaped += '\\';
        } else if (name[i] == '$') {
            escaped += '$';
        }
        escaped += name[i];
    }
    return escaped;
}

} // namespace

std::string DependencyRule(std::string_view program, std::string_view document) {
    return Escaped(program) + ": " + Escaped(document) + "\n";
}

} // namespace orvane::cli
