// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace orvane::exports::scxml {

// Labels of the log elements that hold controller code.
inline constexpr std::string_view kEntry = "entry action";
inline constexpr std::string_view kExit = "exit action";
inline constexpr std::string_view kAction = "action";

inline constexpr std::string_view kTimeoutEvent = "timeout."; // and the state

} // namespace orvane::exports::scxml
