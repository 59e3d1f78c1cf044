// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/TestOptions.h"

#include "cli/BracketArgument.h"
#include "text/NumberText.h"

#include <CLI/CLI.hpp>

#include <utility>

namespace orvane::cli {

namespace {

// The flag may have a value, which would be taken for a file were it not behind "=".
std::string WrongCoverage(const std::string& value) {
    const bool number = !value.empty() && value.find_first_not_of("0123456789") == std::string::npos;
    const bool fits = value == "true" || (number && ParseNumber(value) <= 100);
    return fits ? "" : "a coverage is 0 to 100 per cent, not " + value;
}

} // namespace

void TestOptions::AddTo(CLI::App& verb) {
    AddReports(verb);
    AddRunning(verb);
}

void TestOptions::AddReports(CLI::App& verb) {
    verb.add_option("--junit", arguments_.JUnit, "Write the results to FILE as JUnit XML")->type_name("FILE");
    verb.add_option("--markdown", arguments_.Markdown, "Write the results to FILE as Markdown")
        ->type_name("FILE");
    verb.add_flag("--json", arguments_.Json, "Report one line of JSON for each test");
    verb.add_flag("--coverage", coverage_,
                  "Tell what was missed; --coverage=MIN wants MIN per cent of each machine's transitions")
        ->check(CLI::Validator(WrongCoverage, ""));
    verb.add_flag("--list", arguments_.List, "Tell the tests and run none");
}

void TestOptions::AddRunning(CLI::App& verb) {
    verb.add_option("--filter", arguments_.Filter, "Run the tests with TEXT in their names")
        ->type_name("TEXT");
    verb.add_flag("--strict", arguments_.Strict, "Every state that is passed has to be expected");
    verb.add_flag("--notes-fail", arguments_.NotesFail, "A note is a failure");
    verb.add_option("--reading", readings_, "How to read what is not known of the controllers")
        ->check(CLI::IsMember({"at-limit", "after-limit", "unstarted-since-power-on", "unstarted-expired"}))
        ->type_name("READING")
        ->allow_extra_args(false);
    verb.add_flag("--update", arguments_.Update, "Write what happens in place of what is expected and fails");
    verb.add_flag("--rename", arguments_.Rename,
                  "Write the new names of states and events that were renamed");
    verb.add_option("-j,--jobs", arguments_.Jobs, "Work on N files at a time")
        ->check(CLI::Range(1, 1000))
        ->type_name("N");
}

TestArguments TestOptions::Take() {
    arguments_.Coverage = !coverage_.empty();
    if (arguments_.Coverage && coverage_ != "true")
        arguments_.LeastCovered = static_cast<std::size_t>(ParseNumber(coverage_));
    for (const std::string& reading : readings_) {
        if (reading.ends_with("-limit"))
            arguments_.AfterLimit = reading == "after-limit";
        else
            arguments_.UnstartedExpired = reading == "unstarted-expired";
    }
    for (std::optional<std::string>* path : {&arguments_.JUnit, &arguments_.Markdown}) {
        if (*path)
            ShowBracket(**path);
    }
    ShowBracket(arguments_.Filter);
    return std::move(arguments_);
}

} // namespace orvane::cli
