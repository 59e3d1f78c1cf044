// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Scene.h"

#include "codegen/DesignChecks.h"
#include "codegen/Reachability.h"
#include "core/StateLabel.h"
#include "diagram/SceneLabels.h"

#include <algorithm>
#include <array>
#include <map>

namespace orvane::diagram {

namespace {

constexpr int kWidestTitle = 200;          // pixels
constexpr std::size_t kFewestForStubs = 7; // states; fewer are read without them

using RowsByTarget = std::map<StateNumber, std::vector<RowNumber>>;

bool IsFault(const std::optional<Finding>& finding) { return finding && finding->Level() == Severity::Error; }

class SceneMaker {
  public:
    SceneMaker(const FsmDocument& document, const TextSizes& sizes, const SceneOptions& options)
        : document_(document), sizes_(sizes), options_(options), reachability_(document) {}

    Scene Make() {
        for (const StateNumber state : StateNumbers())
            Collect(state);
        if (options_.Focus)
            KeepNeighbourhood(*options_.Focus);
        if (options_.Stubs)
            FindHubs();
        for (const StateNumber state : StateNumbers()) {
            if (IsDrawn(state))
                Add(state);
        }
        return std::move(scene_);
    }

  private:
    bool& IsDrawn(StateNumber state) { return drawn_[IndexIn(StateNumbers(), state)]; }
    RowsByTarget& Ways(StateNumber state) { return ways_[IndexIn(StateNumbers(), state)]; }
    std::string TitleOf(StateNumber state) const { return StateTitle(document_, state); }
    std::string Fitted(const std::string& text, TextRole role) const {
        return FittedLine(text, kWidestTitle, role, sizes_);
    }

    bool IsShown(RowNumber row) const {
        if (options_.OnlyRow)
            return row == *options_.OnlyRow;
        return row != kElseRow || !options_.HideElse;
    }

    // What is hidden keeps its states in the picture.
    void Collect(StateNumber state) {
        const StateRecord& record = document_.State(state);
        if (!record.Name.empty())
            IsDrawn(state) = true;
        for (const RowNumber row : CellRows()) {
            const StateNumber target = record.Targets[row];
            if (target == kNoState)
                continue;
            RequireInRange(target, StateNumbers(), "target");
            IsDrawn(state) = IsDrawn(target) = true;
            if (IsShown(row))
                Ways(state)[target].push_back(row);
        }
    }

    void KeepNeighbourhood(StateNumber focus) {
        drawn_.fill(false);
        IsDrawn(focus) = true;
        for (const StateNumber state : StateNumbers()) {
            std::erase_if(Ways(state), [&](const auto& way) { return state != focus && way.first != focus; });
            for (const auto& [target, rows] : Ways(state))
                IsDrawn(state) = IsDrawn(target) = true;
        }
    }

    void FindHubs() {
        std::array<std::size_t, kStateCount> sources{};
        for (const StateNumber state : StateNumbers()) {
            for (const auto& [target, rows] : Ways(state))
                sources[IndexIn(StateNumbers(), target)] += target != state ? 1 : 0;
        }
        const auto states = std::size_t(std::count(drawn_.begin(), drawn_.end(), true));
        for (std::size_t i = 0; i < sources.size(); ++i)
            hubs_[i] = states >= kFewestForStubs && sources[i] * 3 > states - 1;
    }

    bool IsHub(StateNumber state) const { return hubs_[IndexIn(StateNumbers(), state)]; }

    void Add(StateNumber state) {
        SceneState box;
        box.Number = state;
        box.OwnName = document_.State(state).Name;
        box.Title = Fitted(TitleOf(state), TextRole::Title);
        box.IsStart = state == StateNumbers().First();
        box.IsUnreachable = !box.IsStart && !reachability_.Reached(state);
        box.HasError = HasError(state);
        box.Name = "state " + TitleOf(state) + (box.IsStart ? ", start" : "") +
                   (box.IsUnreachable ? ", unreachable" : "") + (box.HasError ? ", with errors" : "");
        for (const auto& [target, rows] : Ways(state)) {
            if (target == state)
                AddLoops(box, rows);
            else if (IsHub(target))
                box.Lines.push_back({Fitted("-> " + TitleOf(target), TextRole::Line), false, false});
            else
                AddEdge(state, target, rows);
        }
        scene_.States.push_back(std::move(box));
    }

    void AddLoops(SceneState& box, const std::vector<RowNumber>& rows) const {
        std::vector<LabelLine> lines = LabelOf(document_, box.Number, rows, sizes_);
        for (LabelLine& line : lines)
            line.Loop = true;
        box.Lines.insert(box.Lines.begin(), lines.begin(), lines.end());
        box.Name += ", again by " + AllNames(document_, box.Number, rows);
    }

    void AddEdge(StateNumber from, StateNumber to, const std::vector<RowNumber>& rows) {
        SceneEdge edge{from, to, rows, LabelOf(document_, from, rows, sizes_), "", false};
        edge.Name = TitleOf(from) + " to " + TitleOf(to) + " by " + AllNames(document_, from, rows);
        edge.IsDashed = rows.size() == 1 && rows.front() == kElseRow;
        scene_.Edges.push_back(std::move(edge));
    }

    // As the generator looks at it, which passes over what is not reached.
    bool HasError(StateNumber state) const {
        if (!reachability_.Reached(state))
            return false;
        const auto hasFault = [&](RowNumber row) { return IsFault(CheckEventCode(document_, {row, state})); };
        return IsFault(CheckTimeout(document_, state)) ||
               std::any_of(EventRows().begin(), EventRows().end(), hasFault);
    }

    const FsmDocument& document_;
    const TextSizes& sizes_;
    const SceneOptions& options_;
    const Reachability reachability_;
    std::array<bool, kStateCount> drawn_{};
    std::array<bool, kStateCount> hubs_{};
    std::array<RowsByTarget, kStateCount> ways_;
    Scene scene_;
};

} // namespace

std::optional<std::size_t> Scene::IndexOf(StateNumber state) const {
    const auto found = std::find_if(States.begin(), States.end(),
                                    [&](const SceneState& box) { return box.Number == state; });
    if (found == States.end())
        return std::nullopt;
    return std::size_t(found - States.begin());
}

Scene MakeScene(const FsmDocument& document, const TextSizes& sizes, const SceneOptions& options) {
    return SceneMaker(document, sizes, options).Make();
}

std::size_t MergedEdges(const FsmDocument& document) {
    std::size_t edges = 0;
    for (const StateNumber state : StateNumbers()) {
        std::array<bool, kStateCount + 1> met{};
        met[0] = met[state.Number()] = true;
        for (const RowNumber row : CellRows()) {
            const StateNumber target = document.State(state).Targets[row];
            RequireInRange(target, TargetNumbers(), "target");
            edges += met[target.Number()] ? 0 : 1;
            met[target.Number()] = true;
        }
    }
    return edges;
}

} // namespace orvane::diagram
