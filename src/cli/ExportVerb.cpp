// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/ExportVerb.h"

#include "cli/ExportVerbs.h"
#include "cli/MachineFile.h"
#include "diagram/Dot.h"
#include "diagram/LetterWidths.h"
#include "export/Exports.h"

#include <algorithm>
#include <array>

namespace orvane::cli {

namespace {

std::string DotOf(const FsmDocument& document) {
    return diagram::DotOf(diagram::MakeScene(document, diagram::LetterWidths()),
                          diagram::Direction::LeftToRight);
}

struct Form {
    std::string_view Word;
    std::string (*Write)(const FsmDocument&);
};

constexpr std::array<Form, 8> kForms{{{"html", exports::HtmlOf},
                                      {"markdown", exports::MarkdownOf},
                                      {"csv-long", exports::CsvLongOf},
                                      {"json", exports::JsonOf},
                                      {"dot", DotOf},
                                      {"mermaid", exports::MermaidOf},
                                      {"plantuml", exports::PlantUmlOf},
                                      {"scxml", exports::ScxmlOf}}};

std::string InForm(const FsmDocument& document, const ExportArguments& asked) {
    const auto form = std::find_if(kForms.begin(), kForms.end(),
                                   [&](const Form& each) { return each.Word == asked.Format; });
    if (form != kForms.end())
        return form->Write(document);
    return exports::CsvGridOf(document, asked.Safe ? exports::Formulas::Safe : exports::Formulas::AsTheyAre);
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
