// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::test {

// What an assembler would refuse in a program whose user texts are markers or comments, one line each; empty
// for a sound program. A state has a block exactly when it is entered; every label is defined once; every
// jump leads to a label; every timer is defined once.
//
// Timers have three exceptions, which programs have always had: a timer that is only continued is the user's
// to define; so is one whose id is the tail of another started id; and ids that differ only in blanks give
// one timer defined twice.
std::vector<std::string> ProgramFaults(const FsmDocument& document, std::string_view text);

} // namespace orvane::test
