// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/UnionTable.h"

#include "review/ComparedVersions.h"
#include "support/SmallTable.h"

#include <gtest/gtest.h>

namespace orvane::test {
namespace {

using review::ComparedVersions;
using review::UnionTable;

// The cells as text, a line a row: both numbers and the name, then the sign and the text of each cell.
std::string Shown(const ComparedVersions& versions) {
    const UnionTable& table = versions.Table();
    std::string shown;
    for (int column = 0; column < table.ColumnCount(); ++column)
        shown += "|" + table.ColumnNumbers(column) + ":" + table.ColumnName(column);
    for (int row = 0; row < table.RowCount(); ++row) {
        shown += "\n" + table.RowNumbers(row) + ":" + table.RowName(row);
        for (int column = 0; column < table.ColumnCount(); ++column)
            shown += std::string("|") + table.SignAt({row, column}) + table.TextAt({row, column});
    }
    return shown;
}

SmallTable IdleAndStop() {
    SmallTable table;
    table.Name(1, "Idle").Name(2, "Stop").Cell(1, 6, 2).Cell(2, 7, 1, ";act");
    return table;
}

TEST(UnionTable, WhatCameAndWentStandsBesideWhatStayed) {
    SmallTable newOne;
    newOne.Name(1, "Idle").Name(2, "Run").Name(3, "Stop").Cell(1, 6, 2).Cell(2, 8, 3).Cell(3, 7, 1, ";act");
    const ComparedVersions versions(IdleAndStop().Document(), newOne.Document());
    EXPECT_EQ(Shown(versions), "|:Event|1:Idle|+ 2:Run|2 → 3:Stop\n"
                               ":State| | |+added| \n"
                               ":Timeout| | | | \n"
                               ":ELSE| | | | \n"
                               "6:E6| |~2:Stop → 2:Run| | \n"
                               "7:E7| | | | 1:Idle*\n"
                               "8:E8| | |+3:Stop| \n"
                               "9:E9| | | | ");
    const ComparedVersions back(newOne.Document(), IdleAndStop().Document());
    EXPECT_EQ(Shown(back), "|:Event|1:Idle|- 2:Run|3 → 2:Stop\n"
                           ":State| | |-removed| \n"
                           ":Timeout| | | | \n"
                           ":ELSE| | | | \n"
                           "6:E6| |~2:Run → 2:Stop| | \n"
                           "7:E7| | | | 1:Idle*\n"
                           "8:E8| | |-3:Stop| \n"
                           "9:E9| | | | ");
}

TEST(UnionTable, FieldsAreNamedBesideTheTransitions) {
    SmallTable newOne = IdleAndStop();
    newOne.Document().General.InitSeg = ";init";
    newOne.Document().Event(6).Code = ";other";
    newOne.Document().State(1).EntryCode = ";entry";
    newOne.Document().State(1).Tooltip = "comment";
    newOne.Document().State(40).ColWidth = 100;
    newOne.Cell(2, 7, 1, ";another").Cell(1, 6, 0);
    const ComparedVersions versions(IdleAndStop().Document(), newOne.Document());
    EXPECT_EQ(versions.Table().TextAt({0, 0}), "INITSEG, width of column 40");
    EXPECT_EQ(versions.Table().TextAt({0, 1}), "comment, entry action");
    EXPECT_EQ(versions.Table().TextAt({3, 0}), "code");
    EXPECT_EQ(versions.Table().TextAt({4, 2}), "1:Idle*, action");
    EXPECT_EQ(versions.Table().TextAt({3, 1}), "2:Stop → none");
}

TEST(UnionTable, EveryChangeIsFoundAtItsPlace) {
    SmallTable newOne;
    newOne.Name(1, "Run").Name(2, "Idle").Cell(2, 6, 1);
    const ComparedVersions versions(IdleAndStop().Document(), newOne.Document());
    ASSERT_FALSE(versions.Told().empty());
    for (std::size_t change = 0; change < versions.Told().size(); ++change) {
        const auto& at =
            versions.Table().ChangesAt(versions.Table().PlaceOf(versions.List().Changes[change]));
        EXPECT_NE(std::find(at.begin(), at.end(), change), at.end()) << versions.Told()[change].Text;
    }
}

TEST(UnionTable, AGuessAndAMoveShowInTheHead) {
    SmallTable oldOne;
    oldOne.Name(1, "Idle", ";a").Name(2, "Fill", ";b").Name(3, "Run", ";c").Cell(1, 6, 2).Cell(2, 6, 3);
    SmallTable renamed;
    renamed.Name(1, "Idle", ";a").Name(2, "Filling", ";b").Name(3, "Run", ";c").Cell(1, 6, 2).Cell(2, 6, 3);
    EXPECT_EQ(ComparedVersions(oldOne.Document(), renamed.Document()).Table().ColumnNumbers(2), "2 ?");
    SmallTable moved;
    moved.Name(1, "Run", ";c").Name(2, "Idle", ";a").Name(3, "Fill", ";b").Cell(2, 6, 3).Cell(3, 6, 1);
    EXPECT_EQ(ComparedVersions(oldOne.Document(), moved.Document()).Table().ColumnNumbers(1), "> 3 → 1");
}

TEST(ComparedVersions, WhatCameIsShownOnItsSideAlone) {
    SmallTable newOne = IdleAndStop();
    newOne.Name(3, "Run", ";entry").Cell(3, 6, 1);
    const ComparedVersions versions(IdleAndStop().Document(), newOne.Document());
    ASSERT_EQ(versions.Told().size(), 1u);
    EXPECT_EQ(review::SidesOf(versions, 0).Old, "");
    EXPECT_EQ(review::SidesOf(versions, 0).New, "entry action\r\n  ;entry\r\nE6: -> 1:Idle");
}

TEST(ComparedVersions, TheViewIsCountedAlsoWhenItIsLeftOut) {
    SmallTable newOne = IdleAndStop();
    newOne.Document().State(1).ColWidth = 100;
    const ComparedVersions versions(IdleAndStop().Document(), newOne.Document(), {},
                                    ComparedVersions::View::LeftOut);
    EXPECT_TRUE(versions.Told().empty());
    EXPECT_EQ(versions.ViewChanges(), 1u);
}

} // namespace
} // namespace orvane::test
