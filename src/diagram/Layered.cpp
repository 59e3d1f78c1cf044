// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Layered.h"

#include "diagram/Extents.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace orvane::diagram {

namespace {

int Index(const Scene& scene, StateNumber state) { return int(scene.IndexOf(state).value()); }

struct Ends {
    int From;
    int To;
};

class LayeredMaker {
  public:
    LayeredMaker(const Scene& scene, const LayerPlan& plan, const TextSizes& sizes, Direction direction)
        : scene_(scene), plan_(plan), sizes_(sizes), isTopDown_(direction == Direction::TopDown) {}

    Layered Make() {
        AddStates();
        for (std::size_t edge = 0; edge < scene_.Edges.size(); ++edge)
            AddEdge(int(edge));
        AddStart();
        made_.LinesAreFirst = isTopDown_;
        return std::move(made_);
    }

  private:
    // The layers grow as items come.
    int Add(const Item& item) {
        if (int(made_.Layers.size()) <= item.Layer)
            made_.Layers.resize(item.Layer + 1);
        made_.Layers[item.Layer].push_back(int(made_.Items.size()));
        made_.Items.push_back(item);
        return int(made_.Items.size()) - 1;
    }

    Item Sized(ItemKind kind, int owner, int layer, Extent extent) const {
        Item item{kind, owner, layer, extent.Width, extent.Height};
        if (isTopDown_)
            std::swap(item.Along, item.Across);
        return item;
    }

    void AddStates() {
        for (std::size_t i = 0; i < scene_.States.size(); ++i) {
            Item item = Sized(ItemKind::State, int(i), plan_.OfState[i], BoxExtent(scene_.States[i], sizes_));
            item.Along += 2 * kArrowRoom;
            Add(item);
        }
    }

    // A label stands over its line, or in a picture from the top down beside it.
    Item LabelItem(int edge, bool turns) const {
        const Extent text = TextExtent(scene_.Edges[edge].Label, sizes_);
        Item item = Sized(ItemKind::Label, edge, plan_.OfLabel[edge], text);
        item.Along += 2 * kLabelMargin;
        item.Across += kLabelMargin;
        if (turns) {
            item.Along += kTurnRoom;
            item.Across = std::max(item.Across, kTurnWidth);
        }
        return item;
    }

    void AddEdge(int edge) {
        const Ends ends{Index(scene_, scene_.Edges[edge].From), Index(scene_, scene_.Edges[edge].To)};
        Chain chain;
        chain.Turns = plan_.OfState[ends.From] == plan_.OfState[ends.To];
        chain.IsReversed = plan_.OfState[ends.From] > plan_.OfState[ends.To];
        const int first = chain.IsReversed ? ends.To : ends.From;
        const int last = chain.IsReversed ? ends.From : ends.To;
        chain.Items.push_back(first);
        const int end = chain.Turns ? plan_.OfState[last] + 2 : plan_.OfState[last];
        for (int layer = plan_.OfState[first] + 1; layer < end; ++layer)
            chain.Items.push_back(Add(layer == plan_.OfLabel[edge]
                                          ? LabelItem(edge, chain.Turns)
                                          : Item{ItemKind::Bend, edge, layer, 0, 0}));
        chain.Items.push_back(last);
        AddSegments(chain);
        made_.Chains.push_back(std::move(chain));
    }

    void AddSegments(Chain& chain) {
        for (std::size_t i = 0; i + 1 < chain.Items.size(); ++i) {
            const bool isWayBack = chain.Turns && i == 1;
            chain.Segments.push_back(int(made_.Segments.size()));
            made_.Segments.push_back(
                {chain.Items[isWayBack ? i + 1 : i], chain.Items[isWayBack ? i : i + 1], 0, 0});
        }
    }

    void AddStart() {
        const auto start = std::find_if(scene_.States.begin(), scene_.States.end(),
                                        [](const SceneState& state) { return state.IsStart; });
        if (start == scene_.States.end())
            return;
        const int state = int(start - scene_.States.begin());
        Chain chain;
        chain.Items = {Add({ItemKind::Start, state, plan_.OfState[state] - 1, kDot, kDot}), state};
        AddSegments(chain);
        made_.Chains.push_back(std::move(chain));
        made_.HasStart = true;
    }

    const Scene& scene_;
    const LayerPlan& plan_;
    const TextSizes& sizes_;
    const bool isTopDown_;
    Layered made_;
};

} // namespace

LayerPlan PlanLayers(const Scene& scene, std::vector<int> layerOfState, const std::vector<int>& wanted) {
    LayerPlan plan{std::move(layerOfState), std::vector<int>(scene.Edges.size())};
    std::map<int, std::size_t> taken; // lines of text by layer
    std::vector<std::size_t> bySpan(scene.Edges.size());
    std::iota(bySpan.begin(), bySpan.end(), 0);
    const auto ends = [&](std::size_t edge) {
        return Ends{plan.OfState[Index(scene, scene.Edges[edge].From)],
                    plan.OfState[Index(scene, scene.Edges[edge].To)]};
    };
    const auto span = [&](std::size_t edge) { return std::abs(ends(edge).From - ends(edge).To); };
    std::stable_sort(bySpan.begin(), bySpan.end(),
                     [&](std::size_t one, std::size_t other) { return span(one) < span(other); });
    for (const std::size_t edge : bySpan) {
        const auto [from, to] = ends(edge);
        const int step = to >= from ? 2 : -2;
        int best = from == to ? from + 1 : from + step / 2;
        for (int layer = best; from != to && layer != to + step / 2; layer += step) {
            if (taken[layer] < taken[best])
                best = layer;
        }
        const int wish = edge < wanted.size() ? wanted[edge] : 0;
        const bool isPossible = wish % 2 == 0 && wish > std::min(from, to) && wish < std::max(from, to);
        plan.OfLabel[edge] = isPossible ? wish : best;
        taken[plan.OfLabel[edge]] += scene.Edges[edge].Label.size();
    }
    return plan;
}

Layered MakeLayered(const Scene& scene, const LayerPlan& plan, const TextSizes& sizes, Direction direction) {
    return LayeredMaker(scene, plan, sizes, direction).Make();
}

} // namespace orvane::diagram
