// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/LineDiff.h"
#include "support/Versions.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace orvane::test {
namespace {

using review::DiffLines;
using review::LineChange;
using review::Lines;
using review::LinesOf;
using review::UnifiedDiff;
using testing::ElementsAre;

Lines RandomLines(Dice& dice, int most) {
    static constexpr std::string_view kLetters = "abcd";
    Lines lines(std::size_t(Roll(dice, most)));
    for (std::string_view& line : lines)
        line = kLetters.substr(std::size_t(Roll(dice, int(kLetters.size()))), 1);
    return lines;
}

Lines Changed(const Lines& oldLines, const Lines& newLines, const std::vector<LineChange>& changes) {
    Lines result;
    std::size_t at = 0;
    const auto keepUpTo = [&](std::size_t end) {
        for (; at < end; ++at)
            result.push_back(oldLines[at]);
    };
    for (const LineChange& change : changes) {
        keepUpTo(change.OldFirst);
        for (std::size_t i = 0; i < change.NewCount; ++i)
            result.push_back(newLines[change.NewFirst + i]);
        at += change.OldCount;
    }
    keepUpTo(oldLines.size());
    return result;
}

std::size_t LongestCommon(const Lines& one, const Lines& other) {
    std::vector<std::vector<std::size_t>> best(one.size() + 1, std::vector<std::size_t>(other.size() + 1));
    for (std::size_t i = 1; i <= one.size(); ++i) {
        for (std::size_t j = 1; j <= other.size(); ++j)
            best[i][j] = one[i - 1] == other[j - 1] ? best[i - 1][j - 1] + 1
                                                    : std::max(best[i - 1][j], best[i][j - 1]);
    }
    return best[one.size()][other.size()];
}

TEST(DiffLines, LeadsFromTheOldLinesToTheNewOnesByTheFewestLines) {
    Dice dice(6);
    for (int round = 0; round < 3000; ++round) {
        const Lines oldLines = RandomLines(dice, 14);
        const Lines newLines = RandomLines(dice, 14);
        const std::vector<LineChange> changes = DiffLines(oldLines, newLines);
        ASSERT_EQ(Changed(oldLines, newLines, changes), newLines);
        std::size_t lines = 0;
        for (const LineChange& change : changes)
            lines += change.OldCount + change.NewCount;
        ASSERT_EQ(lines, oldLines.size() + newLines.size() - 2 * LongestCommon(oldLines, newLines));
    }
}

TEST(DiffLines, TextsWithoutACommonLineAreOneChangeHoweverLong) {
    std::string oldText;
    std::string newText;
    for (int line = 0; line < 5000; ++line) {
        oldText += "a" + std::to_string(line) + "\r\n";
        newText += "b" + std::to_string(line) + "\r\n";
    }
    EXPECT_THAT(DiffLines(LinesOf(oldText), LinesOf(newText)), ElementsAre(LineChange{0, 5000, 0, 5000}));
}

TEST(Lines, OfATextGiveItBack) {
    for (const std::string text : {"", "a", "a\r\n", "\r\n", "a\r\n\r\nb"})
        EXPECT_EQ(review::TextOf(LinesOf(text)), text);
    EXPECT_TRUE(LinesOf("").empty());
    EXPECT_THAT(LinesOf("a\r\n"), ElementsAre("a", ""));
}

TEST(UnifiedDiff, ShowsTwoLinesAroundEachChange) {
    EXPECT_THAT(UnifiedDiff("1\r\n2\r\n3\r\n4\r\n5\r\n6", "1\r\n2\r\n3\r\nx\r\n5\r\n6"),
                ElementsAre("@@ -2,5 +2,5 @@", " 2", " 3", "-4", "+x", " 5", " 6"));
    EXPECT_THAT(UnifiedDiff("", "a"), ElementsAre("@@ -0,0 +1 @@", "+a"));
    EXPECT_THAT(UnifiedDiff("a", ""), ElementsAre("@@ -1 +0,0 @@", "-a"));
    EXPECT_THAT(UnifiedDiff("a", "a"), ElementsAre());
}

TEST(UnifiedDiff, ChangesFarFromEachOtherAreHunksOfTheirOwn) {
    EXPECT_THAT(
        UnifiedDiff("a\r\n1\r\n2\r\n3\r\n4\r\n5\r\nb", "x\r\n1\r\n2\r\n3\r\n4\r\n5\r\ny"),
        ElementsAre("@@ -1,3 +1,3 @@", "-a", "+x", " 1", " 2", "@@ -5,3 +5,3 @@", " 4", " 5", "-b", "+y"));
    EXPECT_THAT(UnifiedDiff("a\r\n1\r\n2\r\n3\r\n4\r\nb", "x\r\n1\r\n2\r\n3\r\n4\r\ny"),
                ElementsAre("@@ -1,6 +1,6 @@", "-a", "+x", " 1", " 2", " 3", " 4", "-b", "+y"));
}

} // namespace
} // namespace orvane::test
