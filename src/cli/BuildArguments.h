// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace orvane::cli {

enum class ReportFormat { Text, Gcc, Json, Sarif };

// What generate, check and format take from whoever builds.
struct BuildArguments {
    ReportFormat Format = ReportFormat::Text;
    bool Advice = false; // tell what explore finds, too
    bool Quiet = false;  // no report of a document of which there is nothing to tell
    bool WarningsAreErrors = false;
    bool IfChanged = false;                    // keep a program that would differ in its banner alone
    bool OnlyCompare = false;                  // format: write nothing
    std::optional<std::string> OutputFolder;   // of all programs
    std::optional<std::string> DependencyFile; // what is made of what, for make and ninja
    std::optional<std::string> Project;        // check: the builder script whose machines are looked over
    std::size_t Jobs = 0;                      // at a time; 0: as many as there are processors
};

} // namespace orvane::cli
