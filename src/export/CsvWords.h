// SPDX-License-Identifier: GPL-3.0-or-later
// The words that stand in tables beside those of the document.
#pragma once

#include <string_view>

namespace orvane::exports::csv {

inline constexpr std::string_view kEntry = "Entry action";
inline constexpr std::string_view kExit = "Exit action";
inline constexpr std::string_view kMode = "Timeout mode";
inline constexpr std::string_view kTimeout = "Timeout target";
inline constexpr std::string_view kElse = "ELSE";
inline constexpr std::string_view kLongHead = "state,event,target,action";
inline constexpr std::string_view kFormulaSigns = "=+-@\t\r";

} // namespace orvane::exports::csv
