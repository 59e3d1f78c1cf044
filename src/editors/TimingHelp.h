// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace orvane {

// What the state editor tells about timeouts for as long as its help button is held down.
inline constexpr std::string_view kTimingHelp =
    "This tab allows you to specify if and how the state will will time out.\r\n"
    "\r\n"
    "The timing code generated here uses a SuperTimer, not the task timer. That means you can use PAUSE and "
    "WAITxxx instructions without upsetting the timeout mechanism.\r\n"
    "\r\n"
    "The time limit can be specified as a constant or a variable. In the case of a variable you must provide "
    "a code snippet that loads the time limit into W. The rest is taken care of for you. \r\n"
    "\r\n"
    "The Timer I.D. lets you use several timers in different places. Enter any alph-numeric characters "
    "without spaces to define a unique timer. (Hint: use as few as you can, no more than you actually need. "
    "Each I.D. will consume 3 bytes of Zorlan RAM (Data Memory)).\r\n";

} // namespace orvane
