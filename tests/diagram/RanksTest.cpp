// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Ranks.h"

#include <gtest/gtest.h>

#include <numeric>

namespace orvane::diagram {
namespace {

constexpr auto kWays = {WayBack::ClosesCircle, WayBack::ClosesCircleLastFirst, WayBack::LeadsNearer,
                        WayBack::FewLeadBack};

RankGraph Graph(std::size_t nodes, std::vector<RankGraph::Arc> arcs) { return {nodes, std::move(arcs)}; }

int Length(const RankGraph& graph, const std::vector<int>& ranks) {
    return std::accumulate(graph.Arcs.begin(), graph.Arcs.end(), 0, [&](int sum, const RankGraph::Arc& arc) {
        return sum + std::abs(ranks[arc.Head] - ranks[arc.Tail]);
    });
}

// A graph that looks random and is always the same one.
RankGraph SomeGraph(unsigned seed) {
    RankGraph graph{5 + seed % 20, {}};
    unsigned number = seed;
    for (unsigned arc = 0; arc < graph.Nodes * 2; ++arc) {
        number = number * 1103515245u + 12345u;
        const int tail = int(number / 65536u % graph.Nodes);
        number = number * 1103515245u + 12345u;
        const int head = int(number / 65536u % graph.Nodes);
        if (tail != head)
            graph.Arcs.push_back({tail, head});
    }
    return graph;
}

TEST(DiagramRanks, OfAChainAreItsPlaces) {
    const RankGraph graph = Graph(4, {{0, 1}, {1, 2}, {2, 3}});
    EXPECT_EQ(Ranks(graph, {false, false, false}), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(Ranks(Graph(0, {}), {}), std::vector<int>());
    EXPECT_EQ(Ranks(Graph(2, {}), {}), (std::vector<int>{0, 0}));
}

TEST(DiagramRanks, TheArcThatClosesTheCircleLeadsBack) {
    const RankGraph graph = Graph(3, {{0, 1}, {1, 2}, {2, 0}});
    for (const WayBack way : kWays) {
        const std::vector<bool> isBack = ArcsBack(graph, way);
        EXPECT_EQ(isBack, (std::vector<bool>{false, false, true}));
        EXPECT_EQ(Ranks(graph, isBack), (std::vector<int>{0, 1, 2}));
    }
}

TEST(DiagramRanks, ASourceStandsNextToWhatItLeadsTo) {
    // 4 leads to the end of a chain only: one rank before it is shorter than at the front.
    const RankGraph graph = Graph(5, {{0, 1}, {1, 2}, {2, 3}, {4, 3}});
    EXPECT_EQ(Ranks(graph, std::vector<bool>(4)), (std::vector<int>{0, 1, 2, 3, 2}));
}

TEST(DiagramRanks, ANodeBetweenStandsWhereMostOfItsArcsAreShort) {
    // 5 has one arc in from the front and two out to the end.
    const RankGraph graph = Graph(6, {{0, 1}, {1, 2}, {2, 3}, {2, 4}, {0, 5}, {5, 3}, {5, 4}});
    const std::vector<int> ranks = Ranks(graph, std::vector<bool>(7));
    EXPECT_EQ(ranks[5], 2);
    EXPECT_EQ(Length(graph, ranks), 8);
}

TEST(DiagramRanks, EveryArcLeadsOnUnlessItLeadsBack) {
    for (unsigned seed = 1; seed <= 200; ++seed) {
        const RankGraph graph = SomeGraph(seed);
        for (const WayBack way : kWays) {
            const std::vector<bool> isBack = ArcsBack(graph, way);
            const std::vector<int> ranks = Ranks(graph, isBack);
            for (std::size_t arc = 0; arc < graph.Arcs.size(); ++arc) {
                const int on = ranks[graph.Arcs[arc].Head] - ranks[graph.Arcs[arc].Tail];
                EXPECT_GE(isBack[arc] ? -on : on, 1) << "seed " << seed;
            }
        }
    }
}

// No node and no two joined nodes can be moved alone to make it shorter.
TEST(DiagramRanks, NothingMovedByItselfMakesThemShorter) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        const RankGraph graph = SomeGraph(seed);
        const std::vector<bool> isBack = ArcsBack(graph, WayBack::ClosesCircle);
        const std::vector<int> ranks = Ranks(graph, isBack);
        const auto isSound = [&](const std::vector<int>& moved) {
            for (std::size_t arc = 0; arc < graph.Arcs.size(); ++arc) {
                const int on = moved[graph.Arcs[arc].Head] - moved[graph.Arcs[arc].Tail];
                if ((isBack[arc] ? -on : on) < 1)
                    return false;
            }
            return true;
        };
        for (const RankGraph::Arc& pair : graph.Arcs) {
            for (const int step : {-1, 1}) {
                for (const bool both : {false, true}) {
                    std::vector<int> moved = ranks;
                    moved[pair.Tail] += step;
                    moved[pair.Head] += both ? step : 0;
                    EXPECT_TRUE(!isSound(moved) || Length(graph, moved) >= Length(graph, ranks))
                        << "seed " << seed;
                }
            }
        }
    }
}

} // namespace
} // namespace orvane::diagram
