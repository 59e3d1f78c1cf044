// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

namespace orvane::diagram {

// A graph of nodes 0..Nodes-1 without loops.
struct RankGraph {
    struct Arc {
        int Tail;
        int Head;
    };
    std::size_t Nodes = 0;
    std::vector<Arc> Arcs;
};

// Ways to decide which arcs of a graph with circles lead back: those that close a circle on a walk as deep as
// it goes, taking the first arcs first or last; those that lead nearer to where the walk began; or as few as
// a greedy choice finds. None is best for all machines.
enum class WayBack { ClosesCircle, ClosesCircleLastFirst, LeadsNearer, FewLeadBack };

// By arc: whether it leads back; without those there is no circle. The walk begins at node 0 and tries nodes
// and arcs in their order.
std::vector<bool> ArcsBack(const RankGraph& graph, WayBack way);

// By node: its rank, from 0. Every arc leads at least one rank on, or when it is one that leads back, at
// least one rank back; all together they are as short as can be.
std::vector<int> Ranks(const RankGraph& graph, const std::vector<bool>& isBack);

} // namespace orvane::diagram
