// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"
#include "find/Subject.h"

class QMainWindow;

namespace orvane {

class Session;

// The cell that commands without a menu of their own work on.
Cell ChosenCell(const QMainWindow& window, const Session& session);

// What a cell is about: the machine, an event, a state, the timer in the row of the timeout mode, and for a
// transition the state that it leads to.
find::Subject SubjectAt(const FsmDocument& document, Cell cell);

// What the user has before him: the word under the caret of the code that has the focus, else what the chosen
// cell is about.
find::Subject ChosenSubject(const QMainWindow& window, const Session& session);

} // namespace orvane
