// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/MachineOptions.h"

#include "cli/BracketArgument.h"

#include <CLI/CLI.hpp>

#include <utility>

namespace orvane::cli {

namespace {

void Show(std::optional<std::string>& value) {
    if (value)
        ShowBracket(*value);
}

} // namespace

void MachineOptions::AddDocument(CLI::App& verb) {
    verb.add_option("DOC", document_, "The document")->required()->type_name("");
}

void MachineOptions::AddSimulate(CLI::App& verb) {
    AddDocument(verb);
    verb.add_option("FILE", simulate_.Tests, "A file of tests; - is standard input")->type_name("");
    verb.add_option("TEST", simulate_.Test, "The test to run, or a part of its name")->type_name("");
    verb.add_option("--csv", simulate_.Csv, "Write the run to FILE as comma-separated values")
        ->type_name("FILE");
    verb.add_option("--vcd", simulate_.Vcd, "Write the run to FILE for viewers of signals")
        ->type_name("FILE");
}

void MachineOptions::AddExplore(CLI::App& verb) {
    AddDocument(verb);
    CLI::Option* to = verb.add_option("--to", explore_.To, "Print the shortest way to STATE as a test");
    to->type_name("STATE");
    verb.add_option("--from", explore_.From, "The way begins in STATE instead of where power comes on")
        ->type_name("STATE")
        ->needs(to);
    verb.add_flag("--json", explore_.Json, "Report as one line of JSON");
}

void MachineOptions::AddTour(CLI::App& verb) {
    AddDocument(verb);
    verb.add_flag("--empty-cells", tour_.EmptyCells, "Try events in the states that have nothing for them");
    verb.add_flag("--together", tour_.Together, "Try neighbouring events at the same time");
    verb.add_option("--limit", tour_.MostSteps, "Take at most STEPS steps after power-on (10000)")
        ->check(CLI::Range(1, 1'000'000))
        ->type_name("STEPS");
}

std::string MachineOptions::TakeDocument() {
    ShowBracket(document_);
    return std::move(document_);
}

SimulateArguments MachineOptions::TakeSimulate() {
    for (std::optional<std::string>* path : {&simulate_.Tests, &simulate_.Csv, &simulate_.Vcd})
        Show(*path);
    ShowBracket(simulate_.Test);
    return std::move(simulate_);
}

ExploreArguments MachineOptions::TakeExplore() {
    Show(explore_.From);
    Show(explore_.To);
    return std::move(explore_);
}

} // namespace orvane::cli
