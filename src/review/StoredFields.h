// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of records as versions of a document are compared by them: those that its file holds.
#pragma once

#include "core/RecordFields.h"
#include "core/TableNumber.h"

#include <cstdint>
#include <string>
#include <utility>
#include <variant>

namespace orvane::review {

// What stands in a field or is the target of a cell.
using FieldValue = std::variant<std::string, bool, std::int32_t, Twips, StateNumber>;

// Calls visit(field) once for every field that is written to the file, in the order of the table.
template <const auto& kFields, typename Visit>
void ForEachStoredField(Visit visit) {
    const auto visitIfStored = [&]<std::size_t kIndex>() {
        constexpr auto entry = std::get<kIndex>(kFields);
        if constexpr (kIsField<std::remove_cv_t<decltype(entry)>>) {
            if constexpr (entry.File.Place != 0)
                visit(entry);
        }
    };
    [&]<std::size_t... kIndex>(std::index_sequence<kIndex...>) {
        (visitIfStored.template operator()<kIndex>(), ...);
    }
    (std::make_index_sequence<std::tuple_size_v<std::remove_cvref_t<decltype(kFields)>>>());
}

// Calls visit(field) for the stored field that has the tag.
template <const auto& kFields, typename Visit>
void VisitStoredField(std::string_view tag, Visit visit) {
    ForEachStoredField<kFields>([&](const auto& field) {
        if (field.File.Tag == tag)
            visit(field);
    });
}

// How the document is looked at, not what is designed: widths, heights, rows that are shown.
template <typename Record, typename Value>
constexpr bool IsOfTheView(const Field<Record, Value>& field) {
    if constexpr (std::is_same_v<Value, Twips>)
        return true;
    else
        return field.File.Tag == tag::kShowTimeTarget || field.File.Tag == tag::kShowTimingMode ||
               field.File.Tag == tag::kShowElse;
}

} // namespace orvane::review
