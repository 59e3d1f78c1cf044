// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/TimingOptions.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(TimingOptions, EveryKnownModeComesBackFromItsOptions) {
    for (std::int32_t mode = 0; mode <= 4; ++mode) {
        const std::optional<TimingOptions> options = OptionsOf(mode);
        ASSERT_TRUE(options) << mode;
        const TimingChoice choice = ChooseTimingMode(*options, "5", "\tLoadW\tLimit");
        EXPECT_EQ(choice, (TimingChoice{mode, TimingProblem::None})) << mode;
    }
}

TEST(TimingOptions, OddModesStartAndEvenOnesHaveAVariableLimit) {
    EXPECT_EQ(OptionsOf(0), (TimingOptions{TimingOption::NoTimeOut, LimitOption::None}));
    EXPECT_EQ(OptionsOf(1), (TimingOptions{TimingOption::Start, LimitOption::Constant}));
    EXPECT_EQ(OptionsOf(2), (TimingOptions{TimingOption::Start, LimitOption::Variable}));
    EXPECT_EQ(OptionsOf(3), (TimingOptions{TimingOption::Continue, LimitOption::Constant}));
    EXPECT_EQ(OptionsOf(4), (TimingOptions{TimingOption::Continue, LimitOption::Variable}));
}

TEST(TimingOptions, ModesThatNobodyKnowsHaveNoOptions) {
    for (const std::int32_t mode : {-1, 5, 255, INT32_MIN, INT32_MAX})
        EXPECT_FALSE(OptionsOf(mode)) << mode;
}

TEST(TimingOptions, NoTimeoutNeedsNoLimit) {
    EXPECT_EQ(ChooseTimingMode({TimingOption::NoTimeOut, LimitOption::Constant}, "", ""),
              (TimingChoice{0, TimingProblem::None}));
}

TEST(TimingOptions, OnlyTheEmptyTextIsAMissingLimit) {
    for (const TimingOption timing : {TimingOption::Start, TimingOption::Continue}) {
        EXPECT_EQ(ChooseTimingMode({timing, LimitOption::Constant}, "", "code").Problem,
                  TimingProblem::NoConstantLimit);
        EXPECT_EQ(ChooseTimingMode({timing, LimitOption::Variable}, "5", "").Problem,
                  TimingProblem::NoVariableLimit);
        EXPECT_TRUE(ChooseTimingMode({timing, LimitOption::Constant}, " ", "").Mode);
        EXPECT_TRUE(ChooseTimingMode({timing, LimitOption::Variable}, "", " ").Mode);
    }
}

TEST(TimingOptions, GroupsWithoutAnOptionAreToldApart) {
    const auto messageOf = [](TimingOptions options) {
        const TimingChoice choice = ChooseTimingMode(options, "5", "code");
        EXPECT_FALSE(choice.Mode);
        EXPECT_FALSE(IsLimitMissing(choice.Problem));
        return MessageOf(choice.Problem);
    };
    EXPECT_EQ(messageOf({TimingOption::Start, LimitOption::None}),
              (UserMessage{"Unparsed timing mode options in frmStateEdit.cmdOK_Click [1]"}));
    EXPECT_EQ(messageOf({TimingOption::Continue, LimitOption::None}),
              (UserMessage{"Unparsed timing mode options in frmStateEdit.cmdOK_Click [2]"}));
    EXPECT_EQ(messageOf({TimingOption::None, LimitOption::Constant}),
              (UserMessage{"Unparsed timing mode options in frmStateEdit.cmdOK_Click [3]"}));
}

TEST(TimingOptions, MissingLimitsSayWhatToProvide) {
    EXPECT_TRUE(IsLimitMissing(TimingProblem::NoConstantLimit));
    EXPECT_TRUE(IsLimitMissing(TimingProblem::NoVariableLimit));
    EXPECT_EQ(
        MessageOf(TimingProblem::NoConstantLimit),
        (UserMessage{"You must provide a constant time limit", "This won't do!", MessageIcon::Warning}));
    EXPECT_EQ(MessageOf(TimingProblem::NoVariableLimit),
              (UserMessage{"You must provide code for the variable time limit", "This won't do!",
                           MessageIcon::Critical}));
}

TEST(TimingOptions, AModeThatNobodyKnowsIsToldAsAnError) {
    EXPECT_EQ(UnknownTimingModeMessage(), (UserMessage{"Unknown timeout state in frmStateEdit.Execute",
                                                       "Orvane", MessageIcon::Critical}));
}

} // namespace
} // namespace orvane
