// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Outcome.h"

#include <optional>
#include <string>
#include <system_error>

namespace orvane::cli {

// To be called before any file is opened. Bytes pass as they are, and a standard stream that was closed
// stays unusable: no file that is opened later can take its place and receive what is written to it.
void PrepareStandardStreams();

// All bytes of standard input; none after a failure, which is file_too_large when it holds more than a
// document may.
struct InputBytes {
    std::string Bytes;
    std::error_code Failure;
};
InputBytes ReadStandardInput();

// The same; after a failure the outcome says why.
std::optional<std::string> ReadStandardInput(Outcome& outcome);

// Writes what the outcome has and returns its status, or kFileError when a stream did not take it all.
int Deliver(const Outcome& outcome);

} // namespace orvane::cli
