// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/Reachability.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Edge {
    StateNumber From;
    RowNumber Row;
    StateNumber To;
};

std::vector<int> ReachedBy(std::initializer_list<Edge> edges) {
    FsmDocument document;
    for (const Edge& edge : edges)
        document.State(edge.From).Targets[edge.Row] = edge.To;
    const Reachability reachability = ComputeReachability(document);
    std::vector<int> reached;
    for (const StateNumber state : StateNumbers())
        if (reachability.Reached(state))
            reached.push_back(state.Number());
    EXPECT_EQ(reachability.ReturnsToStart(), reachability.Reached(1));
    return reached;
}

TEST(Reachability, AnEmptyTableReachesNothingNotEvenStateOne) { EXPECT_THAT(ReachedBy({}), IsEmpty()); }

TEST(Reachability, StateOneThatIsNeverReenteredIsNotReachedButItsTargetsAre) {
    EXPECT_THAT(ReachedBy({{1, 6, 2}, {2, 6, 3}}), ElementsAre(2, 3));
}

TEST(Reachability, StateOneIsReachedByAnyTransitionBack) {
    EXPECT_THAT(ReachedBy({{1, 6, 2}, {2, 54, 1}}), ElementsAre(1, 2));
    EXPECT_THAT(ReachedBy({{1, 6, 2}, {2, kTimeoutRow, 1}}), ElementsAre(1, 2));
    EXPECT_THAT(ReachedBy({{1, 6, 2}, {2, kElseRow, 1}}), ElementsAre(1, 2));
    EXPECT_THAT(ReachedBy({{1, 6, 1}}), ElementsAre(1));
}

TEST(Reachability, TransitionsOfStatesThatAreNotReachedDoNotCount) {
    EXPECT_THAT(ReachedBy({{1, 6, 2}, {3, 6, 1}, {3, 7, 4}, {4, 6, 3}}), ElementsAre(2));
}

TEST(Reachability, CyclesAndTransitionsToItselfEnd) {
    EXPECT_THAT(ReachedBy({{1, 6, 2}, {2, 6, 2}, {2, 7, 3}, {3, 6, 2}}), ElementsAre(2, 3));
}

TEST(Reachability, ATargetThatTheTableDoesNotHaveIsABoundsError) {
    for (const int target : {-1, 101, 32767, -32768})
        EXPECT_THROW(ReachedBy({{1, 6, 2}, {2, kElseRow, target}}), BoundsError) << target;
    const Reachability reachability{FsmDocument()};
    EXPECT_THROW(static_cast<void>(reachability.Reached(0)), BoundsError);
    EXPECT_THROW(static_cast<void>(reachability.Reached(101)), BoundsError);
}

TEST(Reachability, AChainOfAllStatesIsReachedToItsEnd) {
    FsmDocument document;
    for (const StateNumber state : StateNumbers())
        document.State(state).Targets[6] = state.Number() % kStateCount + 1;
    const Reachability reachability(document);
    for (const StateNumber state : StateNumbers())
        EXPECT_TRUE(reachability.Reached(state)) << state;
}

} // namespace
} // namespace orvane
