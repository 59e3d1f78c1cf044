// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/UsageRules.h"

#include <algorithm>

namespace orvane::cli {

namespace {

using Fault = std::optional<std::string>;

Fault WrongOutput(const Arguments& arguments) {
    if (arguments.Output && arguments.Documents.size() > 1)
        return "-o takes the program of one document, not of " + std::to_string(arguments.Documents.size());
    if (arguments.Output && arguments.Output->empty())
        return "-o needs the name of a file";
    if (arguments.Output && arguments.Building.OutputFolder)
        return "-o names the one program, --output-dir a folder for all: give one of them";
    if (arguments.Building.OutputFolder && arguments.Building.OutputFolder->empty())
        return "--output-dir needs the name of a folder";
    if (arguments.Output && arguments.Building.OnlyCompare)
        return "--check writes nothing, so that there is nothing for -o to name";
    return std::nullopt;
}

Fault WrongDependencyFile(const Arguments& arguments) {
    const std::optional<std::string>& file = arguments.Building.DependencyFile;
    if (file && file->empty())
        return "--depfile needs the name of a file";
    if (file && arguments.Output == kStandardOutput)
        return "--depfile says which file is made of which document; with -o - no file is made";
    return std::nullopt;
}

// Only the verbs of a build read standard input by that name.
Fault WrongInput(const Arguments& arguments) {
    const bool writes = arguments.What == Verb::Generate ||
                        (arguments.What == Verb::Format && !arguments.Building.OnlyCompare);
    if (!writes && arguments.What != Verb::Check && arguments.What != Verb::Format)
        return std::nullopt;
    const auto inputs = std::count(arguments.Documents.begin(), arguments.Documents.end(), kStandardInput);
    if (inputs > 1)
        return "- is standard input, which can be read only once";
    if (inputs == 1 && writes && !arguments.Output)
        return "- is standard input, and what is made of it needs a name: -o FILE, or -o - for standard "
               "output. A file of that name is ./-";
    return std::nullopt;
}

Fault WrongProject(const Arguments& arguments) {
    if (arguments.What != Verb::Check)
        return std::nullopt;
    const std::optional<std::string>& project = arguments.Building.Project;
    if (!project && arguments.Documents.empty())
        return "No document is given";
    if (project && !arguments.Documents.empty())
        return "--project looks over the documents of a builder script; name none beside it";
    if (project && project->empty())
        return "--project needs the name of a builder script";
    return std::nullopt;
}

} // namespace

std::optional<std::string> WrongTogether(const Arguments& arguments) {
    for (const auto rule : {WrongOutput, WrongDependencyFile, WrongInput, WrongProject}) {
        if (Fault fault = rule(arguments))
            return fault;
    }
    return std::nullopt;
}

} // namespace orvane::cli
