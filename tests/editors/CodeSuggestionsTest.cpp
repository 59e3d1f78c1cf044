// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/CodeSuggestions.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(CodeSuggestions, BothBearTheNameOfTheMachine) {
    EXPECT_EQ(CodeSuggestion("Pump"), "Pump_Init:\tLaunchTask\tPump_Launch");
    EXPECT_EQ(InitSuggestion("Pump"), "\tGoSub\tPump_Init");
}

TEST(CodeSuggestions, AMachineWithoutANameIsCalledXXX) {
    EXPECT_EQ(CodeSuggestion(""), "XXX_Init:\tLaunchTask\tXXX_Launch");
    EXPECT_EQ(InitSuggestion(""), "\tGoSub\tXXX_Init");
}

TEST(CodeSuggestions, ANameIsTakenAsItIs) { EXPECT_EQ(InitSuggestion(" my pump"), "\tGoSub\t my pump_Init"); }

} // namespace
} // namespace orvane
