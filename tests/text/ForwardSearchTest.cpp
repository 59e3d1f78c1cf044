// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/ForwardSearch.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(ForwardSearch, FindsTheFirstPlaceAtOrBehindTheStart) {
    ForwardSearch search("ab.ab.ab", "ab");
    EXPECT_EQ(search.Next(0), 0u);
    EXPECT_EQ(search.Next(0), 0u);
    EXPECT_EQ(search.Next(1), 3u);
    EXPECT_EQ(search.Next(3), 3u);
    EXPECT_EQ(search.Next(4), 6u);
    EXPECT_EQ(search.Next(7), std::string_view::npos);
    EXPECT_EQ(search.Next(8), std::string_view::npos);
}

TEST(ForwardSearch, TheFirstSearchMayBeginAnywhere) {
    EXPECT_EQ(ForwardSearch("ab.ab", "ab").Next(2), 3u);
    EXPECT_EQ(ForwardSearch("ab.ab", "ab").Next(99), std::string_view::npos);
    EXPECT_EQ(ForwardSearch("", "ab").Next(0), std::string_view::npos);
}

} // namespace
} // namespace orvane
