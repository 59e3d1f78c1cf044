// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Extents.h"

#include <algorithm>

namespace orvane::diagram {

int LineWidth(const LabelLine& line, const TextSizes& sizes) {
    return sizes.Width(line.Text, TextRole::Line) + (line.Loop ? kSign : 0) + (line.Clock ? kSign : 0);
}

Extent TextExtent(const std::vector<LabelLine>& lines, const TextSizes& sizes) {
    Extent extent;
    for (const LabelLine& line : lines) {
        extent.Width = std::max(extent.Width, LineWidth(line, sizes));
        extent.Height += sizes.LineHeight(TextRole::Line);
    }
    return extent;
}

Extent BoxExtent(const SceneState& state, const TextSizes& sizes) {
    constexpr int narrowest = 50;
    const Extent lines = TextExtent(state.Lines, sizes);
    const int title = sizes.Width(state.Title, TextRole::Title) + (state.HasError ? kSign : 0);
    return {std::max({title, lines.Width, narrowest - 2 * kBoxMargin}) + 2 * kBoxMargin,
            sizes.LineHeight(TextRole::Title) + lines.Height + 2 * kBoxMargin};
}

int Distance(const Item& one, const Item& other) {
    const auto ownRoom = [](const Item& item) {
        switch (item.Kind) {
        case ItemKind::State:
            return 10;
        case ItemKind::Bend:
            return 4;
        default:
            return 5;
        }
    };
    return ownRoom(one) + ownRoom(other);
}

} // namespace orvane::diagram
