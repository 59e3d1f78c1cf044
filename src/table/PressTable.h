// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Cell.h"

namespace orvane {

enum class PressButton { Left, Right, Other };
enum class PressModifiers { None, Shift, Other }; // Shift: just this one

// What a press of a mouse button on the table asks for.
enum class PressAction {
    Nothing,
    EditState,
    EditTarget,
    EditEvent,
    EditGeneralCode,
    StepMachine,
    StateMenu,
    EntryActionMenu,
    TransitionMenu,
    EventMenu,
};

// The press table, heads included.
PressAction ActionOfPress(Cell cell, PressButton button, PressModifiers modifiers);

} // namespace orvane
