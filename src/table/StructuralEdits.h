// SPDX-License-Identifier: GPL-3.0-or-later
// Whole rows and columns of the table come and go. What lies behind moves over, transitions are renumbered
// with the columns they lead to, and the clipboard keeps in step. A command that is refused changes nothing.
#pragma once

#include "core/FsmDocument.h"
#include "core/UserMessage.h"
#include "table/TableClipboard.h"

#include <optional>

namespace orvane {

// Puts an empty event at the row, 6..54; the bottom one drops out. Refused with a message while a state has a
// transition in the bottom row.
std::optional<UserMessage> InsertEvent(FsmDocument& document, TableClipboard& clipboard, RowNumber row);

// What the user is asked before the event of this row goes; none when no state has a transition there.
std::optional<UserMessage> QuestionBeforeDeleteEvent(const FsmDocument& document, RowNumber row);

// Takes the event of the row out.
//
// Of the bottom row only the targets and the event are emptied: an action there moves up and stays as well.
void DeleteEvent(FsmDocument& document, TableClipboard& clipboard, RowNumber row);

// Puts an empty state at the column. The states from there up to the last free column behind it move over,
// and that free column goes. Refused with a message when there is none. A copied event is forgotten.
std::optional<UserMessage> InsertState(FsmDocument& document, TableClipboard& clipboard, StateNumber state);

// Takes the state of the column out. Transitions to it are left, and now lead to the state that was behind
// it. Column 100 keeps its content, so that columns 99 and 100 are the same then. A copied event is
// forgotten, and so are copied transitions when one leads to the state.
void DeleteState(FsmDocument& document, TableClipboard& clipboard, StateNumber state);

} // namespace orvane
