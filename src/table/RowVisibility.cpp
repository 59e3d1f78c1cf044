// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/RowVisibility.h"

#include "core/TimingMode.h"

namespace orvane {

bool IsMarked(const ViewOptions& view, SpecialRow row) {
    switch (row) {
    case SpecialRow::ExitAction:
        return view.RowVisible.ExitAction != 0;
    case SpecialRow::TimingMode:
        return view.ShowTimingMode;
    case SpecialRow::TimeTarget:
        return view.ShowTimeTarget;
    case SpecialRow::Else:
        break;
    }
    return view.ShowElse;
}

void ToggleRow(ViewOptions& view, SpecialRow row, Twips standardHeight) {
    const bool mark = !IsMarked(view, row);
    switch (row) {
    case SpecialRow::ExitAction:
        view.RowVisible.ExitAction = mark ? standardHeight : Twips(0);
        break;
    case SpecialRow::TimingMode:
        view.ShowTimingMode = mark;
        break;
    case SpecialRow::TimeTarget:
        view.ShowTimeTarget = mark;
        break;
    case SpecialRow::Else:
        view.ShowElse = mark;
        break;
    }
    ApplyRowVisibility(view, standardHeight);
}

void ApplyRowVisibility(ViewOptions& view, Twips standardHeight) {
    const auto height = [&](SpecialRow row) { return IsMarked(view, row) ? standardHeight : Twips(0); };
    view.RowVisible = {.Else = height(SpecialRow::Else),
                       .ExitAction = height(SpecialRow::ExitAction),
                       .TimingMode = height(SpecialRow::TimingMode),
                       .TimeTarget = height(SpecialRow::TimeTarget)};
}

bool ForceShowTiming(ViewOptions& view, Twips standardHeight) {
    const ViewOptions before = view;
    view.ShowTimingMode = true;
    view.ShowTimeTarget = true;
    view.RowVisible.TimingMode = standardHeight;
    view.RowVisible.TimeTarget = standardHeight;
    return view != before;
}

bool ForceShowElse(ViewOptions& view, Twips standardHeight) {
    const ViewOptions before = view;
    view.ShowElse = true;
    view.RowVisible.Else = standardHeight;
    return view != before;
}

bool ForceRowsForState(FsmDocument& document, StateNumber state, Twips standardHeight) {
    const StateRecord& record = document.State(state);
    bool changed = false;
    if (record.TimingMode != kNoTiming && IsKnownTimingMode(record.TimingMode))
        changed |= ForceShowTiming(document.View, standardHeight);
    if (record.Targets[kElseRow] != kNoState)
        changed |= ForceShowElse(document.View, standardHeight);
    return changed;
}

bool ForceRowsForContents(FsmDocument& document, Twips standardHeight) {
    bool changed = false;
    for (const StateNumber state : StateNumbers())
        changed |= ForceRowsForState(document, state, standardHeight);
    return changed;
}

} // namespace orvane
