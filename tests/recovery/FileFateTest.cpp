// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/FileFate.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr FileAsKnown kKnown{1200, 7'000'000'000, {1, 2, 3}};

TEST(FileFate, TheSameSizeAndTimeNeedNoLookAtTheBytes) {
    EXPECT_EQ(FateBySizeAndTime(kKnown, {1200, 7'000'000'000}), FileFate::AsItWas);
}

TEST(FileFate, AnotherSizeIsAChangeWhateverTheTime) {
    EXPECT_EQ(FateBySizeAndTime(kKnown, {1201, 7'000'000'000}), FileFate::ChangedSince);
    EXPECT_EQ(FateBySizeAndTime(kKnown, {1199, 9}), FileFate::ChangedSince);
}

TEST(FileFate, AnotherTimeAloneIsDecidedByTheBytes) {
    EXPECT_EQ(FateBySizeAndTime(kKnown, {1200, 7'000'000'001}), std::nullopt);
    EXPECT_EQ(FateByBytes(kKnown, {1, 2, 3}), FileFate::AsItWas);
    EXPECT_EQ(FateByBytes(kKnown, {1, 2, 4}), FileFate::ChangedSince);
}

} // namespace
} // namespace orvane
