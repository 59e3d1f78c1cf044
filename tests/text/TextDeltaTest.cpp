// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/TextDelta.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

std::string Applied(const TextDelta& delta, std::string text) {
    Apply(delta, text);
    return text;
}

TEST(TextDelta, KeepsWhatBothTextsBeginAndEndWith) {
    EXPECT_EQ(Difference("state one", "state number one"), (TextDelta{6, 3, "number "}));
    EXPECT_EQ(Difference("state number one", "state one"), (TextDelta{6, 3, ""}));
    EXPECT_EQ(Difference("one", "two"), (TextDelta{0, 0, "two"}));
    EXPECT_EQ(Difference("", "new"), (TextDelta{0, 0, "new"}));
    EXPECT_EQ(Difference("old", ""), (TextDelta{0, 0, ""}));
}

TEST(TextDelta, OfEqualTextsIsEmpty) {
    EXPECT_EQ(Difference("same", "same"), (TextDelta{4, 0, ""}));
    EXPECT_EQ(Difference("", ""), (TextDelta{0, 0, ""}));
}

TEST(TextDelta, TheTwoEndsDoNotOverlap) {
    EXPECT_EQ(Difference("aa", "aaa"), (TextDelta{2, 0, "a"}));
    EXPECT_EQ(Difference("aaa", "aa"), (TextDelta{2, 0, ""}));
}

// Around the sizes of the blocks in which texts are compared.
TEST(TextDelta, OneByteIsFoundWhereverItStands) {
    for (const std::size_t size : {1, 2, 15, 16, 17, 255, 257, 4095, 4096, 4097, 8192, 9000}) {
        const std::string before(size, 'x');
        for (std::size_t place = 0; place < size; place += size < 300 ? 1 : 61) {
            std::string after = before;
            after[place] = 'y';
            EXPECT_EQ(Difference(before, after), (TextDelta{place, size - place - 1, "y"})) << size;
            EXPECT_EQ(Applied(Difference(before, after), before), after);
        }
    }
}

TEST(TextDelta, FitsATextThatHasBothEnds) {
    const TextDelta delta{3, 2, "middle"};
    EXPECT_TRUE(delta.Fits(5));
    EXPECT_TRUE(delta.Fits(50));
    EXPECT_FALSE(delta.Fits(4));
    EXPECT_FALSE((TextDelta{1, std::string::npos, ""}.Fits(5)));
    EXPECT_EQ(delta.NewSize(), 11u);
}

} // namespace
} // namespace orvane
