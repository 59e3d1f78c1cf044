// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// The words of the controller language, as the maker's tools install them for the user. Each list holds its
// words in file order, one LF between them.
struct Vocabulary {
    std::string InstructionWords;
    std::string DirectiveWords;

    bool operator==(const Vocabulary&) const = default;
};

// Reads the lines `Inst=WORD` and `Directive=WORD`, in just this spelling; what follows a second "=" is not
// part of the word. All other lines are passed over, whatever they hold. Lines end with CR LF, LF or CR.
Vocabulary ParseVocabulary(std::string_view bytes);

} // namespace orvane
