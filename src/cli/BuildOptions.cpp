// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/BuildOptions.h"

#include "cli/BracketArgument.h"

#include <CLI/CLI.hpp>

#include <utility>

namespace orvane::cli {

void BuildOptions::AddGenerate(CLI::App& verb) {
    AddReport(verb);
    verb.add_flag("--if-changed", arguments_.IfChanged,
                  "Keep a program that would only get another date, so that nothing behind it is made again");
    verb.add_option("--output-dir", arguments_.OutputFolder, "Write all programs into the folder DIR")
        ->type_name("DIR");
    verb.add_option("--depfile", arguments_.DependencyFile,
                    "Write to FILE which program is made of which document, for make and ninja")
        ->type_name("FILE");
    AddJobs(verb);
}

void BuildOptions::AddCheck(CLI::App& verb) {
    AddReport(verb);
    verb.add_option("--project", arguments_.Project,
                    "Look over the machines that the builder script FILE lists, and what they have in common")
        ->type_name("FILE");
    AddJobs(verb);
}

void BuildOptions::AddFormat(CLI::App& verb) {
    verb.add_flag("--check", arguments_.OnlyCompare,
                  "Write nothing; exit status 1 tells a document that is not as the editor would save it");
    AddJobs(verb);
}

void BuildOptions::AddReport(CLI::App& verb) {
    verb.add_option("--format", format_, "How to report: text (default), gcc, json or sarif")
        ->check(CLI::IsMember({"text", "gcc", "json", "sarif"}))
        ->type_name("FORMAT");
    verb.add_flag("--advice", arguments_.Advice, "Tell what explore finds, too; it is no error");
    verb.add_flag("--quiet", arguments_.Quiet, "Say nothing when there is nothing to tell");
    verb.add_flag("--werror", arguments_.WarningsAreErrors, "Warnings are errors; notes stay notes");
}

void BuildOptions::AddJobs(CLI::App& verb) {
    verb.add_option("-j,--jobs", arguments_.Jobs, "Work on N documents at a time")
        ->check(CLI::Range(1, 1000))
        ->type_name("N");
}

BuildArguments BuildOptions::Take() {
    arguments_.Format = format_ == "gcc"     ? ReportFormat::Gcc
                        : format_ == "json"  ? ReportFormat::Json
                        : format_ == "sarif" ? ReportFormat::Sarif
                                             : ReportFormat::Text;
    for (std::optional<std::string>* path :
         {&arguments_.OutputFolder, &arguments_.DependencyFile, &arguments_.Project}) {
        if (*path)
            ShowBracket(**path);
    }
    return std::move(arguments_);
}

} // namespace orvane::cli
