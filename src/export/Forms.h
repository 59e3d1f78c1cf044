// SPDX-License-Identifier: GPL-3.0-or-later
// The forms that documents go out in and come back from: one list for the command line and the windows.
#pragma once

#include "export/Exports.h"
#include "export/Imports.h"

#include <optional>
#include <span>
#include <string_view>

namespace orvane::exports {

struct Form {
    std::string_view Word;   // on the command line; never changes
    std::string_view Title;  // for people
    std::string_view Ending; // of its files, with the dot
    std::string (*Write)(const FsmDocument& document, Formulas formulas);
    bool HasFormulas = false; // it makes a difference what is done with them
};

std::span<const Form> Forms();

// None when no form has this word.
const Form* FormOf(std::string_view word);

enum class ImportForm { Json, Csv, Scxml };

// By the word of the form, which is how its files end, too, but for the dot: "json".
std::optional<ImportForm> ImportFormOf(std::string_view word);

// What a text without a name looks like.
ImportForm GuessedForm(std::string_view bytes);

// A table that is not UTF-8 is one that a spreadsheet saved in Windows-1252.
ImportResult Read(ImportForm form, std::string_view bytes);

} // namespace orvane::exports
