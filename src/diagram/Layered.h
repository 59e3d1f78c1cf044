// SPDX-License-Identifier: GPL-3.0-or-later
// The picture as layers, one behind the other: states stand in the odd ones, labels and the start's dot in
// the even ones between them. A line from state to state runs from layer to layer; where it crosses one, an
// item of its own keeps the place free, so that nothing else can lie there.
//
// "Along" is the direction in which layers follow each other, "across" that of the items within one. Only the
// drawing knows which of them is x. All lengths are pixels.
#pragma once

#include "diagram/Scene.h"

#include <vector>

namespace orvane::diagram {

enum class Direction { LeftToRight, TopDown };

enum class ItemKind { State, Start, Label, Bend };

struct Item {
    ItemKind Kind = ItemKind::Bend;
    int Owner = 0; // the scene's state or edge
    int Layer = 0;
    int Along = 0; // extents
    int Across = 0;
    int Position = 0;   // the middle, across
    bool IsFree = true; // the picture before had no place for it
};

// A part of a line, between an item and one in the next layer.
struct Segment {
    int Left = 0; // items
    int Right = 0;
    int LeftPort = 0; // where it ends, across, from the items' middles
    int RightPort = 0;
    int Lines = 1; // how many run here side by side
};

// The way of an edge.
struct Chain {
    std::vector<int> Items;    // from the lower layer to the higher one
    std::vector<int> Segments; // between them
    bool IsReversed = false;   // the edge leads from the last item to the first one
    bool Turns = false;        // both ends stand in one layer: the line goes to the label behind it and back
};

struct Layered {
    std::vector<Item> Items; // the states first, as in the scene
    std::vector<Segment> Segments;
    std::vector<std::vector<int>> Layers; // items, in their order across
    std::vector<Chain> Chains;            // by edge; then that of the start's dot, if there is one
    bool HasStart = false;
    bool LinesAreFirst = false; // a label stands behind its line, across, not before it

    bool IsStateLayer(int layer) const { return layer % 2 == 1; }
};

constexpr int LayerOfRank(int rank) { return 2 * rank + 1; }

// Where states and labels belong. The layer of a label is even and lies between those of its states, or
// behind both when they are one.
struct LayerPlan {
    std::vector<int> OfState; // odd
    std::vector<int> OfLabel;
};

// Labels where least stands already, near the state that the edge leaves. Those that have a layer in `wanted`
// which is possible keep it; 0 is no wish.
LayerPlan PlanLayers(const Scene& scene, std::vector<int> layerOfState, const std::vector<int>& wanted = {});

// All items and segments; within a layer the states come first, then the edges in their order.
Layered MakeLayered(const Scene& scene, const LayerPlan& plan, const TextSizes& sizes, Direction direction);

// Where the lines end on the items: in the order of the items that they lead to, so that none cross there.
// Boxes grow where they are too small for their lines.
void AssignPorts(Layered& layered);

} // namespace orvane::diagram
