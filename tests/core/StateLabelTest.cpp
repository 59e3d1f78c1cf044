// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/StateLabel.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(StateLabel, IsTheNumberAndTheName) {
    EXPECT_EQ(StateLabel(3, "Idle"), "3:Idle");
    EXPECT_EQ(StateLabel(100, "Motor On"), "100:Motor On");
}

TEST(StateLabel, AnUnnamedStateIsTheNumberAndTheColon) { EXPECT_EQ(StateLabel(7, ""), "7:"); }

TEST(StateLabel, BlanksAreTrimmedFromTheWholeOnly) {
    EXPECT_EQ(StateLabel(7, "Run  "), "7:Run");
    EXPECT_EQ(StateLabel(7, "  Run"), "7:  Run");
    EXPECT_EQ(StateLabel(7, "   "), "7:");
}

} // namespace
} // namespace orvane
