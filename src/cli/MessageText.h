// SPDX-License-Identifier: GPL-3.0-or-later
// Texts for the standard streams: UTF-8, LF line ends.
#pragma once

#include "codegen/Report.h"
#include "core/DocumentReader.h"

#include <string>
#include <string_view>

namespace orvane::cli {

// A name from the command line for use within a line: control characters shown as \xNN.
std::string ShownName(std::string_view name);

// A reader message on one line: control characters shown as \xNN.
std::string ShownMessage(const ReaderMessage& message);

// "DOC:LINE: message", without the line for a message that concerns the file as a whole.
std::string MessageLine(std::string_view document, const ReaderMessage& message);

// "orvanec: DOC: what (reason)".
std::string FailureLine(std::string_view document, std::string_view what, std::string_view reason = {});

// Document text for a stream.
std::string StreamText(std::string_view ansi);

} // namespace orvane::cli
