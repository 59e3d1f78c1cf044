// SPDX-License-Identifier: GPL-3.0-or-later
//
// The ranks are found by the network simplex method: a spanning tree of arcs that are as short as they may be
// determines all ranks. Taking an arc out of the tree parts it in two; when more arcs lead from the one part
// to the other than back, drawing the parts together along the shortest other arc makes the whole shorter.
// When no arc is worth taking out, nothing can be shorter.
#include "diagram/Ranks.h"

#include <algorithm>
#include <limits>

namespace orvane::diagram {

namespace {

struct Link {
    int Tail;
    int Head;
    int Weight;
    int Least; // ranks from tail to head
};

class Simplex {
  public:
    Simplex(const RankGraph& graph, const std::vector<bool>& isBack)
        : nodes_(int(graph.Nodes) + 1), rank_(nodes_), inTree_(nodes_), part_(nodes_) {
        for (std::size_t arc = 0; arc < graph.Arcs.size(); ++arc) {
            const auto [tail, head] = graph.Arcs[arc];
            links_.push_back(isBack[arc] ? Link{head, tail, 1, 1} : Link{tail, head, 1, 1});
        }
        // A root that holds the pieces of the graph together and weighs nothing.
        for (int node = 0; node + 1 < nodes_; ++node)
            links_.push_back({nodes_ - 1, node, 0, 0});
        isTreeLink_.resize(links_.size());
    }

    std::vector<int> Ranks() {
        AsFarAsNeeded();
        GrowTree();
        constexpr int most = 1000; // exchanges; a machine of 100 states takes about a hundred
        for (int i = 0; i < most && Improve(); ++i) {
        }
        rank_.pop_back();
        const auto least = std::min_element(rank_.begin(), rank_.end());
        const int first = least == rank_.end() ? 0 : *least;
        for (int& rank : rank_)
            rank -= first;
        return std::move(rank_);
    }

  private:
    int Slack(const Link& link) const { return rank_[link.Head] - rank_[link.Tail] - link.Least; }

    void AsFarAsNeeded() {
        for (bool moved = true; moved;) {
            moved = false;
            for (const Link& link : links_) {
                if (Slack(link) < 0) {
                    rank_[link.Head] = rank_[link.Tail] + link.Least;
                    moved = true;
                }
            }
        }
    }

    void GrowTree() {
        inTree_[nodes_ - 1] = true;
        for (int size = 1; size < nodes_;) {
            const int found = NearestLink();
            const Link& link = links_[found];
            const int slack = inTree_[link.Tail] ? Slack(link) : -Slack(link);
            for (int node = 0; node < nodes_; ++node)
                rank_[node] += inTree_[node] ? slack : 0;
            isTreeLink_[found] = true;
            inTree_[link.Tail] = inTree_[link.Head] = true;
            ++size;
        }
    }

    // The shortest one that has one end in the tree.
    int NearestLink() const {
        int nearest = -1;
        for (std::size_t i = 0; i < links_.size(); ++i) {
            if (inTree_[links_[i].Tail] != inTree_[links_[i].Head] &&
                (nearest < 0 || Slack(links_[i]) < Slack(links_[nearest])))
                nearest = int(i);
        }
        return nearest;
    }

    // Exchanges one link of the tree for a better one; false when there is none.
    bool Improve() {
        for (std::size_t tried = 0; tried < links_.size(); ++tried) {
            next_ = (next_ + 1) % links_.size();
            if (!isTreeLink_[next_])
                continue;
            Part(next_);
            if (CutValue() < 0) {
                Exchange(next_);
                return true;
            }
        }
        return false;
    }

    // Marks the part of the tree on the tail's side of the link.
    void Part(std::size_t link) {
        std::vector<std::vector<int>> neighbours(nodes_);
        for (std::size_t i = 0; i < links_.size(); ++i) {
            if (!isTreeLink_[i] || i == link)
                continue;
            neighbours[links_[i].Tail].push_back(links_[i].Head);
            neighbours[links_[i].Head].push_back(links_[i].Tail);
        }
        std::fill(part_.begin(), part_.end(), false);
        std::vector<int> open{links_[link].Tail};
        part_[open.front()] = true;
        while (!open.empty()) {
            const int node = open.back();
            open.pop_back();
            for (const int neighbour : neighbours[node]) {
                if (!part_[neighbour]) {
                    part_[neighbour] = true;
                    open.push_back(neighbour);
                }
            }
        }
    }

    int CutValue() const {
        int value = 0;
        for (const Link& link : links_) {
            if (part_[link.Tail] != part_[link.Head])
                value += part_[link.Tail] ? link.Weight : -link.Weight;
        }
        return value;
    }

    void Exchange(std::size_t leaving) {
        int entering = -1;
        int least = std::numeric_limits<int>::max();
        for (std::size_t i = 0; i < links_.size(); ++i) {
            if (!part_[links_[i].Tail] && part_[links_[i].Head] && Slack(links_[i]) < least) {
                least = Slack(links_[i]);
                entering = int(i);
            }
        }
        if (entering < 0)
            return;
        isTreeLink_[leaving] = false;
        isTreeLink_[entering] = true;
        for (int node = 0; node < nodes_; ++node)
            rank_[node] -= part_[node] ? least : 0;
    }

    int nodes_; // with the root, which is the last one
    std::vector<Link> links_;
    std::vector<int> rank_;
    std::vector<bool> inTree_;
    std::vector<bool> isTreeLink_;
    std::vector<bool> part_;
    std::size_t next_ = 0;
};

} // namespace

std::vector<int> Ranks(const RankGraph& graph, const std::vector<bool>& isBack) {
    return Simplex(graph, isBack).Ranks();
}

} // namespace orvane::diagram
