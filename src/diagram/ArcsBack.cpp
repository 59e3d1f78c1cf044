// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Ranks.h"

#include <algorithm>

namespace orvane::diagram {

namespace {

class Walk {
  public:
    explicit Walk(const RankGraph& graph)
        : graph_(graph),
          out_(graph.Nodes),
          isBack_(graph.Arcs.size()),
          place_(graph.Nodes, kUnseen),
          isOpen_(graph.Nodes) {
        for (std::size_t arc = 0; arc < graph.Arcs.size(); ++arc)
            out_[graph.Arcs[arc].Tail].push_back(arc);
    }

    std::vector<bool> Deep(bool lastFirst) {
        for (std::vector<std::size_t>& arcs : out_) {
            if (lastFirst)
                std::reverse(arcs.begin(), arcs.end());
        }
        for (std::size_t node = 0; node < graph_.Nodes; ++node) {
            if (place_[node] == kUnseen)
                VisitDeep(node);
        }
        return isBack_;
    }

    std::vector<bool> Wide() {
        for (std::size_t node = 0; node < graph_.Nodes; ++node) {
            if (place_[node] == kUnseen)
                VisitWide(node);
        }
        for (std::size_t arc = 0; arc < graph_.Arcs.size(); ++arc)
            isBack_[arc] = place_[graph_.Arcs[arc].Head] < place_[graph_.Arcs[arc].Tail];
        return isBack_;
    }

  private:
    static constexpr int kUnseen = -1;

    // A node for a state at most, so that no more than a hundred calls are open at a time.
    void VisitDeep(std::size_t node) {
        place_[node] = count_++;
        isOpen_[node] = true;
        for (const std::size_t arc : out_[node]) {
            const std::size_t head = graph_.Arcs[arc].Head;
            if (isOpen_[head])
                isBack_[arc] = true;
            else if (place_[head] == kUnseen)
                VisitDeep(head);
        }
        isOpen_[node] = false;
    }

    void VisitWide(std::size_t root) {
        std::vector<std::size_t> queue{root};
        place_[root] = count_++;
        for (std::size_t next = 0; next < queue.size(); ++next) {
            for (const std::size_t arc : out_[queue[next]]) {
                const std::size_t head = graph_.Arcs[arc].Head;
                if (place_[head] != kUnseen)
                    continue;
                place_[head] = count_++;
                queue.push_back(head);
            }
        }
    }

    const RankGraph& graph_;
    std::vector<std::vector<std::size_t>> out_;
    std::vector<bool> isBack_;
    std::vector<int> place_; // in which the walk came to the node
    std::vector<bool> isOpen_;
    int count_ = 0;
};

// Puts the nodes in a row, in which few arcs lead back: again and again what nothing more leads to at its
// front, what leads nowhere any more at its end, and where there is neither the node with the most arcs out
// beyond those in. (Eades, Lin and Smyth, 1993.)
class Row {
  public:
    explicit Row(const RankGraph& graph)
        : graph_(graph), out_(graph.Nodes), in_(graph.Nodes), place_(graph.Nodes) {
        for (const RankGraph::Arc& arc : graph.Arcs) {
            ++out_[arc.Tail];
            ++in_[arc.Head];
        }
    }

    std::vector<bool> Back() {
        std::vector<bool> isLeft(graph_.Nodes, true);
        int front = 0;
        int end = int(graph_.Nodes);
        for (std::size_t taken = 0; taken < graph_.Nodes; ++taken) {
            const std::size_t node = taken == 0 ? 0 : Next(isLeft);
            place_[node] = taken != 0 && out_[node] == 0 && in_[node] != 0 ? --end : front++;
            isLeft[node] = false;
            for (const RankGraph::Arc& arc : graph_.Arcs) {
                if (std::size_t(arc.Tail) == node)
                    --in_[arc.Head];
                if (std::size_t(arc.Head) == node)
                    --out_[arc.Tail];
            }
        }
        std::vector<bool> isBack;
        for (const RankGraph::Arc& arc : graph_.Arcs)
            isBack.push_back(place_[arc.Head] < place_[arc.Tail]);
        return isBack;
    }

  private:
    std::size_t Next(const std::vector<bool>& isLeft) const {
        std::size_t best = graph_.Nodes;
        for (std::size_t node = 0; node < graph_.Nodes; ++node) {
            if (!isLeft[node])
                continue;
            if (out_[node] == 0 || in_[node] == 0)
                return node;
            if (best == graph_.Nodes || out_[node] - in_[node] > out_[best] - in_[best])
                best = node;
        }
        return best;
    }

    const RankGraph& graph_;
    std::vector<int> out_; // to and from what is left
    std::vector<int> in_;
    std::vector<int> place_;
};

} // namespace

std::vector<bool> ArcsBack(const RankGraph& graph, WayBack way) {
    if (way == WayBack::FewLeadBack)
        return Row(graph).Back();
    Walk walk(graph);
    return way == WayBack::LeadsNearer ? walk.Wide() : walk.Deep(way == WayBack::ClosesCircleLastFirst);
}

} // namespace orvane::diagram
