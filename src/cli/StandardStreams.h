// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Outcome.h"

#include <optional>
#include <string>

namespace orvane::cli {

// To be called before any file is opened. Bytes pass as they are, and a standard stream that was closed
// stays unusable: no file that is opened later can take its place and receive what is written to it.
void PrepareStandardStreams();

// All bytes of standard input, or none when it cannot be read or holds more than a document may: then the
// outcome says why.
std::optional<std::string> ReadStandardInput(Outcome& outcome);

// Writes what the outcome has and returns its status, or kFileError when a stream did not take it all.
int Deliver(const Outcome& outcome);

} // namespace orvane::cli
