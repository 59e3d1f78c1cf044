// SPDX-License-Identifier: GPL-3.0-or-later
//
// Layers and positions of the picture before are taken over; what is new finds its layer beside what it is
// joined to and its place among the others, which keep their order. Positions are then adjusted with such
// weights that an old item moves only where a new one needs the room.
#include "diagram/Columns.h"
#include "diagram/Layout.h"
#include "diagram/Order.h"
#include "diagram/Positions.h"
#include "diagram/Routes.h"
#include "diagram/Straighten.h"

#include <algorithm>
#include <map>
#include <utility>

namespace orvane::diagram {

namespace {

using Known = std::vector<const KnownState*>; // by state of the scene; null for a new one

// Numbers change when columns move and names when they are edited, but hardly both at once: first whoever has
// both, then a name that only one has, then the number.
class Recognition {
  public:
    Recognition(const Scene& scene, const LayoutMemory& memory)
        : scene_(scene), memory_(memory), known_(scene.States.size()), isTaken_(memory.States.size()) {}

    Known Recognise() {
        Match([](const SceneState& now, const KnownState& then) {
            return now.Number == then.Number && now.OwnName == then.Name;
        });
        const std::map<std::string, int> names = CountNames();
        Match([&](const SceneState& now, const KnownState& then) {
            return now.OwnName == then.Name && !then.Name.empty() && names.at(then.Name) == 2;
        });
        Match([](const SceneState& now, const KnownState& then) { return now.Number == then.Number; });
        return std::move(known_);
    }

  private:
    template <typename IsSame>
    void Match(IsSame isSame) {
        for (std::size_t i = 0; i < known_.size(); ++i) {
            for (std::size_t k = 0; k < isTaken_.size() && known_[i] == nullptr; ++k) {
                if (isTaken_[k] || !isSame(scene_.States[i], memory_.States[k]))
                    continue;
                known_[i] = &memory_.States[k];
                isTaken_[k] = true;
            }
        }
    }

    // Of the states that are not recognised yet, then and now.
    std::map<std::string, int> CountNames() const {
        std::map<std::string, int> names;
        for (std::size_t i = 0; i < known_.size(); ++i)
            names[scene_.States[i].OwnName] += known_[i] == nullptr ? 1 : 0;
        for (std::size_t k = 0; k < isTaken_.size(); ++k)
            names[memory_.States[k].Name] += isTaken_[k] ? 0 : 1;
        return names;
    }

    const Scene& scene_;
    const LayoutMemory& memory_;
    Known known_;
    std::vector<bool> isTaken_;
};

class WarmMaker {
  public:
    WarmMaker(const Scene& scene, const TextSizes& sizes, const LayoutMemory& memory)
        : scene_(scene), sizes_(sizes), memory_(memory), known_(Recognition(scene, memory).Recognise()) {
        for (const KnownEdge& edge : memory.Edges)
            edges_[{edge.From.Number(), edge.To.Number()}] = &edge;
    }

    Layout Make() {
        const LayerPlan plan = PlanLayers(scene_, StateLayers(), LabelWishes());
        layered_ = MakeLayered(scene_, plan, sizes_, memory_.Way);
        TakeOldPositions();
        GuessNewPositions();
        const std::vector<int> fresh = MergeOrder();
        PlaceAmong(layered_, fresh);
        AssignPorts(layered_);
        AdjustPositions(layered_);
        Straighten(layered_);
        return Draw(scene_, layered_, MakeColumns(layered_, memory_.Columns), sizes_, memory_.Way);
    }

  private:
    // A new state stands behind the first that leads to it, or else before what it leads to.
    std::vector<int> StateLayers() const {
        std::vector<int> layers(scene_.States.size());
        int last = LayerOfRank(0);
        for (std::size_t i = 0; i < known_.size(); ++i) {
            layers[i] = known_[i] != nullptr ? known_[i]->Layer : 0;
            last = std::max(last, layers[i]);
        }
        bool found = true;
        while (found) {
            found = false;
            for (const SceneEdge& edge : scene_.Edges) {
                int& from = layers[*scene_.IndexOf(edge.From)];
                int& to = layers[*scene_.IndexOf(edge.To)];
                if ((from == 0) == (to == 0))
                    continue;
                (from == 0 ? from : to) = from == 0 ? std::max(to - 2, LayerOfRank(0)) : from + 2;
                found = true;
            }
        }
        std::replace(layers.begin(), layers.end(), 0, last);
        return layers;
    }

    const KnownEdge* Before(const SceneEdge& edge) const {
        const KnownState* from = known_[*scene_.IndexOf(edge.From)];
        const KnownState* to = known_[*scene_.IndexOf(edge.To)];
        if (from == nullptr || to == nullptr)
            return nullptr;
        const auto found = edges_.find({from->Number.Number(), to->Number.Number()});
        return found == edges_.end() ? nullptr : found->second;
    }

    std::vector<int> LabelWishes() const {
        std::vector<int> wishes;
        for (const SceneEdge& edge : scene_.Edges) {
            const KnownEdge* before = Before(edge);
            wishes.push_back(before != nullptr ? before->LabelLayer : 0);
        }
        return wishes;
    }

    void Hold(int item, int position) {
        layered_.Items[item].Position = position;
        layered_.Items[item].IsFree = false;
    }

    void TakeOldPositions() {
        for (std::size_t i = 0; i < known_.size(); ++i) {
            if (known_[i] != nullptr)
                Hold(int(i), known_[i]->Position);
        }
        for (std::size_t i = 0; i < scene_.Edges.size(); ++i) {
            const KnownEdge* before = Before(scene_.Edges[i]);
            if (before != nullptr)
                TakeOldPositions(layered_.Chains[i], before->Places);
        }
        if (layered_.HasStart)
            TakeOldPositions(layered_.Chains.back(), memory_.Start);
    }

    void TakeOldPositions(const Chain& chain, const std::vector<KnownPlace>& places) {
        for (const int index : chain.Items) {
            const Item& item = layered_.Items[index];
            const auto known = std::find_if(places.begin(), places.end(), [&](const KnownPlace& place) {
                return place.Layer == item.Layer;
            });
            if (item.Kind != ItemKind::State && known != places.end())
                Hold(index, known->Position);
        }
    }

    // Only where to begin with: new states at the middle of their neighbours, new lines straight.
    void GuessNewPositions() {
        for (std::size_t i = 0; i < known_.size(); ++i) {
            if (known_[i] == nullptr)
                layered_.Items[i].Position = MiddleOfNeighbours(scene_.States[i].Number);
        }
        for (const Chain& chain : layered_.Chains)
            GuessAlong(chain);
    }

    int MiddleOfNeighbours(StateNumber state) const {
        int sum = 0;
        int count = 0;
        for (const SceneEdge& edge : scene_.Edges) {
            if (edge.From != state && edge.To != state)
                continue;
            const std::size_t other = *scene_.IndexOf(edge.From == state ? edge.To : edge.From);
            sum += known_[other] != nullptr ? layered_.Items[other].Position : 0;
            count += known_[other] != nullptr ? 1 : 0;
        }
        return count == 0 ? EndOfLayer(state) : sum / count;
    }

    // Behind everything that stands in the layer of a state.
    int EndOfLayer(StateNumber state) const {
        const Item& own = layered_.Items[*scene_.IndexOf(state)];
        int end = 0;
        for (const int index : layered_.Layers[own.Layer]) {
            const Item& item = layered_.Items[index];
            end = std::max(end, item.IsFree ? 0 : item.Position + item.Across);
        }
        return end + own.Across;
    }

    void GuessAlong(const Chain& chain) {
        const int first = layered_.Items[chain.Items.front()].Position;
        const int last = layered_.Items[chain.Items.back()].Position;
        const int parts = int(chain.Items.size()) - 1;
        for (int i = 0; i <= parts; ++i) {
            Item& item = layered_.Items[chain.Items[i]];
            if (item.IsFree && item.Kind != ItemKind::State)
                item.Position = first + (last - first) * i / parts;
        }
    }

    // The order of the positions; returns the items that are new.
    std::vector<int> MergeOrder() {
        std::vector<int> fresh;
        for (std::vector<int>& layer : layered_.Layers) {
            std::stable_sort(layer.begin(), layer.end(), [&](int one, int other) {
                return layered_.Items[one].Position < layered_.Items[other].Position;
            });
            std::copy_if(layer.begin(), layer.end(), std::back_inserter(fresh),
                         [&](int item) { return layered_.Items[item].IsFree; });
        }
        return fresh;
    }

    const Scene& scene_;
    const TextSizes& sizes_;
    const LayoutMemory& memory_;
    const Known known_;
    std::map<std::pair<int, int>, const KnownEdge*> edges_; // by the numbers that their states had
    Layered layered_;
};

} // namespace

Layout WarmLayout(const Scene& scene, const TextSizes& sizes, const LayoutMemory& memory) {
    return WarmMaker(scene, sizes, memory).Make();
}

} // namespace orvane::diagram
