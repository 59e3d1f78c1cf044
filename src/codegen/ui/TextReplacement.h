// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace orvane {

class CodePane;

// Makes the pane's text this one (ANSI), changing only the lines that differ: the first line by itself,
// because the date in it differs nearly always, and of the rest the stretch between the first and the last
// difference. Caret, selection and scroll position stay with the text around them. Works on a read-only pane.
void ReplaceText(CodePane& pane, std::string_view text);

} // namespace orvane
