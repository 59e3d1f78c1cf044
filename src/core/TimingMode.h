// SPDX-License-Identifier: GPL-3.0-or-later
// What the number in StateRecord::TimingMode says. The numbers are part of the document format; any other
// number can come in a foreign file and means nothing.
#pragma once

#include <cstdint>

namespace orvane {

inline constexpr std::int32_t kNoTiming = 0;
inline constexpr std::int32_t kStartConstant = 1;    // start timing on entry, limit in TimeConst
inline constexpr std::int32_t kStartVariable = 2;    // start timing on entry, limit computed by TimingVar
inline constexpr std::int32_t kContinueConstant = 3; // timing was started in another state
inline constexpr std::int32_t kContinueVariable = 4;

constexpr bool StartsTiming(std::int32_t mode) { return mode == kStartConstant || mode == kStartVariable; }
constexpr bool HasConstantLimit(std::int32_t mode) {
    return mode == kStartConstant || mode == kContinueConstant;
}
constexpr bool HasVariableLimit(std::int32_t mode) {
    return mode == kStartVariable || mode == kContinueVariable;
}
constexpr bool IsKnownTimingMode(std::int32_t mode) { return mode >= kNoTiming && mode <= kContinueVariable; }

} // namespace orvane
