// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Spacing.h"

#include <gtest/gtest.h>

namespace orvane::diagram {
namespace {

using Places = std::vector<std::int64_t>;

TEST(DiagramSpacing, WhoHasRoomGetsItsWish) {
    EXPECT_EQ(SpacedPlaces({{0, 1}, {100, 1}, {300, 1}}, {20, 20}), (Places{0, 100, 300}));
    EXPECT_EQ(SpacedPlaces({}, {}), Places());
}

TEST(DiagramSpacing, TwoThatWantOnePlaceStandOnBothSidesOfIt) {
    EXPECT_EQ(SpacedPlaces({{100, 1}, {100, 1}}, {20}), (Places{90, 110}));
}

TEST(DiagramSpacing, WhoWeighsMoreGivesWayLess) {
    EXPECT_EQ(SpacedPlaces({{100, 9}, {100, 1}}, {20}), (Places{98, 118}));
    EXPECT_EQ(SpacedPlaces({{100, 100'000}, {100, 1}}, {20}), (Places{100, 120}));
}

TEST(DiagramSpacing, ThoseThatWantToPassEachOtherKeepTheirOrder) {
    EXPECT_EQ(SpacedPlaces({{300, 1}, {0, 1}, {150, 1}}, {10, 10}), (Places{140, 150, 160}));
}

} // namespace
} // namespace orvane::diagram
