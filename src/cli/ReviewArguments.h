// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvane::cli {

enum class DiffFormat { Text, Json, Html };

// What the verbs about several versions of a document are asked for beside the documents.
struct ReviewArguments {
    DiffFormat Format = DiffFormat::Text;
    bool NoView = false;
    std::vector<std::string> Same;          // OLD=NEW
    std::vector<std::string> Different;     // OLD
    bool TextConversion = false;            // also a document that broke off is shown, and that is no failure
    std::optional<std::string> MergeOutput; // a path; none for standard output
    std::optional<std::string> MergePath;   // what the user calls the document that is merged
    bool TakeOurs = false;
    bool TakeTheirs = false;
    bool Global = false; // for this user, not for this repository
    bool Yes = false;    // to what would be asked
};

} // namespace orvane::cli
