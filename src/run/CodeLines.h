// SPDX-License-Identifier: GPL-3.0-or-later
// The user's code that runs when a machine moves.
#pragma once

#include "core/FsmDocument.h"
#include "run/Machine.h"

#include <string>
#include <string_view>
#include <vector>

namespace orvane::run {

// The texts that run when the transition is taken, in order: its action and the entry code of its target. A
// timeout with a variable limit has no action in the program, and what holds a state runs nothing. Texts that
// are empty are left out.
void AddCodeOf(std::vector<const std::string*>& ran, const FsmDocument& document, const Taken& taken);

// The text with each run of blanks and tabs as one blank.
std::string WithSingleBlanks(std::string_view text);

// Some line of the code has the text in it, runs of blanks taken as one. `text` has single blanks already.
bool HasText(std::string_view code, std::string_view text);

} // namespace orvane::run
