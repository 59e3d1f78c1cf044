// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellColour.h"

#include "core/TableGeometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace orvane {
namespace {

TEST(CellColour, TheRowsOfAStateColumnHaveTheirColours) {
    for (const StateNumber state : StateNumbers()) {
        EXPECT_EQ(CellColour({0, state}), (Colour{204, 255, 255}));
        EXPECT_EQ(CellColour({1, state}), (Colour{204, 255, 204}));
        EXPECT_EQ(CellColour({2, state}), (Colour{255, 204, 153}));
        EXPECT_EQ(CellColour({3, state}), (Colour{255, 255, 153}));
        for (const RowNumber row : CellRows())
            EXPECT_EQ(CellColour({row, state}), (Colour{255, 255, 255})) << row;
    }
}

TEST(CellColour, TheRowHeadsHaveColoursOfTheirOwn) {
    EXPECT_EQ(CellColour({0, 0}), (Colour{255, 255, 255}));
    EXPECT_EQ(CellColour({1, 0}), (Colour{255, 221, 178}));
    EXPECT_EQ(CellColour({2, 0}), (Colour{255, 204, 153}));
    EXPECT_EQ(CellColour({3, 0}), (Colour{255, 255, 153}));
    EXPECT_EQ(CellColour({4, 0}), (Colour{255, 255, 153}));
    EXPECT_EQ(CellColour({5, 0}), (Colour{255, 238, 204}));
    for (const RowNumber row : EventRows())
        EXPECT_EQ(CellColour({row, 0}), (Colour{255, 153, 204})) << row;
}

TEST(CellColour, OnADarkDesktopEachIsDarkAndAnother) {
    std::vector<Colour> dark;
    for (const Colour light :
         {kPlainCellColour, kStateHeadColour, kTimeoutColour, kElseColour, kEventColour, CellColour({1, 0}),
          CellColour({1, 1}), CellColour({2, 1}), kNextTakenColour, kCurrentStateColour, kNextStateColour}) {
        const Colour colour = OnDark(light);
        EXPECT_EQ(std::find(dark.begin(), dark.end(), colour), dark.end());
        dark.push_back(colour);
        EXPECT_EQ(TakesBlackText(colour), light == kNextStateColour); // a bright yellow here too
        EXPECT_TRUE(TakesBlackText(light) || light == kCurrentStateColour);
    }
    EXPECT_EQ(OnDark(kPlainCellColour), (Colour{30, 30, 30}));
    EXPECT_EQ(OnDark(kEventColour), (Colour{101, 30, 65}));
}

} // namespace
} // namespace orvane
