// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/MergeContent.h"

#include "core/RecordOf.h"
#include "review/Presence.h"
#include "review/ShowText.h"
#include "review/StoredFields.h"
#include "review/Titles.h"

#include <algorithm>

namespace orvane::review {

namespace {

StateRecord Template(const FsmDocument& document, StateNumber) { return document.StateTemplate(); }
EventRecord Template(const FsmDocument&, RowNumber) { return FsmDocument::EventTemplate(); }

// A record on all sides.
template <typename Record>
struct Versions {
    const Record& Base;
    const Record& Ours;
    const Record& Theirs;
};

// Where a field is: for people, and in the merged document.
struct FieldPlace {
    std::string Owner; // "state 3:Idle"
    Cell Place;
};

class ContentMerger {
  public:
    ContentMerger(MergePlan& plan, Blocks blocks)
        : plan_(plan), blocks_(blocks), merged_(plan.Document(Side::Ours).DefaultColumnWidth()) {}

    FsmDocument Merge() {
        MergeMachine();
        for (const Node<RowNumber>& row : plan_.Rows.All()) {
            if (row.Stays && EventRows().Contains(row.Result))
                MergeRecord<kEventFields>(row, merged_.Event(row.Result),
                                          {"event " + TitleOf(plan_, row), {row.Result, kNoState}});
        }
        MergeBlankWidths();
        for (const Node<StateNumber>& state : plan_.States.All()) {
            if (state.Stays)
                MergeState(state);
        }
        for (const Node<RowNumber>& row : plan_.Rows.All())
            AskIfAddedTwice(row);
        return std::move(merged_);
    }

  private:
    void MergeMachine();
    void MergeState(const Node<StateNumber>& state);
    void MergeBlankWidths();
    template <const auto& kFields, typename Record, typename Number>
    void MergeRecord(const Node<Number>& node, Record& merged, const FieldPlace& place);
    template <const auto& kFields, typename Record>
    void MergeFields(const Versions<Record>& versions, Record& merged, const FieldPlace& place);
    template <typename Field, typename Value>
    Value MergedValue(const Field& field, const Versions<Value>& values, const FieldPlace& place);
    void MergeCell(const Node<StateNumber>& state, const Node<RowNumber>& row);
    const Node<StateNumber>* MergedTarget(const Node<StateNumber>& state, const Node<RowNumber>& row);
    std::string MergedAction(const Node<StateNumber>& state, const Node<RowNumber>& row);
    std::string MergedCode(const Versions<std::string>& texts, Conflict conflict);
    void AskAboutTarget(ConflictKind kind, const Node<StateNumber>& state, const Node<RowNumber>& row);
    template <typename Number>
    void AskIfAddedTwice(const Node<Number>& node);
    std::string ContentOf(const Node<StateNumber>& state, Side side) const {
        return StateContent(plan_.Document(side), state.On(side));
    }
    std::string ContentOf(const Node<RowNumber>& row, Side side) const {
        return EventContent(plan_.Document(side), row.On(side));
    }
    std::string CellTitle(const Node<StateNumber>& state, const Node<RowNumber>& row) const {
        return TitleOf(plan_, state) + ", " + TitleOf(plan_, row);
    }
    std::string TargetText(const Node<StateNumber>* target) const {
        return "-> " + (target ? TitleOf(plan_, *target) : std::string("none"));
    }

    MergePlan& plan_;
    Blocks blocks_;
    FsmDocument merged_;
};

template <typename Value>
bool IsContradiction(const Versions<Value>& values) {
    return values.Ours != values.Theirs && values.Ours != values.Base && values.Theirs != values.Base;
}

// Of values that are no contradiction.
template <typename Value>
const Value& Changed(const Versions<Value>& values) {
    return values.Ours == values.Base ? values.Theirs : values.Ours;
}

void ContentMerger::MergeMachine() {
    const FsmDocument& base = plan_.Document(Side::Base);
    const FsmDocument& ours = plan_.Document(Side::Ours);
    const FsmDocument& theirs = plan_.Document(Side::Theirs);
    const FieldPlace place{"machine", {}};
    MergeFields<kGeneralFields, GeneralCode>({base.General, ours.General, theirs.General}, merged_.General,
                                             place);
    MergeFields<kViewFields, ViewOptions>({base.View, ours.View, theirs.View}, merged_.View, place);
    MergeFields<kRowHeightFields, RowHeights>(
        {base.View.RowVisible, ours.View.RowVisible, theirs.View.RowVisible}, merged_.View.RowVisible, place);
}

template <const auto& kFields, typename Record, typename Number>
void ContentMerger::MergeRecord(const Node<Number>& node, Record& merged, const FieldPlace& place) {
    const Record none = Template(merged_, Number());
    const auto on = [&](Side side) -> const Record& {
        return node.IsOn(side) ? RecordOf(plan_.Document(side), node.On(side)) : none;
    };
    if (node.IsOn(Side::Ours) && node.IsOn(Side::Theirs))
        return MergeFields<kFields, Record>({on(Side::Base), on(Side::Ours), on(Side::Theirs)}, merged,
                                            place);
    const Record& only = on(node.IsOn(Side::Ours) ? Side::Ours : Side::Theirs);
    ForEachStoredField<kFields>([&](const auto& field) { merged.*field.Member = only.*field.Member; });
}

template <const auto& kFields, typename Record>
void ContentMerger::MergeFields(const Versions<Record>& versions, Record& merged, const FieldPlace& place) {
    ForEachStoredField<kFields>([&](const auto& field) {
        using Value = std::remove_cvref_t<decltype(merged.*field.Member)>;
        const Versions<Value> values{versions.Base.*field.Member, versions.Ours.*field.Member,
                                     versions.Theirs.*field.Member};
        merged.*field.Member = IsContradiction(values) ? MergedValue(field, values, place) : Changed(values);
    });
}

template <typename Field, typename Value>
Value ContentMerger::MergedValue(const Field& field, const Versions<Value>& values, const FieldPlace& place) {
    const std::string what = place.Owner + ", " + std::string(field.Name);
    if (IsOfTheView(field)) {
        plan_.Notes.push_back(what + " was changed by both sides; it is ours");
        return values.Ours;
    }
    Conflict conflict{ConflictKind::Field, place.Place, field.File.Tag, what, {}, {}, {}};
    if constexpr (std::is_same_v<Value, std::string>) {
        if (IsCode(field.File.Tag))
            return MergedCode(values, std::move(conflict));
    }
    const auto text = [](const Value& value) {
        if constexpr (std::is_same_v<Value, std::string>)
            return value;
        else
            return ValueTitle(FsmDocument(), value);
    };
    conflict.Base = text(values.Base);
    conflict.Ours = text(values.Ours);
    conflict.Theirs = text(values.Theirs);
    plan_.Conflicts.push_back(std::move(conflict));
    return values.Ours;
}

std::string ContentMerger::MergedCode(const Versions<std::string>& texts, Conflict conflict) {
    MergedText merged = MergeLines({texts.Base, texts.Ours, texts.Theirs}, conflict.What, blocks_);
    if (merged.Conflicts > 0) {
        conflict.Base = texts.Base;
        conflict.Ours = texts.Ours;
        conflict.Theirs = texts.Theirs;
        conflict.IsInText = true;
        plan_.Conflicts.push_back(std::move(conflict));
    }
    return std::move(merged.Text);
}

void ContentMerger::MergeState(const Node<StateNumber>& state) {
    MergeRecord<kStateFields>(state, merged_.State(state.Result),
                              {"state " + TitleOf(plan_, state), {kNoRow, state.Result}});
    for (const Node<RowNumber>& row : plan_.Rows.All()) {
        if (row.Stays)
            MergeCell(state, row);
    }
    AskIfAddedTwice(state);
}

void ContentMerger::MergeCell(const Node<StateNumber>& state, const Node<RowNumber>& row) {
    StateRecord& merged = merged_.State(state.Result);
    const Node<StateNumber>* target = MergedTarget(state, row);
    if (target && !target->Stays) {
        AskAboutTarget(ConflictKind::LostTarget, state, row);
        target = plan_.TargetOn(Side::Ours, state, row);
    }
    merged.Targets[row.Result] = target && target->Stays ? target->Result : StateNumber();
    merged.Actions[row.Result] = MergedAction(state, row);
}

const Node<StateNumber>* ContentMerger::MergedTarget(const Node<StateNumber>& state,
                                                     const Node<RowNumber>& row) {
    const auto on = [&](Side side) { return plan_.TargetOn(side, state, row); };
    const bool isOurs = state.IsOn(Side::Ours) && row.IsOn(Side::Ours);
    const bool isTheirs = state.IsOn(Side::Theirs) && row.IsOn(Side::Theirs);
    if (!isOurs || !isTheirs)
        return on(isOurs ? Side::Ours : Side::Theirs);
    const Node<StateNumber>* const base = on(Side::Base);
    const Node<StateNumber>* const ours = on(Side::Ours);
    const Node<StateNumber>* const theirs = on(Side::Theirs);
    const Versions<const Node<StateNumber>*> targets{base, ours, theirs};
    if (!IsContradiction(targets))
        return Changed(targets);
    AskAboutTarget(ConflictKind::Target, state, row);
    return ours;
}

void ContentMerger::AskAboutTarget(ConflictKind kind, const Node<StateNumber>& state,
                                   const Node<RowNumber>& row) {
    const auto text = [&](Side side) { return TargetText(plan_.TargetOn(side, state, row)); };
    const bool isLost = kind == ConflictKind::LostTarget;
    plan_.Conflicts.push_back(
        {kind,
         {row.Result, state.Result},
         tag::kTarget,
         CellTitle(state, row) + (isLost ? ", leads to a state that is gone" : ", target"),
         text(Side::Base),
         text(Side::Ours),
         text(Side::Theirs)});
}

std::string ContentMerger::MergedAction(const Node<StateNumber>& state, const Node<RowNumber>& row) {
    const auto on = [&](Side side) -> const std::string& { return plan_.ActionOn(side, state, row); };
    const bool isOurs = state.IsOn(Side::Ours) && row.IsOn(Side::Ours);
    const bool isTheirs = state.IsOn(Side::Theirs) && row.IsOn(Side::Theirs);
    if (!isOurs || !isTheirs)
        return on(isOurs ? Side::Ours : Side::Theirs);
    const Versions<std::string> actions{on(Side::Base), on(Side::Ours), on(Side::Theirs)};
    if (!IsContradiction(actions))
        return Changed(actions);
    Conflict conflict;
    conflict.Place = {row.Result, state.Result};
    conflict.Tag = tag::kAction;
    conflict.What = CellTitle(state, row) + ", action";
    return MergedCode(actions, std::move(conflict));
}

// Both sides have one of that name. What does not contradict was put together, but nobody has seen it so.
template <typename Number>
void ContentMerger::AskIfAddedTwice(const Node<Number>& node) {
    if (node.IsOn(Side::Base) || !node.IsOn(Side::Ours) || !node.IsOn(Side::Theirs) || !node.Stays)
        return;
    Conflict conflict;
    conflict.Kind = ConflictKind::AddedTwice;
    conflict.Ours = ContentOf(node, Side::Ours);
    conflict.Theirs = ContentOf(node, Side::Theirs);
    if (conflict.Ours == conflict.Theirs)
        return;
    if constexpr (std::is_same_v<Number, StateNumber>)
        conflict.Place = {kNoRow, node.Result};
    else
        conflict.Place = {node.Result, kNoState};
    const bool isAsked =
        std::any_of(plan_.Conflicts.begin(), plan_.Conflicts.end(), [&](const Conflict& other) {
            return conflict.Place.State == kNoState ? other.Place == conflict.Place
                                                    : other.Place.State == conflict.Place.State;
        });
    if (isAsked)
        return;
    conflict.What = TitleOf(plan_, node) + " was added by both sides; this is both together";
    plan_.Conflicts.push_back(std::move(conflict));
}

void ContentMerger::MergeBlankWidths() {
    const auto widthOn = [&](Side side, StateNumber column) {
        const FsmDocument& document = plan_.Document(side);
        return plan_.States.At(side, column) ? document.DefaultColumnWidth()
                                             : document.State(column).ColWidth;
    };
    for (const StateNumber column : StateNumbers()) {
        const Twips base = widthOn(Side::Base, column);
        const Twips ours = widthOn(Side::Ours, column);
        merged_.State(column).ColWidth = ours == base ? widthOn(Side::Theirs, column) : ours;
    }
}

} // namespace

FsmDocument MergedContent(MergePlan& plan, Blocks blocks) { return ContentMerger(plan, blocks).Merge(); }

} // namespace orvane::review
