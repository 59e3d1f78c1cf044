// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/LimitText.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvane::run {
namespace {

TEST(LimitText, BlanksASignAndDigitsAreANumber) {
    EXPECT_EQ(LimitNumber("100"), 100);
    EXPECT_EQ(LimitNumber(" 100"), 100);
    EXPECT_EQ(LimitNumber("+7 "), 7);
    EXPECT_EQ(LimitNumber("-5"), -5);
    EXPECT_EQ(LimitNumber("0"), 0);
}

TEST(LimitText, EverythingElseIsAName) {
    for (const char* name : {"3s", "1+2", "LONG", "", " ", "-", "+", "- 5", "1 2", "\t100", "10\r\n", "0x10"})
        EXPECT_EQ(LimitNumber(name), std::nullopt) << name;
}

TEST(LimitText, ANumberBeyondSixtyFourBitsIsTheLargest) {
    EXPECT_EQ(LimitNumber("99999999999999999999999"), std::numeric_limits<std::int64_t>::max());
}

} // namespace
} // namespace orvane::run
