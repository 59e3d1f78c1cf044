// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/RowArray.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(RowArray, EveryCellRowHasItsOwnElement) {
    RowArray<RowNumber> rows;
    for (const RowNumber row : CellRows())
        EXPECT_EQ(rows[row], 0);
    for (const RowNumber row : CellRows())
        rows[row] = row;
    for (const RowNumber row : CellRows())
        EXPECT_EQ(rows[row], row);
}

TEST(RowArray, RowsOutsideAreRefusedAndChangeNothing) {
    RowArray<int> rows;
    const RowArray<int>& constant = rows;
    for (const int row : {-1, 0, 3, 55, 1000}) {
        EXPECT_THROW(rows[row] = 1, BoundsError);
        EXPECT_THROW(constant[row], BoundsError);
    }
    EXPECT_EQ(rows, RowArray<int>());
}

TEST(TableGeometry, RangesHoldBothEnds) {
    int count = 0;
    for ([[maybe_unused]] const RowNumber row : EventRows())
        ++count;
    EXPECT_EQ(count, 49);
    EXPECT_TRUE(CellRows().Contains(4));
    EXPECT_TRUE(CellRows().Contains(54));
    EXPECT_FALSE(CellRows().Contains(3));
    EXPECT_FALSE(CellRows().Contains(55));
    EXPECT_TRUE(TargetNumbers().Contains(0));
    EXPECT_FALSE(StateNumbers().Contains(0));
}

TEST(TableGeometry, ANumberIsOneOfARangeOrNoneHoweverLargeItIs) {
    EXPECT_EQ(NumberIn(StateNumbers(), 100), StateNumber(100));
    EXPECT_EQ(NumberIn(StateNumbers(), 0), std::nullopt);
    EXPECT_EQ(NumberIn(StateNumbers(), 101), std::nullopt);
    EXPECT_EQ(NumberIn(StateNumbers(), 4294967297), std::nullopt); // not taken as 1
    EXPECT_EQ(NumberIn(CellRows(), -4294967292), std::nullopt);    // nor this as 4
}

} // namespace
} // namespace orvane
