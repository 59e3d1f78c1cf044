// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/FittingWidth.h"

#include "core/StateLabel.h"
#include "table/CellChoice.h"
#include "table/CellText.h"

#include <algorithm>
#include <string_view>

namespace orvane {

namespace {

// The least width that a text is not cut off in.
Twips WidthFor(std::string_view text, const TextMeasurer& measure) {
    if (text.empty())
        return 0;
    const Twips least = measure(text) + kColumnMargin + Twips(1);
    return (least.Count() + kTwipsPerPixel - 1) / kTwipsPerPixel * kTwipsPerPixel; // whole pixels
}

Twips WidthOfHeads(const FsmDocument& document, const TextMeasurer& measure) {
    Twips width = WidthFor(document.General.FsmName, measure);
    for (const std::string_view head : {"Event | Action", "Exit Action", "Timeout mode", "Timeout target"})
        width = std::max(width, WidthFor(head, measure));
    for (const RowNumber row : EventRows())
        width = std::max(width, WidthFor(document.Event(row).Name, measure));
    return width;
}

Twips WidthOfState(const FsmDocument& document, StateNumber column, const TextMeasurer& measure) {
    const StateRecord& state = document.State(column);
    Twips width = std::max(WidthFor(state.EntryCode, measure), WidthFor(state.ExitCode, measure));
    width = std::min(width, kWidestFittedCode);
    width = std::max(width, WidthFor(StateLabel(column, state.Name), measure));
    width = std::max(width, WidthFor(TimingText(state), measure));
    for (const RowNumber row : ShownRowsFrom(document, kFirstCellRow))
        width = std::max(width, WidthFor(TransitionText(document, {row, column}), measure));
    return width;
}

} // namespace

Twips FittingWidth(const FsmDocument& document, StateNumber column, const TextMeasurer& measure) {
    if (column == kNoState)
        return std::min(WidthOfHeads(document, measure), kWidestColumn);
    if (IsEmpty(document.State(column)))
        return document.DefaultColumnWidth();
    return std::min(WidthOfState(document, column, measure), kWidestColumn);
}

} // namespace orvane
