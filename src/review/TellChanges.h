// SPDX-License-Identifier: GPL-3.0-or-later
// A list of changes in words, the same ones wherever it is shown.
#pragma once

#include "core/FsmDocument.h"
#include "review/Change.h"

#include <string>
#include <vector>

namespace orvane::review {

// One change. All texts are UTF-8.
struct ToldChange {
    char Sign = '~';                  // + came, - went, > moved, ~ anything else
    std::string Text;                 // one line: state 5:Fill renamed from Filling
    std::vector<std::string> Details; // lines below it: code as unified hunks, what came or went line by line

    bool operator==(const ToldChange&) const = default;
};

ToldChange TellChange(const Change& change, const FsmDocument& oldOne, const FsmDocument& newOne);

// What was pushed along by what came and went: "states 4..9 are 5..10; events 8..9 are 9..10". Empty when
// nothing was. What moved is told as a change of its own.
std::string TellRenumbering(const Matching& matching);

// The changes as `orvanec diff` writes them, without those of the view when these are not wanted. Empty for
// an empty list. The names of the documents are UTF-8 and stand in the first line.
std::string DiffText(const ChangeList& list, const FsmDocument& oldOne, const FsmDocument& newOne,
                     const std::string& names);

// "7 changes", "1 change".
std::string CountText(std::size_t changes);

} // namespace orvane::review
