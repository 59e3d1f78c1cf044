// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/TimingOptions.h"

#include "core/TimingMode.h"

namespace orvane {

namespace {

struct LimitModes {
    std::int32_t Constant;
    std::int32_t Variable;
    TimingProblem NeitherOn;
};

TimingChoice ChooseByLimit(const LimitModes& modes, LimitOption limit, bool constantThere,
                           bool variableThere) {
    switch (limit) {
    case LimitOption::Constant:
        return constantThere ? TimingChoice{modes.Constant, TimingProblem::None}
                             : TimingChoice{std::nullopt, TimingProblem::NoConstantLimit};
    case LimitOption::Variable:
        return variableThere ? TimingChoice{modes.Variable, TimingProblem::None}
                             : TimingChoice{std::nullopt, TimingProblem::NoVariableLimit};
    case LimitOption::None:
        break;
    }
    return {std::nullopt, modes.NeitherOn};
}

} // namespace

std::optional<TimingOptions> OptionsOf(std::int32_t timingMode) {
    if (!IsKnownTimingMode(timingMode))
        return std::nullopt;
    if (timingMode == kNoTiming)
        return TimingOptions{TimingOption::NoTimeOut, LimitOption::None};
    return TimingOptions{StartsTiming(timingMode) ? TimingOption::Start : TimingOption::Continue,
                         HasConstantLimit(timingMode) ? LimitOption::Constant : LimitOption::Variable};
}

TimingChoice ChooseTimingMode(TimingOptions options, std::string_view timeConst, std::string_view timingVar) {
    constexpr LimitModes start = {kStartConstant, kStartVariable, TimingProblem::StartWithoutLimitOption};
    constexpr LimitModes goOn = {kContinueConstant, kContinueVariable,
                                 TimingProblem::ContinueWithoutLimitOption};
    switch (options.Timing) {
    case TimingOption::NoTimeOut:
        return {kNoTiming, TimingProblem::None};
    case TimingOption::Start:
        return ChooseByLimit(start, options.Limit, !timeConst.empty(), !timingVar.empty());
    case TimingOption::Continue:
        return ChooseByLimit(goOn, options.Limit, !timeConst.empty(), !timingVar.empty());
    case TimingOption::None:
        break;
    }
    return {std::nullopt, TimingProblem::NoTimingOption};
}

UserMessage MessageOf(TimingProblem problem) {
    constexpr const char* limitMissing = "This won't do!";
    switch (problem) {
    case TimingProblem::None:
        break;
    case TimingProblem::NoConstantLimit:
        return {"You must provide a constant time limit", limitMissing, MessageIcon::Warning};
    case TimingProblem::NoVariableLimit:
        return {"You must provide code for the variable time limit", limitMissing, MessageIcon::Critical};
    case TimingProblem::StartWithoutLimitOption:
        return {"Unparsed timing mode options in frmStateEdit.cmdOK_Click [1]"};
    case TimingProblem::ContinueWithoutLimitOption:
        return {"Unparsed timing mode options in frmStateEdit.cmdOK_Click [2]"};
    case TimingProblem::NoTimingOption:
        return {"Unparsed timing mode options in frmStateEdit.cmdOK_Click [3]"};
    }
    return {};
}

UserMessage UnknownTimingModeMessage() {
    UserMessage message{"Unknown timeout state in frmStateEdit.Execute"};
    message.Icon = MessageIcon::Critical;
    return message;
}

} // namespace orvane
