// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace orvane {

// Passes a label on to the logging category `orvane.trace`, which is off unless it is asked for:
// QT_LOGGING_RULES="orvane.trace=true".
void Trace(std::string_view label);

// The label of a main window that begins, with the time.
void TraceStart();

} // namespace orvane
