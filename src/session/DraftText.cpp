// SPDX-License-Identifier: GPL-3.0-or-later
#include "session/DraftText.h"

#include "core/DocumentReader.h"
#include "core/DocumentWriter.h"
#include "table/CellEdit.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr const char* kDocument = "document";
constexpr const char* kText = "text";

// A field of that name; null when the draft has none.
const std::string* FieldOf(const JournalDraft& draft, std::string_view name) {
    const auto field = std::find_if(draft.Fields.begin(), draft.Fields.end(),
                                    [name](const JournalField& f) { return f.Name == name; });
    return field == draft.Fields.end() ? nullptr : &field->Text;
}

struct Keeper {
    Cell Place;

    JournalDraft operator()(const StateRecord& state) const {
        FsmDocument alone;
        alone.State(Place.State) = state;
        return {JournalDraftKind::State, Place, {{kDocument, WriteDocument(alone)}}};
    }
    JournalDraft operator()(const EventRecord& event) const {
        FsmDocument alone;
        alone.Event(Place.Row) = event;
        return {JournalDraftKind::Event, Place, {{kDocument, WriteDocument(alone)}}};
    }
    JournalDraft operator()(const GeneralCode& general) const {
        FsmDocument alone;
        alone.General = general;
        return {JournalDraftKind::General, Place, {{kDocument, WriteDocument(alone)}}};
    }
    JournalDraft operator()(const ActionText& action) const {
        return {JournalDraftKind::Action, Place, {{kText, action.Code}}};
    }
    JournalDraft operator()(const TypedTarget& target) const {
        return {JournalDraftKind::Target, Place, {{kText, target.Text}}};
    }
    JournalDraft operator()(const BuilderText& builder) const {
        return {JournalDraftKind::Script, Place, {{kText, builder.Script}}};
    }
};

// What no file holds stays as the document has it.
void ApplyRecord(JournalDraftKind kind, Cell place, const FsmDocument& alone, FsmDocument& document) {
    if (kind == JournalDraftKind::State) {
        StateRecord& state = document.State(place.State);
        const Twips width = state.ColWidth;
        const std::int16_t tab = state.LastTab;
        state = alone.State(place.State);
        state.ColWidth = width;
        state.LastTab = tab;
    } else if (kind == JournalDraftKind::Event) {
        document.Event(place.Row) = alone.Event(place.Row);
    } else {
        std::string buildFile = std::move(document.General.BuildFile);
        document.General = alone.General;
        document.General.BuildFile = std::move(buildFile);
    }
}

void ApplyText(JournalDraftKind kind, Cell place, const std::string& text, FsmDocument& document) {
    if (kind == JournalDraftKind::Action)
        document.State(place.State).Actions[place.Row] = text;
    else if (kind == JournalDraftKind::Target)
        StoreTypedTarget(document, place, text);
}

} // namespace

JournalDraft JournalDraftOf(const Draft& draft) { return std::visit(Keeper{draft.Place}, draft.Content); }

void ApplyDraft(const JournalDraft& draft, FsmDocument& document) {
    if (const std::string* record = FieldOf(draft, kDocument)) {
        if (const ReadResult read = ReadDocument(*record); !read.Refused && !read.BrokeOff)
            ApplyRecord(draft.Kind, draft.Place, read.Document, document);
    } else if (const std::string* text = FieldOf(draft, kText)) {
        ApplyText(draft.Kind, draft.Place, *text, document);
    }
}

std::optional<std::string> ScriptOf(const JournalDraft& draft) {
    const std::string* text = draft.Kind == JournalDraftKind::Script ? FieldOf(draft, kText) : nullptr;
    return text != nullptr ? std::optional(*text) : std::nullopt;
}

} // namespace orvane
