// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a generated program whose user texts are markers. It knows the program's text alone: no document, no
// label builder.
//
// What it takes the instructions to do, T being a timer and L a label:
//
//   GoTo L              jumps
//   GoifT L, GoIfT L    jump when the condition flag is set
//   GoIfF L             jumps when it is not
//   STStart T           starts the timer anew
//   STTest T,limit      sets the flag while less time than the limit has passed: at the limit time is up
//   fSwap               exchanges the accumulator and the second register
//   fSTTimeSince T      loads the time since the timer was started into the accumulator
//   fSub                takes the accumulator off the second register, result in the accumulator
//   fGoIfNeg L          jumps when the accumulator is below zero
//   YieldTask           lets time pass
//   Return              ends the task
//
// A variable limit is loaded, swapped into the second register, and the elapsed time taken off it: the jump
// is taken when what is left is below zero, that is when MORE time than the limit has passed. The constant
// form is up one unit earlier, at the limit itself.
//
// A program for multitasking begins at its launch label and lets time pass in YieldTask. One without begins
// at the top, and time passes at each pass of a polling loop's label, the second label of each state. A timer
// that was never started counts from time 0.
#pragma once

#include "support/World.h"

#include <string_view>

namespace orvane::test {

// Runs until the world has no more moments. A program that cannot go on ends with a line that says why.
Trace RunProgram(std::string_view text, World world);

} // namespace orvane::test
