// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/FindOptions.h"

#include "cli/BracketArgument.h"

#include <CLI/CLI.hpp>

namespace orvane::cli {

void FindOptions::AddTo(CLI::App& verb) {
    verb.add_option("PATTERN", arguments_.Pattern, "What to look for")->required()->type_name("");
    verb.add_option("DOC", documents_, "The documents")->required()->type_name("");
    verb.add_flag("--regex", arguments_.Regex, "PATTERN is a regular expression");
    verb.add_flag("--word", arguments_.Word, "Only whole words");
    verb.add_flag("--ignore-case", arguments_.IgnoreCase, "Capitals make no difference");
    verb.add_option("--format", format_, "How to report: text (default) or json")
        ->check(CLI::IsMember({"text", "json"}))
        ->type_name("FORMAT");
}

FindArguments FindOptions::Take() {
    ShowBracket(arguments_.Pattern);
    arguments_.Json = format_ == "json";
    return std::move(arguments_);
}

} // namespace orvane::cli
