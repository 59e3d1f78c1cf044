// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Columns.h"

#include <algorithm>
#include <cstdlib>

namespace orvane::diagram {

namespace {

constexpr int kStep = 48;       // of widths
constexpr int kHeightStep = 24; // where texts grow by lines, not by letters

int RoundedUp(int size, int step) { return (size + step - 1) / step * step; }

// From the top down there is room for labels of three lines at once.
int NeededSize(const Layered& layered, const std::vector<int>& layer) {
    int size = 0;
    bool hasLabels = false;
    for (const int item : layer) {
        size = std::max(size, layered.Items[item].Along);
        hasLabels = hasLabels || layered.Items[item].Kind == ItemKind::Label;
    }
    constexpr int threeLines = 52;
    if (layered.LinesAreFirst)
        return std::max(hasLabels ? threeLines : 0, RoundedUp(size, kHeightStep));
    return RoundedUp(size, kStep);
}

// Steep lines want more room than flat ones.
int GapFor(int steepest) { return std::clamp(10 + steepest / 8, 14, 48); }

// By layer: the gap to the next one.
std::vector<int> NeededGaps(const Layered& layered) {
    std::vector<int> steepest(layered.Layers.size(), -1);
    for (const Segment& segment : layered.Segments) {
        const Item& left = layered.Items[segment.Left];
        const Item& right = layered.Items[segment.Right];
        const int rise = left.Position + segment.LeftPort - right.Position - segment.RightPort;
        steepest[left.Layer] = std::max(steepest[left.Layer], std::abs(rise));
    }
    for (int& gap : steepest)
        gap = gap < 0 ? 0 : GapFor(gap);
    return steepest;
}

} // namespace

std::vector<Column> MakeColumns(const Layered& layered, const std::vector<Column>& before) {
    const std::vector<int> gaps = NeededGaps(layered);
    std::vector<Column> columns;
    int begin = before.empty() ? 0 : before.front().Begin;
    const std::size_t count = std::max(layered.Layers.size(), before.size());
    for (std::size_t layer = 0; layer < count; ++layer) {
        const int needed = layer < layered.Layers.size() ? NeededSize(layered, layered.Layers[layer]) : 0;
        const int size = layer < before.size() ? std::max(needed, before[layer].Size) : needed;
        columns.push_back({begin, size});
        const int oldGap = layer + 1 < before.size() ? before[layer + 1].Begin - before[layer].End() : 0;
        const int gap = oldGap > 0 || layer >= gaps.size() ? oldGap : gaps[layer];
        begin += size + gap;
    }
    return columns;
}

} // namespace orvane::diagram
