// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Subject.h"
#include "find/TextUses.h"

#include <string>
#include <vector>

namespace orvane::find {

struct RenamePlan {
    std::string Refusal;            // why it cannot be called so; empty when it can
    std::vector<std::string> Notes; // what the user has to know before he says yes
    std::vector<TextUse> Uses;      // the places of the name first, which go with every rename
};

// What giving the subject another name would do. Sure are the name itself, labels of the generator and
// symbols that begin with the machine's old name and "_"; words, prose, comments and strings are for the user
// to choose.
RenamePlan PlanRename(const FsmDocument& document, const Subject& subject, const std::string& newName);

std::vector<TextChange> AllChanges(const std::vector<TextUse>& uses);

// The changes of all uses that are chosen; those of the name itself are made in any case. `chosen` has a mark
// for each use of the plan.
std::vector<TextChange> ChosenChanges(const std::vector<TextUse>& uses, const std::vector<bool>& chosen);
std::vector<TextChange> SureChanges(const std::vector<TextUse>& uses);

} // namespace orvane::find
