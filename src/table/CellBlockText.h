// SPDX-License-Identifier: GPL-3.0-or-later
// Transitions as lines of text with tabs between the cells, the way spreadsheets hand tables around.
#pragma once

#include "table/CellBlock.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

// The cells as the table says them when there is room: "7:Stopped*". Lines end with LF.
std::string TextOfCells(const FsmDocument& document, const CellChoice& choice);

struct ReadBlock {
    std::optional<CellBlock> Block;
    std::string Refused; // without a block: the first text that is no state
};

// A cell's text is as if it was typed: a number, a number with a name behind (7:Stopped), or the name of one
// state; nothing takes target and action away. An action is no part of the text: the one that stands there
// stays, and a star alone leaves it without a target. Short lines are filled up with cells that are left as
// they are.
ReadBlock BlockOfText(const FsmDocument& document, std::string_view text);

} // namespace orvane
