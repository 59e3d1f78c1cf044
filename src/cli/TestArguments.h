// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace orvane::cli {

// What `orvanec test` is asked for beside the files.
struct TestArguments {
    std::optional<std::string> JUnit;    // a path
    std::optional<std::string> Markdown; // a path
    bool Json = false;
    bool Coverage = false;                   // tell what was missed
    std::optional<std::size_t> LeastCovered; // per cent of each document's transitions
    std::string Filter;                      // part of a test's name; empty for all
    bool List = false;
    bool Strict = false;
    bool NotesFail = false;
    std::optional<bool> AfterLimit; // readings that are chosen
    std::optional<bool> UnstartedExpired;
    bool Update = false;
    bool Rename = false;
    std::size_t Jobs = 0; // 0: as many as there are processors
};

} // namespace orvane::cli
