// SPDX-License-Identifier: GPL-3.0-or-later
// Which of the special rows are shown. A row is hidden by a height of 0 and shown by the standard height,
// that of an ordinary row.
#pragma once

#include "core/FsmDocument.h"

namespace orvane {

// The rows that have a command to show and to hide them.
enum class SpecialRow { ExitAction, TimingMode, TimeTarget, Else };

// Whether the row's command carries its check mark. The mark of the exit actions is stored nowhere: it
// follows the height of the row.
bool IsMarked(const ViewOptions& view, SpecialRow row);

// Turns the row's mark around and gives all four rows the heights that the marks ask for.
void ToggleRow(ViewOptions& view, SpecialRow row, Twips standardHeight);

// Gives the four rows the heights that their marks ask for.
void ApplyRowVisibility(ViewOptions& view, Twips standardHeight);

// Each shows its rows and sets their marks. Returns whether that changed anything.
bool ForceShowTiming(ViewOptions& view, Twips standardHeight);
bool ForceShowElse(ViewOptions& view, Twips standardHeight);

// A state that times out shows the timing rows, one with an ELSE transition the ELSE row, whatever the marks
// were. For one state, and for all. Returns whether anything changed.
bool ForceRowsForState(FsmDocument& document, StateNumber state, Twips standardHeight);
bool ForceRowsForContents(FsmDocument& document, Twips standardHeight);

} // namespace orvane
