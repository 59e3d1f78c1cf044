// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/NumberText.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvane {
namespace {

TEST(NumberText, ReadsBlanksASignAndDigits) {
    EXPECT_EQ(ParseNumber("7"), 7);
    EXPECT_EQ(ParseNumber("  12"), 12);
    EXPECT_EQ(ParseNumber("-3"), -3);
    EXPECT_EQ(ParseNumber(" +4"), 4);
    EXPECT_EQ(ParseNumber("007"), 7);
}

TEST(NumberText, StopsAtTheFirstOtherCharacter) {
    EXPECT_EQ(ParseNumber("7:"), 7);
    EXPECT_EQ(ParseNumber("12abc3"), 12);
    EXPECT_EQ(ParseNumber("1 2"), 1);
    EXPECT_EQ(ParseNumber("1.9"), 1);
}

TEST(NumberText, NoDigitsGiveZero) {
    for (const char* text : {"", "   ", "abc", "-", "+", "--5", "+-5", "- 5", ":7"})
        EXPECT_EQ(ParseNumber(text), 0) << text;
}

TEST(NumberText, NumbersBeyond64BitsGiveTheNearest) {
    constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(ParseNumber("9223372036854775807"), largest);
    EXPECT_EQ(ParseNumber("9223372036854775808"), largest);
    EXPECT_EQ(ParseNumber("-9223372036854775808"), least);
    EXPECT_EQ(ParseNumber("18446744073709551617"), largest); // one more than 64 bits count to
    EXPECT_EQ(ParseNumber("99999999999999999999999"), largest);
    EXPECT_EQ(ParseNumber("-99999999999999999999999"), least);
}

TEST(NumberText, WritesDecimalWithoutBlanks) {
    EXPECT_EQ(NumberText(0), "0");
    EXPECT_EQ(NumberText(1234567), "1234567");
    EXPECT_EQ(NumberText(-15), "-15");
}

TEST(NumberText, HexadecimalIsUpperCaseWithoutLeadingZeros) {
    EXPECT_EQ(HexText(0), "0");
    EXPECT_EQ(HexText(9), "9");
    EXPECT_EQ(HexText(10), "A");
    EXPECT_EQ(HexText(16), "10");
    EXPECT_EQ(HexText(0xFFFFFFFF), "FFFFFFFF");
}

TEST(NumberText, CountsHaveABlankInThePlaceOfTheSign) {
    EXPECT_EQ(SignedNumberText(0), " 0");
    EXPECT_EQ(SignedNumberText(6), " 6");
    EXPECT_EQ(SignedNumberText(-6), "-6");
}

} // namespace
} // namespace orvane
