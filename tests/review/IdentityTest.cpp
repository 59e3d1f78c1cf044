// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/Identity.h"

#include "support/SmallTable.h"

#include <gmock/gmock.h>

namespace orvane::test {
namespace {

using review::ChangeKind;
using review::ComparedVersions;
using review::Identity;
using review::Wishes;
using testing::ElementsAre;

SmallTable Three(const std::string& second) {
    SmallTable table;
    table.Name(1, "Idle", ";a").Name(2, second, ";b").Name(3, "Stop", ";c").Cell(1, 6, 2).Cell(2, 7, 3);
    return table;
}

// Of the first change that has one.
Identity FirstIdentity(const ComparedVersions& versions) {
    for (const review::Change& change : versions.List().Changes) {
        if (const std::optional<Identity> identity = IdentityOf(versions, change))
            return *identity;
    }
    ADD_FAILURE() << "no change is about a state or event";
    return {};
}

std::vector<std::string> Told(const ComparedVersions& versions) {
    std::vector<std::string> told;
    for (const review::ToldChange& change : versions.Told())
        told.push_back(change.Text);
    return told;
}

TEST(Identity, AGuessCanBeAnyOfTheOtherSideOrNone) {
    const ComparedVersions versions(Three("Run").Document(), Three("Work").Document());
    const Identity identity = FirstIdentity(versions);
    EXPECT_EQ(identity.What, "state 2:Run");
    EXPECT_TRUE(identity.IsGuess);
    EXPECT_THAT(identity.Others, ElementsAre("none", "1:Idle", "2:Work", "3:Stop"));
    EXPECT_EQ(identity.Present, 2u);
}

TEST(Identity, WhatIsChosenIsFollowedAlsoAgainstANameAndBack) {
    const ComparedVersions versions(Three("Run").Document(), Three("Work").Document());
    const Identity identity = FirstIdentity(versions);
    const ComparedVersions none(versions.Old(), versions.New(), identity.AsWished[0]);
    EXPECT_THAT(Told(none), testing::IsSupersetOf({"state 2:Run removed", "state 2:Work added"}));
    const ComparedVersions stop(versions.Old(), versions.New(), identity.AsWished[3]);
    EXPECT_EQ(stop.List().Same.States.NewOf(2), StateNumber(3));
    const Wishes both = Added(identity.AsWished[3], identity.AsWished[2]);
    const ComparedVersions back(versions.Old(), versions.New(), both);
    EXPECT_EQ(back.List().Same.States.NewOf(2), StateNumber(2)) << "the last word counts";
}

TEST(Identity, WhatCameCanBeSaidToHaveBeenThere) {
    SmallTable oldOne = Three("Run");
    SmallTable newOne = Three("Run");
    newOne.Name(4, "Pause");
    const ComparedVersions versions(oldOne.Document(), newOne.Document());
    const Identity identity = FirstIdentity(versions);
    EXPECT_EQ(identity.What, "state 4:Pause");
    EXPECT_FALSE(identity.IsOfOld);
    EXPECT_EQ(identity.Present, 0u);
    const ComparedVersions wished(versions.Old(), versions.New(), identity.AsWished[2]);
    EXPECT_EQ(wished.List().Same.States.OldOf(4), StateNumber(2));
}

TEST(Identity, InACellItIsTheGuessThatCanBeWrong) {
    SmallTable newOne = Three("Run");
    newOne.Document().Event(6).Name = "Begin";
    newOne.Document().Event(6).Code = ";other";
    newOne.Cell(1, 6, 3).Cell(3, 6, 1);
    SmallTable oldOne = Three("Run");
    oldOne.Cell(3, 6, 1);
    const ComparedVersions versions(oldOne.Document(), newOne.Document());
    for (const review::Change& change : versions.List().Changes) {
        if (change.Kind == ChangeKind::Target && versions.List().Same.Rows.IsGuess(change.Old.Row)) {
            EXPECT_EQ(IdentityOf(versions, change)->What, "event 6:E6");
        }
    }
}

TEST(Identity, TheMachineIsNobodyElse) {
    SmallTable newOne = Three("Run");
    newOne.Document().General.InitSeg = ";init";
    const ComparedVersions versions(Three("Run").Document(), newOne.Document());
    ASSERT_EQ(versions.List().Changes.size(), 1u);
    EXPECT_FALSE(IdentityOf(versions, versions.List().Changes[0]));
}

TEST(Identity, WishesFollowTheirStatesThroughAnEdit) {
    Wishes wishes;
    wishes.States = {
        {StateNumber(2), StateNumber(7)}, {StateNumber(3), std::nullopt}, {std::nullopt, StateNumber(9)}};
    review::Matching edited;
    edited.States.Join(2, 4);
    const Wishes carried = CarriedOn(wishes, edited);
    ASSERT_EQ(carried.States.size(), 2u) << "state 3 is gone";
    EXPECT_EQ(carried.States[0].Old, StateNumber(4));
    EXPECT_EQ(carried.States[0].New, StateNumber(7));
    EXPECT_EQ(carried.States[1].New, StateNumber(9));
}

} // namespace
} // namespace orvane::test
