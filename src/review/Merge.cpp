// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/Merge.h"

#include "review/ConflictBlock.h"
#include "review/MergeContent.h"
#include "review/MergePlan.h"
#include "text/AnsiText.h"

namespace orvane::review {

namespace {

template <typename Number>
Pairing<Number> FromSide(const Nodes<Number>& nodes, Side side) {
    Pairing<Number> pairing;
    for (const Node<Number>& node : nodes.All()) {
        if (node.Stays && node.IsOn(side))
            pairing.Join(node.On(side), node.Result);
    }
    return pairing;
}

Matching MatchingFrom(const MergePlan& plan, Side side) {
    Matching matching;
    matching.States = FromSide(plan.States, side);
    matching.Rows = FromSide(plan.Rows, side);
    return matching;
}

// Where people look for what concerns the place.
std::string& TextFor(const Conflict& conflict, FsmDocument& document) {
    const Cell place = conflict.Place;
    if (place.State != kNoState && place.Row != kNoRow)
        return document.State(place.State).Actions[place.Row];
    if (place.State != kNoState)
        return document.State(place.State).ExitCode;
    return document.General.HeaderComment;
}

void PlaceBlock(const Conflict& conflict, FsmDocument& document) {
    std::string& text = TextFor(conflict, document);
    text.append(text.empty() ? "" : kLineEnd)
        .append(ConflictBlock({conflict.What, conflict.Base, conflict.Theirs}));
}

// When these were asked nothing had its number in the merged document yet.
void TellNewPlaces(MergePlan& plan) {
    for (Conflict& conflict : plan.Conflicts) {
        if (conflict.Kind != ConflictKind::ChangedHere)
            continue;
        if (const auto* state = plan.States.At(Side::Ours, conflict.Place.State))
            conflict.Place.State = state->Result;
        if (const auto* row = plan.Rows.At(Side::Ours, conflict.Place.Row))
            conflict.Place.Row = row->Result;
    }
}

} // namespace

const char* ConflictKindName(ConflictKind kind) {
    switch (kind) {
    case ConflictKind::Field:
        return "field";
    case ConflictKind::Target:
        return "target";
    case ConflictKind::LostTarget:
        return "lost-target";
    case ConflictKind::ChangedHere:
        return "changed-here-removed-there";
    case ConflictKind::RemovedHere:
        return "removed-here-changed-there";
    case ConflictKind::AddedTwice:
        return "added-twice";
    case ConflictKind::Order:
        return "order";
    case ConflictKind::Start:
        return "start";
    case ConflictKind::NoRoom:
        break;
    }
    return "no-room";
}

MergeResult Merge(const FsmDocument& base, const FsmDocument& ours, const FsmDocument& theirs,
                  Contradictions contradictions) {
    const bool asks = contradictions == Contradictions::Asked;
    MergePlan plan = MakePlan(base, ours, theirs);
    DecidePresence(plan);
    DecideOrder(plan);
    TellNewPlaces(plan);
    MergeResult result;
    result.Document = MergedContent(plan, asks ? Blocks::With : Blocks::Without);
    result.FromOurs = MatchingFrom(plan, Side::Ours);
    result.FromTheirs = MatchingFrom(plan, Side::Theirs);
    result.Notes = std::move(plan.Notes);
    if (!asks)
        return result;
    result.Conflicts = std::move(plan.Conflicts);
    for (const Conflict& conflict : result.Conflicts) {
        if (!conflict.IsInText)
            PlaceBlock(conflict, result.Document);
    }
    return result;
}

} // namespace orvane::review
