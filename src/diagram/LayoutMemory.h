// SPDX-License-Identifier: GPL-3.0-or-later
// What a picture has to know of the one before it, so that what was there stays where it was.
#pragma once

#include "diagram/Layered.h"

#include <string>
#include <vector>

namespace orvane::diagram {

// Where a layer lies along the picture.
struct Column {
    int Begin = 0;
    int Size = 0;

    int End() const { return Begin + Size; }
};

struct KnownState {
    StateNumber Number;
    std::string Name;
    int Layer = 0;
    int Position = 0;
};

// An item of an edge that is no state.
struct KnownPlace {
    int Layer = 0;
    int Position = 0;
};

struct KnownEdge {
    StateNumber From;
    StateNumber To;
    int LabelLayer = 0;
    std::vector<KnownPlace> Places; // from the lower layer to the higher one
};

struct LayoutMemory {
    Direction Way = Direction::LeftToRight;
    std::vector<Column> Columns; // by layer
    std::vector<KnownState> States;
    std::vector<KnownEdge> Edges;
    std::vector<KnownPlace> Start; // the dot's, if there is one
};

LayoutMemory Remember(const Scene& scene, const Layered& layered, const std::vector<Column>& columns,
                      Direction direction);

} // namespace orvane::diagram
