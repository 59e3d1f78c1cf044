// SPDX-License-Identifier: GPL-3.0-or-later
// Documents in other forms, for other programs and for people. Texts are UTF-8. No clock and no path goes
// into them: same document, same bytes. All of them throw BoundsError when a transition leads to a state that
// the table does not have.
#pragma once

#include "core/FsmDocument.h"

#include <string>

namespace orvane::exports {

// Everything that the document holds (docs/document.schema.json). Reading it gives the same document again.
std::string JsonOf(const FsmDocument& document);

// A cell that begins with one of = + - @ is taken for a formula by spreadsheets. Safe puts an apostrophe
// before it.
enum class Formulas { Safe, AsTheyAre };

// The table as it is seen: a line for each row, a column for each state, a star behind a target with an
// action.
std::string CsvGridOf(const FsmDocument& document, Formulas formulas);

// A line for each transition: state, event, target, action. Cells are never changed.
std::string CsvLongOf(const FsmDocument& document);

// One file without scripts: the table, whose cells lead to their code, and all code.
std::string HtmlOf(const FsmDocument& document);

// A table of up to 12 states, else a list by state.
std::string MarkdownOf(const FsmDocument& document);

std::string MermaidOf(const FsmDocument& document);
std::string PlantUmlOf(const FsmDocument& document);

// State Chart XML. What a chart has no counterpart for stands in comments.
std::string ScxmlOf(const FsmDocument& document);

} // namespace orvane::exports
