// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Routes.h"

#include "diagram/Extents.h"
#include "diagram/Order.h"

#include <algorithm>
#include <limits>

namespace orvane::diagram {

namespace {

constexpr int kMargin = 12; // around the picture

// A line in the making, along and across the layers.
class Pen {
  public:
    Pen(bool isTopDown, int along, int across) : isTopDown_(isTopDown), along_(along), across_(across) {
        path_.Begin = At(along, across);
    }

    void StraightTo(int along) {
        if (along == along_)
            return;
        along_ = along;
        path_.Pieces.push_back({false, {}, {}, At(along_, across_)});
    }

    void CurveTo(int along, int across) {
        if (across == across_)
            return StraightTo(along);
        const int half = (along_ + along) / 2;
        path_.Pieces.push_back({true, At(half, across_), At(half, across), At(along, across)});
        along_ = along;
        across_ = across;
    }

    // Back in a half circle, within the room that there is for it.
    void TurnTo(int across) {
        const int beyond = along_ + kTurnRoom / 2 * 4 / 3;
        path_.Pieces.push_back({true, At(beyond, across_), At(beyond, across), At(along_, across)});
        across_ = across;
    }

    Path Take(bool backwards) { return backwards ? Backwards() : std::move(path_); }

  private:
    Point At(int along, int across) const { return isTopDown_ ? Point{across, along} : Point{along, across}; }

    Path Backwards() const {
        Path back;
        back.Begin = path_.Pieces.back().End;
        for (std::size_t i = path_.Pieces.size(); i-- > 0;) {
            const PathPiece& piece = path_.Pieces[i];
            const Point end = i == 0 ? path_.Begin : path_.Pieces[i - 1].End;
            back.Pieces.push_back({piece.IsCurve, piece.Second, piece.First, end});
        }
        return back;
    }

    const bool isTopDown_;
    int along_;
    int across_;
    Path path_;
};

class Drawer {
  public:
    Drawer(const Scene& scene, const Layered& layered, const std::vector<Column>& columns,
           const TextSizes& sizes, Direction direction)
        : scene_(scene),
          layered_(layered),
          columns_(columns),
          sizes_(sizes),
          isTopDown_(direction == Direction::TopDown) {
        layout_.Way = direction;
    }

    Layout Draw() {
        for (std::size_t i = 0; i < scene_.States.size(); ++i)
            layout_.States.push_back({scene_.States[i].Number, BoxOf(layered_.Items[i])});
        for (std::size_t i = 0; i < scene_.Edges.size(); ++i)
            DrawEdge(scene_.Edges[i], layered_.Chains[i]);
        if (layered_.HasStart)
            DrawStart(layered_.Chains.back());
        layout_.Crossings = CountCrossings(layered_);
        layout_.Memory = Remember(scene_, layered_, columns_, layout_.Way);
        SetBounds();
        return std::move(layout_);
    }

  private:
    const Column& ColumnOf(int item) const { return columns_[layered_.Items[item].Layer]; }

    Rect RectAt(Column along, Column across) const {
        if (isTopDown_)
            return {across.Begin, along.Begin, across.Size, along.Size};
        return {along.Begin, across.Begin, along.Size, across.Size};
    }

    // A box stands in the middle of its column, without the room of the arrows.
    Column AlongOf(const Item& item) const {
        const Column& column = columns_[item.Layer];
        const int size = item.Kind == ItemKind::State ? item.Along - 2 * kArrowRoom : item.Along;
        return {column.Begin + (column.Size - size) / 2, size};
    }

    Rect BoxOf(const Item& item) const {
        return RectAt(AlongOf(item), {item.Position - item.Across / 2, item.Across});
    }

    int LeftEnd(const Segment& segment) const {
        return layered_.Items[segment.Left].Position + segment.LeftPort;
    }
    int RightEnd(const Segment& segment) const {
        return layered_.Items[segment.Right].Position + segment.RightPort;
    }

    void DrawEdge(const SceneEdge& edge, const Chain& chain) {
        PlacedEdge placed{edge.From, edge.To, {}, {}};
        placed.Line = chain.Turns ? TurnOf(chain) : LineOf(chain);
        for (const int item : chain.Items) {
            if (layered_.Items[item].Kind == ItemKind::Label)
                placed.Label = TextOf(edge, layered_.Items[item], chain.Turns);
        }
        layout_.Edges.push_back(std::move(placed));
    }

    Path LineOf(const Chain& chain) const {
        const Item& first = layered_.Items[chain.Items.front()];
        Pen pen(isTopDown_, AlongOf(first).End(), LeftEnd(layered_.Segments[chain.Segments.front()]));
        for (const int index : chain.Segments) {
            const Segment& segment = layered_.Segments[index];
            pen.StraightTo(ColumnOf(segment.Left).End());
            pen.CurveTo(ColumnOf(segment.Right).Begin, RightEnd(segment));
        }
        pen.StraightTo(AlongOf(layered_.Items[chain.Items.back()]).Begin);
        return pen.Take(chain.IsReversed);
    }

    Path TurnOf(const Chain& chain) const {
        const Segment& out = layered_.Segments[chain.Segments.front()];
        const Segment& back = layered_.Segments[chain.Segments.back()];
        const Column& states = ColumnOf(out.Left);
        const Column& labels = ColumnOf(out.Right);
        Pen pen(isTopDown_, AlongOf(layered_.Items[out.Left]).End(), LeftEnd(out));
        pen.StraightTo(states.End());
        pen.CurveTo(labels.Begin, RightEnd(out));
        pen.TurnTo(RightEnd(back));
        pen.CurveTo(states.End(), LeftEnd(back));
        pen.StraightTo(AlongOf(layered_.Items[back.Left]).End());
        return pen.Take(false);
    }

    // Before its line in a picture from left to right, which is over it, and behind it otherwise.
    Rect TextOf(const SceneEdge& edge, const Item& label, bool turns) const {
        const Extent text = TextExtent(edge.Label, sizes_);
        const int along = turns ? columns_[label.Layer].Begin + kTurnRoom : AlongOf(label).Begin;
        const int across = label.Position - label.Across / 2;
        if (isTopDown_)
            return {across + kLabelMargin, along + kLabelMargin, text.Width, text.Height};
        const int middle = label.Position - text.Height / 2;
        return {along + kLabelMargin, turns ? middle : across, text.Width, text.Height};
    }

    void DrawStart(const Chain& chain) {
        const Item& dot = layered_.Items[chain.Items.front()];
        const Segment& segment = layered_.Segments[chain.Segments.front()];
        const Column along{columns_[dot.Layer].End() - kDot, kDot};
        Pen pen(isTopDown_, along.End(), dot.Position);
        pen.CurveTo(ColumnOf(segment.Right).Begin, RightEnd(segment));
        pen.StraightTo(AlongOf(layered_.Items[segment.Right]).Begin);
        layout_.Start = PlacedStart{RectAt(along, {dot.Position - kDot / 2, kDot}), pen.Take(false)};
    }

    void SetBounds() {
        Span x;
        Span y;
        const auto take = [&](const Rect& rect) {
            x.Take(rect.X, rect.Right());
            y.Take(rect.Y, rect.Bottom());
        };
        for (const PlacedState& state : layout_.States)
            take(state.Box);
        for (const PlacedEdge& edge : layout_.Edges) {
            take(edge.Label);
            for (const PathPiece& piece : edge.Line.Pieces) {
                take({piece.End.X, piece.End.Y, 0, 0});
                if (piece.IsCurve)
                    take({piece.First.X, piece.First.Y, 0, 0});
            }
        }
        if (layout_.Start)
            take(layout_.Start->Dot);
        if (x.First <= x.Last)
            layout_.Bounds = {x.First - kMargin, y.First - kMargin, x.Last - x.First + 2 * kMargin,
                              y.Last - y.First + 2 * kMargin};
    }

    struct Span {
        int First = std::numeric_limits<int>::max();
        int Last = std::numeric_limits<int>::min();

        void Take(int first, int last) {
            First = std::min(First, first);
            Last = std::max(Last, last);
        }
    };

    const Scene& scene_;
    const Layered& layered_;
    const std::vector<Column>& columns_;
    const TextSizes& sizes_;
    const bool isTopDown_;
    Layout layout_;
};

} // namespace

Layout Draw(const Scene& scene, const Layered& layered, const std::vector<Column>& columns,
            const TextSizes& sizes, Direction direction) {
    return Drawer(scene, layered, columns, sizes, direction).Draw();
}

} // namespace orvane::diagram
