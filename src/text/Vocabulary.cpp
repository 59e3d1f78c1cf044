// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/Vocabulary.h"

#include <algorithm>

namespace orvane {

namespace {

// Takes the piece in front of the first of the separators off the text, and the separator with it.
std::string_view TakePiece(std::string_view& text, std::string_view separators) {
    const std::size_t length = std::min(text.find_first_of(separators), text.size());
    const std::string_view piece = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return piece;
}

void AddLine(Vocabulary& vocabulary, std::string_view line) {
    if (line.find('=') == std::string_view::npos)
        return;
    const std::string_view kind = TakePiece(line, "=");
    const std::string_view word = TakePiece(line, "=");
    if (kind == "Inst")
        vocabulary.InstructionWords.append("\n").append(word);
    else if (kind == "Directive")
        vocabulary.DirectiveWords.append("\n").append(word);
}

} // namespace

Vocabulary ParseVocabulary(std::string_view bytes) {
    Vocabulary vocabulary;
    while (!bytes.empty()) // CR LF ends a line and then an empty one, which is passed over
        AddLine(vocabulary, TakePiece(bytes, "\r\n"));
    for (std::string* words : {&vocabulary.InstructionWords, &vocabulary.DirectiveWords})
        if (!words->empty())
            words->erase(0, 1);
    return vocabulary;
}

} // namespace orvane
