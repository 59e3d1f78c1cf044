// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace orvane::cli {

// Exit statuses. Of several documents the highest counts.
inline constexpr int kSuccess = 0;
inline constexpr int kDesignError = 1; // in at least one document
inline constexpr int kDifferent = 1;   // two documents are not the same
inline constexpr int kWrongUsage = 2;
inline constexpr int kFileError = 3; // a file was not read or written, or a document broke off

// What a piece of work has for the outside.
struct Outcome {
    std::string Output; // for standard output, exact bytes
    std::string Errors; // for standard error, UTF-8 lines
    int Status = kSuccess;

    void Raise(int status) {
        if (status > Status)
            Status = status;
    }
};

} // namespace orvane::cli
