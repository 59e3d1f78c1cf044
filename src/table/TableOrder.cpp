// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/TableOrder.h"

#include <array>
#include <cstdint>
#include <tuple>
#include <utility>
#include <vector>

namespace orvane {

namespace {

void RenumberTargets(StateRecord& state, const StateOrder& order) {
    for (StateNumber& target : state.Targets)
        target = order.NewOf(target);
}

void MoveCells(StateRecord& state, const EventOrder& order) {
    const RowArray<StateNumber> targets = state.Targets;
    RowArray<std::string> actions = std::exchange(state.Actions, {});
    for (const RowNumber row : CellRows()) {
        state.Targets[order.NewOf(row)] = targets[row];
        state.Actions[order.NewOf(row)] = std::move(actions[row]);
    }
}

// The cells of a copied event are those of states, which have their columns too.
void MoveCopiedEvent(TableClipboard& clipboard, const StateOrder& order) {
    const auto targets = clipboard.ClipEventTargets;
    auto actions = std::exchange(clipboard.ClipEventActions, {});
    for (const StateNumber state : StateNumbers()) {
        const std::size_t to = IndexIn(StateNumbers(), order.NewOf(state));
        clipboard.ClipEventTargets[to] = order.NewOf(targets[IndexIn(StateNumbers(), state)]);
        clipboard.ClipEventActions[to] = std::move(actions[IndexIn(StateNumbers(), state)]);
    }
}

void MoveClipboard(TableClipboard& clipboard, const StateOrder& order) {
    RenumberTargets(clipboard.ClipState, order);
    clipboard.ClipTarget = order.NewOf(clipboard.ClipTarget);
    for (BlockCell& cell : clipboard.ClipBlock.Cells) {
        if (cell.Target)
            cell.Target = order.NewOf(*cell.Target);
    }
    MoveCopiedEvent(clipboard, order);
}

} // namespace

void Rearrange(FsmDocument& document, TableClipboard& clipboard, const StateOrder& order) {
    if (order.KeepsAll())
        return;
    std::vector<StateRecord> states;
    states.reserve(kStateCount);
    for (const StateNumber state : StateNumbers())
        states.push_back(std::move(document.State(state)));
    for (const StateNumber state : StateNumbers()) {
        StateRecord& moved = document.State(order.NewOf(state));
        moved = std::move(states[IndexIn(StateNumbers(), state)]);
        RenumberTargets(moved, order);
    }
    MoveClipboard(clipboard, order);
}

void RearrangeUnkept(FsmDocument& document, TableClipboard& clipboard, const StateOrder& order) {
    std::array<std::pair<Twips, std::int16_t>, kStateCount> unkept;
    for (const StateNumber state : StateNumbers())
        unkept[IndexIn(StateNumbers(), order.NewOf(state))] = {document.State(state).ColWidth,
                                                               document.State(state).LastTab};
    for (const StateNumber state : StateNumbers())
        std::tie(document.State(state).ColWidth, document.State(state).LastTab) =
            unkept[IndexIn(StateNumbers(), state)];
    MoveClipboard(clipboard, order);
}

void RearrangeUnkept(FsmDocument&, TableClipboard& clipboard, const EventOrder& order) {
    MoveCells(clipboard.ClipState, order);
}

void Rearrange(FsmDocument& document, TableClipboard& clipboard, const EventOrder& order) {
    if (order.KeepsAll())
        return;
    for (const StateNumber state : StateNumbers())
        MoveCells(document.State(state), order);
    MoveCells(clipboard.ClipState, order);
    std::vector<EventRecord> events;
    for (const RowNumber row : EventRows())
        events.push_back(std::move(document.Event(row)));
    for (const RowNumber row : EventRows())
        document.Event(order.NewOf(row)) = std::move(events[IndexIn(EventRows(), row)]);
}

} // namespace orvane
