// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/FsmDocument.h"

#include <string>
#include <vector>

namespace orvane {

// The labels that a document's program defines more than once, sorted: of states, of the places behind their
// actions, of the launch and of the timers. A state named "Timer" with the number 3 and a timer "3" have one
// label, and so have the timers "A" and "A ". Labels inside user code are not looked at.
//
// The program's text is not made for this, and what the generator finds wrong in the document does not
// matter. Throws BoundsError when a transition leads to a state that the table does not have.
std::vector<std::string> LabelClashes(const FsmDocument& document);

} // namespace orvane
