// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the table that a machine takes up, for keys that go to its ends.
#pragma once

#include "core/Cell.h"
#include "core/FsmDocument.h"

#include <optional>

namespace orvane {

// State 1 where none is used.
StateNumber FirstUsedState(const FsmDocument& document);
StateNumber LastUsedState(const FsmDocument& document);

// Column 1 and the first row of transitions that is shown.
Cell FirstCell(const FsmDocument& document);
// The last used state in the last row that is shown and has a named event or a transition.
Cell LastUsedCell(const FsmDocument& document);

// The cell below in the next row that is shown and can have a transition; the cell itself when there is none.
Cell CellBelow(const FsmDocument& document, Cell cell);

// The first place that differs in what undo keeps, states before events: (0..3, state), (4..54, state),
// (row, 0), or (0, 0) for the machine as a whole. None when nothing does.
std::optional<Cell> FirstDifference(const FsmDocument& before, const FsmDocument& after);

// The column that shows all of what FirstDifference looks at and what differs; none when others show some of
// it, too, as they do the name of a state.
std::optional<StateNumber> OnlyColumnThatDiffers(const FsmDocument& before, const FsmDocument& after);

} // namespace orvane
