// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ExportVerb.h"

#include "cli/ExportVerbs.h"
#include "cli/MachineFile.h"
#include "export/Forms.h"

namespace orvane::cli {

namespace {

std::string InForm(const FsmDocument& document, const ExportArguments& asked) {
    return exports::FormOf(asked.Format)
        ->Write(document, asked.Safe ? exports::Formulas::Safe : exports::Formulas::AsTheyAre);
}

} // namespace

Outcome RunExport(const Arguments& arguments, const TestFiles& files) {
    Outcome outcome;
    const std::shared_ptr<const FsmDocument> machine =
        ReadMachine(files, arguments.Documents.front(), outcome);
    if (machine != nullptr)
        WriteOutput(arguments, files, InForm(*machine, arguments.Exporting), outcome);
    return outcome;
}

} // namespace orvane::cli
