// SPDX-License-Identifier: GPL-3.0-or-later
// The timing mode of a state as the two groups of options that the state editor offers for it.
#pragma once

#include "core/UserMessage.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvane {

enum class TimingOption { None, NoTimeOut, Start, Continue };
enum class LimitOption { None, Constant, Variable };

// None stands for a group in which no option is on.
struct TimingOptions {
    TimingOption Timing = TimingOption::None;
    LimitOption Limit = LimitOption::None;

    bool operator==(const TimingOptions&) const = default;
};

// The options that show a mode. No timeout leaves the limit open; a mode that nobody knows has no options.
std::optional<TimingOptions> OptionsOf(std::int32_t timingMode);

enum class TimingProblem {
    None,
    NoConstantLimit,
    NoVariableLimit,
    StartWithoutLimitOption,
    ContinueWithoutLimitOption,
    NoTimingOption,
};

struct TimingChoice {
    std::optional<std::int32_t> Mode; // there exactly when there is no problem
    TimingProblem Problem = TimingProblem::None;

    bool operator==(const TimingChoice&) const = default;
};

// The mode that the options stand for. A limit is missing only when its text is empty; blanks will do.
TimingChoice ChooseTimingMode(TimingOptions options, std::string_view timeConst, std::string_view timingVar);

// What the user is told about a problem.
UserMessage MessageOf(TimingProblem problem);

// What the user is told when a state with a mode that nobody knows is opened.
UserMessage UnknownTimingModeMessage();

// The user has to give a limit before the state can be taken. Any other problem keeps the former mode.
constexpr bool IsLimitMissing(TimingProblem problem) {
    return problem == TimingProblem::NoConstantLimit || problem == TimingProblem::NoVariableLimit;
}

} // namespace orvane
