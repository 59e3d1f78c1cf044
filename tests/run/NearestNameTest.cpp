// SPDX-License-Identifier: GPL-3.0-or-later
#include "run/NearestName.h"

#include <gtest/gtest.h>

namespace orvane::run {
namespace {

TEST(NearestName, OneLetterLeftOutPutInChangedOrExchangedIsNear) {
    const std::vector<std::string> names = {"Stop", "Start", "Reset"};
    EXPECT_EQ(NearestName("Strt", names), "Start");
    EXPECT_EQ(NearestName("Staart", names), "Start");
    EXPECT_EQ(NearestName("Stsrt", names), "Start");
    EXPECT_EQ(NearestName("Satrt", names), "Start");
    EXPECT_EQ(NearestName("start", names), "Start");
}

TEST(NearestName, WhatIsTooFarIsNotOffered) {
    EXPECT_EQ(NearestName("Motor", {"Stop", "Start"}), "");
    EXPECT_EQ(NearestName("X", {"Y", ""}), "");
    EXPECT_EQ(NearestName("", {"Y"}), "");
    EXPECT_EQ(NearestName(std::string(100'000, 'a'), {std::string(100'000, 'b')}), "");
}

TEST(NearestName, TheNearestOfSeveralIsOffered) {
    EXPECT_EQ(NearestName("Openin", {"Open", "Opening", "Opened"}), "Opening");
}

TEST(NearestName, TheQuestionQuotesTheName) {
    EXPECT_EQ(DidYouMean("Strt", {"Start"}), "; did you mean \"Start\"?");
    EXPECT_EQ(DidYouMean("Motor", {"Start"}), "");
}

} // namespace
} // namespace orvane::run
