// SPDX-License-Identifier: GPL-3.0-or-later
// A picture with a place for everything. All lengths are pixels, from left to right and from the top down.
#pragma once

#include "diagram/Layered.h"
#include "diagram/LayoutMemory.h"

#include <optional>
#include <stop_token>
#include <vector>

namespace orvane::diagram {

struct Point {
    int X = 0;
    int Y = 0;

    bool operator==(const Point&) const = default;
};

struct Rect {
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;

    int Right() const { return X + Width; }
    int Bottom() const { return Y + Height; }
    bool operator==(const Rect&) const = default;
};

// A part of a line, from where the one before it ended: straight, or a cubic curve with two control points.
struct PathPiece {
    bool IsCurve = false;
    Point First;
    Point Second;
    Point End;

    bool operator==(const PathPiece&) const = default;
};

struct Path {
    Point Begin;
    std::vector<PathPiece> Pieces; // the last one is straight and long enough for an arrow

    bool operator==(const Path&) const = default;
};

struct PlacedState {
    StateNumber Number;
    Rect Box;
};

struct PlacedEdge {
    StateNumber From;
    StateNumber To;
    Path Line;
    Rect Label; // of the text alone
};

struct PlacedStart {
    Rect Dot;
    Path Line;
};

struct Layout {
    Direction Way = Direction::LeftToRight;
    Rect Bounds;                     // of everything, with a margin
    std::vector<PlacedState> States; // as in the scene
    std::vector<PlacedEdge> Edges;   // as in the scene
    std::optional<PlacedStart> Start;
    int Crossings = 0;
    LayoutMemory Memory; // for the next picture of the same machine
};

// The best picture that can be found, whatever was there before. Its upper left corner is 0, 0. When it is
// stopped it is there soon, and not as good.
Layout ColdLayout(const Scene& scene, const TextSizes& sizes, Direction direction,
                  const std::stop_token& stop = {});

// That of both directions that is shown larger in a window of this shape.
Layout FittingLayout(const Scene& scene, const TextSizes& sizes, Rect window);

// The picture that follows another one: what was there holds its place as far as it can. States are known
// again by their numbers and names.
Layout WarmLayout(const Scene& scene, const TextSizes& sizes, const LayoutMemory& memory);

// How many crossings fewer the cold picture has, when they are worth moving everything: at least 3, and a
// third. 0 when they are not.
int CrossingsSaved(const Layout& shown, const Layout& cold);

} // namespace orvane::diagram
