// SPDX-License-Identifier: GPL-3.0-or-later
// The way back from what a change holds into a record.
#pragma once

#include "core/FsmDocument.h"
#include "review/Change.h"

namespace orvane::review {

// Gives the field that the change is of its new value; nothing when the record has no such field.
template <const auto& kFields, typename Record>
void SetField(Record& record, const Change& change) {
    VisitStoredField<kFields>(change.Tag, [&](const auto& field) {
        using Value = std::remove_cvref_t<decltype(record.*field.Member)>;
        record.*field.Member = std::get<Value>(change.After);
    });
}

// Gives all stored fields their values, which are in the order of the table.
template <const auto& kFields, typename Record>
void SetFields(Record& record, const std::vector<FieldValue>& values) {
    auto value = values.begin();
    ForEachStoredField<kFields>([&](const auto& field) {
        using Value = std::remove_cvref_t<decltype(record.*field.Member)>;
        record.*field.Member = std::get<Value>(*value++);
    });
}

inline void SetMachineField(FsmDocument& document, const Change& change) {
    SetField<kGeneralFields>(document.General, change);
    SetField<kViewFields>(document.View, change);
    SetField<kRowHeightFields>(document.View.RowVisible, change);
}

} // namespace orvane::review
