// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Subject.h"
#include "find/TextUses.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::find {

// One place where the subject is used: a cell of the table, and where in its texts.
struct Use {
    Cell At;                     // see core/DocumentTexts.h
    std::optional<TextUse> Text; // none: the table itself uses it, by a transition or a timer
    std::string What;            // "leads here", "label PMP_Run_Set2"
};

// First what the table says, then the texts in the order of the document's file. Transitions that lead to a
// state, those of an event, states that share a timer; labels, symbols and words in texts.
std::vector<Use> UsesOf(const FsmDocument& document, const Subject& subject);

} // namespace orvane::find
