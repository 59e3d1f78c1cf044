// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orvane {

inline constexpr int kHelpKeyCode = 112; // F1

// Where a page of the knowledge base stands: the base address, which ends with its own "/", and NUMBER.htm.
std::string HelpPageAddress(std::string_view baseAddress, int page);

// Whether a key asks for the window's help page: F1 with neither Shift nor Ctrl nor Alt. Such a key goes no
// further.
bool IsHelpKey(int keyCode, bool shiftCtrlOrAlt);

} // namespace orvane
