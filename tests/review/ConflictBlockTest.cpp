// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ConflictBlock.h"

#include "review/LineMerge.h"
#include "support/EveryFieldDocument.h"

#include <gmock/gmock.h>

namespace orvane::test {
namespace {

using review::ConflictBlock;
using review::FindConflictBlocks;
using review::FoundBlock;
using review::MergedText;
using review::MergeLines;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(ConflictBlock, IsFoundAgainWithWhatItHolds) {
    const std::string block = ConflictBlock({"K\xC3\xBChl, name", "old\r\nlines", ""});
    EXPECT_EQ(block, ";<<<<<<< CONFLICT: K\xFChl, name\r\n;||||||| BASE\r\n;old\r\n;lines\r\n"
                     ";======= THEIRS\r\n;>>>>>>> CONFLICT");
    EXPECT_THAT(FindConflictBlocks("\tOn\r\n" + block + "\r\n\tOff"),
                ElementsAre(FoundBlock{"K\xFChl, name", "old\r\nlines", "", 2, true}));
}

TEST(ConflictBlock, OneThatWasCutShortIsStillAConflict) {
    const std::string block = ConflictBlock({"a", "b", "c"});
    for (std::size_t length = std::string_view(";<<<<<<< CONFLICT: ").size(); length < block.size();
         ++length) {
        const std::vector<FoundBlock> found = FindConflictBlocks(block.substr(0, length));
        ASSERT_EQ(found.size(), 1u) << length;
        EXPECT_FALSE(found.front().IsWhole) << length;
    }
    EXPECT_THAT(FindConflictBlocks(block + "\r\n" + block), testing::SizeIs(2));
    EXPECT_THAT(FindConflictBlocks(";<<<<<<< CONFLICT: a\r\n" + block), testing::SizeIs(2));
}

TEST(ConflictBlock, MarkersOfOtherToolsAreNone) {
    EXPECT_THAT(FindConflictBlocks("<<<<<<< HEAD\r\na\r\n=======\r\nb\r\n>>>>>>> other"), IsEmpty());
    EXPECT_THAT(FindConflictBlocks(" ;<<<<<<< CONFLICT: a"), IsEmpty());
}

TEST(FindConflicts, LooksIntoEveryTextOfADocument) {
    FsmDocument document = EveryFieldDocument();
    const std::string block = ConflictBlock({"a", "b", "c"});
    document.General.HeaderComment = block;
    document.Event(6).Code = block;
    document.State(100).TimingVar = block;
    document.State(1).ExitCode = block;
    document.State(1).Actions[54] = block;
    std::vector<std::string> places;
    for (const review::PlacedBlock& placed : review::FindConflicts(document))
        places.push_back(placed.Where);
    EXPECT_THAT(places, ElementsAre("machine, header", "event 6:start, code", "state 1:Running, exit action",
                                    "1:Running, stop, action",
                                    "state 100:Motor On \xE2\x82\xAC, variable time limit"));
}

std::string Merged(std::string_view base, std::string_view ours, std::string_view theirs) {
    const MergedText merged = MergeLines({base, ours, theirs}, "t");
    return merged.Conflicts == 0 ? merged.Text : "conflict";
}

TEST(MergeLines, PutsChangesOfDifferentLinesTogether) {
    EXPECT_EQ(Merged("1\r\n2\r\n3", "x\r\n2\r\n3", "1\r\n2\r\ny"), "x\r\n2\r\ny");
    EXPECT_EQ(Merged("1\r\n2\r\n3", "2\r\n3", "1\r\n2\r\n3\r\n4"), "2\r\n3\r\n4");
    EXPECT_EQ(Merged("1\r\n2\r\n3\r\n4", "1\r\nx\r\n2\r\n3\r\n4", "1\r\n2\r\n3"), "1\r\nx\r\n2\r\n3");
}

TEST(MergeLines, TheSameChangeOnBothSidesIsMadeOnce) {
    EXPECT_EQ(Merged("1\r\n2", "1\r\nx", "1\r\nx"), "1\r\nx");
    EXPECT_EQ(Merged("", "x", "x"), "x");
    EXPECT_EQ(Merged("1\r\n2\r\n3", "x\r\n2\r\n3", "x\r\n2\r\ny"), "x\r\n2\r\ny");
}

TEST(MergeLines, ChangesThatTouchAreAConflict) {
    EXPECT_EQ(Merged("1\r\n2", "x\r\n2", "1\r\ny"), "conflict");
    EXPECT_EQ(Merged("1", "1\r\nx", "1\r\ny"), "conflict");
    EXPECT_EQ(Merged("", "x", "y"), "conflict");
    const MergedText merged = MergeLines({"1\r\n2\r\n3", "1\r\nx\r\n3", "1\r\ny\r\nz\r\n3"}, "t");
    EXPECT_EQ(merged.Text, "1\r\nx\r\n" + ConflictBlock({"t", "2", "y\r\nz"}) + "\r\n3");
    EXPECT_EQ(merged.Conflicts, 1);
    EXPECT_EQ(MergeLines({"1", "x", "y"}, "t", review::Blocks::Without).Text, "x");
}

} // namespace
} // namespace orvane::test
