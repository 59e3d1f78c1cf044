// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/ForwardSearch.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr std::string_view kPair = "ab";

TEST(ForwardSearch, FindsTheFirstPlaceAtOrBehindTheStart) {
    ForwardSearch<kPair> search("ab.ab.ab");
    EXPECT_EQ(search.Next(0), 0u);
    EXPECT_EQ(search.Next(0), 0u);
    EXPECT_EQ(search.Next(1), 3u);
    EXPECT_EQ(search.Next(3), 3u);
    EXPECT_EQ(search.Next(4), 6u);
    EXPECT_EQ(search.Next(7), std::string_view::npos);
    EXPECT_EQ(search.Next(8), std::string_view::npos);
}

TEST(ForwardSearch, TheFirstSearchMayBeginAnywhere) {
    EXPECT_EQ(ForwardSearch<kPair>("ab.ab").Next(2), 3u);
    EXPECT_EQ(ForwardSearch<kPair>("ab.ab").Next(99), std::string_view::npos);
    EXPECT_EQ(ForwardSearch<kPair>("").Next(0), std::string_view::npos);
}

// Near and far, where eight bytes are left and where they are not.
TEST(ForwardSearch, FindsAWordAtAnyDistanceFromAnyPlace) {
    for (std::size_t before = 0; before < 40; ++before) {
        for (std::size_t behind = 0; behind < 20; ++behind) {
            const std::string text = std::string(before, '.') + "ab" + std::string(behind, 'a');
            for (std::size_t from = 0; from <= before; ++from)
                EXPECT_EQ(ForwardSearch<kPair>(text).Next(from), before) << text << from;
            EXPECT_EQ(ForwardSearch<kPair>(text).Next(before + 1), std::string_view::npos) << text;
        }
    }
}

TEST(ForwardSearch, HalfAWordIsNone) {
    EXPECT_EQ(ForwardSearch<kPair>("a").Next(0), std::string_view::npos);
    EXPECT_EQ(ForwardSearch<kPair>("a.a.a.a.a.a.a").Next(0), std::string_view::npos);
    EXPECT_EQ(ForwardSearch<kPair>("aaaaaaaaab").Next(0), 8u);
}

// Bytes one above, which a borrow from a match in front of them marks as well, and those with the high bit.
TEST(ForwardSearch, TheFirstOfEightBytesIsFoundAmongAllOthers) {
    for (int letter = 0; letter < 256; ++letter) {
        for (int other = 0; other < 256; ++other) {
            std::string bytes(8, char(other));
            EXPECT_EQ(PlaceInEight(bytes.data(), char(letter)), letter == other ? 0u : 8u);
            bytes[3] = char(letter);
            EXPECT_EQ(PlaceInEight(bytes.data(), char(letter)), letter == other ? 0u : 3u);
        }
    }
}

} // namespace
} // namespace orvane
