// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/Forms.h"

#include "diagram/Dot.h"
#include "diagram/LetterWidths.h"
#include "export/CsvText.h"
#include "text/AnsiText.h"
#include "text/Utf8.h"

#include <algorithm>
#include <array>

namespace orvane::exports {

namespace {

std::string DotOf(const FsmDocument& document, Formulas) {
    return diagram::DotOf(diagram::MakeScene(document, diagram::LetterWidths()),
                          diagram::Direction::LeftToRight);
}

template <auto Write>
std::string Plain(const FsmDocument& document, Formulas) {
    return Write(document);
}

constexpr std::array<Form, 9> kForms{{{"html", "Web page (HTML)", ".html", Plain<HtmlOf>},
                                      {"markdown", "Markdown", ".md", Plain<MarkdownOf>},
                                      {"csv", "Table for spreadsheets (CSV)", ".csv", CsvGridOf, true},
                                      {"csv-long", "List of transitions (CSV)", ".csv", Plain<CsvLongOf>},
                                      {"json", "Everything, for programs (JSON)", ".json", Plain<JsonOf>},
                                      {"dot", "Diagram for Graphviz (DOT)", ".dot", DotOf},
                                      {"mermaid", "Diagram for Mermaid", ".mmd", Plain<MermaidOf>},
                                      {"plantuml", "Diagram for PlantUML", ".puml", Plain<PlantUmlOf>},
                                      {"scxml", "State chart (SCXML)", ".scxml", Plain<ScxmlOf>}}};

} // namespace

std::span<const Form> Forms() { return kForms; }

const Form* FormOf(std::string_view word) {
    const auto* form =
        std::find_if(kForms.begin(), kForms.end(), [&](const Form& each) { return each.Word == word; });
    return form == kForms.end() ? nullptr : form;
}

std::optional<ImportForm> ImportFormOf(std::string_view word) {
    if (word == "json")
        return ImportForm::Json;
    if (word == "csv")
        return ImportForm::Csv;
    return word == "scxml" ? std::optional(ImportForm::Scxml) : std::nullopt;
}

ImportForm GuessedForm(std::string_view bytes) {
    if (bytes.starts_with(kUtf8Mark))
        bytes.remove_prefix(kUtf8Mark.size());
    const std::size_t first = bytes.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos)
        return ImportForm::Csv;
    if (bytes[first] == '{')
        return ImportForm::Json;
    return bytes[first] == '<' ? ImportForm::Scxml : ImportForm::Csv;
}

ImportResult Read(ImportForm form, std::string_view bytes) {
    if (form == ImportForm::Json)
        return ReadJson(bytes);
    if (form == ImportForm::Scxml)
        return ReadScxml(bytes);
    return SoundLength(bytes) == bytes.size() ? ReadCsv(bytes) : ReadCsv(ToUtf8(bytes));
}

} // namespace orvane::exports
