// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/AnsiString.h"

#include <QString>

#include <string_view>

namespace orvane {

// A line of code as a list shows it: no blanks around it, tabs as blanks, and no more than a list can show.
inline QString ShownLine(std::string_view line) {
    constexpr std::size_t longest = 500;
    return FromAnsi(line.substr(0, longest)).replace(QLatin1Char('\t'), QLatin1Char(' ')).trimmed();
}

} // namespace orvane
