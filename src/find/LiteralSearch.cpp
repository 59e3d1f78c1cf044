// SPDX-License-Identifier: GPL-3.0-or-later
#include "find/LiteralSearch.h"

#include "find/WordBorders.h"
#include "text/AnsiText.h"
#include "text/ByteOf.h"

namespace orvane::find {

LiteralSearch::LiteralSearch(const Literal& wanted)
    : wanted_(wanted.MatchCase ? wanted.Text : ToUpper(wanted.Text)),
      matchCase_(wanted.MatchCase),
      wholeWord_(wanted.WholeWord) {
    for (unsigned byte = 0; byte < folded_.size(); ++byte)
        folded_[byte] = ToUpper(static_cast<char>(byte));
    std::array<std::size_t, 256> ofFolded{};
    ofFolded.fill(wanted_.size());
    for (std::size_t i = 0; i + 1 < wanted_.size(); ++i)
        ofFolded[ByteOf(wanted_[i])] = wanted_.size() - 1 - i;
    for (std::size_t byte = 0; byte < advance_.size(); ++byte)
        advance_[byte] = ofFolded[ByteOf(folded_[byte])];
}

std::size_t LiteralSearch::Next(std::string_view text, std::size_t from) const {
    while (true) {
        const std::size_t at = matchCase_ ? text.find(wanted_, from) : NextFolded(text, from);
        const bool hit = at == std::string_view::npos || !wholeWord_ ||
                         !(IsInsideWord(text, at) || IsInsideWord(text, at + wanted_.size()));
        if (hit)
            return at;
        from = at + 1;
    }
}

// The wanted text is held against the end of a window that moves on by what its last byte allows.
std::size_t LiteralSearch::NextFolded(std::string_view text, std::size_t from) const {
    const std::size_t length = wanted_.size();
    for (std::size_t end = from + length; end <= text.size(); end += advance_[ByteOf(text[end - 1])]) {
        if (folded_[ByteOf(text[end - 1])] == wanted_.back() && StandsAt(text, end - length))
            return end - length;
    }
    return std::string_view::npos;
}

bool LiteralSearch::StandsAt(std::string_view text, std::size_t at) const {
    for (std::size_t i = 0; i < wanted_.size(); ++i) {
        if (folded_[ByteOf(text[at + i])] != wanted_[i])
            return false;
    }
    return true;
}

} // namespace orvane::find
