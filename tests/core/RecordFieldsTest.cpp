// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/RecordFields.h"

#include "core/FsmDocument.h"
#include "support/EveryFieldDocument.h"

#include <gtest/gtest.h>

#include <set>

namespace orvane {
namespace {

struct Sample {
    std::string First;
    bool Second = false;
    Twips Third;
};

constexpr auto kSampleFields =
    std::tuple(MakeField("first", &Sample::First, {.Tag = "A", .Place = 3, .OldTag = "OLD"}, 2),
               MakeField("second", &Sample::Second, {.Tag = "B", .Place = 1, .SecondPlace = 2}, 1),
               MakeField("third", &Sample::Third, {}));
constexpr auto kTooFew = std::tuple(MakeField("first", &Sample::First, {}));

TEST(RecordFields, AMemberWithoutALineIsNoticed) {
    static_assert(MembersInTable(kSampleFields) == MemberCount<Sample>());
    static_assert(MembersInTable(kTooFew) != MemberCount<Sample>());
}

template <const auto& kFields, FieldOrder kOrder>
std::string NamesInOrder() {
    std::string names;
    ForEachFieldInOrder<kFields, kOrder>([&](const auto& field) { names.append(field.Name) += " "; });
    return names;
}

TEST(RecordFields, AreWalkedByTheirPlaces) {
    EXPECT_EQ((NamesInOrder<kSampleFields, FieldOrder::File>()), "second second first ");
    EXPECT_EQ((NamesInOrder<kSampleFields, FieldOrder::Image>()), "second first ");
}

TEST(RecordFields, AreFoundByTheirTagsAndOldTagsButNotByNone) {
    std::string found;
    const auto note = [&found](const auto& field) { found = field.Name; };
    EXPECT_TRUE(VisitTagged(kSampleFields, "B", note));
    EXPECT_EQ(found, "second");
    EXPECT_TRUE(VisitTagged(kSampleFields, "OLD", note));
    EXPECT_EQ(found, "first");
    EXPECT_FALSE(VisitTagged(kSampleFields, "", note));
    EXPECT_FALSE(VisitTagged(kSampleFields, "C", note));
}

template <typename Fields>
void ExpectDifferentNames(const Fields& fields) {
    std::set<std::string_view> names;
    ForEachField(fields, [&](const auto& field) {
        EXPECT_FALSE(field.Name.empty());
        EXPECT_TRUE(names.insert(field.Name).second) << field.Name;
    });
}

TEST(RecordFields, HaveNamesThatDifferWithinARecord) {
    ExpectDifferentNames(kEventFields);
    ExpectDifferentNames(kStateFields);
    ExpectDifferentNames(kMachineFields);
    ExpectDifferentNames(kRowHeightFields);
}

template <typename Record>
struct Filled {
    const Record& Set;
    const Record Fresh = {};

    template <typename Value>
    void operator()(const Field<Record, Value>& field) const {
        EXPECT_NE(Set.*field.Member, Fresh.*field.Member) << field.Name;
    }
};

// Else the tests that write, read, pack and unpack that document would say nothing of the field.
TEST(RecordFields, AreAllSetInTheDocumentWithEveryField) {
    const FsmDocument document = test::EveryFieldDocument();
    ForEachField(kGeneralFields, Filled<GeneralCode>{document.General});
    ForEachField(kViewFields, Filled<ViewOptions>{document.View});
    ForEachField(kRowHeightFields, Filled<RowHeights>{document.View.RowVisible});
    ForEachField(kStateFields, Filled<StateRecord>{document.State(1)});
    ForEachField(kEventFields, Filled<EventRecord>{document.Event(6)});
}

} // namespace
} // namespace orvane
