// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Crc32c.h"

#include <gtest/gtest.h>

#include <string>

namespace orvane {
namespace {

TEST(Crc32c, GivesThePublishedCheckValue) { EXPECT_EQ(Crc32c("123456789"), 0xE3069283u); }

// Of the test vectors that the protocol for disks over networks (RFC 3720, B.4) was published with.
TEST(Crc32c, GivesThePublishedValuesOfThirtyTwoBytes) {
    std::string rising;
    std::string falling;
    for (int i = 0; i < 32; ++i) {
        rising += char(i);
        falling += char(31 - i);
    }
    EXPECT_EQ(Crc32c(std::string(32, '\0')), 0x8A9136AAu);
    EXPECT_EQ(Crc32c(std::string(32, '\xFF')), 0x62A8AB43u);
    EXPECT_EQ(Crc32c(rising), 0x46DD794Eu);
    EXPECT_EQ(Crc32c(falling), 0x113FDB5Cu);
}

TEST(Crc32c, OfTwoPiecesIsThatOfBothTogetherWhereverTheyMeet) {
    const std::string text = "a text that is longer than three strides";
    for (std::size_t cut = 0; cut <= text.size(); ++cut)
        EXPECT_EQ(Crc32c(text.substr(cut), Crc32c(text.substr(0, cut))), Crc32c(text)) << cut;
}

TEST(Crc32c, OfNothingIsZeroAndOfZerosIsNot) {
    EXPECT_EQ(Crc32c(""), 0u);
    for (std::size_t length = 1; length < 64; ++length)
        EXPECT_NE(Crc32c(std::string(length, '\0')), 0u) << length;
}

} // namespace
} // namespace orvane
