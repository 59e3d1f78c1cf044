// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/NameMatch.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NameMatchTest : public testing::Test {
  protected:
    NameMatchTest() {
        Document.State(1).Name = "Start";
        Document.State(2).Name = "Reopen";
        Document.State(3).Name = "Opening";
        Document.State(12).Name = "Open";
        Document.Event(6).Name = "Button";
        Document.Event(7).Name = "Start";
    }

    FsmDocument Document;
};

TEST_F(NameMatchTest, APartOfANameFindsTheNamesThatBeginWithItFirst) {
    EXPECT_THAT(StatesMatching(Document, "ope"), ElementsAre(3, 12, 2));
    EXPECT_THAT(StatesMatching(Document, " OPEN "), ElementsAre(12, 3, 2));
}

TEST_F(NameMatchTest, ANumberFindsItsStateFirstWhetherItIsUsedOrNot) {
    EXPECT_THAT(StatesMatching(Document, "1"), ElementsAre(1, 12));
    EXPECT_THAT(StatesMatching(Document, "77"), ElementsAre(77));
    EXPECT_THAT(StatesMatching(Document, "12:o"), ElementsAre(12));
}

TEST_F(NameMatchTest, NoTextFindsAllThatAreUsed) {
    EXPECT_THAT(StatesMatching(Document, ""), ElementsAre(1, 2, 3, 12));
    EXPECT_THAT(StatesMatching(Document, "nowhere"), IsEmpty());
    EXPECT_THAT(StatesMatching(Document, "0"), IsEmpty());
    EXPECT_THAT(StatesMatching(Document, "101"), IsEmpty());
}

TEST_F(NameMatchTest, AStateIsCalledByItsWholeNameAlone) {
    EXPECT_EQ(StateCalled(Document, "opening"), StateNumber(3));
    EXPECT_EQ(StateCalled(Document, "openin"), std::nullopt);
    EXPECT_EQ(StateCalled(Document, ""), std::nullopt);
    Document.State(4).Name = "OPEN";
    EXPECT_EQ(StateCalled(Document, "Open"), std::nullopt); // which of the two?
}

TEST_F(NameMatchTest, ATargetIsMeantByNumberLabelOrName) {
    EXPECT_EQ(TargetMeant(Document, " "), StateNumber(kNoState));
    EXPECT_EQ(TargetMeant(Document, "0"), StateNumber(kNoState));
    EXPECT_EQ(TargetMeant(Document, "100"), StateNumber(100));
    EXPECT_EQ(TargetMeant(Document, "12:Open"), StateNumber(12));
    EXPECT_EQ(TargetMeant(Document, "opening"), StateNumber(3));
    EXPECT_EQ(TargetMeant(Document, "101"), std::nullopt);
    EXPECT_EQ(TargetMeant(Document, "openin"), std::nullopt);
}

TEST_F(NameMatchTest, APlaceIsAStateOrAnEvent) {
    EXPECT_EQ(PlaceMatching(Document, "start"), (Cell{kHeadRow, 1}));
    EXPECT_EQ(PlaceMatching(Document, "but"), (Cell{6, kNoState}));
    EXPECT_EQ(PlaceMatching(Document, "100"), (Cell{kHeadRow, 100}));
    EXPECT_EQ(PlaceMatching(Document, "nowhere"), std::nullopt);
    EXPECT_EQ(PlaceMatching(Document, " "), std::nullopt);
}

} // namespace
} // namespace orvane
