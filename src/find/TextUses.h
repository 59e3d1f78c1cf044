// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "find/Subject.h"
#include "find/TextChange.h"

#include <string>
#include <utility>
#include <vector>

namespace orvane::find {

// How a text uses what is asked about.
enum class UseKind {
    Name,   // here it has its name
    Label,  // a label of the program, made from it
    Symbol, // begins with the machine's name and "_"
    Word,   // the name as a word
};

struct TextUse {
    TextPlace Place;
    std::size_t Start = 0; // bytes
    std::size_t Length = 0;
    UseKind Kind = UseKind::Word;
    bool IsSure = false; // no comment, no prose, and spelt just so
    std::string After;   // what stands there once it has the new name
};

// Labels of the program before and after something has changed.
using LabelChanges = std::vector<std::pair<std::string, std::string>>;

// Where the texts that undo brings back use the subject, in the order of the document's file and without
// overlaps, each with what the new name would make of it. Labels are those that the generator makes, for
// states that are not reached too.
std::vector<TextUse> TextUsesOf(const FsmDocument& document, const Subject& subject,
                                const std::string& newName);

// Where texts have the old labels, which must all begin with the machine's name as labels have it.
std::vector<TextUse> LabelUses(const FsmDocument& document, const LabelChanges& labels);

} // namespace orvane::find
