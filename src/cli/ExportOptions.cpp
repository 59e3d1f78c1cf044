// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ExportOptions.h"

#include "cli/BracketArgument.h"

#include <CLI/CLI.hpp>

#include <utility>

namespace orvane::cli {

void ExportOptions::AddDocument(CLI::App& verb, const char* purpose) {
    verb.add_option("DOC", document_, purpose)->required()->type_name("");
}

void ExportOptions::AddDiagram(CLI::App& verb) {
    AddDocument(verb, "The document");
    verb.add_option("--format", diagram_.Format, "What to write: svg (default) or dot")
        ->check(CLI::IsMember({"svg", "dot"}))
        ->type_name("FORMAT");
    verb.add_option("--direction", diagram_.Direction,
                    "Where the picture leads: lr or td; what fits without it")
        ->check(CLI::IsMember({"lr", "td"}))
        ->type_name("DIRECTION");
    verb.add_option("--focus", diagram_.Focus, "Only STATE, what leads there and where it leads")
        ->type_name("STATE");
    verb.add_flag("--no-else", diagram_.NoElse, "Leave ELSE out");
}

std::string ExportOptions::TakeDocument() {
    ShowBracket(document_);
    return std::move(document_);
}

DiagramArguments ExportOptions::TakeDiagram() {
    if (diagram_.Focus)
        ShowBracket(*diagram_.Focus);
    return std::move(diagram_);
}

} // namespace orvane::cli
