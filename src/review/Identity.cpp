// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/Identity.h"

#include "review/Presence.h"
#include "review/Titles.h"

#include <algorithm>

namespace orvane::review {

namespace {

std::vector<StateNumber> Present(const FsmDocument& document, StateNumber) { return PresentStates(document); }
std::vector<RowNumber> Present(const FsmDocument& document, RowNumber) { return PresentEvents(document); }

std::string Title(const FsmDocument& document, StateNumber state) { return StateTitle(document, state); }
std::string Title(const FsmDocument& document, RowNumber row) { return EventTitle(document, row); }

Wishes Wished(const Wish<StateNumber>& wish) { return {{wish}, {}}; }
Wishes Wished(const Wish<RowNumber>& wish) { return {{}, {wish}}; }

// Which of both it is: number 0 is none.
template <typename Number>
struct Sides {
    Number Old;
    Number New;
};

template <typename Number>
Identity IdentityFor(const ComparedVersions& versions, Sides<Number> sides, const char* kind) {
    Identity identity;
    identity.IsOfOld = sides.Old != Number();
    const Number own = identity.IsOfOld ? sides.Old : sides.New;
    const FsmDocument& there = identity.IsOfOld ? versions.New() : versions.Old();
    identity.What = kind + Title(identity.IsOfOld ? versions.Old() : versions.New(), own);
    const auto add = [&](const std::string& title, std::optional<Number> other) {
        identity.Others.push_back(title);
        identity.AsWished.push_back(identity.IsOfOld ? Wished(Wish<Number>{own, other})
                                                     : Wished(Wish<Number>{other, own}));
    };
    add("none", std::nullopt);
    for (const Number other : Present(there, Number())) {
        if (identity.IsOfOld && other == sides.New)
            identity.Present = identity.Others.size();
        add(Title(there, other), other);
    }
    return identity;
}

template <typename Number>
bool Contradicts(const Wish<Number>& one, const Wish<Number>& other) {
    return (one.Old && one.Old == other.Old) || (one.New && one.New == other.New);
}

template <typename Number>
void Add(std::vector<Wish<Number>>& wishes, const std::vector<Wish<Number>>& more) {
    for (const Wish<Number>& wish : more) {
        std::erase_if(wishes, [&](const Wish<Number>& old) { return Contradicts(old, wish); });
        wishes.push_back(wish);
    }
}

template <typename Number>
std::vector<Wish<Number>> Carried(const std::vector<Wish<Number>>& wishes, const Pairing<Number>& edited) {
    std::vector<Wish<Number>> carried;
    for (Wish<Number> wish : wishes) {
        if (wish.Old && !edited.HasNew(*wish.Old))
            continue;
        if (wish.Old)
            wish.Old = edited.NewOf(*wish.Old);
        carried.push_back(wish);
    }
    return carried;
}

} // namespace

std::optional<Identity> IdentityOf(const ComparedVersions& versions, const Change& change) {
    const Matching& same = versions.List().Same;
    const bool isOfState = change.Old.State != kNoState || change.New.State != kNoState;
    const bool isOfEvent = EventRows().Contains(change.Old.Row) || EventRows().Contains(change.New.Row);
    // In a cell it is the guess that may be wrong.
    const bool isGuessedEvent = isOfEvent && change.Old.Row != kNoRow && same.Rows.IsGuess(change.Old.Row);
    const bool isGuessedState =
        isOfState && change.Old.State != kNoState && same.States.IsGuess(change.Old.State);
    if (change.Kind == ChangeKind::MachineField || change.Kind == ChangeKind::BlankWidth)
        return std::nullopt;
    if (isOfState && (isGuessedState || !isGuessedEvent)) {
        Identity identity =
            IdentityFor(versions, Sides<StateNumber>{change.Old.State, change.New.State}, "state ");
        identity.IsGuess = isGuessedState;
        return identity;
    }
    if (!isOfEvent)
        return std::nullopt;
    Identity identity = IdentityFor(versions, Sides<RowNumber>{change.Old.Row, change.New.Row}, "event ");
    identity.IsGuess = isGuessedEvent;
    return identity;
}

Wishes Added(Wishes wishes, const Wishes& another) {
    Add(wishes.States, another.States);
    Add(wishes.Rows, another.Rows);
    return wishes;
}

Wishes CarriedOn(const Wishes& wishes, const Matching& edited) {
    return {Carried(wishes.States, edited.States), Carried(wishes.Rows, edited.Rows)};
}

} // namespace orvane::review
