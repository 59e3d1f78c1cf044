// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/StateSorting.h"

#include "text/AnsiText.h"

#include <algorithm>
#include <bitset>
#include <string>
#include <tuple>
#include <vector>

namespace orvane {

namespace {

constexpr StateNumber kStartColumn = 1;

class StatesInUse {
  public:
    explicit StatesInUse(const FsmDocument& document) {
        for (const StateNumber state : StateNumbers()) {
            const StateRecord& record = document.State(state);
            if (!IsEmpty(record))
                Set(state);
            for (const RowNumber row : CellRows()) {
                if (record.Targets[row] != kNoState)
                    Set(record.Targets[row]);
            }
        }
    }
    bool Has(StateNumber state) const { return inUse_[IndexIn(StateNumbers(), state)]; }

  private:
    void Set(StateNumber state) {
        RequireInRange(state, StateNumbers(), "state");
        inUse_.set(IndexIn(StateNumbers(), state));
    }

    std::bitset<kStateCount> inUse_;
};

bool IsInUse(const FsmDocument& document, RowNumber row) {
    const auto hasCell = [&](StateNumber state) {
        const StateRecord& record = document.State(state);
        return record.Targets[row] != kNoState || !record.Actions[row].empty();
    };
    return !IsEmpty(document.Event(row)) ||
           std::any_of(StateNumbers().begin(), StateNumbers().end(), hasCell);
}

// The states in the order in which a walk that looks at the nearest ones first meets them.
std::vector<StateNumber> MetFromTheStart(const FsmDocument& document) {
    std::vector<StateNumber> met = {kStartColumn};
    for (std::size_t next = 0; next < met.size(); ++next) {
        const StateRecord& record = document.State(met[next]);
        for (const RowNumber row : CellRows()) {
            const StateNumber target = record.Targets[row];
            if (target != kNoState && std::find(met.begin(), met.end(), target) == met.end())
                met.push_back(target);
        }
    }
    return met;
}

} // namespace

StateOrder SortedByName(const FsmDocument& document, StartState start) {
    const StatesInUse inUse(document);
    std::vector<std::tuple<bool, bool, bool, std::string, StateNumber>> keys;
    for (const StateNumber state : StateNumbers()) {
        const std::string& name = document.State(state).Name;
        const bool moves = start == StartState::IsSorted || state != kStartColumn;
        keys.emplace_back(moves, !inUse.Has(state), name.empty(), ToUpper(name), state);
    }
    std::sort(keys.begin(), keys.end());
    std::vector<StateNumber> order;
    for (const auto& key : keys)
        order.push_back(std::get<StateNumber>(key));
    return StateOrder::InOrder(order);
}

StateOrder SortedByWay(const FsmDocument& document) {
    const StatesInUse inUse(document);
    std::vector<StateNumber> order = MetFromTheStart(document);
    const std::vector<StateNumber> met = order;
    for (const StateNumber state : StateNumbers()) {
        if (inUse.Has(state) && std::find(met.begin(), met.end(), state) == met.end())
            order.push_back(state);
    }
    return StateOrder::InOrder(order);
}

StateOrder StateGapsClosed(const FsmDocument& document) {
    const StatesInUse inUse(document);
    std::vector<StateNumber> order = {kStartColumn};
    for (const StateNumber state : StateNumbers()) {
        if (state != kStartColumn && inUse.Has(state))
            order.push_back(state);
    }
    return StateOrder::InOrder(order);
}

EventOrder EventGapsClosed(const FsmDocument& document) {
    std::vector<RowNumber> order;
    for (const RowNumber row : EventRows()) {
        if (IsInUse(document, row))
            order.push_back(row);
    }
    return EventOrder::InOrder(order);
}

} // namespace orvane
