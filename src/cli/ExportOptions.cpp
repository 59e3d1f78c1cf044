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

void ExportOptions::AddExport(CLI::App& verb) {
    AddDocument(verb, "The document");
    verb.add_option("--format", export_.Format,
                    "html, markdown, csv, csv-long, json, dot, mermaid, plantuml or scxml")
        ->check(CLI::IsMember(
            {"html", "markdown", "csv", "csv-long", "json", "dot", "mermaid", "plantuml", "scxml"}))
        ->required()
        ->type_name("FORMAT");
    verb.add_flag("--safe,!--no-safe", export_.Safe,
                  "csv: an apostrophe before cells that look like formulas (default)");
}

void ExportOptions::AddImport(CLI::App& verb) {
    verb.add_option("FILE", document_, "The file")->required()->type_name("");
    verb.add_option("--format", export_.Format, "json, csv or scxml; what the file's name says without it")
        ->check(CLI::IsMember({"json", "csv", "scxml"}))
        ->type_name("FORMAT");
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
