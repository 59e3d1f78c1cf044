// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of machines that other people designed, counted as a reader would judge them. Skipped where the
// folder of machines is missing.
#include "diagram/Layout.h"
#include "diagram/SceneOf.h"
#include "support/MachineJson.h"
#include "support/PictureFaults.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>

namespace orvane::diagram {
namespace {

class DiagramQuality : public testing::Test {
  protected:
    DiagramQuality() : machines_(test::RealMachines()) {}

    void SetUp() override {
        if (machines_.empty())
            GTEST_SKIP() << "no folder of machines";
    }

    // Machines that are drawn many times; the large ones take too long for that.
    std::vector<test::NamedDocument> SmallerOnes() const {
        std::vector<test::NamedDocument> smaller;
        for (const test::NamedDocument& machine : machines_) {
            if (MergedEdges(machine.Document) <= 50)
                smaller.push_back(machine);
        }
        return smaller;
    }

    std::vector<test::NamedDocument> machines_;
};

// The figure of all machines together; the tool that most people use for this leaves 2,099 in pictures of the
// same boxes and labels.
TEST_F(DiagramQuality, ColdPicturesHaveNoFaultsAndFewCrossings) {
    int crossings = 0;
    for (const test::NamedDocument& machine : machines_) {
        for (const Direction direction : {Direction::LeftToRight, Direction::TopDown}) {
            const Layout layout = ColdLayout(SceneOf(machine.Document), kSizes, direction);
            const test::PictureFaults faults = test::FaultsOf(layout);
            EXPECT_EQ(faults.All(), 0) << machine.Name << ": " << test::Told(faults);
            EXPECT_EQ(layout.Crossings, test::CrossingsDrawn(layout)) << machine.Name;
            crossings += direction == Direction::LeftToRight ? layout.Crossings : 0;
        }
    }
    if (machines_.size() == 81) {
        EXPECT_LE(crossings, 1806);
    }
}

// How far states moved, in pixels, and whether two exchanged their places.
struct Movement {
    std::vector<int> Distances;
    int Exchanges = 0;

    void Take(const Layout& before, const Layout& after);
    int At(std::size_t percent) {
        std::sort(Distances.begin(), Distances.end());
        return Distances[(Distances.size() - 1) * percent / 100];
    }
};

const PlacedState* Find(const Layout& layout, StateNumber number) {
    for (const PlacedState& state : layout.States) {
        if (state.Number == number)
            return &state;
    }
    return nullptr;
}

int Sign(int number) { return (number > 0 ? 1 : 0) - (number < 0 ? 1 : 0); }
int MiddleX(const Rect& box) { return 2 * box.X + box.Width; }
int MiddleY(const Rect& box) { return 2 * box.Y + box.Height; }

void Movement::Take(const Layout& before, const Layout& after) {
    for (const PlacedState& state : before.States) {
        const PlacedState* now = Find(after, state.Number);
        if (now == nullptr)
            continue;
        Distances.push_back(std::max(std::abs(now->Box.X - state.Box.X), std::abs(now->Box.Y - state.Box.Y)));
        for (const PlacedState& other : before.States) {
            const PlacedState* otherNow = Find(after, other.Number);
            if (otherNow == nullptr)
                continue;
            const int x = Sign(MiddleX(state.Box) - MiddleX(other.Box));
            const int y = Sign(MiddleY(state.Box) - MiddleY(other.Box));
            const bool isColumn = x == 0;
            Exchanges += x * Sign(MiddleX(now->Box) - MiddleX(otherNow->Box)) < 0 ? 1 : 0;
            Exchanges += isColumn && y * Sign(MiddleY(now->Box) - MiddleY(otherNow->Box)) < 0 ? 1 : 0;
        }
    }
}

// Numbers that look random and are always the same ones.
class Numbers {
  public:
    int Below(int limit) {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        return int((state_ >> 33) % std::uint64_t(limit));
    }

  private:
    std::uint64_t state_ = 1;
};

StateNumber SomeState(const Scene& scene, Numbers& numbers) {
    return scene.States[numbers.Below(int(scene.States.size()))].Number;
}

// A free cell gets a target; false when the state has none.
bool AddTransition(FsmDocument& document, const Scene& scene, Numbers& numbers) {
    StateRecord& state = document.State(SomeState(scene, numbers));
    const StateNumber target = SomeState(scene, numbers);
    for (const RowNumber row : EventRows()) {
        if (state.Targets[row] == kNoState) {
            state.Targets[row] = target;
            return true;
        }
    }
    return false;
}

void RemoveTransition(FsmDocument& document, const Scene& scene, Numbers& numbers) {
    if (scene.Edges.empty())
        return;
    const SceneEdge& edge = scene.Edges[numbers.Below(int(scene.Edges.size()))];
    document.State(edge.From).Targets[edge.Rows.front()] = kNoState;
}

TEST_F(DiagramQuality, AnEditMovesLittleAndExchangesNobody) {
    Numbers numbers;
    std::map<std::string, Movement> movements;
    for (const test::NamedDocument& machine : SmallerOnes()) {
        constexpr std::size_t fewStates = 6; // so small a machine is tidied after every edit
        const Scene scene = SceneOf(machine.Document);
        if (scene.States.size() <= fewStates)
            continue;
        for (int edit = 0; edit < 8; ++edit) {
            const Layout before = ColdLayout(scene, kSizes, Direction::LeftToRight);
            FsmDocument document = machine.Document;
            const bool adds = edit % 2 == 0;
            if (!adds)
                RemoveTransition(document, scene, numbers);
            else if (!AddTransition(document, scene, numbers))
                continue;
            const Layout after = WarmLayout(SceneOf(document), kSizes, before.Memory);
            const test::PictureFaults faults = test::FaultsOf(after);
            EXPECT_EQ(faults.All(), 0) << machine.Name << ": " << test::Told(faults);
            movements[adds ? "added" : "removed"].Take(before, after);
        }
    }
    for (auto& [kind, movement] : movements) {
        EXPECT_EQ(movement.At(50), 0) << kind;
        EXPECT_LT(movement.At(95), 20) << kind;
        EXPECT_EQ(movement.Exchanges, 0) << kind;
    }
}

// A machine drawn line by line, as people draw: what comes out is worse than a cold picture, but not by much.
TEST_F(DiagramQuality, ManyEditsInARowLeaveNoFault) {
    Numbers numbers;
    int warmCrossings = 0;
    int coldCrossings = 0;
    for (const test::NamedDocument& machine : SmallerOnes()) {
        FsmDocument document = machine.Document;
        Layout layout = ColdLayout(SceneOf(document), kSizes, Direction::TopDown);
        for (int edit = 0; edit < 12; ++edit) {
            const Scene scene = SceneOf(document);
            if (edit % 3 == 2)
                RemoveTransition(document, scene, numbers);
            else
                AddTransition(document, scene, numbers);
            if (edit == 5)
                document.State(20).Name = "New";
            layout = WarmLayout(SceneOf(document), kSizes, layout.Memory);
            const test::PictureFaults faults = test::FaultsOf(layout);
            ASSERT_EQ(faults.All(), 0) << machine.Name << ": " << test::Told(faults);
            EXPECT_EQ(layout.Crossings, test::CrossingsDrawn(layout)) << machine.Name;
        }
        warmCrossings += layout.Crossings;
        coldCrossings += ColdLayout(SceneOf(document), kSizes, Direction::TopDown).Crossings;
    }
    EXPECT_LT(warmCrossings, coldCrossings * 3);
}

TEST_F(DiagramQuality, ARenameMovesOnlyByOneShift) {
    for (const test::NamedDocument& machine : SmallerOnes()) {
        const Layout before = ColdLayout(SceneOf(machine.Document), kSizes, Direction::LeftToRight);
        FsmDocument document = machine.Document;
        document.State(1).Name += " with more to it";
        const Layout after = WarmLayout(SceneOf(document), kSizes, before.Memory);
        std::map<int, int> shifts;
        for (std::size_t i = 0; i < before.States.size(); ++i) {
            if (before.States[i].Number != 1)
                ++shifts[MiddleX(after.States[i].Box) - MiddleX(before.States[i].Box)];
            EXPECT_EQ(after.States[i].Box.Y, before.States[i].Box.Y) << machine.Name;
        }
        shifts.erase(0);
        EXPECT_LE(shifts.size(), 2u) << machine.Name;
    }
}

} // namespace
} // namespace orvane::diagram
