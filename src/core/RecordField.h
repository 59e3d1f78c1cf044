// SPDX-License-Identifier: GPL-3.0-or-later
// A record's fields as a table that whoever walks a record shares: reader, writer, image, "is empty". The
// tables stand in core/RecordFields.h. They are walked when the program is compiled, so that a walk costs
// what the same lines written by hand would.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace orvane {

// How a field stands in the document's file.
struct FieldInFile {
    std::string_view Tag;         // empty: it is not in the file
    int Place = 0;                // of the fields written, from 1; 0: read, never written
    int SecondPlace = 0;          // where the format holds it once more; readers keep the last one
    bool EvenEmpty = false;       // written also when there is nothing in it
    bool AsDigit = false;         // a mark as 1 or 0 instead of True or False
    std::string_view OldTag = {}; // that older files have; read, never written
};

// A field that is read and written by itself.
template <typename Record, typename Value>
struct Field {
    std::string_view Name; // as people call it
    Value Record::*Member;
    FieldInFile File;
    int ImagePlace = 0; // of the fields in an image, from 1; 0: not designed, only how it is looked at

    constexpr bool HasTag(std::string_view tag) const {
        return !tag.empty() && (tag == File.Tag || tag == File.OldTag);
    }
};

// Two fields that hold the cells of a state together. In file and image they are a list.
template <typename Record, typename Targets, typename Actions>
struct CellFields {
    std::string_view TargetName;
    std::string_view ActionName;
    Targets Record::*TargetMember;
    Actions Record::*ActionMember;
};

// A field with fields of its own, which are a block of the file.
template <typename Record, typename Block>
struct BlockField {
    std::string_view Name;
    Block Record::*Member;
};

template <typename Record, typename Value>
constexpr Field<Record, Value> MakeField(std::string_view name, Value Record::*member, FieldInFile file,
                                         int imagePlace = 0) {
    return {name, member, file, imagePlace};
}

template <typename Record, typename Targets, typename Actions>
constexpr CellFields<Record, Targets, Actions>
MakeCellFields(std::string_view targetName, Targets Record::*targets, std::string_view actionName,
               Actions Record::*actions) {
    return {targetName, actionName, targets, actions};
}

template <typename Record, typename Block>
constexpr BlockField<Record, Block> MakeBlockField(std::string_view name, Block Record::*member) {
    return {name, member};
}

// Calls visit(field) for every entry of the table, in its order.
template <typename Fields, typename Visit>
constexpr void ForEachEntry(const Fields& fields, Visit visit) {
    std::apply([&visit](const auto&... field) { (visit(field), ...); }, fields);
}

template <typename Entry>
inline constexpr bool kIsField = false;
template <typename Record, typename Value>
inline constexpr bool kIsField<Field<Record, Value>> = true;

// The same for entries that are a field by itself.
template <typename Fields, typename Visit>
constexpr void ForEachField(const Fields& fields, Visit visit) {
    ForEachEntry(fields, [&visit]<typename Entry>(const Entry& entry) {
        if constexpr (kIsField<Entry>)
            visit(entry);
    });
}

// Calls visit(field) for the field that has the tag. Returns whether there is one.
template <typename Fields, typename Visit>
bool VisitTagged(const Fields& fields, std::string_view tag, Visit visit) {
    const auto visitIfTagged = [&]<typename Entry>(const Entry& entry) {
        if constexpr (kIsField<Entry>) {
            if (entry.HasTag(tag)) {
                visit(entry);
                return true;
            }
        }
        return false;
    };
    return std::apply([&](const auto&... entry) { return (visitIfTagged(entry) || ...); }, fields);
}

enum class FieldOrder { File, Image };

// The places that a field has in an order; 0 is none.
template <typename Record, typename Value>
constexpr std::array<int, 2> PlacesOf(const Field<Record, Value>& field, FieldOrder order) {
    if (order == FieldOrder::Image)
        return {field.ImagePlace, 0};
    return {field.File.Place, field.File.SecondPlace};
}

template <typename Fields>
constexpr std::size_t PlaceCount(const Fields& fields, FieldOrder order) {
    std::size_t count = 0;
    ForEachField(fields, [&](const auto& field) {
        for (const int place : PlacesOf(field, order))
            count += place != 0 ? 1 : 0;
    });
    return count;
}

// By place: the index of the entry that has it. A place that no field has, or one beyond the last, is not a
// constant, so that a table with a gap or a place given twice does not compile.
template <std::size_t kCount, typename Fields>
constexpr std::array<std::size_t, kCount> IndexesByPlace(const Fields& fields, FieldOrder order) {
    std::array<std::size_t, kCount> indexes{};
    indexes.fill(std::tuple_size_v<Fields>);
    std::size_t index = 0;
    ForEachEntry(fields, [&]<typename Entry>(const Entry& entry) {
        if constexpr (kIsField<Entry>) {
            for (const int place : PlacesOf(entry, order))
                if (place != 0)
                    indexes.at(std::size_t(place) - 1) = index;
        }
        ++index;
    });
    return indexes;
}

// Calls visit(field) for the fields that have a place in the order, in that order.
template <const auto& kFields, FieldOrder kOrder, typename Visit>
constexpr void ForEachFieldInOrder(Visit visit) {
    constexpr std::size_t count = PlaceCount(kFields, kOrder);
    constexpr auto indexes = IndexesByPlace<count>(kFields, kOrder);
    [&]<std::size_t... kPlace>(std::index_sequence<kPlace...>) {
        (visit(std::get<indexes[kPlace]>(kFields)), ...);
    }
    (std::make_index_sequence<count>());
}

// How many members an aggregate has, to compare with its table.
struct AnyValue {
    template <typename Value>
    operator Value() const;
};

template <typename Record, typename... Values>
constexpr std::size_t MemberCount() {
    if constexpr (requires { Record{Values()..., AnyValue()}; })
        return MemberCount<Record, Values..., AnyValue>();
    else
        return sizeof...(Values);
}

template <typename Fields>
constexpr std::size_t MembersInTable(const Fields& fields) {
    std::size_t count = 0;
    ForEachEntry(fields, [&count]<typename Entry>(const Entry&) {
        count += requires { &Entry::ActionMember; }
        ? 2 : 1;
    });
    return count;
}

} // namespace orvane
