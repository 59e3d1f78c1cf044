// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ReviewOptions.h"

#include "cli/BracketArgument.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <utility>

namespace orvane::cli {

void ReviewOptions::AddDiff(CLI::App& verb) {
    verb.add_option("DOC", documents_, "The old document and the new one")->required()->type_name("");
    verb.add_option("--format", format_, "How to tell the changes: text (default), json or html")
        ->check(CLI::IsMember({"text", "json", "html"}))
        ->type_name("FORMAT");
    verb.add_flag("--no-view", arguments_.NoView, "Leave out widths, heights and rows that are shown");
    verb.add_option("--same", arguments_.Same, "OLD and NEW are the same state or event")
        ->type_name("OLD=NEW")
        ->allow_extra_args(false);
    verb.add_option("--different", arguments_.Different, "The old state or event is not there any more")
        ->type_name("OLD")
        ->allow_extra_args(false);
}

void ReviewOptions::AddShow(CLI::App& verb) {
    verb.add_option("DOC", documents_, "The document")->required()->type_name("");
    verb.add_flag("--textconv", arguments_.TextConversion,
                  "For git: a document that breaks off is shown as far as it goes, and is no failure");
}

void ReviewOptions::AddMerge(CLI::App& verb) {
    verb.add_option("DOC", documents_, "What both came from, ours, and theirs")->required()->type_name("");
    verb.add_option("-o,--output", arguments_.MergeOutput,
                    "Write to FILE, and the conflicts to FILE.conflicts; without it to standard output")
        ->type_name("FILE");
    CLI::Option* ours =
        verb.add_flag("--ours", arguments_.TakeOurs, "Where the sides contradict, ours counts");
    verb.add_flag("--theirs", arguments_.TakeTheirs, "Where the sides contradict, theirs counts")
        ->excludes(ours);
    verb.add_option("--path", arguments_.MergePath,
                    "The name of the document, for messages and the conflicts")
        ->type_name("NAME");
}

void ReviewOptions::AddConflicts(CLI::App& verb) {
    verb.add_option("DOC", documents_, "The documents")->required()->type_name("");
}

void ReviewOptions::AddGit(CLI::App& verb) {
    verb.add_option("WHAT", documents_, "enable: compare and merge documents by orvanec")
        ->required()
        ->type_name("");
    verb.add_flag("--global", arguments_.Global, "For this user, not for this repository");
    verb.add_flag("--yes", arguments_.Yes, "Do not ask");
}

ReviewArguments ReviewOptions::Take() {
    arguments_.Format = format_ == "json"   ? DiffFormat::Json
                        : format_ == "html" ? DiffFormat::Html
                                            : DiffFormat::Text;
    for (std::vector<std::string>* wishes : {&arguments_.Same, &arguments_.Different})
        std::for_each(wishes->begin(), wishes->end(), ShowBracket);
    for (std::optional<std::string>* path : {&arguments_.MergeOutput, &arguments_.MergePath}) {
        if (*path)
            ShowBracket(**path);
    }
    return std::move(arguments_);
}

} // namespace orvane::cli
